#include "client/DataDirectory.h"
#include "client/RecordActions.h"
#include "client/TradeCore.h"
#include "support/Files.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QSignalSpy>

#include <memory>

namespace {

/// Answers the file dialog that comes up, and the boxes after it, one for each text in @p buttons.
class Answers {
public:
    Answers(const QString& file, const QVector<QMessageBox::StandardButton>& buttons)
        : m_buttons(buttons)
        , m_first([this, file](QWidget* window) { chooseFile(window, file); })
    {
    }

    explicit Answers(const QVector<QMessageBox::StandardButton>& buttons)
        : m_buttons(buttons)
        , m_first([this](QWidget* window) { answer(window); })
    {
    }

    /// What the boxes said, in their order.
    QStringList texts;

private:
    void chooseFile(QWidget* window, const QString& file)
    {
        expectBox();
        auto* const dialog = qobject_cast<QFileDialog*>(window);
        QVERIFY(dialog);
        dialog->selectFile(file);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    void answer(QWidget* window)
    {
        auto* const box = qobject_cast<QMessageBox*>(window);
        QVERIFY(box);
        texts += box->text();
        const QMessageBox::StandardButton button = m_buttons.takeFirst();
        expectBox();
        box->button(button)->click();
    }

    void expectBox()
    {
        if (!m_buttons.isEmpty())
            m_next.push_back(std::make_unique<ModalAnswer>(
                ModalAnswer::Action([this](QWidget* window) { answer(window); })));
    }

    QVector<QMessageBox::StandardButton> m_buttons;
    std::vector<std::unique_ptr<ModalAnswer>> m_next;
    ModalAnswer m_first;
};

} // namespace

/// What a user does with the record as a whole.
class tst_RecordActions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void exports();
    void exportsNotOverItself();
    void exportThatFails();
    void imports();
    void importIsAskedFirst();
    void importOfAWrongFile_data();
    void importOfAWrongFile();
    void importKeepsForeignFields();
    void restoresDefaults();
    void restoringIsAskedFirst();
    void keepsTheOldRecordAside();
    void withoutTheOldRecordAsideNothingIsTaken();
    void undoes_data();
    void undoes();
    void theNextChangeEndsTheUndo();
    void refusedWhileTheSettingsAreOpen();

private:
    QAction* action(const char* name) const
    {
        return m_actions->findChild<QAction*>(QLatin1String(name));
    }
    QString file(const char* name) const { return m_home->filePath(QLatin1String(name)); }
    QJsonObject stored() const
    {
        return QJsonDocument::fromJson(contentOf(m_directory->recordFile())).object();
    }
    QStringList aside() const
    {
        return QDir(m_directory->configDirectory())
            .entryList({QStringLiteral("trade_parameters.*.old.json")}, QDir::Files, QDir::Name);
    }
    int lockMinutes() const { return m_core->GetTradeParm()->lockMinutes; }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
    std::unique_ptr<TradeCore> m_core;
    std::unique_ptr<QWidget> m_window;
    RecordActions* m_actions = nullptr;
};

void tst_RecordActions::init()
{
    m_window.reset();
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->filePath(QStringLiteral("data")));
    writeFile(m_directory->recordFile(), R"({"lockMinutes": 77, "foreign": true})");
    m_core = std::make_unique<TradeCore>(*m_directory);
    QVERIFY(m_core->load().isClean());
    m_window = std::make_unique<QWidget>();
    m_actions = new RecordActions(*m_core, m_window.get());
}

void tst_RecordActions::exports()
{
    {
        const Answers answers(file("mine.json"), {});
        action("action_export")->trigger();
    }
    const QJsonObject record = QJsonDocument::fromJson(contentOf(file("mine.json"))).object();
    QCOMPARE(record.size(), 41);
    QCOMPARE(record.value(QStringLiteral("lockMinutes")).toInt(), 77);
    QVERIFY2(aside().isEmpty(), "the record is as it was");
}

void tst_RecordActions::exportsNotOverItself()
{
    const QByteArray before = contentOf(m_directory->recordFile());
    // The toolkit asks whether the file may be replaced.
    const Answers answers(m_directory->recordFile(), {QMessageBox::Yes, QMessageBox::Ok});
    action("action_export")->trigger();
    QVERIFY(answers.texts.last().contains(m_directory->recordFile()));
    QCOMPARE(contentOf(m_directory->recordFile()), before);
}

void tst_RecordActions::exportThatFails()
{
    if (!QFileInfo::exists(QStringLiteral("/proc/self")))
        TEST_SKIP("No place at hand where nobody may write");
    const Answers answers(QStringLiteral("/proc/mine.json"), {QMessageBox::Ok});
    action("action_export")->trigger();
    QVERIFY2(answers.texts.value(0).contains(QStringLiteral("/proc/mine.json")),
             qPrintable(answers.texts.join(QLatin1Char('|'))));
}

void tst_RecordActions::imports()
{
    writeFile(file("other.json"), R"({"lockMinutes": 5, "defaultPage": "zjgp"})");
    const QSignalSpy imported(m_actions, &RecordActions::imported);
    const Answers answers(file("other.json"), {QMessageBox::Yes});
    action("action_import")->trigger();
    QVERIFY(answers.texts.value(0).contains(file("other.json")));
    QCOMPARE(imported.size(), 1);
    QCOMPARE(lockMinutes(), 5);
    QCOMPARE(stored().value(QStringLiteral("lockMinutes")).toInt(), 5);
    QCOMPARE(stored().value(QStringLiteral("defaultPage")).toString(), QStringLiteral("zjgp"));
}

void tst_RecordActions::importIsAskedFirst()
{
    writeFile(file("other.json"), R"({"lockMinutes": 5})");
    const QByteArray before = contentOf(m_directory->recordFile());
    const QSignalSpy imported(m_actions, &RecordActions::imported);
    const Answers answers(file("other.json"), {QMessageBox::No});
    action("action_import")->trigger();
    QCOMPARE(imported.size(), 0);
    QCOMPARE(lockMinutes(), 77);
    QCOMPARE(contentOf(m_directory->recordFile()), before);
    QVERIFY(aside().isEmpty());
}

void tst_RecordActions::importOfAWrongFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("wrong value") << QByteArray(R"({"lockMinutes": -5, "splitMaxQty": 7})")
                                 << QStringLiteral("lockMinutes 的值 -5 无效");
    QTest::newRow("broken") << QByteArray("{") << QStringLiteral("格式错误");
    QTest::newRow("list") << QByteArray("[1]") << QStringLiteral("内容不是 JSON 对象");
    QTest::newRow("something else")
        << QByteArray(R"({"name": "x"})") << QStringLiteral("没有任何交易参数");
}

void tst_RecordActions::importOfAWrongFile()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    writeFile(file("other.json"), content);
    const QByteArray before = contentOf(m_directory->recordFile());
    const Answers answers(file("other.json"), {QMessageBox::Ok});
    action("action_import")->trigger();
    const QString said = answers.texts.value(0);
    QVERIFY2(said.contains(file("other.json")) && said.contains(reason), qPrintable(said));
    QCOMPARE(lockMinutes(), 77);
    QCOMPARE(m_core->GetTradeParm()->splitMaxQty, 50000);
    QCOMPARE(contentOf(m_directory->recordFile()), before);
    QCOMPARE(contentOf(file("other.json")), content);
    QVERIFY(aside().isEmpty());
}

void tst_RecordActions::importKeepsForeignFields()
{
    writeFile(file("other.json"), R"({"lockMinutes": 5, "alien": 1})");
    const Answers answers(file("other.json"), {QMessageBox::Yes});
    action("action_import")->trigger();
    QVERIFY(stored().value(QStringLiteral("foreign")).toBool());
    QVERIFY(!stored().contains(QStringLiteral("alien")));
}

void tst_RecordActions::restoresDefaults()
{
    const QSignalSpy restored(m_actions, &RecordActions::restored);
    const Answers answers({QMessageBox::Yes});
    action("action_restore")->trigger();
    QVERIFY(answers.texts.value(0).contains(QStringLiteral("默认值")));
    QCOMPARE(restored.size(), 1);
    QVERIFY(m_core->record() == OwnedRecord());
    QCOMPARE(stored().value(QStringLiteral("lockMinutes")).toInt(), 30);
}

void tst_RecordActions::restoringIsAskedFirst()
{
    const Answers answers({QMessageBox::No});
    action("action_restore")->trigger();
    QCOMPARE(lockMinutes(), 77);
    QVERIFY(aside().isEmpty());
}

void tst_RecordActions::keepsTheOldRecordAside()
{
    {
        const Answers answers({QMessageBox::Yes});
        action("action_restore")->trigger();
    }
    m_core->GetTradeParm()->lockMinutes = 12; // not stored yet
    {
        const Answers answers({QMessageBox::Yes});
        action("action_restore")->trigger();
    }
    QVector<int> kept;
    for (const QString& name : aside()) {
        const QByteArray content
            = contentOf(m_directory->configDirectory() + QLatin1Char('/') + name);
        kept += QJsonDocument::fromJson(content)
                    .object()
                    .value(QStringLiteral("lockMinutes"))
                    .toInt();
    }
    std::sort(kept.begin(), kept.end());
    QCOMPARE(kept, (QVector<int>{12, 77}));
}

void tst_RecordActions::withoutTheOldRecordAsideNothingIsTaken()
{
    QVERIFY(QDir(m_directory->configDirectory()).removeRecursively());
    writeFile(m_directory->configDirectory(), "in the way");
    const Answers answers({QMessageBox::Yes, QMessageBox::Ok});
    action("action_restore")->trigger();
    QVERIFY(answers.texts.value(1).contains(m_directory->configDirectory()));
    QCOMPARE(lockMinutes(), 77);
    QVERIFY(!action("action_undo")->isEnabled());
}

void tst_RecordActions::undoes_data()
{
    QTest::addColumn<bool>("import");
    QTest::addColumn<QString>("text");
    QTest::newRow("import") << true << QStringLiteral("撤消导入(&U)");
    QTest::newRow("defaults") << false << QStringLiteral("撤消恢复默认值(&U)");
}

void tst_RecordActions::undoes()
{
    QFETCH(const bool, import);
    QFETCH(const QString, text);
    QVERIFY(!action("action_undo")->isEnabled());
    if (import) {
        writeFile(file("other.json"), R"({"lockMinutes": 5})");
        const Answers answers(file("other.json"), {QMessageBox::Yes});
        action("action_import")->trigger();
    } else {
        const Answers answers({QMessageBox::Yes});
        action("action_restore")->trigger();
    }
    QVERIFY(lockMinutes() != 77);
    QVERIFY(action("action_undo")->isEnabled());
    QCOMPARE(action("action_undo")->text(), text);

    const QSignalSpy undone(m_actions, &RecordActions::undone);
    action("action_undo")->trigger(); // without a question
    QCOMPARE(undone.size(), 1);
    QCOMPARE(lockMinutes(), 77);
    QCOMPARE(stored().value(QStringLiteral("lockMinutes")).toInt(), 77);
    QVERIFY(!action("action_undo")->isEnabled());
    QCOMPARE(action("action_undo")->text(), QStringLiteral("撤消(&U)"));
}

void tst_RecordActions::theNextChangeEndsTheUndo()
{
    {
        const Answers answers({QMessageBox::Yes});
        action("action_restore")->trigger();
    }
    m_core->SaveTradeParm();
    m_actions->noteChange();
    QVERIFY2(action("action_undo")->isEnabled(), "nothing has changed");
    m_core->GetTradeParm()->lockMinutes = 12;
    m_core->SaveTradeParm();
    m_actions->noteChange();
    QVERIFY(!action("action_undo")->isEnabled());
    m_actions->setRefused(true);
    m_actions->setRefused(false);
    QVERIFY(!action("action_undo")->isEnabled());
}

void tst_RecordActions::refusedWhileTheSettingsAreOpen()
{
    {
        const Answers answers({QMessageBox::Yes});
        action("action_restore")->trigger();
    }
    m_actions->setRefused(true);
    for (const char* const name : {"action_import", "action_restore", "action_undo"}) {
        QVERIFY2(!action(name)->isEnabled(), name);
        action(name)->trigger();
    }
    QVERIFY(action("action_export")->isEnabled());
    QCOMPARE(lockMinutes(), 30);
    m_actions->setRefused(false);
    for (const char* const name : {"action_import", "action_restore", "action_undo"})
        QVERIFY2(action(name)->isEnabled(), name);
}

TRADECONFIG_TEST_MAIN(tst_RecordActions)
#include "tst_RecordActions.moc"
