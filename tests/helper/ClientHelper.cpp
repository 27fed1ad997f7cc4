// A process for tests to start, and to kill.
//
//   clientHelper front HOME       asks the running client to come to the front; status 0 when it
//                                 has answered
//   clientHelper hold HOME        claims the data directory, says "held", then waits
//   clientHelper save HOME FIRST  stores the records FIRST, FIRST + 1, ... without end, and
//                                 says each number when its record is stored
//   clientHelper settings HOME FIRST
//                                 the same with interface settings; the home directory of its
//                                 environment is the one above HOME

#include "client/DataDirectory.h"
#include "client/FrontRequests.h"
#include "client/Instance.h"
#include "client/RecordStore.h"
#include "helper/NumberedRecord.h"
#include "helper/NumberedSettings.h"
#include "tradeConfig/dialog/InterfaceSettings.h"

#include <QCoreApplication>

#include <cstdio>
#include <unistd.h>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    const DataDirectory directory(arguments.at(2));
    if (arguments.at(1) == QLatin1String("hold")) {
        Instance instance(directory);
        const QString taken = instance.claim();
        std::printf("%s\n", taken.isEmpty() ? "held" : qPrintable(taken));
        std::fflush(stdout);
        while (taken.isEmpty())
            pause();
        return 1;
    }
    if (arguments.at(1) == QLatin1String("front"))
        return FrontRequests::send(directory) ? 0 : 1;
    const bool settings = arguments.at(1) == QLatin1String("settings");
    if (settings) {
        QCoreApplication::setOrganizationDomain(QStringLiteral("kivotrade.com"));
        QCoreApplication::setApplicationName(QStringLiteral("tradeclient"));
        if (InterfaceSettings::filePath() != directory.settingsFile())
            return 3;
    }
    RecordStore store(directory);
    for (int number = arguments.value(3).toInt();; ++number) {
        if (settings)
            InterfaceSettings::save(numberedLanguage(number), numberedScale(number));
        else if (!store.save(numberedRecord(number)).isEmpty())
            return 1;
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}
