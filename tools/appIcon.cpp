// appIcon DRAWING.svg OUT.icns DIRECTORY.iconset: draws the icon in every size that macOS asks for,
// as PNG files under the names that its iconutil takes, and packs them into the icon file.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QtEndian>

#include <cstdio>

namespace {

struct Entry {
    const char* type;
    int pixels;
    const char* name;
    /// Packed channels with this mask beside them, where PNG is not read everywhere.
    const char* maskType;
};

constexpr Entry entries[] = {
    {"is32", 16, "icon_16x16", "s8mk"},     {"ic11", 32, "icon_16x16@2x", nullptr},
    {"il32", 32, "icon_32x32", "l8mk"},     {"ic12", 64, "icon_32x32@2x", nullptr},
    {"ic07", 128, "icon_128x128", nullptr}, {"ic13", 256, "icon_128x128@2x", nullptr},
    {"ic08", 256, "icon_256x256", nullptr}, {"ic14", 512, "icon_256x256@2x", nullptr},
    {"ic09", 512, "icon_512x512", nullptr}, {"ic10", 1024, "icon_512x512@2x", nullptr},
};

QImage drawn(QSvgRenderer& drawing, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QByteArray channel(const QImage& image, int (*channelOf)(QRgb))
{
    QByteArray bytes;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            bytes += char(channelOf(image.pixel(x, y)));
    }
    return bytes;
}

// In the format's packing, every stretch may be literal: its length less one, then the bytes.
QByteArray packed(const QByteArray& bytes)
{
    constexpr int longest = 128;
    QByteArray result;
    for (int at = 0; at < bytes.size(); at += longest) {
        const QByteArray stretch = bytes.mid(at, longest);
        result += char(stretch.size() - 1) + stretch;
    }
    return result;
}

QByteArray block(const char* type, const QByteArray& content)
{
    constexpr int headerSize = 8;
    char size[4];
    qToBigEndian(quint32(content.size() + headerSize), size);
    return QByteArray(type, 4) + QByteArray(size, sizeof size) + content;
}

bool write(const QString& name, const QByteArray& bytes)
{
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

int fail(const QString& what)
{
    std::fprintf(stderr, "appIcon: %s\n", qPrintable(what));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4)
        return fail(QStringLiteral("usage: appIcon DRAWING.svg OUT.icns DIRECTORY.iconset"));
    QSvgRenderer drawing(arguments.at(1));
    if (!drawing.isValid())
        return fail(QStringLiteral("cannot read ") + arguments.at(1));
    const QDir sizes(arguments.at(3));
    if (!sizes.mkpath(QStringLiteral(".")))
        return fail(QStringLiteral("cannot make ") + sizes.path());

    QByteArray blocks;
    for (const Entry& entry : entries) {
        const QImage image = drawn(drawing, entry.pixels);
        const QString name
            = sizes.filePath(QString::fromLatin1(entry.name) + QStringLiteral(".png"));
        constexpr int smallest = 0; // of what the format calls quality: nothing is lost by it
        QFile file(name);
        if (!image.save(name, "PNG", smallest) || !file.open(QIODevice::ReadOnly))
            return fail(QStringLiteral("cannot write ") + name);
        if (entry.maskType) {
            blocks += block(entry.type,
                            packed(channel(image, qRed)) + packed(channel(image, qGreen))
                                + packed(channel(image, qBlue)));
            blocks += block(entry.maskType, channel(image, qAlpha));
        } else {
            blocks += block(entry.type, file.readAll());
        }
    }
    if (!write(arguments.at(2), block("icns", blocks)))
        return fail(QStringLiteral("cannot write ") + arguments.at(2));
    return EXIT_SUCCESS;
}
