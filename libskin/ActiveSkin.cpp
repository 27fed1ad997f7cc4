#include "libskin/ActiveSkin.h"

#include <QCoreApplication>

namespace CorvelSkin {
namespace {

constexpr int frameCacheKilobytes = 16 * 1024;

} // namespace

// Found by the cache through the namespace of its key.
static bool operator==(const FrameKey& one, const FrameKey& other)
{
    return one.image == other.image && one.count == other.count && one.index == other.index
        && one.pixels == other.pixels && one.smooth == other.smooth;
}

static uint qHash(const FrameKey& key, uint seed)
{
    const auto bits = quintptr(key.image) ^ quintptr(key.pixels.width() << 16)
        ^ quintptr(key.pixels.height() << 4) ^ quintptr(key.count << 12) ^ quintptr(key.index << 1)
        ^ quintptr(key.smooth);
    return ::qHash(quint64(bits), seed);
}

ActiveSkin::ActiveSkin()
    : m_builtIn(builtInSkin())
    , m_frames(frameCacheKilobytes)
{
    set(m_builtIn);
}

ActiveSkin::~ActiveSkin() { qRemovePostRoutine(release); }

ActiveSkin& ActiveSkin::instance()
{
    static ActiveSkin active;
    return active;
}

void ActiveSkin::set(Skin skin)
{
    m_frames.clear();
    m_fonts.clear();
    m_strokes.clear();
    m_skin = std::move(skin);
    for (auto entry = m_skin.colours.cbegin(); entry != m_skin.colours.cend(); ++entry) {
        const QPen pen(entry.value(), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        m_strokes.insert(entry.key(), {entry.value(), pen});
    }
}

const QColor* ActiveSkin::colour(const QString& key)
{
    const auto found = m_strokes.constFind(key);
    if (found != m_strokes.constEnd())
        return &found->colour;
    reportUnknown("colour", key);
    return nullptr;
}

const QPen* ActiveSkin::pen(const QString& colourKey, Qt::PenStyle style, double width)
{
    const auto found = m_strokes.find(colourKey);
    if (found == m_strokes.end()) {
        reportUnknown("colour", colourKey);
        return nullptr;
    }
    // Setting even the same value would part the pen from the painters that share it.
    if (found->pen.style() != style)
        found->pen.setStyle(style);
    if (found->pen.widthF() != width)
        found->pen.setWidthF(width);
    return &found->pen;
}

QFont ActiveSkin::font(const QString& key)
{
    const auto made = m_fonts.constFind(key);
    if (made != m_fonts.constEnd())
        return *made;
    const auto entry = m_skin.fonts.constFind(key);
    if (entry == m_skin.fonts.constEnd()) {
        reportUnknown("font", key);
        return QFont();
    }
    releaseWithApplication();
    QFont font;
    font.setFamilies(entry->families);
    font.setPixelSize(entry->pixelSize);
    font.setWeight(entry->weight);
    m_fonts.insert(key, font);
    return font;
}

const SkinImage* ActiveSkin::image(const QString& key)
{
    const auto found = m_skin.images.constFind(key);
    if (found != m_skin.images.constEnd())
        return found->get();
    reportUnknown("image", key);
    return nullptr;
}

QPixmap ActiveSkin::frame(const SkinImage& image, int count, int index, QSize pixels, bool smooth)
{
    const FrameKey key{&image, count, index, pixels, smooth};
    if (const QPixmap* const kept = m_frames.object(key))
        return *kept;
    releaseWithApplication();
    const QPixmap pixmap = QPixmap::fromImage(image.frame(count, index, pixels, smooth));
    const int kilobytes = 1 + pixels.width() * pixels.height() / 256;
    m_frames.insert(key, new QPixmap(pixmap), kilobytes);
    return pixmap;
}

void ActiveSkin::reportUnknown(const char* kind, const QString& key)
{
    const QString name = QLatin1String(kind) + QLatin1Char(' ') + key;
    if (m_unknown.contains(name))
        return;
    m_unknown.insert(name);
    qDebug("skin: unknown %s key \"%s\"", kind, qUtf8Printable(key));
}

/// Pixmaps and fonts must not outlive the application that made them.
void ActiveSkin::releaseWithApplication()
{
    if (m_releaseArranged)
        return;
    m_releaseArranged = true;
    qAddPostRoutine(release);
}

void ActiveSkin::release()
{
    ActiveSkin& active = instance();
    active.m_frames.clear();
    active.m_fonts.clear();
    active.m_releaseArranged = false;
}

} // namespace CorvelSkin
