#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/ImageButton.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TipLabel.h"

#include <QMenu>

namespace {

struct Asked {
    int uses; ///< drawing and measuring
    int instances;
};

Asked painted(QWidget& widget)
{
    QPixmap pixmap(widget.size());
    RecordingSkin::takeCalls();
    RecordingSkin::takeMeasurements();
    RecordingSkin::takeInstances();
    widget.render(&pixmap, QPoint(), QRegion(), QWidget::RenderFlags());
    return {RecordingSkin::takeCalls().size() + RecordingSkin::takeMeasurements().size(),
            RecordingSkin::takeInstances()};
}

} // namespace

/// The service may be another one at any time, so whoever draws or measures asks for it each time.
class tst_SkinInstance : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void navigationList();
    void captionBar();
    void imageButton();
    void messageBox();
    void switchBar_data();
    void switchBar();
    void tipDoesWithout();
};

void tst_SkinInstance::init() { RecordingSkin::reset(); }

void tst_SkinInstance::navigationList()
{
    CNavWidget list(nullptr);
    list.SetBtnList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    list.resize(120, 300);
    const Asked asked = painted(list);
    QVERIFY(asked.uses > 3);
    QCOMPARE(asked.instances, asked.uses);
}

void tst_SkinInstance::captionBar()
{
    QWidget window;
    CCaptionBar bar(&window);
    bar.resize(300, 30);
    const Asked asked = painted(bar);
    QCOMPARE(asked.uses, 1);
    QCOMPARE(asked.instances, 1);
    bar.setFrameEnabled(false);
    QCOMPARE(painted(bar).instances, 0);
}

void tst_SkinInstance::imageButton()
{
    CImageButton button(nullptr);
    button.setSingleImage(QStringLiteral("logo"), 3, true, false);
    button.resize(14, 14);
    for (int time = 0; time < 4; ++time) {
        if (time == 2)
            button.setImage(QStringLiteral("PanelClose"), QString(), QString(), QString());
        const Asked asked = painted(button);
        QCOMPARE(asked.uses, 1);
        QCOMPARE(asked.instances, 1);
    }
}

void tst_SkinInstance::messageBox()
{
    CMessageBox box(nullptr, QMessageBox::Information, QStringLiteral("text"),
                    QStringLiteral("title"), QMessageBox::Ok, -1);
    for (int time = 0; time < 2; ++time) {
        const Asked asked = painted(box);
        QVERIFY(asked.uses >= 2);
        QCOMPARE(asked.instances, asked.uses);
    }
}

void tst_SkinInstance::switchBar_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("crowded");
    for (int mode = 1; mode <= 7; ++mode) {
        for (const bool crowded : {false, true}) {
            const char* const what = crowded ? "crowded" : "roomy";
            QTest::addRow("horizontal %d %s", mode, what) << Qt::Horizontal << mode << crowded;
            QTest::addRow("vertical %d %s", mode, what) << Qt::Vertical << mode << crowded;
        }
    }
}

void tst_SkinInstance::switchBar()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, mode);
    QFETCH(bool, crowded);
    QMenu menu;
    CSwitchEx bar(nullptr, orientation, QMargins(1, 1, 1, 1));
    bar.changeMode(CSwitchEx::SwitchMode(mode));
    bar.resize(400, 400);
    RecordingSkin::setBitmapSize(QStringLiteral("image"), QSizeF(20, 20));
    RecordingSkin::takeMeasurements();
    RecordingSkin::takeInstances();
    SwitchItem* first = nullptr;
    for (int item = 0; item < (crowded ? 60 : 3); ++item) {
        SwitchItem* const added = bar.AddNormalSwitch(QString::number(item), nullptr, false,
                                                      item == 1 ? &menu : nullptr);
        bar.AddImageSwitch(QString::number(item), QStringLiteral("image"), QStringLiteral("sel"));
        first = first ? first : added;
    }
    bar.SetCurSel(first, false);
    QCOMPARE(RecordingSkin::takeInstances(), RecordingSkin::takeMeasurements().size());
    const Asked asked = painted(bar);
    QVERIFY(asked.uses > 0);
    QCOMPARE(asked.instances, asked.uses);
    bar.ClearAll();
}

void tst_SkinInstance::tipDoesWithout()
{
    CTipLabel tip(QStringLiteral("tip"), true, nullptr);
    const Asked asked = painted(tip);
    QCOMPARE(asked.uses, 0);
    QCOMPARE(asked.instances, 0);
}

TRADECONFIG_TEST_MAIN(tst_SkinInstance)
#include "tst_SkinInstance.moc"
