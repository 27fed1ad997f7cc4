#pragma once

#include <QObject>

class DataDirectory;

/**
 * What a second start asks of the client that is running: to come to the front.
 *
 * To connect to the socket in the run directory is the whole request: nothing is read from it. The
 * answer is one byte. Only the user who owns the socket may connect.
 */
class FrontRequests : public QObject {
    Q_OBJECT

public:
    /// Listens as long as it lives. Only for the one client that holds the data directory: a socket
    /// that an earlier one left behind is replaced. Where sockets cannot be made, nothing arrives.
    explicit FrontRequests(const DataDirectory& directory, QObject* parent = nullptr);
    ~FrontRequests() override;

    /// Asks the running client; true once it has answered. Blocks for at most @p milliseconds.
    static bool send(const DataDirectory& directory, int milliseconds = 2000);

Q_SIGNALS:
    /// A later start asks for the window. Emitted before that start gets its answer.
    void arrived();

private:
    void answer();

    const DataDirectory& m_directory;
    int m_socket = -1;
};
