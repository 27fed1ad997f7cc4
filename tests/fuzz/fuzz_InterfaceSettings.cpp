// Any bytes as the settings file: reading stays within the language list, and what is saved into
// such a file is read back.

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzSetup.h"
#include "support/Files.h"
#include "tradeConfig/dialog/InterfaceSettings.h"

#include <QDir>
#include <QFile>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzSetup::application();
    FuzzInput input(data, size);
    const int language = input.below(3);
    const int scale = 100 + 5 * input.below(41);
    constexpr std::size_t used = 4;
    const std::size_t rest = size > used ? size - used : 0;

    const QString path = InterfaceSettings::filePath();
    writeFile(
        path,
        QByteArray(reinterpret_cast<const char*>(data + (size - rest)), static_cast<int>(rest)));
    const int found = InterfaceSettings::languageIndex();
    MUST(found >= 0 && found <= 2);
    InterfaceSettings::scale();

    InterfaceSettings::save(language, scale);
    MUST(InterfaceSettings::languageIndex() == language);
    MUST(InterfaceSettings::scale() == scale);
    return 0;
}
