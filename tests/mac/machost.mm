// machost <case>: runs one case in this process, since the module keeps its answers for the life
// of a process. CMakeLists.txt makes one test of every line that begins with CASE.

#include "mac/Doubles.h"
#include "support/VersionTable.h"
#include "tradeConfig/platform/HostPlatform.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <stdlib.h>
#include <string>
#include <unistd.h>
#include <vector>

#if __has_feature(address_sanitizer)
#include <sanitizer/lsan_interface.h>
#define WITHOUT_LEAK_CHECK const __lsan::ScopedDisabler disabler

// The Objective-C runtime's own tables; objects are allocated by other functions.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:objc_malloc\nleak:class_copyMethodList\n";
}

extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
#else
#define WITHOUT_LEAK_CHECK
#endif

namespace fs = std::filesystem;

using Doubles::PropertyKind;
using Doubles::script;
using Lines = std::vector<std::string>;

namespace {

int& failures()
{
    static int count = 0;
    return count;
}

std::string shown(const std::string& text) { return '"' + text + '"'; }

std::string shown(long long number) { return std::to_string(number); }

std::string shown(const Lines& lines)
{
    std::string all;
    for (const std::string& line : lines)
        all += "\n    " + line;
    return all;
}

template <typename Value>
void same(int line, const char* expression, const Value& actual, const Value& expected)
{
    if (actual == expected)
        return;
    ++failures();
    std::fprintf(stderr, "machost.mm:%d: %s\n  is %s\n  not %s\n", line, expression,
                 shown(actual).c_str(), shown(expected).c_str());
}

#define SAME_TEXT(actual, ...) same<std::string>(__LINE__, #actual, actual, __VA_ARGS__)
#define SAME_NUMBER(actual, ...) same<long long>(__LINE__, #actual, actual, __VA_ARGS__)
#define SAME_LINES(actual, ...) same<Lines>(__LINE__, #actual, actual, Lines __VA_ARGS__)
#define TRUE_THAT(...) same<long long>(__LINE__, #__VA_ARGS__, (__VA_ARGS__) ? 1 : 0, 1)

std::map<std::string, std::function<void()>>& cases()
{
    static std::map<std::string, std::function<void()>> all;
    return all;
}

struct Registration {
    Registration(const char* name, void (*run)()) { cases()[name] = run; }
};

#define CASE(name)                                                                                 \
    void name();                                                                                   \
    const Registration name##Registration(#name, name);                                            \
    void name()

const char* const Requirement = "SecRequirementCreateWithString "
                                "entitlement[\"com.apple.security.app-sandbox\"] exists flags=0";

/// The first lines of a first call of ApplicationHomePath.
const Lines SandboxTestBegins = {"NSHomeDirectory", "NSLog check if app is sandboxed or not\n",
                                 "CFBundleGetMainBundle", "CFBundleCopyExecutableURL bundle"};

Lines operator+(Lines left, const Lines& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

NSString* string(const std::string& text) { return [NSString stringWithUTF8String:text.c_str()]; }

/// The fresh directory of this case; the current directory is "cwd" in it.
std::string scratch()
{
    static const std::string directory = fs::current_path().parent_path().string();
    return directory;
}

void scriptHome(const std::string& home)
{
    script().home = string(home);
    script().bundleIdentifier = @"com.kivotrade.client";
}

void notSandboxed() { script().validityStatus = -67050; }

/// What stands in the log between the sandbox test and the end.
Lines logsAfterSandboxTest()
{
    Lines lines = Doubles::logs();
    lines.erase(lines.begin(), lines.begin() + 2);
    return lines;
}

/// Calls again and sees the same pointer, and nothing asked of the system.
template <typename Function> void callsAgain(Function function, const char* first)
{
    const std::size_t calls = Doubles::trace().size();
    TRUE_THAT(function() == first);
    TRUE_THAT(function() == first);
    SAME_NUMBER(static_cast<long long>(Doubles::trace().size()), static_cast<long long>(calls));
}

// The sandbox test

CASE(sandboxed)
{
    scriptHome("/Users/u/Library/Containers/x/Data");
    const char* const path = ApplicationHomePath();
    SAME_TEXT(path, "/Users/u/Library/Containers/x/Data");
    SAME_LINES(Doubles::trace(),
               (SandboxTestBegins
                + Lines{"SecStaticCodeCreateWithPath url flags=0", Requirement,
                        "SecStaticCodeCheckValidityWithErrors code flags=6 requirement",
                        "NSLog app is sandboxed\n", "CFRelease url", "CFRelease code",
                        "CFRelease requirement",
                        "NSLog sandboxed:path=/Users/u/Library/Containers/x/Data\n"}));
    callsAgain(ApplicationHomePath, path);
}

void failsWithoutStaticCode(OSStatus status)
{
    scriptHome(scratch() + "/home");
    fs::create_directories(scratch() + "/home/.com.kivotrade.client");
    script().staticCodeStatus = status;
    SAME_TEXT(ApplicationHomePath(), scratch() + "/home/.com.kivotrade.client");
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    SAME_LINES(Doubles::trace(),
               (SandboxTestBegins
                + Lines{"SecStaticCodeCreateWithPath url flags=0",
                        "NSLog app is not sandboxed:no static code\n", "CFRelease url",
                        "bundleIdentifier", "fileExists " + path, "isWritable " + path,
                        "NSLog not sandboxed:path=" + path + ",writable=1\n"}));
}

CASE(noStaticCode) { failsWithoutStaticCode(-67056); }

CASE(noStaticCodePositiveStatus) { failsWithoutStaticCode(1); }

CASE(noExecutableUrl)
{
    script().executableUrl = false;
    script().staticCodeStatus = -50;
    fs::create_directories(scratch() + "/home/.com.kivotrade.client");
    scriptHome(scratch() + "/home");
    SAME_TEXT(ApplicationHomePath(), scratch() + "/home/.com.kivotrade.client");
    SAME_TEXT(Doubles::trace().at(4), "SecStaticCodeCreateWithPath null flags=0");
    SAME_TEXT(Doubles::logs().at(1), "app is not sandboxed:no static code\n");
}

CASE(noRequirement)
{
    scriptHome(scratch() + "/home");
    fs::create_directories(scratch() + "/home/.com.kivotrade.client");
    script().requirementStatus = -67052;
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    SAME_TEXT(ApplicationHomePath(), path);
    SAME_LINES(
        Doubles::trace(),
        (SandboxTestBegins
         + Lines{"SecStaticCodeCreateWithPath url flags=0", Requirement,
                 "NSLog app is not sandboxed:no entitlement\n", "CFRelease url", "CFRelease code",
                 "bundleIdentifier", "fileExists " + path, "isWritable " + path,
                 "NSLog not sandboxed:path=" + path + ",writable=1\n"}));
}

void failsTheRequirement(OSStatus status)
{
    scriptHome(scratch() + "/home");
    fs::create_directories(scratch() + "/home/.com.kivotrade.client");
    script().validityStatus = status;
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    SAME_TEXT(ApplicationHomePath(), path);
    SAME_LINES(
        Doubles::trace(),
        (SandboxTestBegins
         + Lines{"SecStaticCodeCreateWithPath url flags=0", Requirement,
                 "SecStaticCodeCheckValidityWithErrors code flags=6 requirement",
                 "NSLog app is not sandboxed\n", "CFRelease url", "CFRelease code",
                 "CFRelease requirement", "bundleIdentifier", "fileExists " + path,
                 "isWritable " + path, "NSLog not sandboxed:path=" + path + ",writable=1\n"}));
}

CASE(requirementNotMet) { failsTheRequirement(-67050); }

CASE(requirementPositiveStatus) { failsTheRequirement(100001); }

// The hidden directory

CASE(directoryThere)
{
    notSandboxed();
    scriptHome(scratch() + "/home");
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    fs::create_directories(path);
    const char* const first = ApplicationHomePath();
    SAME_TEXT(first, path);
    SAME_LINES(logsAfterSandboxTest(), ({"not sandboxed:path=" + path + ",writable=1\n"}));

    // Neither a directory that went nor another home changes the answer.
    fs::remove_all(path);
    scriptHome(scratch() + "/elsewhere");
    callsAgain(ApplicationHomePath, first);
    SAME_TEXT(first, path);
    TRUE_THAT(!fs::exists(path));
}

CASE(directoryNotWritable)
{
    notSandboxed();
    script().writable = NO;
    scriptHome(scratch() + "/home");
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    fs::create_directories(path);
    SAME_TEXT(ApplicationHomePath(), path);
    SAME_LINES(logsAfterSandboxTest(), ({"not sandboxed:path=" + path + ",writable=0\n"}));
}

CASE(directoryCreated)
{
    notSandboxed();
    scriptHome(scratch() + "/not/there/yet");
    const std::string path = scratch() + "/not/there/yet/.com.kivotrade.client";
    SAME_TEXT(ApplicationHomePath(), path);
    TRUE_THAT(fs::is_directory(path));
    Lines calls = Doubles::trace();
    calls.erase(calls.begin(), calls.begin() + 11);
    SAME_LINES(
        calls,
        ({"bundleIdentifier", "fileExists " + path, "createDirectory " + path + " intermediate=1",
          "NSLog createDirectoryAtPath:path=" + path + "\n", "isWritable " + path,
          "NSLog not sandboxed:path=" + path + ",writable=1\n"}));
}

CASE(fileInTheWay)
{
    notSandboxed();
    scriptHome(scratch() + "/home");
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    fs::create_directories(scratch() + "/home");
    std::ofstream(path) << "in the way";
    SAME_TEXT(ApplicationHomePath(), "." + path);
    // Relative to the current directory now, with every parent made.
    TRUE_THAT(fs::is_directory(scratch() + "/cwd/" + ("." + path)));
    TRUE_THAT(fs::is_regular_file(path));
    Lines calls = Doubles::trace();
    calls.erase(calls.begin(), calls.begin() + 12);
    SAME_LINES(calls,
               ({"fileExists " + path, "fileExists ." + path,
                 "createDirectory ." + path + " intermediate=1",
                 "NSLog createDirectoryAtPath:path=." + path + "\n", "isWritable ." + path,
                 "NSLog not sandboxed:path=." + path + ",writable=1\n"}));
}

CASE(filesInTheWayTwice)
{
    notSandboxed();
    scriptHome(scratch() + "/home");
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    for (const std::string& file : {path, scratch() + "/cwd/." + path}) {
        fs::create_directories(fs::path(file).parent_path());
        std::ofstream(file) << "in the way";
    }
    fs::create_directories(scratch() + path); // "..<path>" seen from the current directory
    SAME_TEXT(ApplicationHomePath(), ".." + path);
    SAME_LINES(logsAfterSandboxTest(), ({"not sandboxed:path=.." + path + ",writable=1\n"}));
}

CASE(creationFails)
{
    notSandboxed();
    // A parent that is a file: nothing exists at the path, and nothing can be made there.
    std::ofstream(scratch() + "/home") << "a file";
    scriptHome(scratch() + "/home");
    const std::string path = scratch() + "/home/.com.kivotrade.client";
    SAME_TEXT(ApplicationHomePath(), "." + path);
    TRUE_THAT(fs::is_directory("." + path));
    Lines calls = Doubles::trace();
    calls.erase(calls.begin(), calls.begin() + 12);
    SAME_LINES(calls,
               ({"fileExists " + path, "createDirectory " + path + " intermediate=1",
                 "fileExists ." + path, "createDirectory ." + path + " intermediate=1",
                 "NSLog createDirectoryAtPath:path=." + path + "\n", "isWritable ." + path,
                 "NSLog not sandboxed:path=." + path + ",writable=1\n"}));
}

CASE(creationFailsManyTimes)
{
    notSandboxed();
    script().failingCreations = 100;
    scriptHome(scratch() + "/home");
    const std::string path = std::string(100, '.') + scratch() + "/home/.com.kivotrade.client";
    SAME_TEXT(ApplicationHomePath(), path);
    SAME_NUMBER(script().failingCreations, 0);
    TRUE_THAT(fs::is_directory(path));
    SAME_LINES(logsAfterSandboxTest(),
               ({"createDirectoryAtPath:path=" + path + "\n",
                 "not sandboxed:path=" + path + ",writable=1\n"}));
}

CASE(percentSignsInThePath)
{
    notSandboxed();
    scriptHome(scratch() + "/%@%s%n%d");
    const std::string path = scratch() + "/%@%s%n%d/.com.kivotrade.client";
    SAME_TEXT(ApplicationHomePath(), path);
    SAME_LINES(logsAfterSandboxTest(),
               ({"createDirectoryAtPath:path=" + path + "\n",
                 "not sandboxed:path=" + path + ",writable=1\n"}));
}

CASE(homeIsReleased)
{
    scriptHome("/Users/someone with a name that no tagged pointer holds");
    NSString* const home = [string("/Users/u/Library/Containers/client/Data") retain];
    script().home = home;
    const auto before = static_cast<long long>([home retainCount]);
    SAME_TEXT(ApplicationHomePath(), "/Users/u/Library/Containers/client/Data");
    // What it was handed, autoreleased, went with a pool of its own.
    SAME_NUMBER(static_cast<long long>([home retainCount]), before);
    [home release];
}

// The buffer

CASE(noPath)
{
    script().home = nil;
    const char* const path = ApplicationHomePath();
    SAME_TEXT(path, scratch() + "/cwd");
    SAME_TEXT(Doubles::logs().back(), "sandboxed:path=(null)\n");

    fs::current_path(scratch());
    callsAgain(ApplicationHomePath, path);
    SAME_TEXT(path, scratch() + "/cwd");
}

CASE(noPathNorCurrentDirectory)
{
    script().home = nil;
    fs::remove(scratch() + "/cwd");
    SAME_TEXT(ApplicationHomePath(), "");
}

CASE(utf8Path)
{
    scriptHome("/Users/\xE4\xBA\xA4\xE6\x98\x93");
    SAME_TEXT(ApplicationHomePath(), "/Users/\xE4\xBA\xA4\xE6\x98\x93");
}

CASE(longestTerminatedPath)
{
    const std::string home = '/' + std::string(510, 'h');
    scriptHome(home);
    const char* const path = ApplicationHomePath();
    SAME_NUMBER(static_cast<long long>(strnlen(path, 512)), 511);
    SAME_TEXT(path, home);
}

void isCut(std::size_t length)
{
    std::string home = '/' + std::string(length - 1, 'h');
    home[511] = 'L';
    scriptHome(home);
    const char* const path = ApplicationHomePath();
    SAME_TEXT(std::string(path, 512), home.substr(0, 512));
    callsAgain(ApplicationHomePath, path);
}

CASE(pathThatFillsTheBuffer) { isCut(512); }

CASE(pathThatIsCut) { isCut(900); }

// The title bar

CASE(titleBar)
{
    NSView* const view = [[NSView alloc] init];
    hideWindowCaptionBar(view);
    SAME_LINES(Doubles::trace(),
               ({"window", "setTitleVisibility 1", "setTitlebarAppearsTransparent 1", "styleMask",
                 "setStyleMask 32783", "standardWindowButton 0", "button setHidden 1",
                 "standardWindowButton 2", "button setHidden 1", "standardWindowButton 1",
                 "button setHidden 1"}));
    SAME_NUMBER(static_cast<long long>([view retainCount]), 1);
    [view release];
}

// The version

CASE(versionText)
{
    script().version = @"10.2.3 \u80a1";
    SAME_TEXT(GetMainExecutableVersion(), "10.2.3 \xE8\x82\xA1");
    SAME_LINES(Doubles::trace(), ({"objectForInfoDictionaryKey CFBundleShortVersionString"}));
}

CASE(versionTextOutlivesTheCall)
{
    NSMutableString* const version = [[NSMutableString alloc] initWithString:@"1."];
    [version appendString:@"22.333, long enough to need memory of its own"];
    script().version = version;
    const auto before = static_cast<long long>([version retainCount]);
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    const char* const text = GetMainExecutableVersion();
    // The host's pool, not one of the helper's, holds what the text belongs to.
    SAME_NUMBER(static_cast<long long>([version retainCount]), before + 1);
    SAME_TEXT(text, "1.22.333, long enough to need memory of its own");
    [pool drain];
    SAME_NUMBER(static_cast<long long>([version retainCount]), before);
    [version release];
    script().version = nil;
}

CASE(versionMissing)
{
    TRUE_THAT(GetMainExecutableVersion() == nullptr);
    SAME_NUMBER(GetMainExecutableVersionNum(), 0);
}

CASE(versionNumbers)
{
    for (const VersionNumber& row : versionTable) {
        script().version = string(row.text);
        same<std::string>(__LINE__, row.text, std::to_string(GetMainExecutableVersionNum()),
                          std::to_string(row.number));
    }
    SAME_TEXT(Doubles::trace().back(), "objectForInfoDictionaryKey CFBundleShortVersionString");
    SAME_NUMBER(static_cast<long long>(Doubles::trace().size()),
                static_cast<long long>(sizeof versionTable / sizeof *versionTable));
}

CASE(versionNumberLeavesNothingInThePool)
{
    NSMutableString* const version = [[NSMutableString alloc] initWithString:@"1.2.3"];
    script().version = version;
    SAME_NUMBER(GetMainExecutableVersionNum(), 1020003);
    SAME_NUMBER(static_cast<long long>([version retainCount]), 1);
    [version release];
    script().version = nil;
}

// The identifiers: the two differ in property, buffer and size

struct Identifier {
    const char* (*get)();
    const char* property;
    std::size_t size;
};

const Identifier DiskId = {GetDiskId, "IOPlatformSerialNumber", 256};
const Identifier SystemUuid = {GetSystemUuid, "IOPlatformUUID", 512};

Lines callsFor(const Identifier& id, const Lines& reading)
{
    return Lines{"IOServiceMatching IOPlatformExpertDevice",
                 "IOServiceGetMatchingService port=0 matching",
                 std::string("IORegistryEntryCreateCFProperty ") + id.property + " options=0",
                 "IOObjectRelease"}
    + reading;
}

void readsText(const Identifier& id)
{
    script().property = PropertyKind::Text;
    script().propertyBytes = "C02-\xE5\x8F\xB7";
    const char* const text = id.get();
    SAME_TEXT(text, "C02-\xE5\x8F\xB7");
    SAME_LINES(Doubles::trace(),
               (callsFor(id,
                         {"CFStringGetCString size=" + std::to_string(id.size) + " UTF-8",
                          "CFRelease property"})));
    script().propertyBytes = "another";
    callsAgain(id.get, text);
    SAME_TEXT(text, "C02-\xE5\x8F\xB7");
}

void readsData(const Identifier& id)
{
    // As many bytes as the buffer has: none of them is given up for a terminator.
    script().property = PropertyKind::Data;
    script().propertyBytes = std::string(id.size - 1, 'd') + 'L';
    const char* const text = id.get();
    SAME_TEXT(std::string(text, id.size), script().propertyBytes);
    const std::string size = std::to_string(id.size);
    SAME_LINES(Doubles::trace(),
               (callsFor(id, {"CFDataGetBytes 0.." + size, "CFRelease property"})));
    callsAgain(id.get, text);
}

void readsShortData(const Identifier& id)
{
    script().property = PropertyKind::Data;
    script().propertyBytes = "abc";
    SAME_TEXT(id.get(), "abc");
}

void readsLongData(const Identifier& id)
{
    // All the bytes are asked for; the double spares what lies behind the buffer.
    script().property = PropertyKind::Data;
    script().propertyBytes = std::string(1000, 'd');
    script().writableBytes = id.size;
    id.get();
    SAME_LINES(Doubles::trace(), (callsFor(id, {"CFDataGetBytes 0..1000", "CFRelease property"})));
}

void readsLongText(const Identifier& id)
{
    script().property = PropertyKind::Text;
    script().propertyBytes = std::string(id.size, 't');
    const char* const text = id.get();
    SAME_TEXT(text, "");
    callsAgain(id.get, text);
}

void ignoresOtherTypes(const Identifier& id)
{
    script().property = PropertyKind::Other;
    script().propertyBytes = "12345";
    const char* const text = id.get();
    SAME_TEXT(text, "");
    SAME_LINES(Doubles::trace(), (callsFor(id, {"CFRelease property"})));
    callsAgain(id.get, text);
}

void hasNoProperty(const Identifier& id)
{
    const char* const text = id.get();
    SAME_TEXT(text, "");
    SAME_LINES(Doubles::trace(), (callsFor(id, {})));
    script().property = PropertyKind::Text;
    script().propertyBytes = "too late";
    callsAgain(id.get, text);
    SAME_TEXT(text, "");
}

void hasNoService(const Identifier& id)
{
    script().service = false;
    const char* const text = id.get();
    SAME_TEXT(text, "");
    SAME_LINES(Doubles::trace(),
               ({"IOServiceMatching IOPlatformExpertDevice",
                 "IOServiceGetMatchingService port=0 matching"}));
    script().service = true;
    callsAgain(id.get, text);
    SAME_TEXT(text, "");
}

CASE(diskIdText) { readsText(DiskId); }

CASE(diskIdData) { readsData(DiskId); }

CASE(diskIdShortData) { readsShortData(DiskId); }

CASE(diskIdLongData) { readsLongData(DiskId); }

CASE(diskIdLongText) { readsLongText(DiskId); }

CASE(diskIdOtherType) { ignoresOtherTypes(DiskId); }

CASE(diskIdMissing) { hasNoProperty(DiskId); }

CASE(diskIdNoService) { hasNoService(DiskId); }

CASE(systemUuidText) { readsText(SystemUuid); }

CASE(systemUuidData) { readsData(SystemUuid); }

CASE(systemUuidShortData) { readsShortData(SystemUuid); }

CASE(systemUuidLongData) { readsLongData(SystemUuid); }

CASE(systemUuidLongText) { readsLongText(SystemUuid); }

CASE(systemUuidOtherType) { ignoresOtherTypes(SystemUuid); }

CASE(systemUuidMissing) { hasNoProperty(SystemUuid); }

CASE(systemUuidNoService) { hasNoService(SystemUuid); }

CASE(identifiersStandApart)
{
    script().property = PropertyKind::Text;
    script().propertyBytes = "serial";
    SAME_TEXT(GetDiskId(), "serial");
    script().propertyBytes = "uuid";
    SAME_TEXT(GetSystemUuid(), "uuid");
    SAME_TEXT(GetDiskId(), "serial");
}

} // namespace

int main(int argc, char** argv)
{
    if (cases().size() != MACHOST_CASES) {
        std::fprintf(stderr, "%zu cases, but %d tests\n", cases().size(), MACHOST_CASES);
        return 2;
    }
    const auto found = argc == 2 ? cases().find(argv[1]) : cases().end();
    if (found == cases().end()) {
        std::fprintf(stderr, "usage: machost <case>\n");
        return 2;
    }

    char directory[] = "/tmp/machost-XXXXXX";
    if (mkdtemp(directory) == nullptr)
        return 2;
    const fs::path fresh = fs::canonical(directory);
    setenv("HOME", fresh.c_str(), 1);
    fs::create_directory(fresh / "cwd");
    fs::current_path(fresh / "cwd");
    scratch();

    @autoreleasepool {
        {
            // Two objects that GNUstep's classes make for themselves at their first use.
            WITHOUT_LEAK_CHECK;
            Doubles::install();
        }
        found->second();
        SAME_LINES(Doubles::leaks(), ({}));
    }

    fs::current_path("/");
    fs::remove_all(fresh);
    return failures() == 0 ? 0 : 1;
}
