#pragma once

#import <AppKit/AppKit.h>
#include <Security/Security.h>

#include <optional>
#include <string>
#include <vector>

/**
 * Doubles of Apple's frameworks. Each call is written into one trace; answers come from a
 * script; objects that the functions hand out are counted. Strings, pools and the file system
 * are GNUstep's real ones.
 */
namespace Doubles {

enum class PropertyKind { Missing, Text, Data, Other };

struct Script {
    NSString* home = nil; ///< NSHomeDirectory(), autoreleased at each call
    NSString* bundleIdentifier = nil;
    id version = nil; ///< "CFBundleShortVersionString", autoreleased at each call

    bool executableUrl = true;
    OSStatus staticCodeStatus = errSecSuccess;
    OSStatus requirementStatus = errSecSuccess;
    OSStatus validityStatus = errSecSuccess;

    int failingCreations = 0; ///< how many createDirectory… fail before the real one is asked
    std::optional<BOOL> writable; ///< instead of what the file system says

    bool service = true;
    PropertyKind property = PropertyKind::Missing;
    std::string propertyBytes;
    /// CFDataGetBytes writes no more than this, whatever it is asked for.
    std::size_t writableBytes = std::string::npos;
};

Script& script();

/// The calls so far, one line each.
std::vector<std::string>& trace();

/// Those lines of trace() that are messages to the log, as they came out.
std::vector<std::string> logs();

/// What is wrong with the references: objects that were not released, one line each. (A release
/// too many, or of nothing, aborts at once as it does on macOS.)
std::vector<std::string> leaks();

/// Puts the doubles in the places of NSBundle's main bundle and NSFileManager's default manager.
void install();

} // namespace Doubles
