#include "support/DesignerSession.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPluginLoader>
#include <QStackedWidget>
#include <QToolButton>
#include <QUndoStack>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <algorithm>
#include <memory>

namespace {

QString latin(const char* text) { return QString::fromLatin1(text); }

QStringList pageNames(const DesignerSession& designer, QStackedWidget* stack)
{
    QStringList names;
    const auto* const pages = designer.extension<QDesignerContainerExtension>(stack);
    for (int index = 0; pages && index < pages->count(); ++index)
        names << pages->widget(index)->objectName();
    return names;
}

QAction* actionOf(const QWidget* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&text](const QAction* action) {
        return action->text() == text;
    });
    return found == actions.end() ? nullptr : *found;
}

// As a right click on the widget and two clicks in the menu.
void chooseFromMenu(QWidget* widget, const QString& submenu, const QString& text)
{
    bool chosen = false;
    QTimer::singleShot(0, widget, [&] {
        QWidget* const menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        const QAction* const outer = actionOf(menu, submenu);
        QAction* const inner = outer ? actionOf(outer->menu(), text) : nullptr;
        if (inner) {
            inner->trigger();
            chosen = true;
        }
        menu->close();
    });
    const QPoint place(1, 1);
    QContextMenuEvent click(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &click);
    QVERIFY(chosen);
}

} // namespace

class tst_DesignerPlugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersEveryKitWidget();
    void pagesAreFound_data();
    void pagesAreFound();
    void pagesAreSwitched();
    void pagesAreAdded();
    void newStackHasPages();
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

void tst_DesignerPlugin::pagesAreFound_data()
{
    QTest::addColumn<QStringList>("pages");
    QTest::newRow("stackedWidget") << QStringList{latin("page"), latin("page_2"), latin("page_14")};
    QTest::newRow("stackedWidget_system")
        << QStringList{latin("page_3"), latin("page_4"), latin("page_5")};
    QTest::newRow("stackedWidget_trade")
        << QStringList{latin("page_6"), latin("page_7"), latin("page_8"), latin("page_9")};
    QTest::newRow("stackedWidget_shortcut")
        << QStringList{latin("page_16"), latin("page_10"), latin("page_11")};
}

void tst_DesignerPlugin::pagesAreFound()
{
    QFETCH(QStringList, pages);
    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(contentOf(latin(DIALOG_FORM))));
    auto* const stack = designer.find<QStackedWidget>(latin(QTest::currentDataTag()));
    QVERIFY(stack);
    QCOMPARE(stack->metaObject()->className(), "PageStack");
    QCOMPARE(pageNames(designer, stack), pages);
}

void tst_DesignerPlugin::pagesAreSwitched()
{
    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(contentOf(latin(DIALOG_FORM))));
    designer.show();
    const QByteArray before = designer.saved();
    const QWidget* const first = designer.find(latin("page"));
    const QWidget* const second = designer.find(latin("page_2"));
    auto* const stack = designer.find<QStackedWidget>(latin("stackedWidget"));
    QVERIFY(first->isVisible());

    // The little arrow that Designer puts on a stack.
    auto* const next
        = stack->findChild<QToolButton*>(latin("__qt__passive_next"), Qt::FindDirectChildrenOnly);
    QVERIFY(next);
    next->click();
    QVERIFY(second->isVisible());
    QVERIFY(!first->isVisible());
    QByteArray expected = before;
    expected.replace(expected.indexOf("<number>0</number>", expected.indexOf("currentIndex")),
                     int(strlen("<number>0</number>")), "<number>1</number>");
    QCOMPARE(designer.saved(), expected);

    designer.form().commandHistory()->undo();
    QVERIFY(first->isVisible());
    QCOMPARE(designer.saved(), before);
}

void tst_DesignerPlugin::pagesAreAdded()
{
    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(contentOf(latin(DIALOG_FORM))));
    designer.show();
    auto* const stack = designer.find<QStackedWidget>(latin("stackedWidget"));
    chooseFromMenu(stack->currentWidget(), latin("Insert Page"), latin("After Current Page"));

    const QStringList names = pageNames(designer, stack);
    QCOMPARE(names.size(), 4);
    const QString added = names.at(1);
    QCOMPARE(names, QStringList({latin("page"), added, latin("page_2"), latin("page_14")}));
    QCOMPARE(stack->currentWidget()->objectName(), added);
    const QByteArray longer = designer.saved();
    QCOMPARE(longer.count("<widget "), 134);

    designer.form().commandHistory()->undo();
    QCOMPARE(pageNames(designer, stack),
             QStringList({latin("page"), latin("page_2"), latin("page_14")}));
    QCOMPARE(designer.saved().count("<widget "), 133);

    QVERIFY(designer.open(longer));
    QCOMPARE(pageNames(designer, designer.find<QStackedWidget>(latin("stackedWidget"))), names);
}

void tst_DesignerPlugin::newStackHasPages()
{
    QPluginLoader loader(latin(DESIGNER_PLUGIN));
    const auto* const collection
        = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY(collection);
    const QDesignerCustomWidgetInterface* const offered = collection->customWidgets().constLast();
    QVERIFY(offered->isContainer());

    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(offered->domXml().toUtf8()));
    auto* const stack = qobject_cast<QStackedWidget*>(designer.form().mainContainer());
    QVERIFY(stack);
    QCOMPARE(pageNames(designer, stack), QStringList({latin("page"), latin("page_2")}));
}

TRADECONFIG_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
