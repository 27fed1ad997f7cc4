#include "support/DesignerSession.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPluginLoader>
#include <QProcess>
#include <QStackedWidget>
#include <QToolButton>
#include <QUndoStack>
#include <QXmlStreamReader>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <algorithm>

namespace {

QString latin(const char* text) { return QString::fromLatin1(text); }

// A form as it says itself: its widgets, and every value with the way that leads to it.
struct Statements {
    QStringList widgets;
    QStringList values;
};

// "widget QLabel label_7": a statement's way consists of such steps.
QString step(const QXmlStreamReader& xml)
{
    QString text = xml.name().toString();
    for (const QXmlStreamAttribute& attribute : xml.attributes()) {
        // Designer's mark of a widget that it has no plugin for; it means nothing to uic.
        if (attribute.name() != QLatin1String("native"))
            text += QLatin1Char(' ') + attribute.value();
    }
    return text;
}

Statements statements(const QByteArray& form)
{
    Statements found;
    QStringList way;
    QXmlStreamReader xml(form);
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            way << step(xml);
            if (xml.name() == QLatin1String("widget"))
                found.widgets << way.last();
            break;
        case QXmlStreamReader::Characters:
            if (!xml.isWhitespace())
                found.values << way.join(QLatin1Char('/')) + latin(" = ") + xml.text();
            break;
        case QXmlStreamReader::EndElement:
            way.removeLast();
            break;
        default:
            break;
        }
    }
    return found;
}

QStringList startPages(const Statements& form)
{
    QStringList pages;
    for (const QString& value : form.values) {
        if (value.contains(latin("property currentIndex")))
            pages << value.section(latin("/widget PageStack "), -1);
    }
    return pages;
}

// The code that uic makes of a form.
QByteArray code(const QByteArray& form)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(latin("Form.ui"));
    writeFile(file, form);
    QProcess uic;
    uic.start(latin(UIC), {file});
    if (!uic.waitForFinished() || uic.exitCode() != 0)
        return QByteArray();
    return uic.readAllStandardOutput();
}

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

// The forms, opened in Qt Designer: with the kit's plugin, and where it says so without.
class tst_DesignerForms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void savingChangesNothing_data();
    void savingChangesNothing();
    void pagesAreFound_data();
    void pagesAreFound();
    void pagesAreSwitched();
    void pagesAreAdded();
    void newStackHasPages();
};

void tst_DesignerForms::savingChangesNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("pluginPath");
    QTest::addColumn<int>("widgets");
    QTest::addColumn<QStringList>("pages");
    const QString dialog = latin(FORMS_DIRECTORY "/CTradeConfigWidget.ui");
    const QStringList dialogPages
        = {latin("stackedWidget/property currentIndex/number = 0"),
           latin("stackedWidget_system/property currentIndex/number = 2"),
           latin("stackedWidget_trade/property currentIndex/number = 0"),
           latin("stackedWidget_shortcut/property currentIndex/number = 2")};
    const QString box = latin(FORMS_DIRECTORY "/MessageBox.ui");
    QTest::newRow("dialog, without plugin") << dialog << QString() << 133 << dialogPages;
    QTest::newRow("message box, without plugin") << box << QString() << 10 << QStringList();
    QTest::newRow("dialog, with plugin") << dialog << latin(PLUGIN_PATH) << 133 << dialogPages;
    QTest::newRow("message box, with plugin") << box << latin(PLUGIN_PATH) << 10 << QStringList();
}

void tst_DesignerForms::savingChangesNothing()
{
    QFETCH(QString, file);
    QFETCH(QString, pluginPath);
    QFETCH(int, widgets);
    QFETCH(QStringList, pages);
    const QByteArray before = contentOf(file);
    QVERIFY(!before.isEmpty());
    DesignerSession designer(pluginPath);
    QVERIFY(designer.open(before));
    const QByteArray after = designer.saved();

    const Statements expected = statements(before);
    const Statements found = statements(after);
    QCOMPARE(expected.widgets.size(), widgets);
    QCOMPARE(found.widgets, expected.widgets);
    QCOMPARE(startPages(found), pages);
    QCOMPARE(found.values, expected.values);
    QVERIFY(!code(before).isEmpty());
    QCOMPARE(code(after), code(before));

    // To the letter: a later edit by hand is a small difference.
    QByteArray text = after;
    if (pluginPath.isEmpty()) {
        for (const char* const unknown :
             {"CNavWidget\" name=\"widget_system", "CNavWidget\" name=\"widget_trade",
              "CNavWidget\" name=\"widget_shortcut", "CCaptionBar\" name=\"caption"})
            text.replace(QByteArray(unknown) + "\" native=\"true\"", QByteArray(unknown) + '"');
    }
    QCOMPARE(QString::fromUtf8(text).split(QLatin1Char('\n')),
             QString::fromUtf8(before).split(QLatin1Char('\n')));
}

void tst_DesignerForms::pagesAreFound_data()
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

void tst_DesignerForms::pagesAreFound()
{
    QFETCH(QStringList, pages);
    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(contentOf(latin(FORMS_DIRECTORY "/CTradeConfigWidget.ui"))));
    auto* const stack = designer.find<QStackedWidget>(latin(QTest::currentDataTag()));
    QVERIFY(stack);
    QCOMPARE(stack->metaObject()->className(), "PageStack");
    QCOMPARE(pageNames(designer, stack), pages);
}

void tst_DesignerForms::pagesAreSwitched()
{
    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(contentOf(latin(FORMS_DIRECTORY "/CTradeConfigWidget.ui"))));
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

void tst_DesignerForms::pagesAreAdded()
{
    DesignerSession designer(latin(PLUGIN_PATH));
    QVERIFY(designer.open(contentOf(latin(FORMS_DIRECTORY "/CTradeConfigWidget.ui"))));
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

void tst_DesignerForms::newStackHasPages()
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

TRADECONFIG_TEST_MAIN(tst_DesignerForms)
#include "tst_DesignerForms.moc"
