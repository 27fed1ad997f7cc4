#include "libskin/SkinLibrary.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QPainter>

#include <functional>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define COUNTS_ALLOCATIONS 1
#else
#define COUNTS_ALLOCATIONS 0
#endif

namespace {

std::atomic<int>& allocations()
{
    static std::atomic<int> count{0};
    return count;
}

} // namespace

#if COUNTS_ALLOCATIONS
extern "C" {
void* __libc_malloc(std::size_t size);

// Stands before the C library's own for the whole process.
__attribute__((visibility("default"))) void* malloc(std::size_t size)
{
    ++allocations();
    return __libc_malloc(size);
}
}
#endif

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;

namespace {

/// What the second of two equal rounds allocates; the first one fills the caches.
int allocationsOf(const std::function<void()>& round)
{
    round();
    const int before = allocations();
    round();
    return allocations() - before;
}

} // namespace

class tst_SkinAllocations : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void theCounterCounts();
    void fillsAndOutlines();
    void lines();
    void texts();
    void images();
    void sizes();

private:
    QImage m_device{200, 100, QImage::Format_ARGB32_Premultiplied};
};

void tst_SkinAllocations::initTestCase()
{
    if (!COUNTS_ALLOCATIONS)
        TEST_SKIP("allocations cannot be counted here");
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
}

void tst_SkinAllocations::theCounterCounts()
{
    QCOMPARE(allocationsOf([] { const QByteArray held(1000, 'x'); }), 1);
}

void tst_SkinAllocations::fillsAndOutlines()
{
    QPainter painter(&m_device);
    const QColor colour = SkinLibrary::instance()->colour(SkinKeys::Colour::SwitchBorder());
    const QRectF rect(10, 10, 100, 50);
    const int bare = allocationsOf([&] {
        painter.fillRect(rect, colour);
        painter.fillRect(rect, colour);
    });
    const int skinned = allocationsOf([&] {
        CSkin::Instance()->fillRect(painter, rect, SkinKeys::Colour::SwitchBgHover());
        CSkin::Instance()->drawRect(painter, rect, SkinKeys::Colour::SwitchBorder(), Qt::SolidLine,
                                    1.0);
    });
    QCOMPARE(bare, 0);
    QCOMPARE(skinned, 0);
}

void tst_SkinAllocations::lines()
{
    QPainter painter(&m_device);
    const QPen pen(SkinLibrary::instance()->colour(SkinKeys::Colour::SwitchSelLine()), 1.0);
    const int bare = allocationsOf([&] {
        painter.setPen(pen);
        painter.drawLine(QPointF(5, 5), QPointF(5, 50));
    });
    const int skinned = allocationsOf([&] {
        CSkin::Instance()->drawLine(painter, SkinKeys::Colour::SwitchSelLine(), QPointF(5, 5),
                                    QPointF(5, 50), Qt::SolidLine, 1.0);
    });
    QVERIFY2(skinned <= bare, qPrintable(QStringLiteral("%1 > %2").arg(skinned).arg(bare)));
}

void tst_SkinAllocations::texts()
{
    QPainter painter(&m_device);
    const QString text = QStringLiteral("系统设置");
    const QRectF rect(0, 0, 200, 60);
    const QFont font = shippedFont();
    const QPen pen(Qt::red);
    const int bare = allocationsOf([&] {
        const QFont old = painter.font();
        painter.setPen(pen);
        painter.setFont(font);
        QRectF bounds;
        painter.drawText(rect, 0x184, text, &bounds);
        painter.setFont(old);
    });
    const int skinned = allocationsOf([&] {
        CSkin::Instance()->drawText(painter, rect, 0x184, SkinKeys::Colour::NavSwitchFgNormal(),
                                    SkinKeys::Font::NavSwitch(), text);
    });
    QVERIFY2(skinned <= bare, qPrintable(QStringLiteral("%1 > %2").arg(skinned).arg(bare)));
}

void tst_SkinAllocations::images()
{
    QPainter painter(&m_device);
    QPixmap pixmap(14, 14);
    pixmap.fill(Qt::red);
    const QRectF rect(10, 10, 14, 14);
    const int bare
        = allocationsOf([&] { painter.drawPixmap(rect, pixmap, QRectF(pixmap.rect())); });
    const int skinned = allocationsOf([&] {
        CSkin::Instance()->drawImage(painter, rect, SkinKeys::Image::win_normal(), 3, 1, true,
                                     false);
    });
    QVERIFY2(skinned <= bare, qPrintable(QStringLiteral("%1 > %2").arg(skinned).arg(bare)));
}

void tst_SkinAllocations::sizes()
{
    QFont font;
    font.setPixelSize(13);
    const QString text = QStringLiteral("一");
    const int bare = allocationsOf([&] { QFontMetricsF(font, &m_device).size(0, text); });
    const int skinned = allocationsOf(
        [&] { CSkin::Instance()->textSize(&m_device, SkinKeys::Font::Switch(), text); });
    QVERIFY2(skinned <= bare, qPrintable(QStringLiteral("%1 > %2").arg(skinned).arg(bare)));
    QCOMPARE(allocationsOf([] { CSkin::Instance()->GetBitmapSize(SkinKeys::Image::logo()); }), 0);
}

TRADECONFIG_TEST_MAIN(tst_SkinAllocations)
#include "tst_SkinAllocations.moc"
