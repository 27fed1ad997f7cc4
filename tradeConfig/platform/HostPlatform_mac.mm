#include "tradeConfig/platform/DirectorySearch.h"
#include "tradeConfig/platform/HostPlatform.h"
#include "tradeConfig/platform/VersionNumber.h"

#import <AppKit/AppKit.h>
#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#import <IOKit/IOKitLib.h>
#import <Security/Security.h>

#include <string.h>
#include <string>
#include <unistd.h>

// Compiled without ARC: what is copied or created here is released here.

namespace {

char home_path[512];
bool init_home_path;
bool _sandbox_checked;
bool _sandboxed;
char disk_id_str[256];
bool init_disk_id;
char system_uuid_str[512];
bool init_system_uuid;

/// CFRelease itself crashes on a null reference.
void releaseIfSet(CFTypeRef object)
{
    if (object != nullptr)
        CFRelease(object);
}

/// Whether the application's signature carries the entitlement of the App Sandbox.
bool hasSandboxEntitlement()
{
    NSLog(@"check if app is sandboxed or not\n");

    bool sandboxed = false;
    CFURLRef executable = CFBundleCopyExecutableURL(CFBundleGetMainBundle());
    SecStaticCodeRef code = nullptr;
    SecRequirementRef requirement = nullptr;
    if (SecStaticCodeCreateWithPath(executable, kSecCSDefaultFlags, &code) != errSecSuccess) {
        NSLog(@"app is not sandboxed:no static code\n");
    } else if (SecRequirementCreateWithString(
                   CFSTR("entitlement[\"com.apple.security.app-sandbox\"] exists"),
                   kSecCSDefaultFlags, &requirement)
               != errSecSuccess) {
        NSLog(@"app is not sandboxed:no entitlement\n");
    } else if (SecStaticCodeCheckValidityWithErrors(
                   code, kSecCSDoNotValidateExecutable | kSecCSDoNotValidateResources, requirement,
                   nullptr)
               != errSecSuccess) {
        NSLog(@"app is not sandboxed\n");
    } else {
        sandboxed = true;
        NSLog(@"app is sandboxed\n");
    }

    releaseIfSet(executable);
    releaseIfSet(code);
    releaseIfSet(requirement);
    return sandboxed;
}

/// The directory under @p home that is named after the main bundle, found or made.
NSString* hiddenDirectory(NSString* home)
{
    NSFileManager* const files = [NSFileManager defaultManager];

    const auto stateOf = [files](NSString* path) {
        BOOL isDirectory = NO;
        if (![files fileExistsAtPath:path isDirectory:&isDirectory])
            return HostPlatform::PathState::Missing;
        return isDirectory ? HostPlatform::PathState::Directory : HostPlatform::PathState::InTheWay;
    };
    const auto create = [files](NSString* path) {
        if (![files createDirectoryAtPath:path
                withIntermediateDirectories:YES
                                 attributes:nil
                                      error:nullptr])
            return false;
        NSLog(@"createDirectoryAtPath:path=%@\n", path);
        return true;
    };
    const auto withDot = [](NSString* path) { return [NSString stringWithFormat:@".%@", path]; };

    NSString* const path = HostPlatform::firstUsableDirectory(
        [NSString stringWithFormat:@"%@/.%@", home, [[NSBundle mainBundle] bundleIdentifier]],
        stateOf, create, withDot);
    NSLog(@"not sandboxed:path=%@,writable=%hhd\n", path, [files isWritableFileAtPath:path]);
    return path;
}

/// Reads a property of the machine itself into @p buffer, which stays as it is without one.
void copyPlatformProperty(CFStringRef name, char* buffer, CFIndex size)
{
    // 0 is the default main port. Its named constant changed with macOS 12: one name is missing
    // from the older SDKs, the other is deprecated in the newer ones.
    const io_service_t service
        = IOServiceGetMatchingService(0, IOServiceMatching("IOPlatformExpertDevice"));
    if (service == 0)
        return;

    CFTypeRef property = IORegistryEntryCreateCFProperty(service, name, kCFAllocatorDefault, 0);
    IOObjectRelease(service);
    if (property == nullptr)
        return;

    const CFTypeID type = CFGetTypeID(property);
    if (type == CFDataGetTypeID()) {
        // All the bytes, whatever the size of the buffer, and no terminator after them.
        CFDataRef data = static_cast<CFDataRef>(property);
        CFDataGetBytes(data, CFRangeMake(0, CFDataGetLength(data)),
                       reinterpret_cast<unsigned char*>(buffer));
    } else if (type == CFStringGetTypeID()) {
        CFStringGetCString(static_cast<CFStringRef>(property), buffer, size, kCFStringEncodingUTF8);
    }
    CFRelease(property);
}

} // namespace

const char* ApplicationHomePath()
{
    if (init_home_path)
        return home_path;

    @autoreleasepool {
        NSString* path = NSHomeDirectory();
        if (!_sandbox_checked) {
            _sandboxed = hasSandboxEntitlement();
            _sandbox_checked = true;
        }
        if (_sandboxed)
            NSLog(@"sandboxed:path=%@\n", path);
        else
            path = hiddenDirectory(path);

        if (path != nil)
            strncpy(home_path, [path UTF8String], sizeof home_path);
        else if (getcwd(home_path, sizeof home_path) == nullptr)
            home_path[0] = '\0';
    }
    init_home_path = true;
    return home_path;
}

void hideWindowCaptionBar(void* view)
{
    NSWindow* const window = [static_cast<NSView*>(view) window];
    [window setTitleVisibility:NSWindowTitleHidden];
    [window setTitlebarAppearsTransparent:YES];
    [window setStyleMask:[window styleMask] | NSWindowStyleMaskFullSizeContentView];
    [[window standardWindowButton:NSWindowCloseButton] setHidden:YES];
    [[window standardWindowButton:NSWindowZoomButton] setHidden:YES];
    [[window standardWindowButton:NSWindowMiniaturizeButton] setHidden:YES];
}

const char* GetMainExecutableVersion()
{
    // No autorelease pool here: the text must outlive this call.
    return [[[NSBundle mainBundle] objectForInfoDictionaryKey:@"CFBundleShortVersionString"]
        UTF8String];
}

int GetMainExecutableVersionNum()
{
    @autoreleasepool {
        const char* const version = GetMainExecutableVersion();
        if (version == nullptr)
            return 0;
        return HostPlatform::versionNumber(version, [](const std::string& text) {
            return [[NSString stringWithUTF8String:text.c_str()] intValue];
        });
    }
}

const char* GetDiskId()
{
    if (!init_disk_id) {
        copyPlatformProperty(CFSTR("IOPlatformSerialNumber"), disk_id_str, sizeof disk_id_str);
        init_disk_id = true;
    }
    return disk_id_str;
}

const char* GetSystemUuid()
{
    if (!init_system_uuid) {
        copyPlatformProperty(CFSTR("IOPlatformUUID"), system_uuid_str, sizeof system_uuid_str);
        init_system_uuid = true;
    }
    return system_uuid_str;
}
