// docPicture OUT IN...: puts pictures side by side and writes them with at most 256 colours,
// which is plenty for an interface and a third of the size.
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

constexpr int paletteSize = 256;

QImage sideBySide(const QVector<QImage>& pictures)
{
    QSize size(0, 0);
    for (const QImage& picture : pictures) {
        size.rwidth() += picture.width();
        size.setHeight(std::max(size.height(), picture.height()));
    }
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    int x = 0;
    for (const QImage& picture : pictures) {
        painter.drawImage(x, 0, picture);
        x += picture.width();
    }
    return result;
}

int distance(QRgb one, QRgb other)
{
    const auto square = [](int difference) { return difference * difference; };
    return square(qRed(one) - qRed(other)) + square(qGreen(one) - qGreen(other))
        + square(qBlue(one) - qBlue(other)) + square(qAlpha(one) - qAlpha(other));
}

// The most frequent colours stay as they are, each other one becomes the nearest of them.
QImage withFewColours(const QImage& picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x)
            ++counts[source.pixel(x, y)];
    }
    QVector<QRgb> colours;
    colours.reserve(counts.size());
    for (auto entry = counts.cbegin(); entry != counts.cend(); ++entry)
        colours += entry.key();
    std::sort(colours.begin(), colours.end(), [&counts](QRgb one, QRgb other) {
        return counts[one] != counts[other] ? counts[one] > counts[other] : one < other;
    });
    const QVector<QRgb> palette = colours.mid(0, paletteSize);

    QHash<QRgb, uint> nearest;
    for (const QRgb colour : qAsConst(colours)) {
        int least = std::numeric_limits<int>::max();
        for (int index = 0; index < palette.size(); ++index) {
            if (distance(colour, palette[index]) < least) {
                least = distance(colour, palette[index]);
                nearest[colour] = uint(index);
            }
        }
    }
    QImage result(source.size(), QImage::Format_Indexed8);
    result.setColorTable(palette);
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x)
            result.setPixel(x, y, nearest[source.pixel(x, y)]);
    }
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: docPicture OUT IN...\n");
        return EXIT_FAILURE;
    }
    QVector<QImage> pictures;
    for (int index = 2; index < argc; ++index) {
        pictures += QImage(QString::fromLocal8Bit(argv[index]));
        if (pictures.last().isNull()) {
            std::fprintf(stderr, "docPicture: cannot read %s\n", argv[index]);
            return EXIT_FAILURE;
        }
    }
    constexpr int smallest = 0; // of what the format calls quality: nothing is lost by it
    if (!withFewColours(sideBySide(pictures))
             .save(QString::fromLocal8Bit(argv[1]), "PNG", smallest)) {
        std::fprintf(stderr, "docPicture: cannot write %s\n", argv[1]);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
