#include "support/ModalAnswer.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TipLabel.h"

#include <QIntValidator>

namespace {

const QString red = QStringLiteral("color:red");
const QString green = QStringLiteral("color:green");
const QString belowMinimum = QStringLiteral("不能小于100股");
const QString upperTooSmall = QStringLiteral("上限不能小于下限或递减数量");
const QString aboveUpper = QStringLiteral("不能大于上限");

enum Field { Base, Upper, Lower, Decrement };

/// One group of splitting settings as the form names it.
struct Group {
    const char* name;
    int page;
    const char* edits[4];
    const char* lowerLabel;
    const char* decrementLabel;
    const char* strategy;
    const char* enabled;
    int randomStrategy; ///< shows the lower limit
    int decreasingStrategy; ///< shows the decrement
    std::int32_t TradeParm::*enabledValue;
    std::int32_t TradeParm::*strategyValue;
    std::int32_t TradeParm::*values[4];
};

const Group groups[] = {
    {"stock",
     2,
     {"lineEdit_trade_baseCount", "lineEdit_trade_high", "lineEdit_trade_low",
      "lineEdit_trade_desc"},
     "label_trade_low",
     "label_trade_desc",
     "comboBox_trade_split",
     "checkBox_trade_fc",
     1,
     2,
     &TradeParm::splitEnabled,
     &TradeParm::splitStrategy,
     {&TradeParm::splitBaseQty, &TradeParm::splitMaxQty, &TradeParm::splitMinQty,
      &TradeParm::splitStepQty}},
    {"STAR",
     3,
     {"lineEdit_trade_kc_baseCount", "lineEdit_trade_kc_high", "lineEdit_trade_kc_low",
      "lineEdit_trade_kc_desc"},
     "label_trade_kc_low",
     "label_trade_kc_desc",
     "comboBox_trade_kc_split",
     "checkBox_trade_kc_fc",
     3,
     4,
     &TradeParm::starSplitEnabled,
     &TradeParm::starSplitStrategy,
     {&TradeParm::starSplitBaseQty, &TradeParm::starSplitMaxQty, &TradeParm::starSplitMinQty,
      &TradeParm::starSplitStepQty}},
};

/// The dialog, shown on the page of one group.
struct Session : TestDialog {
    explicit Session(int groupIndex, int strategy = 0, int base = 1000, int upper = 500,
                     int lower = 200, int decrement = 200)
        : TestDialog([&](FakeTrade& core) {
            const Group& chosen = groups[groupIndex];
            TradeParm& parm = core.parm();
            parm.*chosen.enabledValue = 1;
            parm.*chosen.strategyValue = strategy;
            const int values[] = {base, upper, lower, decrement};
            for (int field = 0; field < 4; ++field)
                parm.*chosen.values[field] = values[field];
        })
        , group(groups[groupIndex])
    {
        get()->SetCurrentIndex(1);
        get()->ui.stackedWidget_trade->setCurrentIndex(group.page);
        get()->show();
        shown = activate();
    }

    /// Also after a modal box, which leaves no window active on the test platform.
    bool activate() const
    {
        get()->activateWindow();
        return QTest::qWaitForWindowActive(get());
    }

    QLineEdit& edit(int field) const { return find<QLineEdit>(group.edits[field]); }
    QString key(int field) const { return QString::fromLatin1(group.edits[field]); }
    QComboBox& strategy() const { return find<QComboBox>(group.strategy); }
    CTipLabel& tip() const { return *get()->tipLabel; }

    /// Types @p text over what the field holds.
    void type(int field, const QString& text) const
    {
        edit(field).setFocus();
        QTest::keyClick(&edit(field), Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(&edit(field), Qt::Key_Delete);
        else
            QTest::keyClicks(&edit(field), text);
    }

    void enter(int field, const QString& text) const
    {
        type(field, text);
        leaveField();
    }

    /// 'r' red, 'g' green, '-' no mark, for base, upper, lower and decrement; and the same for
    /// the validity entries: '1', '0', '-' none.
    QString state() const
    {
        QString marks;
        QString entries;
        for (int field = 0; field < 4; ++field) {
            const QString sheet = edit(field).styleSheet();
            marks += sheet == red ? u'r' : sheet == green ? u'g' : sheet.isEmpty() ? u'-' : u'?';
            const auto entry = get()->inputValidity.constFind(key(field));
            entries += entry == get()->inputValidity.constEnd() ? u'-' : *entry ? u'1' : u'0';
        }
        return marks + u' ' + entries;
    }

    /// Whether lower limit and decrement rows are shown, each with its label.
    QString rows() const
    {
        const auto shownRow = [this](int field, const char* label) {
            const bool hidden = edit(field).isHidden();
            return hidden != find(label).isHidden() ? u'?' : hidden ? u'-' : u's';
        };
        return QString(shownRow(Lower, group.lowerLabel))
            + shownRow(Decrement, group.decrementLabel);
    }

    const Group& group;
    bool shown = false;
};

QString number(int value) { return QString::number(value); }

} // namespace

class tst_SplitGroup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rules_data();
    void rules();
    void upperLimitSeesHiddenCompanions_data();
    void upperLimitSeesHiddenCompanions();
    void upperBelowMinimumRevealsNothing_data();
    void upperBelowMinimumRevealsNothing();
    void lowerLimitSeesHiddenUpper_data();
    void lowerLimitSeesHiddenUpper();
    void validUpperClearsALowerLimitOf50_data();
    void validUpperClearsALowerLimitOf50();
    void validUpperClearsBoth_data();
    void validUpperClearsBoth();
    void validUpperGivesNoNewEntries_data();
    void validUpperGivesNoNewEntries();
    void validLowerClearsTheUpper_data();
    void validLowerClearsTheUpper();
    void validDecrementClearsTheUpper_data();
    void validDecrementClearsTheUpper();
    void validBaseClearsNothing_data();
    void validBaseClearsNothing();
    void failingClearsNothing_data();
    void failingClearsNothing();
    void groupsStandApart_data();
    void groupsStandApart();
    void unknownNameClearsNothing();

    void nothingWhileTyping_data();
    void nothingWhileTyping();
    void unvisitedFieldsHaveNoEntry_data();
    void unvisitedFieldsHaveNoEntry();
    void otherFieldsAreNotChecked();
    void noEventIsConsumed();

    void tipPlace_data();
    void tipPlace();
    void tipForNoWidget();
    void tipIsReused_data();
    void tipIsReused();
    void tipGoesAwayByItself();
    void leavingTheWindowChecksToo();

    void strategyRows_data();
    void strategyRows();
    void presets_data();
    void presets();
    void presetsKeepMarks();
    void presetsWhileLoading_data();
    void presetsWhileLoading();
    void enabling_data();
    void enabling();

    void confirmRefusesInKeyOrder();

private:
    static void bothGroups();
};

void tst_SplitGroup::bothGroups()
{
    QTest::addColumn<int>("group");
    QTest::newRow("stock") << 0;
    QTest::newRow("STAR") << 1;
}

void tst_SplitGroup::rules_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("field");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("decrement");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("tip");

    const QString none;
    for (int group = 0; group < 2; ++group) {
        const auto row = [group](const char* name, Field field, int upper, int lower, int decrement,
                                 const char* typed, const QString& tip) {
            QTest::addRow("%s %s", groups[group].name, name)
                << group << int(field) << upper << lower << decrement << QString::fromLatin1(typed)
                << tip;
        };
        row("base empty", Base, 500, 200, 200, "", belowMinimum);
        row("base 99", Base, 500, 200, 200, "99", belowMinimum);
        row("base 100", Base, 500, 200, 200, "100", none);
        row("base above all", Base, 500, 200, 200, "10000000", none);
        row("base with leading zeros", Base, 500, 200, 200, "0099", belowMinimum);

        row("upper empty", Upper, 500, 200, 200, "", belowMinimum);
        row("upper 99", Upper, 500, 0, 0, "99", belowMinimum);
        row("upper 99 below companions", Upper, 500, 200, 200, "99", belowMinimum);
        row("upper 100", Upper, 500, 100, 100, "100", none);
        row("upper equal to lower", Upper, 500, 300, 200, "300", none);
        row("upper one less than lower", Upper, 500, 300, 200, "299", upperTooSmall);
        row("upper one more than lower", Upper, 500, 300, 200, "301", none);
        row("upper equal to decrement", Upper, 500, 200, 300, "300", none);
        row("upper one less than decrement", Upper, 500, 200, 300, "299", upperTooSmall);
        row("upper one more than decrement", Upper, 500, 200, 300, "301", none);
        row("upper at the top", Upper, 500, 200, 200, "10000000", none);

        row("lower empty", Lower, 500, 200, 200, "", belowMinimum);
        row("lower 99", Lower, 500, 200, 200, "99", belowMinimum);
        row("lower 99 above upper", Lower, 50, 200, 200, "99", belowMinimum);
        row("lower 100", Lower, 500, 200, 200, "100", none);
        row("lower equal to upper", Lower, 500, 200, 200, "500", none);
        row("lower one less than upper", Lower, 500, 200, 200, "499", none);
        row("lower one more than upper", Lower, 500, 200, 200, "501", aboveUpper);
        row("lower at the top", Lower, 9999999, 200, 200, "10000000", aboveUpper);
        row("lower beside a larger decrement", Lower, 500, 200, 9000, "500", none);

        row("decrement empty", Decrement, 500, 200, 200, "", belowMinimum);
        row("decrement 99", Decrement, 500, 200, 200, "99", belowMinimum);
        row("decrement 100", Decrement, 500, 200, 200, "100", none);
        row("decrement equal to upper", Decrement, 500, 200, 200, "500", none);
        row("decrement one more than upper", Decrement, 500, 200, 200, "501", aboveUpper);
        row("decrement at the top", Decrement, 10000000, 200, 200, "10000000", none);
        row("decrement beside a larger lower", Decrement, 500, 9000, 200, "500", none);
    }
}

void tst_SplitGroup::rules()
{
    QFETCH(int, group);
    QFETCH(int, field);
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(int, decrement);
    QFETCH(QString, typed);
    QFETCH(QString, tip);
    const Group& names = groups[group];
    // A strategy that shows the field.
    const int strategy = field == Decrement ? names.decreasingStrategy : names.randomStrategy;
    const Session session(group, strategy, 1000, upper, lower, decrement);
    QVERIFY(session.shown);

    session.type(field, typed);
    QCOMPARE(session.state(), QStringLiteral("---- ----"));
    QVERIFY(session.tip().isHidden());
    session.leaveField();

    QString expected = QStringLiteral("---- ----");
    expected[field] = tip.isEmpty() ? u'g' : u'r';
    expected[5 + field] = tip.isEmpty() ? u'1' : u'0';
    QCOMPARE(session.state(), expected);
    QCOMPARE(session.edit(field).text(), typed);
    QCOMPARE(session.tip().isHidden(), tip.isEmpty());
    QCOMPARE(session.tip().text(), tip);
    if (!tip.isEmpty())
        QCOMPARE(session.tip().width(), tip == upperTooSmall ? 200 : 160);
    const QString before = field == Decrement ? QStringLiteral("-s") : QStringLiteral("s-");
    QCOMPARE(session.rows(), tip == upperTooSmall ? QStringLiteral("ss") : before);
}

void tst_SplitGroup::upperLimitSeesHiddenCompanions_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("decrement");
    for (int group = 0; group < 2; ++group) {
        QTest::addRow("%s lower", groups[group].name) << group << 401 << 100;
        QTest::addRow("%s decrement", groups[group].name) << group << 100 << 401;
        QTest::addRow("%s both", groups[group].name) << group << 401 << 401;
    }
}

void tst_SplitGroup::upperLimitSeesHiddenCompanions()
{
    QFETCH(int, group);
    QFETCH(int, lower);
    QFETCH(int, decrement);
    const Session session(group, 0, 1000, 500, lower, decrement);
    QCOMPARE(session.rows(), QStringLiteral("--"));
    session.enter(Upper, QStringLiteral("400"));
    QCOMPARE(session.state(), QStringLiteral("-r-- -0--"));
    QCOMPARE(session.tip().text(), upperTooSmall);
    QCOMPARE(session.rows(), QStringLiteral("ss"));
    QVERIFY(session.edit(Lower).isVisible());
    QVERIFY(session.edit(Decrement).isVisible());
    session.enter(Upper, QStringLiteral("401"));
    QCOMPARE(session.state(), QStringLiteral("-g-- -1--"));
    // The rows stay until a strategy is chosen.
    QCOMPARE(session.rows(), QStringLiteral("ss"));
}

void tst_SplitGroup::upperBelowMinimumRevealsNothing_data() { bothGroups(); }

void tst_SplitGroup::upperBelowMinimumRevealsNothing()
{
    QFETCH(int, group);
    const Session session(group, 0);
    session.enter(Upper, QStringLiteral("99"));
    QCOMPARE(session.state(), QStringLiteral("-r-- -0--"));
    QCOMPARE(session.rows(), QStringLiteral("--"));
}

void tst_SplitGroup::lowerLimitSeesHiddenUpper_data() { bothGroups(); }

void tst_SplitGroup::lowerLimitSeesHiddenUpper()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy, 1000, 300, 200, 200);
    session.edit(Upper).hide();
    session.enter(Lower, QStringLiteral("301"));
    QCOMPARE(session.state(), QStringLiteral("--r- --0-"));
    QVERIFY(session.edit(Upper).isHidden());
}

void tst_SplitGroup::validUpperClearsALowerLimitOf50_data() { bothGroups(); }

void tst_SplitGroup::validUpperClearsALowerLimitOf50()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    session.enter(Lower, QStringLiteral("50"));
    QCOMPARE(session.state(), QStringLiteral("--r- --0-"));
    session.enter(Upper, QStringLiteral("400"));
    QCOMPARE(session.state(), QStringLiteral("-gg- -11-"));
    QCOMPARE(session.edit(Lower).text(), QStringLiteral("50"));
    session.enter(Lower, QStringLiteral("50"));
    QCOMPARE(session.state(), QStringLiteral("-gr- -10-"));
}

void tst_SplitGroup::validUpperClearsBoth_data() { bothGroups(); }

void tst_SplitGroup::validUpperClearsBoth()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy, 1000, 300, 200, 200);
    session.enter(Lower, QStringLiteral("301"));
    session.strategy().setCurrentIndex(groups[group].decreasingStrategy);
    session.enter(Decrement, QStringLiteral("302"));
    QCOMPARE(session.state(), QStringLiteral("--rr --00"));
    session.enter(Upper, QStringLiteral("301"));
    QCOMPARE(session.state(), QStringLiteral("-rrr -000"));
    session.enter(Upper, QStringLiteral("302"));
    QCOMPARE(session.state(), QStringLiteral("-ggg -111"));
}

void tst_SplitGroup::validUpperGivesNoNewEntries_data() { bothGroups(); }

void tst_SplitGroup::validUpperGivesNoNewEntries()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    session.enter(Upper, QStringLiteral("400"));
    QCOMPARE(session.state(), QStringLiteral("-g-- -1--"));
    // An entry that is true already is left alone, its mark too.
    session.enter(Lower, QStringLiteral("400"));
    session.edit(Lower).setStyleSheet(QString());
    session.enter(Upper, QStringLiteral("401"));
    QCOMPARE(session.state(), QStringLiteral("-g-- -11-"));
}

void tst_SplitGroup::validLowerClearsTheUpper_data() { bothGroups(); }

void tst_SplitGroup::validLowerClearsTheUpper()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy, 1000, 300, 300, 200);
    session.enter(Upper, QStringLiteral("250"));
    QCOMPARE(session.state(), QStringLiteral("-r-- -0--"));
    session.enter(Lower, QStringLiteral("251"));
    QCOMPARE(session.state(), QStringLiteral("-rr- -00-"));
    session.enter(Lower, QStringLiteral("250"));
    QCOMPARE(session.state(), QStringLiteral("-gg- -11-"));

    // The decrement, revealed, still keeps the upper limit red; equality does not.
    const Session other(group, groups[group].randomStrategy, 1000, 300, 300, 251);
    other.enter(Upper, QStringLiteral("250"));
    other.enter(Lower, QStringLiteral("250"));
    QCOMPARE(other.state(), QStringLiteral("-rg- -01-"));
    other.edit(Decrement).setText(QStringLiteral("250"));
    other.enter(Lower, QStringLiteral("249"));
    QCOMPARE(other.state(), QStringLiteral("-gg- -11-"));
}

void tst_SplitGroup::validDecrementClearsTheUpper_data() { bothGroups(); }

void tst_SplitGroup::validDecrementClearsTheUpper()
{
    QFETCH(int, group);
    const Session session(group, groups[group].decreasingStrategy, 1000, 300, 200, 300);
    session.enter(Upper, QStringLiteral("250"));
    QCOMPARE(session.state(), QStringLiteral("-r-- -0--"));
    session.enter(Decrement, QStringLiteral("250"));
    QCOMPARE(session.state(), QStringLiteral("-g-g -1-1"));

    const Session other(group, groups[group].decreasingStrategy, 1000, 300, 251, 300);
    other.enter(Upper, QStringLiteral("250"));
    other.enter(Decrement, QStringLiteral("250"));
    QCOMPARE(other.state(), QStringLiteral("-r-g -0-1"));
    other.edit(Lower).setText(QStringLiteral("250"));
    other.enter(Decrement, QStringLiteral("100"));
    QCOMPARE(other.state(), QStringLiteral("-g-g -1-1"));
}

void tst_SplitGroup::validBaseClearsNothing_data() { bothGroups(); }

void tst_SplitGroup::validBaseClearsNothing()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    session.enter(Upper, QStringLiteral("99"));
    session.enter(Lower, QStringLiteral("98"));
    session.enter(Base, QStringLiteral("5000"));
    QCOMPARE(session.state(), QStringLiteral("grr- 100-"));
}

void tst_SplitGroup::failingClearsNothing_data() { bothGroups(); }

void tst_SplitGroup::failingClearsNothing()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    session.enter(Lower, QStringLiteral("50"));
    session.enter(Upper, QStringLiteral("99"));
    QCOMPARE(session.state(), QStringLiteral("-rr- -00-"));
    session.enter(Base, QStringLiteral("1"));
    QCOMPARE(session.state(), QStringLiteral("rrr- 000-"));
}

void tst_SplitGroup::groupsStandApart_data() { bothGroups(); }

void tst_SplitGroup::groupsStandApart()
{
    QFETCH(int, group);
    const Session session(group, 0);
    for (const char* const name : groups[1 - group].edits)
        session->inputValidity.insert(QString::fromLatin1(name), false);
    session.enter(Base, QStringLiteral("500"));
    session.enter(Upper, QStringLiteral("400"));
    for (const char* const name : groups[1 - group].edits) {
        QCOMPARE(session->inputValidity.value(QString::fromLatin1(name), true), false);
        QCOMPARE(session.find(name).styleSheet(), QString());
    }
    QCOMPARE(session.find(groups[1 - group].lowerLabel).isHidden(), true);
}

void tst_SplitGroup::unknownNameClearsNothing()
{
    const Session session(0);
    for (const Group& group : groups) {
        for (const char* const name : group.edits)
            session->inputValidity.insert(QString::fromLatin1(name), false);
    }
    const auto before = session->inputValidity;
    for (const char* const name :
         {"", "lineEdit_trade_baseCount", "lineEdit_trade_kc_baseCount", "stcokShortcut",
          "lineEdit_system_lockTime", "LINEEDIT_TRADE_HIGH"})
        session->CheckSplitIsOk(QString::fromLatin1(name));
    QCOMPARE(session->inputValidity, before);
}

void tst_SplitGroup::nothingWhileTyping_data() { bothGroups(); }

void tst_SplitGroup::nothingWhileTyping()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    for (const int field : {Base, Upper, Lower}) {
        session.edit(field).setFocus();
        session.edit(field).clear();
        for (const char* const keys : {"5", "0", "0"}) {
            QTest::keyClicks(&session.edit(field), QString::fromLatin1(keys));
            QCOMPARE(session.edit(field).styleSheet(), QString());
        }
        QTest::keyClick(&session.edit(field), Qt::Key_Return);
        QCOMPARE(session.edit(field).styleSheet(), QString());
        QVERIFY(!session->inputValidity.contains(session.key(field)));
    }
    QVERIFY(session.tip().isHidden());
    // Neither does setting a text.
    session.edit(Lower).setText(QStringLiteral("1"));
    QVERIFY(!session->inputValidity.contains(session.key(Lower)));
}

void tst_SplitGroup::unvisitedFieldsHaveNoEntry_data() { bothGroups(); }

void tst_SplitGroup::unvisitedFieldsHaveNoEntry()
{
    QFETCH(int, group);
    Session session(group, 0, 1, 1, 1, 1);
    QVERIFY(session->inputValidity.isEmpty());
    // Bad values that nobody visited do not stop a save.
    session.confirm();
    QCOMPARE(session.trade.saves, 1);
    QCOMPARE(session.trade.parm().*session.group.values[Upper], 1);
}

void tst_SplitGroup::otherFieldsAreNotChecked()
{
    const Session session(0);
    session->SetCurrentIndex(0);
    QLineEdit& lockTime = *session->ui.lineEdit_system_lockTime;
    lockTime.setFocus();
    lockTime.clear();
    session.leaveField();
    QVERIFY(session->inputValidity.isEmpty());
    QCOMPARE(lockTime.styleSheet(), QString());
    QVERIFY(session.tip().isHidden());

    // An object that the dialog never watched.
    QLineEdit stranger;
    stranger.setObjectName(QStringLiteral("lineEdit_trade_high"));
    QFocusEvent out(QEvent::FocusOut);
    QVERIFY(!session->eventFilter(&stranger, &out));
    QVERIFY(session->inputValidity.isEmpty());
}

void tst_SplitGroup::noEventIsConsumed()
{
    const Session session(1, 3);
    const auto types = {
        QEvent::FocusIn,          QEvent::FocusOut,    QEvent::KeyPress,        QEvent::KeyRelease,
        QEvent::MouseButtonPress, QEvent::Enter,       QEvent::Leave,           QEvent::Paint,
        QEvent::InputMethod,      QEvent::ContextMenu, QEvent::ShortcutOverride};
    QList<QObject*> watched;
    for (const char* const name : groups[1].edits)
        watched << &session.find(name);
    watched << session->ui.comboBox_trade_kc_buyRise << session->ui.comboBox_trade_kc_sellRise
            << session->ui.lineEdit_system_lockTime << session.get();
    for (QObject* const object : qAsConst(watched)) {
        for (const QEvent::Type type : types) {
            session->inputValidity.clear();
            QEvent event(type);
            event.setAccepted(true);
            QVERIFY(!session->eventFilter(object, &event));
            QVERIFY(event.isAccepted());
            const bool checked = !session->inputValidity.isEmpty();
            QCOMPARE(checked,
                     type == QEvent::FocusOut
                         && object->objectName().startsWith(QStringLiteral("lineEdit_trade_kc_")));
        }
    }
}

void tst_SplitGroup::tipPlace_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("width");
    for (int group = 0; group < 2; ++group) {
        const char* const name = groups[group].name;
        QTest::addRow("%s base", name) << group << int(Base) << "99" << 160;
        QTest::addRow("%s upper", name) << group << int(Upper) << "99" << 160;
        QTest::addRow("%s upper too small", name) << group << int(Upper) << "150" << 200;
        QTest::addRow("%s lower", name) << group << int(Lower) << "99" << 160;
        QTest::addRow("%s lower above upper", name) << group << int(Lower) << "501" << 160;
        QTest::addRow("%s decrement", name) << group << int(Decrement) << "" << 160;
    }
}

void tst_SplitGroup::tipPlace()
{
    QFETCH(int, group);
    QFETCH(int, field);
    QFETCH(QString, typed);
    QFETCH(int, width);
    const Group& names = groups[group];
    const Session session(group,
                          field == Decrement ? names.decreasingStrategy : names.randomStrategy);
    const QRect place = session.edit(field).geometry();
    QVERIFY(place.x() > 0 && place.width() >= 90 && place.height() >= 23);
    session.enter(field, typed);
    QVERIFY(session.tip().isVisible());
    QCOMPARE(session.tip().parentWidget(), session.get());
    QCOMPARE(session.tip().geometry(),
             QRect(place.x() + place.width() + 130, place.y() + 62, width, place.height()));
    QCOMPARE(session.tip().styleSheet(), QStringLiteral("color:red;"));
    // Nothing lies over it.
    const QPoint middle = session.tip().geometry().center();
    QCOMPARE(session->childAt(middle), &session.tip());
}

void tst_SplitGroup::tipForNoWidget()
{
    const Session session(0);
    QObject stranger;
    session->ShowInputErrorMsg(&stranger, QStringLiteral("x"), 160);
    session->ShowInputErrorMsg(nullptr, QStringLiteral("x"), 160);
    QVERIFY(session.tip().isHidden());

    QWidget field;
    field.setGeometry(7, 11, 30, 40);
    session->ShowInputErrorMsg(&field, QStringLiteral("text"), 123);
    QCOMPARE(session.tip().geometry(), QRect(167, 73, 123, 40));
    QCOMPARE(session.tip().text(), QStringLiteral("text"));
    QVERIFY(session.tip().isVisible());
}

void tst_SplitGroup::tipIsReused_data() { bothGroups(); }

void tst_SplitGroup::tipIsReused()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    session.enter(Base, QStringLiteral("1"));
    const CTipLabel* const tip = session->tipLabel;
    session.enter(Lower, QStringLiteral("501"));
    QCOMPARE(session->tipLabel, tip);
    QCOMPARE(session->findChildren<CTipLabel*>().size(), 1);
    QCOMPARE(tip->text(), aboveUpper);
    // Accepting a value does not hide the tip early.
    session.enter(Lower, QStringLiteral("500"));
    QVERIFY(tip->isVisible());
}

void tst_SplitGroup::tipGoesAwayByItself()
{
    const Session session(0, 2);
    QVERIFY(session.shown);
    session.enter(Base, QStringLiteral("99"));
    QVERIFY(session.tip().isVisible());
    QVERIFY(session.tip().graphicsEffect());
    QTRY_VERIFY(!session.tip().isVisible());
    session->ShowInputErrorMsg(&session.edit(Upper), QStringLiteral("again"), 160);
    QVERIFY(session.tip().isVisible());
    QTRY_VERIFY(!session.tip().isVisible());
}

void tst_SplitGroup::leavingTheWindowChecksToo()
{
    const Session session(0, 2);
    QVERIFY(session.shown);
    for (const Qt::FocusReason reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::OtherFocusReason}) {
        session->inputValidity.clear();
        session.edit(Base).setText(QStringLiteral("99"));
        QFocusEvent leaving(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&session.edit(Base), &leaving);
        QCOMPARE(session->inputValidity.value(session.key(Base), true), false);
        QCOMPARE(session.edit(Base).styleSheet(), red);
    }
}

void tst_SplitGroup::strategyRows_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("rows"); ///< from both shown, then from both hidden
    const auto row = [](int group, int index, const char* rows) {
        QTest::addRow("%s %d", groups[group].name, index)
            << group << index << QString::fromLatin1(rows);
    };
    row(0, 0, "-- --");
    row(0, 1, "s- s-");
    row(0, 2, "-s -s");
    row(0, 3, "ss --");
    row(0, -1, "ss --");
    row(0, 100, "ss --");
    row(1, 0, "-- --");
    row(1, 1, "-- --");
    row(1, 2, "-- --");
    row(1, 3, "s- s-");
    row(1, 4, "-s -s");
    row(1, 5, "-- --");
    row(1, -1, "-- --");
    row(1, 100, "-- --");
}

void tst_SplitGroup::strategyRows()
{
    QFETCH(int, group);
    QFETCH(int, index);
    QFETCH(QString, rows);
    const Session session(group, groups[group].randomStrategy, 1234, 4321, 77, 88);
    QString seen;
    for (const bool visible : {true, false}) {
        for (const int field : {Lower, Decrement})
            session.edit(field).setVisible(visible);
        session.find(session.group.lowerLabel).setVisible(visible);
        session.find(session.group.decrementLabel).setVisible(visible);
        if (group == 0)
            session->SelectFcSplit(index);
        else
            session->SelectFcKcSplit(index);
        seen += session.rows() + u' ';
    }
    QCOMPARE(seen.trimmed(), rows);
    QCOMPARE(session.edit(Lower).text(), QStringLiteral("77"));
    QCOMPARE(session.edit(Decrement).text(), QStringLiteral("88"));
    const bool preset = group == 1 && index >= 0 && index <= 2;
    QCOMPARE(session.edit(Base).text(), preset ? QStringLiteral("10000") : QStringLiteral("1234"));
    if (!preset)
        QCOMPARE(session.edit(Upper).text(), QStringLiteral("4321"));
    QVERIFY(session->inputValidity.isEmpty());
}

void tst_SplitGroup::presets_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("upper");
    QTest::newRow("limit order") << 0 << "100000";
    QTest::newRow("market order") << 1 << "50000";
    QTest::newRow("after-hours fixed price") << 2 << "100000";
}

void tst_SplitGroup::presets()
{
    QFETCH(int, index);
    const Session session(1, 3);
    session.enter(Base, QStringLiteral("777"));
    session.strategy().setCurrentIndex(index);
    QCOMPARE(session.edit(Base).text(), QStringLiteral("10000"));
    QTEST(session.edit(Upper).text(), "upper");
    QCOMPARE(session.edit(Lower).text(), QStringLiteral("200"));
    QCOMPARE(session.edit(Decrement).text(), QStringLiteral("200"));
    QCOMPARE(session.rows(), QStringLiteral("--"));
    // Choosing a strategy without a preset afterwards changes no text.
    session.strategy().setCurrentIndex(4);
    QCOMPARE(session.edit(Base).text(), QStringLiteral("10000"));
    QTEST(session.edit(Upper).text(), "upper");
}

void tst_SplitGroup::presetsKeepMarks()
{
    const Session session(1, 3);
    session.enter(Base, QStringLiteral("1"));
    session.enter(Upper, QStringLiteral("2"));
    QCOMPARE(session.state(), QStringLiteral("rr-- 00--"));
    session.strategy().setCurrentIndex(1);
    QCOMPARE(session.edit(Base).text(), QStringLiteral("10000"));
    QCOMPARE(session.state(), QStringLiteral("rr-- 00--"));
    {
        const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
        session.confirm();
    }
    QCOMPARE(session.trade.saves, 0);
    QVERIFY(session.activate());
    // Visiting is enough: the preset is valid.
    session.edit(Base).setFocus();
    session.edit(Upper).setFocus();
    session.leaveField();
    QCOMPARE(session.state(), QStringLiteral("gg-- 11--"));
    session.confirm();
    QCOMPARE(session.trade.saves, 1);
}

void tst_SplitGroup::presetsWhileLoading_data()
{
    QTest::addColumn<int>("strategy");
    QTest::addColumn<QString>("base");
    QTest::newRow("0") << 0 << "10000";
    QTest::newRow("1") << 1 << "10000";
    QTest::newRow("2") << 2 << "10000";
    QTest::newRow("3") << 3 << "1234";
    QTest::newRow("4") << 4 << "1234";
}

void tst_SplitGroup::presetsWhileLoading()
{
    QFETCH(int, strategy);
    Session session(1, strategy, 1234, 4321, 77, 88);
    QTEST(session.edit(Base).text(), "base");
    QCOMPARE(session.edit(Upper).text(), QStringLiteral("4321"));
    QCOMPARE(session.edit(Lower).text(), QStringLiteral("77"));
    QCOMPARE(session.edit(Decrement).text(), QStringLiteral("88"));
    session->WriteAllParm();
    QTEST(number(session.trade.parm().starSplitBaseQty), "base");
    QCOMPARE(session.trade.parm().starSplitMaxQty, 4321);

    const Session stock(0, strategy, 1234, 4321, 77, 88);
    QCOMPARE(stock.edit(Base).text(), QStringLiteral("1234"));
}

void tst_SplitGroup::enabling_data() { bothGroups(); }

void tst_SplitGroup::enabling()
{
    QFETCH(int, group);
    const Session session(group, groups[group].randomStrategy);
    auto& box = session.find<QCheckBox>(session.group.enabled);
    session.enter(Upper, QStringLiteral("99"));
    const QString state = session.state();
    const auto enabled = [&session] {
        QString flags;
        for (int field = 0; field < 4; ++field)
            flags += session.edit(field).isEnabled() ? u'1' : u'0';
        return flags + (session.strategy().isEnabled() ? u'1' : u'0');
    };
    QVERIFY(box.isChecked());
    QCOMPARE(enabled(), QStringLiteral("11111"));
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
    QVERIFY(!box.isChecked());
    QCOMPARE(enabled(), QStringLiteral("00000"));
    // Labels, rows, marks and entries stay.
    QVERIFY(session.find(session.group.lowerLabel).isEnabled());
    QCOMPARE(session.rows(), QStringLiteral("s-"));
    QCOMPARE(session.state(), state);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
    QCOMPARE(enabled(), QStringLiteral("11111"));

    // The other group was not enabled by its record.
    const Group& other = groups[1 - group];
    for (const char* const name : other.edits)
        QVERIFY(!session.find(name).isEnabled());
    QVERIFY(!session.find(other.strategy).isEnabled());
}

void tst_SplitGroup::confirmRefusesInKeyOrder()
{
    Session session(0);
    session.enter(Upper, QStringLiteral("99"));
    session.enter(Base, QStringLiteral("1000"));
    for (int attempt = 0; attempt < 2; ++attempt) {
        QTest::ignoreMessage(
            QtDebugMsg, QRegularExpression(QStringLiteral("lineEdit_trade_baseCount *: *true")));
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(QStringLiteral("lineEdit_trade_high *: *false")));
        const int gets = session.trade.gets;
        const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
        session.confirm();
        QCOMPARE(answer.title(), QStringLiteral("提示"));
        QCOMPARE(answer.text(),
                 QStringLiteral("存在不合理的修改参数\n"
                                "请把红色标记的值修改为绿色标记后再次点击确定！"));
        QCOMPARE(session.trade.gets, gets);
        QCOMPARE(session.trade.saves, 0);
        QVERIFY(session->isVisible());
    }
    QVERIFY(session.activate());
    session.enter(Upper, QStringLiteral("200"));
    QCOMPARE(session.state(), QStringLiteral("gg-- 11--"));
    session.confirm();
    QCOMPARE(session.trade.saves, 1);
    QCOMPARE(session.trade.parm().splitMaxQty, 200);
    QVERIFY(!session->isVisible());
}

TRADECONFIG_TEST_MAIN(tst_SplitGroup)
#include "tst_SplitGroup.moc"
