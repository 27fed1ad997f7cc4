#pragma once

#include "libskin/Skin.h"

#include <QCache>
#include <QFont>
#include <QPen>
#include <QPixmap>
#include <QSet>

namespace CorvelSkin {

/// What a kept frame was made from.
struct FrameKey {
    const SkinImage* image;
    int count;
    int index;
    QSize pixels;
    bool smooth;
};

/**
 * The skin that serves at the moment, prepared for painting: no file is touched and nothing is
 * parsed by a lookup. An unknown key is written to the debug log the first time it is asked for.
 */
class ActiveSkin {
public:
    static ActiveSkin& instance();

    const Skin& builtIn() const { return m_builtIn; }
    const Skin& skin() const { return m_skin; }
    void set(Skin skin);

    /// Null for an unknown key.
    const QColor* colour(const QString& key);
    /// Null for an unknown key. The pen stays as asked for until the next call.
    const QPen* pen(const QString& colourKey, Qt::PenStyle style, double width);
    /// The default font for an unknown key.
    QFont font(const QString& key);
    /// Null for an unknown key.
    const SkinImage* image(const QString& key);
    /// A frame of a known image, kept for the next call.
    QPixmap frame(const SkinImage& image, int count, int index, QSize pixels, bool smooth);

private:
    struct Stroke {
        QColor colour;
        QPen pen;
    };
    ActiveSkin();
    ~ActiveSkin();
    Q_DISABLE_COPY(ActiveSkin)
    void reportUnknown(const char* kind, const QString& key);
    void releaseWithApplication();
    static void release();

    const Skin m_builtIn;
    Skin m_skin;
    QHash<QString, Stroke> m_strokes;
    QHash<QString, QFont> m_fonts; ///< made when first used
    QCache<FrameKey, QPixmap> m_frames;
    QSet<QString> m_unknown;
    bool m_releaseArranged = false;
};

} // namespace CorvelSkin
