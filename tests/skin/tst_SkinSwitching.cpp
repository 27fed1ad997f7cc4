#include "libskin/SkinLibrary.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QJsonArray>
#include <QPainter>
#include <QSignalSpy>
#include <QWidget>

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;

namespace {

/// Fills itself with one colour of the skin and counts how often.
class Patch : public QWidget {
public:
    explicit Patch(QWidget* parent = nullptr)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(40, 40);
    }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override
    {
        ++paints;
        QPainter painter(this);
        CSkin::Instance()->fillRect(painter, rect(), SkinKeys::Colour::PopupClient());
    }
};

const QColor lightClient(0xF8, 0xF9, 0xFB);
const QColor darkClient(0x1F, 0x24, 0x2C);

QImage frameAt(double ratio, const QString& key)
{
    QImage image(QSize(60, 20) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    CSkin::Instance()->drawImage(painter, QRectF(0, 0, 42, 14), key, 1, 0, true, true);
    CSkin::Instance()->drawText(painter, QRectF(0, 0, 60, 20), 0x84,
                                SkinKeys::Colour::PopupBorder(), SkinKeys::Font::NavSwitchSel(),
                                QStringLiteral("系统"));
    return image;
}

} // namespace

class tst_SkinSwitching : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everyOpenWindowRepaints();
    void aFailedSwitchRepaintsToo();
    void hiddenWindowsShowTheNewSkin();
    void signalComesWhenTheNewSkinServes();
    void keptImagesAreDropped();
    void sizesFollow();
    void noFileIsNeededAfterLoading();
};

void tst_SkinSwitching::init() { QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light"))); }

void tst_SkinSwitching::everyOpenWindowRepaints()
{
    QWidget window;
    window.resize(100, 100);
    // An opaque child is left out when its window alone is asked to repaint.
    Patch child(&window);
    Patch grandchild(&child);
    grandchild.setGeometry(20, 20, 10, 10);
    Patch second;
    window.show();
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(QTest::qWaitForWindowExposed(&second));
    QTRY_VERIFY(child.paints > 0 && grandchild.paints > 0 && second.paints > 0);
    QCoreApplication::processEvents();
    QCOMPARE(second.grab().toImage().pixelColor(5, 5), lightClient);

    for (Patch* patch : {&child, &grandchild, &second})
        patch->paints = 0;
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    for (Patch* patch : {&child, &grandchild, &second})
        QTRY_COMPARE(patch->paints, 1);
    QCOMPARE(second.grab().toImage().pixelColor(5, 5), darkClient);
}

void tst_SkinSwitching::aFailedSwitchRepaintsToo()
{
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    Patch patch;
    patch.show();
    QVERIFY(QTest::qWaitForWindowExposed(&patch));
    QTRY_VERIFY(patch.paints > 0);
    patch.paints = 0;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no such skin")));
    QVERIFY(!SkinLibrary::instance()->load(QStringLiteral("no such skin")));
    QTRY_COMPARE(patch.paints, 1);
    QCOMPARE(patch.grab().toImage().pixelColor(5, 5), lightClient);
}

void tst_SkinSwitching::hiddenWindowsShowTheNewSkin()
{
    Patch patch;
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    QCoreApplication::processEvents();
    QCOMPARE(patch.paints, 0);
    QCOMPARE(patch.grab().toImage().pixelColor(5, 5), darkClient);
}

void tst_SkinSwitching::signalComesWhenTheNewSkinServes()
{
    SkinLibrary* const library = SkinLibrary::instance();
    QStringList seen;
    const auto connection = connect(library, &SkinLibrary::skinChanged, this, [&seen, library] {
        seen << library->currentName() + library->colour(SkinKeys::Colour::PopupClient()).name()
                + library->palette().color(QPalette::Window).name();
    });
    QVERIFY(library->load(QStringLiteral("dark")));
    QVERIFY(library->load(QStringLiteral("light")));
    disconnect(connection);
    QCOMPARE(
        seen,
        (QStringList{QStringLiteral("dark#1f242c#1f242c"), QStringLiteral("light#f8f9fb#f8f9fb")}));
}

void tst_SkinSwitching::keptImagesAreDropped()
{
    const QImage light = frameAt(1.0, SkinKeys::Image::win_normal());
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    const QImage dark = frameAt(1.0, SkinKeys::Image::win_normal());
    QVERIFY(light != dark);
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
    QCOMPARE(frameAt(1.0, SkinKeys::Image::win_normal()), light);
}

void tst_SkinSwitching::sizesFollow()
{
    TemporarySkin skin;
    skin.set(QStringLiteral("fonts"), QStringLiteral("Switch"),
             QJsonObject{{QStringLiteral("families"), QJsonArray{QStringLiteral("sans-serif")}},
                         {QStringLiteral("pixelSize"), 26}});
    skin.set(QStringLiteral("images"), QStringLiteral("logo"),
             QJsonObject{{QStringLiteral("file"), QStringLiteral("images/logo.svg")},
                         {QStringLiteral("size"), QJsonArray{48, 30}}});
    QWidget widget;
    const auto width = [&widget] {
        return CSkin::Instance()
            ->textSize(&widget, SkinKeys::Font::Switch(), QStringLiteral("一"))
            .width();
    };
    QVERIFY(qAbs(width() - 13.0) <= 1.0);
    QCOMPARE(CSkin::Instance()->GetBitmapSize(SkinKeys::Image::logo()), QSizeF(24, 24));
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    QVERIFY(qAbs(width() - 26.0) <= 1.0);
    QCOMPARE(CSkin::Instance()->GetBitmapSize(SkinKeys::Image::logo()), QSizeF(48, 30));
}

void tst_SkinSwitching::noFileIsNeededAfterLoading()
{
    QVector<QImage> expected;
    for (const double ratio : {1.0, 2.0, 3.0}) {
        for (const SkinKeys::KeyInfo& info : SkinKeys::images)
            expected << frameAt(ratio, QLatin1String(info.name));
    }

    TemporarySkin skin;
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    const QString folder = skin.folder();
    QVERIFY(skin.remove());
    QVERIFY(!QFileInfo::exists(folder));
    // Nothing of it was drawn before its files went.
    QVector<QImage> actual;
    for (const double ratio : {1.0, 2.0, 3.0}) {
        for (const SkinKeys::KeyInfo& info : SkinKeys::images)
            actual << frameAt(ratio, QLatin1String(info.name));
    }
    QCOMPARE(actual, expected);
    QCOMPARE(SkinLibrary::instance()->currentName(), QStringLiteral("skin"));
}

TRADECONFIG_TEST_MAIN(tst_SkinSwitching)
#include "tst_SkinSwitching.moc"
