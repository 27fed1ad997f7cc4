#pragma once

#include "libskin/SkinTable.h"

#include <QImage>
#include <QSizeF>

#include <memory>

class QSvgRenderer;

namespace CorvelSkin {

/// One image of a skin, held in memory: a drawing, or a bitmap in one or more densities.
class SkinImage {
public:
    ~SkinImage();

    /// Reads the file of @p entry below @p folder, null and a @p reason if it cannot serve.
    /// For "name.png" the files "name@2x.png" and "name@3x.png" beside it are read too.
    static std::shared_ptr<const SkinImage> read(const QString& folder, const ImageEntry& entry,
                                                 QString& reason);

    /// Logical size of all frames together.
    QSizeF size() const { return m_size; }

    /// Frame @p index of @p count, exactly @p pixels large. A drawing is always drawn afresh;
    /// a bitmap is scaled, @p smooth or by the nearest pixel.
    QImage frame(int count, int index, QSize pixels, bool smooth) const;

private:
    SkinImage();
    bool readDrawing(const QByteArray& bytes, QString& reason);
    bool readBitmaps(const QString& path, const QByteArray& bytes, QString& reason);

    QSizeF m_size;
    std::unique_ptr<QSvgRenderer> m_drawing;
    QVector<QImage> m_bitmaps; ///< by rising density
};

} // namespace CorvelSkin
