#include "client/FrontRequests.h"

#include "client/DataDirectory.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QSocketNotifier>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr const char* socketName = "client.socket";

// A socket's address holds about a hundred bytes, and a path may be longer: the socket is named
// from within its directory.
class WorkingDirectory {
public:
    explicit WorkingDirectory(const QString& directory)
        : m_before(::open(".", O_RDONLY | O_CLOEXEC))
        , m_entered(m_before >= 0 && ::chdir(QFile::encodeName(directory).constData()) == 0)
    {
    }
    ~WorkingDirectory()
    {
        if (m_entered && ::fchdir(m_before) != 0)
            qWarning("The current directory is lost: %s", std::strerror(errno));
        if (m_before >= 0)
            ::close(m_before);
    }
    Q_DISABLE_COPY(WorkingDirectory)

    bool isEntered() const { return m_entered; }

private:
    const int m_before;
    const bool m_entered;
};

sockaddr_un address()
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrcpy(address.sun_path, socketName);
    return address;
}

// Neither blocks nor is passed on to the programs that this one starts.
int keepPrivate(int descriptor)
{
    if (descriptor >= 0) {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    }
    return descriptor;
}

int newSocket() { return keepPrivate(::socket(AF_UNIX, SOCK_STREAM, 0)); }

bool listenAt(int descriptor)
{
    const sockaddr_un at = address();
    ::unlink(socketName);
    // Nobody can connect before the last of these calls.
    return ::bind(descriptor, reinterpret_cast<const sockaddr*>(&at), sizeof at) == 0
        && ::chmod(socketName, S_IRUSR | S_IWUSR) == 0 && ::listen(descriptor, SOMAXCONN) == 0;
}

bool connectFrom(int descriptor, const DataDirectory& directory)
{
    const WorkingDirectory here(directory.runDirectory());
    const sockaddr_un at = address();
    return here.isEntered()
        && ::connect(descriptor, reinterpret_cast<const sockaddr*>(&at), sizeof at) == 0;
}

bool isAnswered(int descriptor, const QDeadlineTimer& deadline)
{
    pollfd wanted = {descriptor, POLLIN, 0};
    char answer;
    return ::poll(&wanted, 1, int(deadline.remainingTime())) > 0
        && ::read(descriptor, &answer, 1) == 1;
}

} // namespace

FrontRequests::FrontRequests(const DataDirectory& directory, QObject* parent)
    : QObject(parent)
    , m_directory(directory)
{
    const WorkingDirectory here(directory.runDirectory());
    m_socket = here.isEntered() ? newSocket() : -1;
    if (m_socket < 0 || !listenAt(m_socket))
        return;
    // Whoever asked may have given up: the answer then fails, and must not end this process.
    std::signal(SIGPIPE, SIG_IGN);
    auto* const notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &FrontRequests::answer);
}

FrontRequests::~FrontRequests()
{
    if (m_socket < 0)
        return;
    const WorkingDirectory here(m_directory.runDirectory());
    if (here.isEntered())
        ::unlink(socketName);
    ::close(m_socket);
}

void FrontRequests::answer()
{
    const int asking = keepPrivate(::accept(m_socket, nullptr, nullptr));
    if (asking < 0)
        return;
    Q_EMIT arrived();
    if (::write(asking, "!", 1) != 1)
        qDebug("A second start did not wait for its answer");
    ::close(asking);
}

bool FrontRequests::send(const DataDirectory& directory, int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    for (;;) {
        const int descriptor = newSocket();
        const bool answered
            = connectFrom(descriptor, directory) && isAnswered(descriptor, deadline);
        ::close(descriptor);
        if (answered || deadline.hasExpired())
            return answered;
        // The running client may be about to listen.
        constexpr unsigned long pause = 20;
        QThread::msleep(pause);
    }
}
