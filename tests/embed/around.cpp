#include "tradeConfig/CTradeConfigWidget.h"

#include <QtTest>

class Around : public QObject {
    Q_OBJECT
private slots:
    void className()
    {
        QCOMPARE(QString(CTradeConfigWidget::staticMetaObject.className()), "CTradeConfigWidget");
    }
};

QTEST_MAIN(Around)
#include "around.moc"
