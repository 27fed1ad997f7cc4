#pragma once

#include <cstdint>
#include <string>

namespace HostPlatform {

/**
 * The number of a version text, cut to 32 bits: 0 without a dot, major * 1000000 with one (the
 * minor part is dropped then), major * 1000000 + minor * 10000 + patch with more.
 *
 * @p intValue turns a piece of the text into an int by its leading digits.
 */
template <typename IntValue>
std::int32_t versionNumber(const std::string& version, const IntValue& intValue)
{
    const auto majorEnd = version.find('.');
    if (majorEnd == std::string::npos)
        return 0;
    std::int64_t number = std::int64_t{intValue(version.substr(0, majorEnd))} * 1000000;

    const std::string rest = version.substr(majorEnd + 1);
    const auto minorEnd = rest.find('.');
    if (minorEnd != std::string::npos) {
        number += std::int64_t{intValue(rest.substr(0, minorEnd))} * 10000;
        number += intValue(rest.substr(minorEnd + 1));
    }
    return static_cast<std::int32_t>(number);
}

} // namespace HostPlatform
