#include "libskin/SkinImage.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace CorvelSkin {
namespace {

constexpr qint64 maxFileBytes = 8 << 20;
constexpr int maxBitmapSide = 8192;

bool readFile(const QString& path, QByteArray& bytes, QString& reason)
{
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
        reason = QFileInfo::exists(path) ? QStringLiteral("the file cannot be read")
                                         : QStringLiteral("the file is missing");
        return false;
    }
    // What a file says of its size need not be what it holds.
    bytes = file.read(maxFileBytes + 1);
    if (bytes.size() > maxFileBytes) {
        reason = QStringLiteral("the file is larger than %1 bytes").arg(maxFileBytes);
        return false;
    }
    return true;
}

/// Null, and a @p reason, if @p bytes are no bitmap or one whose sides are beyond reason.
QImage decode(QByteArray bytes, QString& reason)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    const QSize size = reader.size();
    if (size.width() > maxBitmapSide || size.height() > maxBitmapSide) {
        reason = QStringLiteral("the bitmap is larger than %1 pixels a side").arg(maxBitmapSide);
        return QImage();
    }
    const QImage bitmap = reader.read();
    if (bitmap.isNull())
        reason = QStringLiteral("not a PNG bitmap");
    return bitmap.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

SkinImage::SkinImage() = default;
SkinImage::~SkinImage() = default;

std::shared_ptr<const SkinImage> SkinImage::read(const QString& folder, const ImageEntry& entry,
                                                 QString& reason)
{
    const QString path = folder + QLatin1Char('/') + entry.file;
    QByteArray bytes;
    if (!readFile(path, bytes, reason))
        return nullptr;

    const std::shared_ptr<SkinImage> image(new SkinImage);
    const bool isDrawing = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    if (!(isDrawing ? image->readDrawing(bytes, reason) : image->readBitmaps(path, bytes, reason)))
        return nullptr;
    if (!entry.size.isEmpty())
        image->m_size = entry.size;
    if (int(image->m_size.width()) % entry.frames != 0) {
        reason = QStringLiteral("%1 frames do not divide the width %2")
                     .arg(entry.frames)
                     .arg(image->m_size.width());
        return nullptr;
    }
    for (const QImage& bitmap : image->m_bitmaps) {
        if (bitmap.width() % entry.frames != 0) {
            reason = QStringLiteral("%1 frames do not divide the bitmap's %2 pixels")
                         .arg(entry.frames)
                         .arg(bitmap.width());
            return nullptr;
        }
    }
    return image;
}

bool SkinImage::readDrawing(const QByteArray& bytes, QString& reason)
{
    m_drawing = std::make_unique<QSvgRenderer>();
    if (!m_drawing->load(bytes) || m_drawing->defaultSize().isEmpty()) {
        reason = QStringLiteral("not an SVG drawing");
        return false;
    }
    m_drawing->setAspectRatioMode(Qt::IgnoreAspectRatio);
    m_size = m_drawing->defaultSize();
    return true;
}

bool SkinImage::readBitmaps(const QString& path, const QByteArray& bytes, QString& reason)
{
    const QImage bitmap = decode(bytes, reason);
    if (bitmap.isNull())
        return false;
    m_bitmaps.append(bitmap);
    m_size = bitmap.size();

    const QFileInfo info(path);
    for (const char* density : {"@2x.", "@3x."}) {
        const QString denser = info.path() + QLatin1Char('/') + info.completeBaseName()
            + QLatin1String(density) + info.suffix();
        QByteArray denserBytes;
        if (!QFileInfo::exists(denser))
            continue;
        if (!readFile(denser, denserBytes, reason))
            return false;
        m_bitmaps.append(decode(denserBytes, reason));
        if (m_bitmaps.last().isNull()) {
            reason = QFileInfo(denser).fileName() + QStringLiteral(": ") + reason;
            return false;
        }
    }
    return true;
}

QImage SkinImage::frame(int count, int index, QSize pixels, bool smooth) const
{
    if (m_drawing) {
        QImage result(pixels, QImage::Format_ARGB32_Premultiplied);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        painter.setRenderHint(QPainter::Antialiasing);
        m_drawing->render(&painter,
                          QRectF(-1.0 * index * pixels.width(), 0.0, 1.0 * count * pixels.width(),
                                 pixels.height()));
        return result;
    }

    // The sparsest bitmap with enough pixels, else the densest.
    const QImage* source = &m_bitmaps.last();
    for (const QImage& bitmap : m_bitmaps) {
        if (bitmap.width() >= count * pixels.width()) {
            source = &bitmap;
            break;
        }
    }
    const auto edge = [&](int frame) { return qRound(1.0 * source->width() * frame / count); };
    const QImage cut
        = source->copy(edge(index), 0, edge(index + 1) - edge(index), source->height());
    return cut.scaled(pixels, Qt::IgnoreAspectRatio,
                      smooth ? Qt::SmoothTransformation : Qt::FastTransformation);
}

} // namespace CorvelSkin
