// Any bytes as a skin: the table first and, behind a line of dashes, the image "image.svg" or
// "image.png" that it may name. Whatever is taken from the table is in range, and everything
// that the module asks for can be asked for afterwards.

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzSetup.h"
#include "libskin/SkinLibrary.h"
#include "libskin/SkinTable.h"
#include "support/Files.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QDir>
#include <QFont>
#include <QImage>
#include <QPainter>

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;

namespace {

void checkTable(const QByteArray& bytes)
{
    QVector<CorvelSkin::SkinProblem> problems;
    const CorvelSkin::SkinTable table
        = CorvelSkin::readSkinTable(bytes, QStringLiteral("skin.json"), problems);
    for (const QColor& colour : table.colours)
        MUST(colour.isValid());
    for (const CorvelSkin::FontEntry& font : table.fonts) {
        MUST(!font.families.isEmpty());
        MUST(font.pixelSize >= 1 && font.pixelSize <= 200);
        MUST(font.weight >= QFont::Thin && font.weight <= QFont::Black);
    }
    for (const CorvelSkin::ImageEntry& image : table.images) {
        MUST(QDir::cleanPath(QStringLiteral("/skin/") + image.file)
                 .startsWith(QStringLiteral("/skin/")));
        MUST(image.frames >= 1 && image.frames <= 64);
        MUST(image.size.width() <= 4096 && image.size.height() <= 4096);
    }
    for (const CorvelSkin::SkinProblem& problem : problems)
        MUST(!problem.reason.isEmpty());
}

void paintEverything()
{
    QImage canvas(64, 64, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    const QRectF area(1, 1, 60, 60);
    CSkin* const skin = CSkin::Instance();
    for (const SkinKeys::KeyInfo& key : SkinKeys::colours)
        skin->fillRect(painter, area, QLatin1String(key.name));
    for (const SkinKeys::KeyInfo& key : SkinKeys::fonts) {
        const QSizeF size
            = skin->textSize(&canvas, QLatin1String(key.name), QStringLiteral("限价 Ab"));
        MUST(size.width() >= 0 && size.height() >= 0);
        skin->drawText(painter, area, Qt::AlignCenter, QStringLiteral("SwitchFgNormal"),
                       QLatin1String(key.name), QStringLiteral("限价 Ab"));
    }
    for (const SkinKeys::KeyInfo& key : SkinKeys::images) {
        const QSizeF size = skin->GetBitmapSize(QLatin1String(key.name));
        MUST(size.width() >= 0 && size.height() >= 0);
        skin->drawImage(painter, area, QLatin1String(key.name), 3, 1, true, false);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString folder = FuzzSetup::application() + QStringLiteral("/skin");
    MUST(QDir().mkpath(folder));
    const auto bytes = QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int dashes = bytes.indexOf("\n----\n");
    const QByteArray table = dashes < 0 ? bytes : bytes.left(dashes);
    checkTable(table);

    writeFile(folder + QStringLiteral("/skin.json"), table);
    const QByteArray image = dashes < 0 ? QByteArray() : bytes.mid(dashes + 6);
    writeFile(folder + QStringLiteral("/image.svg"), image);
    writeFile(folder + QStringLiteral("/image.png"), image);
    const bool loaded = SkinLibrary::instance()->load(folder);
    MUST(loaded || !SkinLibrary::instance()->problems().isEmpty());
    paintEverything();
    return 0;
}
