#pragma once

#include <QString>

#include <cstddef>
#include <string>

/// What HostPlatform_unix.cpp is made of, so that tests can give it a file system of their own.
namespace HostPlatform {

/// The application's identifier: "kivotrade.com" and "tradeclient" give
/// "com.kivotrade.tradeclient"; an empty domain gives the name alone.
QString applicationIdentifier(const QString& domain, const QString& name);

/// The first line of the DMI entry @p dmiName under @p root, else that of the machine id, each
/// without surrounding white space; empty if neither can be read or says anything.
/// @p root is what stands before "/sys" and "/etc": empty for those of this machine.
std::string machineIdentifier(const std::string& root, const std::string& dmiName);

/// As much of @p text as fits into @p buffer beside a terminator.
template <std::size_t Size> void copyTerminated(char (&buffer)[Size], const std::string& text)
{
    buffer[text.copy(buffer, Size - 1)] = '\0';
}

} // namespace HostPlatform
