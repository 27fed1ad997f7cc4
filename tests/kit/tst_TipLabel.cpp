#include "support/TestMain.h"
#include "tradeConfig/TipLabel.h"

#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>

namespace {

struct TipParent {
    QWidget tipParent;
};

class ShownTip : TipParent, public CTipLabel {
public:
    ShownTip()
        : CTipLabel(QStringLiteral("a"), true, &tipParent)
    {
        tipParent.show();
    }
};

QList<QPropertyAnimation*> fades(const CTipLabel& label)
{
    return label.findChildren<QPropertyAnimation*>(QString(), Qt::FindDirectChildrenOnly);
}

double opacity(const CTipLabel& label)
{
    const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(label.graphicsEffect());
    return effect ? effect->opacity() : -1.0;
}

void deleteWhatIsDue() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

} // namespace

class tst_TipLabel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void construction_data();
    void construction();
    void newTextKeepsTheRest();
    void fadeIsBuiltAsDescribed();
    void opacityOverTime_data();
    void opacityOverTime();
    void hidesAndCleansUpAtTheEnd();
    void runsByItselfToTheEnd();
    void secondFadeRulesTheOpacity();
    void firstFadeStillHides();
    void everyEarlierFadeStillHides();
    void shownAgainAfterAFade();
    void labelMayDieDuringTheFade();
    void thousandFadesLeaveNothing();
};

void tst_TipLabel::construction_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isError");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("error") << QStringLiteral("数量不能小于100") << true
                           << QStringLiteral("color:red;");
    QTest::newRow("correct") << QStringLiteral("正确") << false << QStringLiteral("color:green;");
    QTest::newRow("empty") << QString() << true << QStringLiteral("color:red;");
}

void tst_TipLabel::construction()
{
    QFETCH(QString, text);
    QFETCH(bool, isError);
    QFETCH(QString, sheet);

    QWidget parent;
    CTipLabel label(text, isError, &parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.size(), QSize(160, 20));
    QCOMPARE(label.text(), text);
    QCOMPARE(label.styleSheet(), sheet);
    QVERIFY(!label.isHidden() || !label.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(!label.graphicsEffect());
    QVERIFY(fades(label).isEmpty());
}

void tst_TipLabel::newTextKeepsTheRest()
{
    QWidget parent;
    for (const bool isError : {true, false}) {
        CTipLabel label(QStringLiteral("a"), isError, &parent);
        const QString sheet = label.styleSheet();
        label.setGeometry(7, 8, 90, 30);
        label.hide();
        label.SetMessageLabel(QStringLiteral("上限必须大于下限"));
        QCOMPARE(label.text(), QStringLiteral("上限必须大于下限"));
        QCOMPARE(label.styleSheet(), sheet);
        QCOMPARE(label.geometry(), QRect(7, 8, 90, 30));
        QVERIFY(label.isHidden());
        label.show();
        label.SetMessageLabel(QStringLiteral("b"));
        QVERIFY(!label.isHidden());
        QVERIFY(!label.graphicsEffect());
    }
}

void tst_TipLabel::fadeIsBuiltAsDescribed()
{
    QWidget parent;
    CTipLabel label(QStringLiteral("a"), true, &parent);
    label.SetAutoHide();
    QVERIFY(qobject_cast<QGraphicsOpacityEffect*>(label.graphicsEffect()));
    QCOMPARE(opacity(label), 1.0);
    QCOMPARE(fades(label).size(), 1);
    const QPropertyAnimation* const fade = fades(label).constFirst();
    QCOMPARE(fade->targetObject(), label.graphicsEffect());
    QCOMPARE(fade->propertyName(), QByteArray("opacity"));
    QCOMPARE(fade->duration(), 2500);
    QCOMPARE(fade->startValue().toDouble(), 1.0);
    QCOMPARE(fade->keyValueAt(0.6).toDouble(), 1.0);
    QCOMPARE(fade->endValue().toDouble(), 0.0);
    QCOMPARE(fade->keyValues().size(), 3);
    QCOMPARE(fade->state(), QAbstractAnimation::Running);
}

void tst_TipLabel::opacityOverTime_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<double>("expected");
    QTest::newRow("0") << 0 << 1.0;
    QTest::newRow("1000") << 1000 << 1.0;
    QTest::newRow("1500") << 1500 << 1.0;
    QTest::newRow("1750") << 1750 << 0.75;
    QTest::newRow("2000") << 2000 << 0.5;
    QTest::newRow("2400") << 2400 << 0.1;
}

void tst_TipLabel::opacityOverTime()
{
    QFETCH(int, milliseconds);
    QFETCH(double, expected);

    ShownTip label;
    label.SetAutoHide();
    fades(label).constFirst()->setCurrentTime(milliseconds);
    QVERIFY(qAbs(opacity(label) - expected) < 1e-9);
    QVERIFY(label.isVisible());
}

void tst_TipLabel::hidesAndCleansUpAtTheEnd()
{
    ShownTip label;
    QVERIFY(label.isVisible());
    label.SetAutoHide();
    const QPointer<QPropertyAnimation> fade = fades(label).constFirst();
    fade->setCurrentTime(2499);
    QVERIFY(label.isVisible());
    fade->setCurrentTime(2500);
    QVERIFY(label.isHidden());
    QCOMPARE(opacity(label), 0.0);
    deleteWhatIsDue();
    QVERIFY(!fade);
}

void tst_TipLabel::runsByItselfToTheEnd()
{
    ShownTip label;
    label.SetAutoHide();
    const QPointer<QPropertyAnimation> fade = fades(label).constFirst();
    fade->setCurrentTime(2450);
    QTRY_VERIFY(label.isHidden());
    QTRY_VERIFY(!fade);
}

void tst_TipLabel::secondFadeRulesTheOpacity()
{
    ShownTip label;
    label.SetAutoHide();
    const QPointer<QGraphicsEffect> firstEffect = label.graphicsEffect();
    QPropertyAnimation* const first = fades(label).constFirst();
    first->setCurrentTime(2000);
    QCOMPARE(opacity(label), 0.5);

    label.SetAutoHide();
    QVERIFY(!firstEffect);
    QCOMPARE(opacity(label), 1.0);
    QCOMPARE(fades(label).size(), 2);
    QPropertyAnimation* const second = fades(label).constLast();
    QVERIFY(second != first);
    QCOMPARE(first->state(), QAbstractAnimation::Running);

    first->setCurrentTime(2300);
    QCOMPARE(opacity(label), 1.0);
    second->setCurrentTime(1750);
    QCOMPARE(opacity(label), 0.75);
    first->setCurrentTime(2400);
    QCOMPARE(opacity(label), 0.75);
}

void tst_TipLabel::firstFadeStillHides()
{
    ShownTip label;
    label.SetAutoHide();
    const QPointer<QPropertyAnimation> first = fades(label).constFirst();
    first->setCurrentTime(2000);
    label.SetAutoHide();
    const QPointer<QPropertyAnimation> second = fades(label).constLast();

    first->setCurrentTime(2499);
    QVERIFY(label.isVisible());
    first->setCurrentTime(2500);
    QVERIFY(label.isHidden());
    QCOMPARE(opacity(label), 1.0);
    deleteWhatIsDue();
    QVERIFY(!first);
    QVERIFY(second);
    QCOMPARE(second->state(), QAbstractAnimation::Running);

    // Shown again in between, the label is hidden by the second one too.
    label.show();
    second->setCurrentTime(2500);
    QVERIFY(label.isHidden());
    QCOMPARE(opacity(label), 0.0);
    deleteWhatIsDue();
    QVERIFY(!second);
}

void tst_TipLabel::everyEarlierFadeStillHides()
{
    // Later effects often stand at the address of earlier ones; that must not stop a fade.
    ShownTip label;
    for (int count = 0; count < 20; ++count) {
        label.SetAutoHide();
        label.SetAutoHide();
        // The next effect now takes the memory of this one.
        if (count < 19)
            label.setGraphicsEffect(nullptr);
    }
    const QList<QPropertyAnimation*> all = fades(label);
    QCOMPARE(all.size(), 40);
    for (QPropertyAnimation* const fade : all) {
        QCOMPARE(fade->state(), QAbstractAnimation::Running);
        label.show();
        fade->setCurrentTime(2500);
        QVERIFY(label.isHidden());
        QCOMPARE(opacity(label), fade == all.constLast() ? 0.0 : 1.0);
    }
    deleteWhatIsDue();
    QVERIFY(fades(label).isEmpty());
}

void tst_TipLabel::shownAgainAfterAFade()
{
    ShownTip label;
    label.SetAutoHide();
    fades(label).constFirst()->setCurrentTime(2500);
    label.SetMessageLabel(QStringLiteral("b"));
    QVERIFY(label.isHidden());
    label.show();
    QCOMPARE(opacity(label), 1.0);

    // A message that comes during a fade does not disturb it.
    label.SetAutoHide();
    fades(label).constLast()->setCurrentTime(2000);
    label.SetMessageLabel(QStringLiteral("c"));
    QCOMPARE(opacity(label), 0.5);
}

void tst_TipLabel::labelMayDieDuringTheFade()
{
    QWidget parent;
    QPointer<QPropertyAnimation> fade;
    QPointer<QGraphicsEffect> effect;
    {
        CTipLabel label(QStringLiteral("a"), true, &parent);
        label.SetAutoHide();
        label.SetAutoHide();
        fade = fades(label).constFirst();
        effect = label.graphicsEffect();
    }
    QVERIFY(!fade);
    QVERIFY(!effect);
}

void tst_TipLabel::thousandFadesLeaveNothing()
{
    ShownTip label;
    const int childrenBefore = label.children().size();
    for (int count = 0; count < 1000; ++count) {
        label.SetAutoHide();
        QCOMPARE(label.findChildren<QGraphicsEffect*>().size(), 1);
    }
    for (QPropertyAnimation* const fade : fades(label))
        fade->setCurrentTime(2500);
    deleteWhatIsDue();
    QVERIFY(label.isHidden());
    // The last effect alone is left.
    QCOMPARE(label.children().size(), childrenBefore + 1);
    label.setGraphicsEffect(nullptr);
    QCOMPARE(label.children().size(), childrenBefore);
}

TRADECONFIG_TEST_MAIN(tst_TipLabel)
#include "tst_TipLabel.moc"
