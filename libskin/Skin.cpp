#include "libskin/Skin.h"

#include "tradeConfig/skin/SkinKeys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <dlfcn.h>

namespace CorvelSkin {
namespace {

/// Adds the substitute's entries that @p own lacks.
template <typename Map> void fill(Map& own, const Map& substitute)
{
    for (auto entry = substitute.begin(); entry != substitute.end(); ++entry) {
        if (!own.contains(entry.key()))
            own.insert(entry.key(), entry.value());
    }
}

/// Reports the keys of one kind that the table lacks, but for those that @p problems names already.
template <std::size_t count, typename Map>
void reportAbsent(const SkinKeys::KeyInfo (&keys)[count], const Map& own, QLatin1String kind,
                  const QString& file, QVector<SkinProblem>& problems)
{
    const QVector<SkinProblem> known = problems;
    for (const SkinKeys::KeyInfo& info : keys) {
        const QString key = QLatin1String(info.name);
        const bool blamed
            = std::any_of(known.begin(), known.end(),
                          [&key](const SkinProblem& problem) { return problem.key == key; });
        if (!own.contains(key) && !blamed)
            problems.append({file, key, QStringLiteral("the %1 is absent").arg(kind)});
    }
}

/// The folder of the file that this code was loaded from.
QString libraryFolder()
{
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void*>(&libraryFolder), &info) == 0 || !info.dli_fname)
        return QString();
    const QFileInfo file(QFile::decodeName(info.dli_fname));
    const QString path = file.canonicalFilePath();
    return path.isEmpty() ? file.absolutePath() : QFileInfo(path).path();
}

QString tableFile(const QString& folder) { return folder + QStringLiteral("/skin.json"); }

} // namespace

SkinTable readTable(const QString& folder, QVector<SkinProblem>& problems)
{
    if (!QFileInfo(folder).isDir()) {
        problems.append({folder, QString(), QStringLiteral("the folder is missing")});
        return SkinTable();
    }
    const QString file = tableFile(folder);
    QFile table(file);
    if (QFileInfo(file).isDir() || !table.open(QIODevice::ReadOnly)) {
        problems.append({file, QString(), QStringLiteral("the table cannot be opened")});
        return SkinTable();
    }
    // A byte more than is allowed tells that there are too many.
    return readSkinTable(table.read(maxTableBytes + 1), file, problems);
}

bool readSkin(const QString& folder, const Skin& substitute, Skin& skin,
              QVector<SkinProblem>& problems)
{
    skin = substitute;
    const int before = problems.size();
    const SkinTable read = readTable(folder, problems);
    if (problems.size() > before && problems.at(before).key.isEmpty())
        return false;

    const QString file = tableFile(folder);
    Skin own{read.colours, read.fonts, {}, read.palette, read.disabledPalette};
    reportAbsent(SkinKeys::colours, read.colours, QLatin1String("colour"), file, problems);
    reportAbsent(SkinKeys::fonts, read.fonts, QLatin1String("font"), file, problems);
    reportAbsent(SkinKeys::images, read.images, QLatin1String("image"), file, problems);
    for (auto entry = read.images.begin(); entry != read.images.end(); ++entry) {
        QString reason;
        const std::shared_ptr<const SkinImage> image
            = SkinImage::read(folder, entry.value(), reason);
        if (image)
            own.images.insert(entry.key(), image);
        else
            problems.append({folder + QLatin1Char('/') + entry->file, entry.key(), reason});
    }

    fill(own.colours, substitute.colours);
    fill(own.fonts, substitute.fonts);
    fill(own.images, substitute.images);
    fill(own.palette, substitute.palette);
    fill(own.disabledPalette, substitute.disabledPalette);
    skin = own;
    return true;
}

QString builtInFolder() { return QStringLiteral(":/libskin/skins/light"); }

Skin builtInSkin()
{
    Skin skin;
    QVector<SkinProblem> problems;
    readSkin(builtInFolder(), Skin(), skin, problems);
    Q_ASSERT(problems.isEmpty());
    return skin;
}

QStringList skinSearchPaths()
{
    QStringList paths;
    const QString library = libraryFolder();
    if (!library.isEmpty()) {
        paths << library + QStringLiteral("/../share/tradeConfig/skins")
              << library + QStringLiteral("/" SKIN_FOLDER_FROM_LIBRARY);
    }
    if (QCoreApplication::instance()) {
        const QString program = QCoreApplication::applicationDirPath();
        paths << program + QStringLiteral("/skins")
              << program + QStringLiteral("/../share/tradeConfig/skins")
              << program + QStringLiteral("/../Resources/skins");
    }
    for (QString& path : paths)
        path = QDir::cleanPath(path);
    paths.removeDuplicates();
    return paths;
}

} // namespace CorvelSkin
