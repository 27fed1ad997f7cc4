#pragma once

#include <QCoreApplication>
#include <QString>

/// What the command line asks for.
struct ClientOptions {
    Q_DECLARE_TR_FUNCTIONS(ClientOptions)

public:
    QString screenshotDirectory; ///< empty: none wanted
    QString module; ///< empty: the one beside this program
    QString skin; ///< name or folder; empty: the one last chosen
    QString checkedSkin; ///< folder of a skin to look through; empty: none
    bool printRecord = false;
    bool gallery = false; ///< the kit's widgets instead of the client
    int scalePercent = 0; ///< 100..300; 0: the one of the settings

    /// Whether an output is all that is wanted: no client is started then.
    bool onlyReads() const { return printRecord || gallery || !screenshotDirectory.isEmpty(); }

    /// Reads the arguments of the running application. Ends the process for --help and
    /// --version (status 0) and for arguments that it does not know (status 1).
    static ClientOptions parse();
};
