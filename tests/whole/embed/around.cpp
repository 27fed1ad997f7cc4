#include "tradeConfig/CTradeConfigWidget.h"

#include <QtTest>

class Around : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void className()
    {
        QCOMPARE(QString(CTradeConfigWidget::staticMetaObject.className()), "CTradeConfigWidget");
    }
};

QTEST_MAIN(Around)
#include "around.moc"
