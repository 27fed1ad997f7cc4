#include "support/KeyText.h"
#include "support/TestMain.h"

/// What other tests take for the key texts of macOS.
class tst_KeyText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void onMac_data();
    void onMac();
};

void tst_KeyText::onMac_data()
{
    QTest::addColumn<QString>("onMac");
    const auto row
        = [](const char* onLinux, const QString& onMac) { QTest::newRow(onLinux) << onMac; };
    row("", QString());
    row("A", QStringLiteral("A"));
    row("F12", QStringLiteral("F12"));
    row("Ctrl+A", QStringLiteral("⌘A"));
    row("Alt+7", QStringLiteral("⌥7"));
    row("Shift+F5", QStringLiteral("⇧F5"));
    row("Ctrl+Shift+B", QStringLiteral("⇧⌘B"));
    row("Alt+Shift+B", QStringLiteral("⌥⇧B"));
    row("Ctrl+Alt+S", QStringLiteral("⌥⌘S"));
    row("Ctrl+Alt+Shift+F35", QStringLiteral("⌥⇧⌘F35"));
    row("Ctrl++", QStringLiteral("⌘+"));
    row("Ctrl+Shift+,", QStringLiteral("⇧⌘,"));
    row("Esc", QStringLiteral("⎋"));
    row("Backspace", QStringLiteral("⌫"));
    row("Ctrl+Alt+Del", QStringLiteral("⌥⌘⌦"));
    row("Ctrl+Tab", QStringLiteral("⌘⇥"));
    row("Return", QStringLiteral("↵"));
    row("Enter", QStringLiteral("⌤"));
    row("Left", QStringLiteral("←"));
    row("Ctrl+End", QStringLiteral("⌘↘"));
    row("PgUp", QStringLiteral("⇞"));
    row("Shift+Ins", QStringLiteral("⇧Ins"));
    row("空", QStringLiteral("空"));
}

void tst_KeyText::onMac()
{
    QTEST(keyTextOnMac(QString::fromUtf8(QTest::currentDataTag())), "onMac");
}

TRADECONFIG_TEST_MAIN(tst_KeyText)
#include "tst_KeyText.moc"
