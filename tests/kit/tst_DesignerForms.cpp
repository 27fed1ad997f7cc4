#include "support/DesignerSession.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QProcess>
#include <QXmlStreamReader>

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

} // namespace

// The forms, opened in Qt Designer and saved without an edit: with the kit's plugin and without it.
class tst_DesignerForms : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void savingChangesNothing_data();
    void savingChangesNothing();
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

TRADECONFIG_TEST_MAIN(tst_DesignerForms)
#include "tst_DesignerForms.moc"
