#include "client/RecordFields.h"
#include "client/RecordModel.h"
#include "client/RecordView.h"
#include "client/StartSettings.h"
#include "support/KeyText.h"
#include "support/TestMain.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QTableView>
#include <QTranslator>

/// The record as the client's window shows it.
class tst_RecordView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void meansInTheLanguageOfTheInterface_data();
    void meansInTheLanguageOfTheInterface();
    void keysThatAreNone_data();
    void keysThatAreNone();
    void changedKeysAreShownAsStored();
    void findsByEitherLanguage_data();
    void findsByEitherLanguage();
    void findsAmongTheChangedOnly();
    void columnsSuitWhatTheyHold();
    void copiesRows();
    void copiesByTheKeyboard();
    void copiesNothingOfNothing();

private:
    static void setKey(OwnedRecord& record, const QString& key);
    static QString cell(const RecordView& view, const char* name, int column);
    static QStringList shown(const RecordView& view);
};

void tst_RecordView::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly));
}

void tst_RecordView::setKey(OwnedRecord& record, const QString& key)
{
    RecordFields::setText(record.get(), *RecordFields::find(QStringLiteral("stockShortcuts")), 0,
                          key);
}

QString tst_RecordView::cell(const RecordView& view, const char* name, int column)
{
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        if (view.model()->index(row, RecordModel::NameColumn).data() == QLatin1String(name))
            return view.model()->index(row, column).data().toString();
    }
    return QStringLiteral("no such row");
}

QStringList tst_RecordView::shown(const RecordView& view)
{
    QStringList names;
    const QAbstractItemModel* const model = view.table()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names += model->index(row, RecordModel::NameColumn).data().toString();
    return names;
}

void tst_RecordView::meansInTheLanguageOfTheInterface_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("choice");
    QTest::newRow("zh_CN") << QStringLiteral("按 %1：买入股票") << QStringLiteral("股票买入")
                           << QStringLiteral("卖一");
    QTest::newRow("zh_TW") << QStringLiteral("按 %1：買進股票") << QStringLiteral("股票買進")
                           << QStringLiteral("賣一");
    QTest::newRow("en_US") << QStringLiteral("Press %1: Buy stock") << QStringLiteral("Buy")
                           << QStringLiteral("Ask 1");
}

void tst_RecordView::meansInTheLanguageOfTheInterface()
{
    QFETCH(const QString, key);
    QFETCH(const QString, page);
    QFETCH(const QString, choice);
    StartSettings settings;
    settings.language = QString::fromLatin1(QTest::currentDataTag());
    settings.installTranslations(qApp);
    const RecordView view;
    view.model()->show(OwnedRecord());
    QCOMPARE(cell(view, "stockShortcuts[0]", RecordModel::MeaningColumn),
             key.arg(keyText("Ctrl+B")));
    QCOMPARE(cell(view, "defaultPage", RecordModel::MeaningColumn), page);
    QCOMPARE(cell(view, "defaultBuyPrice", RecordModel::MeaningColumn), choice);
}

void tst_RecordView::keysThatAreNone_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("meaning");
    QTest::newRow("none") << QString() << QStringLiteral("未设置");
    QTest::newRow("unknown") << QStringLiteral("Ctrl+Nothing") << QStringLiteral("无法识别的按键");
}

void tst_RecordView::keysThatAreNone()
{
    QFETCH(const QString, key);
    QFETCH(const QString, meaning);
    OwnedRecord record;
    setKey(record, key);
    const RecordView view;
    view.model()->show(record);
    QCOMPARE(cell(view, "stockShortcuts[0]", RecordModel::MeaningColumn), meaning);
}

void tst_RecordView::changedKeysAreShownAsStored()
{
    const RecordView view;
    OwnedRecord record;
    view.model()->show(record);
    setKey(record, QString());
    view.model()->showChanges(record);
    QCOMPARE(cell(view, "stockShortcuts[0]", RecordModel::ChangeColumn),
             QStringLiteral("原为 ") + keyText("Ctrl+B"));
    setKey(record, QStringLiteral("F7"));
    view.model()->showChanges(record);
    QCOMPARE(cell(view, "stockShortcuts[0]", RecordModel::ChangeColumn), QStringLiteral("原为空"));
}

void tst_RecordView::findsByEitherLanguage_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("names");
    const QStringList lock{QStringLiteral("lockMinutes")};
    QTest::newRow("title, simplified") << QStringLiteral("锁屏") << lock;
    QTest::newRow("title, traditional") << QStringLiteral("鎖定螢幕") << lock;
    QTest::newRow("title, English") << QStringLiteral("idle TIME") << lock;
    QTest::newRow("meaning, English") << QStringLiteral("30 MINUTES") << lock;
    QTest::newRow("field") << QStringLiteral("lockmin") << lock;
    QTest::newRow("signs of patterns")
        << QStringLiteral("stockShortcuts[3]") << QStringList{QStringLiteral("stockShortcuts[3]")};
    QTest::newRow("nothing") << QStringLiteral("no such thing") << QStringList();
}

void tst_RecordView::findsByEitherLanguage()
{
    QFETCH(const QString, search);
    QFETCH(const QStringList, names);
    for (const char* const language : {"zh_CN", "zh_TW", "en_US"}) {
        StartSettings settings;
        settings.language = QString::fromLatin1(language);
        settings.installTranslations(qApp);
        const RecordView view;
        view.model()->show(OwnedRecord());
        QCOMPARE(shown(view).size(), 69);
        view.search()->setText(search);
        QCOMPARE(shown(view), names);
        cleanup();
    }
}

void tst_RecordView::findsAmongTheChangedOnly()
{
    const RecordView view;
    OwnedRecord record;
    view.model()->show(record);
    record.get().lockMinutes = 5;
    record.get().splitMaxQty = 7;
    view.model()->showChanges(record);
    view.changedOnly()->setChecked(true);
    QCOMPARE(shown(view),
             (QStringList{QStringLiteral("splitMaxQty"), QStringLiteral("lockMinutes")}));
    view.search()->setText(QStringLiteral("split"));
    QCOMPARE(shown(view), QStringList{QStringLiteral("splitMaxQty")});
    view.search()->setText(QStringLiteral("原为 30"));
    QCOMPARE(shown(view), QStringList{QStringLiteral("lockMinutes")});
}

void tst_RecordView::columnsSuitWhatTheyHold()
{
    const RecordView view;
    view.model()->show(OwnedRecord());
    for (const int column : {RecordModel::TitleColumn, RecordModel::NameColumn}) {
        const QString text = view.model()->index(0, column).data().toString();
        QVERIFY(view.table()->columnWidth(column)
                > view.table()->fontMetrics().horizontalAdvance(text));
    }
}

void tst_RecordView::copiesRows()
{
    const RecordView view;
    view.model()->show(OwnedRecord());
    view.search()->setText(QStringLiteral("confirm"));
    QCOMPARE(shown(view).size(), 2);
    // In the order of the rows, not of their choice.
    view.table()->setSelectionMode(QAbstractItemView::MultiSelection);
    view.table()->selectRow(1);
    view.table()->selectRow(0);
    view.table()->findChild<QAction*>(QStringLiteral("action_copyRows"))->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("撤单前需要确认\tconfirmCancel\t1\t启用\t\n"
                            "委托前需要确认\tconfirmOrder\t1\t启用\t\n"));
}

void tst_RecordView::copiesByTheKeyboard()
{
    RecordView view;
    view.model()->show(OwnedRecord());
    view.show();
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.table()->setFocus();
    view.table()->selectRow(0);
    QGuiApplication::clipboard()->clear();
    QTest::keySequence(view.table(), QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("默认买入价格\tdefaultBuyPrice\t0\t卖一\t\n"));
}

void tst_RecordView::copiesNothingOfNothing()
{
    const RecordView view;
    view.model()->show(OwnedRecord());
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    view.table()->findChild<QAction*>(QStringLiteral("action_copyRows"))->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

TRADECONFIG_TEST_MAIN(tst_RecordView)
#include "tst_RecordView.moc"
