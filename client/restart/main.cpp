// Brings the trading client back after it has ended.
//
// The client keeps a copy of this program in its data directory. It stands alone there: nothing
// but the C++ library and POSIX.

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/file.h>
#include <sys/time.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;
constexpr int defaultLimitSeconds = 30;

// The log stays when nobody sees the standard error of a detached program.
int fail(const std::string& dataDirectory, const std::string& message)
{
    std::fprintf(stderr, "restart: %s\n", message.c_str());
    std::ofstream log(dataDirectory + "/run/restart.log", std::ios::app);
    char stamp[32] = "";
    const std::time_t now = std::time(nullptr);
    std::strftime(stamp, sizeof stamp, "%Y-%m-%d %H:%M:%S", std::localtime(&now));
    log << stamp << ' ' << message << '\n';
    return exitFailed;
}

int limitSeconds()
{
    const char* const text = std::getenv("TRADECLIENT_RESTART_LIMIT");
    const int seconds = text ? std::atoi(text) : 0;
    return seconds > 0 ? seconds : defaultLimitSeconds;
}

volatile std::sig_atomic_t timeIsUp = 0;
void onAlarm(int) { timeIsUp = 1; }

enum class Wait { Ended, StillRunning, Failed };

// The client holds the lock as long as it lives. The alarm repeats, so that one that goes off
// just before flock() begins to wait is followed by another.
Wait waitForEnd(int lock, int seconds)
{
    struct sigaction action = {};
    action.sa_handler = onAlarm;
    sigaction(SIGALRM, &action, nullptr);
    struct itimerval timer = {};
    timer.it_value.tv_sec = seconds;
    timer.it_interval.tv_usec = 100000;
    setitimer(ITIMER_REAL, &timer, nullptr);
    int result;
    do {
        result = flock(lock, LOCK_EX);
    } while (result != 0 && errno == EINTR && !timeIsUp);
    const int error = errno;
    const struct itimerval off = {};
    setitimer(ITIMER_REAL, &off, nullptr);
    if (result == 0)
        return Wait::Ended;
    errno = error;
    return error == EINTR ? Wait::StillRunning : Wait::Failed;
}

// Texts that each end in a NUL.
std::vector<std::string> readTexts(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    std::vector<std::string> texts;
    for (std::string text; std::getline(in, text, '\0');)
        texts.push_back(text);
    return texts;
}

} // namespace

int main(int argc, char** argv)
{
    char self[PATH_MAX];
    if (argc != 2 || std::strcmp(argv[1], "jy") != 0 || !std::strchr(argv[0], '/')
        || !realpath(argv[0], self)) {
        std::fprintf(stderr,
                     "usage: <data directory>/restart jy\n"
                     "Waits for the running trading client to end, then starts it again "
                     "as it was started.\n");
        return exitUsage;
    }
    const std::string dataDirectory = std::string(self).substr(0, std::string(self).rfind('/'));
    const std::string lockFile = dataDirectory + "/run/client.lock";
    const std::string startFile = dataDirectory + "/run/client.start";

    const int lock = open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lock < 0)
        return fail(dataDirectory, lockFile + ": " + std::strerror(errno));
    const int seconds = limitSeconds();
    switch (waitForEnd(lock, seconds)) {
    case Wait::Ended:
        break;
    case Wait::StillRunning:
        return fail(dataDirectory,
                    "the client is still running after " + std::to_string(seconds)
                        + " seconds; gave up");
    case Wait::Failed:
        return fail(dataDirectory, lockFile + ": " + std::strerror(errno));
    }

    std::vector<std::string> start = readTexts(startFile);
    if (start.size() < 2)
        return fail(dataDirectory, startFile + ": does not say how to start the client");
    if (chdir(start[0].c_str()) != 0)
        fail(dataDirectory, start[0] + ": " + std::strerror(errno) + "; started elsewhere");
    std::vector<char*> arguments;
    for (std::size_t i = 1; i < start.size(); ++i)
        arguments.push_back(&start[i][0]);
    arguments.push_back(nullptr);

    // The lock is closed by this very call, so the new client finds it free.
    execv(arguments[0], arguments.data());
    return fail(dataDirectory, start[1] + ": " + std::strerror(errno));
}
