// Any bytes as the settings file: reading stays within the language list, and what is saved into
// such a file is read back. One that the toolkit has not the memory to read loses nothing.

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzSetup.h"
#include "support/Files.h"
#include "tradeConfig/dialog/InterfaceSettings.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <new>

namespace {

bool toolkitReads(const QString& path)
{
    try {
        QSettings(path, QSettings::IniFormat).allKeys();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

QByteArray withoutTextMarks(QByteArray content)
{
    return content.replace("@@Variant(", "@Variant(");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzSetup::application();
    FuzzInput input(data, size);
    const int language = input.below(3);
    const int scale = 100 + 5 * input.below(41);
    constexpr std::size_t used = 4;
    const std::size_t rest = size > used ? size - used : 0;

    const QString path = InterfaceSettings::filePath();
    const QByteArray content(reinterpret_cast<const char*>(data + (size - rest)),
                             static_cast<int>(rest));
    writeFile(path, content);
    const int found = InterfaceSettings::languageIndex();
    MUST(found >= 0 && found <= 2);
    InterfaceSettings::scale();

    InterfaceSettings::save(language, scale);
    if (!toolkitReads(path)) {
        QFile file(path);
        MUST(file.open(QIODevice::ReadOnly));
        MUST(withoutTextMarks(file.readAll()) == withoutTextMarks(content));
        return 0;
    }
    MUST(InterfaceSettings::languageIndex() == language);
    MUST(InterfaceSettings::scale() == scale);
    return 0;
}
