#include "support/TestMain.h"

#include <QPluginLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

class tst_DesignerPlugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersEveryKitWidget();
};

void tst_DesignerPlugin::offersEveryKitWidget()
{
    QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN));
    auto* const collection
        = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));

    QStringList names;
    for (QDesignerCustomWidgetInterface* const offered : collection->customWidgets()) {
        names << offered->name();
        QWidget window;
        std::unique_ptr<QWidget> widget(offered->createWidget(&window));
        QVERIFY(widget);
        QCOMPARE(widget->parentWidget(), &window);
        QVERIFY(widget->inherits(qPrintable(offered->name())));
        QVERIFY(offered->domXml().contains(offered->name()));
        QVERIFY(QFile::exists(QStringLiteral(SOURCE_DIRECTORY "/") + offered->includeFile()));
        widget->resize(widget->sizeHint().expandedTo(QSize(40, 20)));
        QVERIFY(!widget->grab().isNull());
    }
    QCOMPARE(names,
             QStringList({QStringLiteral("CSwitchEx"), QStringLiteral("CNavWidget"),
                          QStringLiteral("CCaptionBar"), QStringLiteral("CImageButton"),
                          QStringLiteral("CTipLabel"), QStringLiteral("CTableLineEdit"),
                          QStringLiteral("PageStack")}));
}

TRADECONFIG_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
