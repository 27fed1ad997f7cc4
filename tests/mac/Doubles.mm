#include "mac/Doubles.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#import <objc/runtime.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <map>

namespace {

enum TypeId : CFTypeID { BundleType = 1, UrlType, StringType, DataType, NumberType, SecurityType };

/// What every reference of the doubles points at.
struct Object {
    std::string name;
    CFTypeID type;
    int references;
    std::string bytes;
};

constexpr io_service_t ServiceHandle = 0x5ec;

/// Addresses of the elements stay valid while the deque grows.
std::deque<Object>& objects()
{
    static std::deque<Object> all;
    return all;
}

int& serviceReferences()
{
    static int references = 0;
    return references;
}

Object* create(const std::string& name, CFTypeID type, const std::string& bytes = {})
{
    objects().push_back({name, type, 1, bytes});
    return &objects().back();
}

[[noreturn]] void crash(const std::string& why)
{
    std::fprintf(stderr, "%s\n", why.c_str());
    std::abort();
}

const Object* living(const void* reference, const char* caller)
{
    if (reference == nullptr)
        crash(std::string(caller) + " of nothing");
    const auto* const object = static_cast<const Object*>(reference);
    if (object->references <= 0)
        crash(std::string(caller) + " of a dead " + object->name);
    return object;
}

std::string nameOf(const void* reference)
{
    return reference != nullptr ? static_cast<const Object*>(reference)->name : "null";
}

void record(const std::string& line) { Doubles::trace().push_back(line); }

std::string text(NSString* string) { return string != nil ? [string UTF8String] : "nil"; }

template <typename Number> std::string number(Number value) { return std::to_string(value); }

/// The trace of a log line begins so.
const std::string LogPrefix = "NSLog ";

} // namespace

namespace Doubles {

Script& script()
{
    static Script theScript;
    return theScript;
}

std::vector<std::string>& trace()
{
    static std::vector<std::string> lines;
    return lines;
}

std::vector<std::string> logs()
{
    std::vector<std::string> lines;
    for (const std::string& line : trace()) {
        if (line.rfind(LogPrefix, 0) == 0)
            lines.push_back(line.substr(LogPrefix.size()));
    }
    return lines;
}

std::vector<std::string> leaks()
{
    std::vector<std::string> found;
    for (const Object& object : objects()) {
        if (object.references != 0)
            found.push_back(object.name + " has " + number(object.references) + " references");
    }
    if (serviceReferences() != 0)
        found.push_back("service has " + number(serviceReferences()) + " references");
    return found;
}

} // namespace Doubles

using Doubles::script;

// Foundation: two functions and two objects in front of GNUstep's

// The linker takes these before the ones of the library.
NSString* NSHomeDirectory()
{
    record("NSHomeDirectory");
    return [[script().home retain] autorelease];
}

void NSLog(NSString* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    NSString* const line = [[NSString alloc] initWithFormat:format arguments:arguments];
    va_end(arguments);
    record(LogPrefix + text(line));
    [line release];
}

@interface ScriptedBundle : NSObject
@end

@implementation ScriptedBundle
- (NSString*)bundleIdentifier
{
    record("bundleIdentifier");
    return script().bundleIdentifier;
}

- (id)objectForInfoDictionaryKey:(NSString*)key
{
    record("objectForInfoDictionaryKey " + text(key));
    return [[script().version retain] autorelease];
}
@end

@interface RecordingFileManager : NSFileManager
@end

@implementation RecordingFileManager
- (BOOL)fileExistsAtPath:(NSString*)path isDirectory:(BOOL*)isDirectory
{
    record("fileExists " + text(path));
    return [super fileExistsAtPath:path isDirectory:isDirectory];
}

- (BOOL)createDirectoryAtPath:(NSString*)path
    withIntermediateDirectories:(BOOL)intermediate
                     attributes:(NSDictionary*)attributes
                          error:(NSError**)error
{
    record("createDirectory " + text(path) + " intermediate=" + number(intermediate)
           + (attributes == nil ? "" : " with attributes")
           + (error == nullptr ? "" : " with error"));
    if (script().failingCreations > 0) {
        --script().failingCreations;
        return NO;
    }
    // The library's own loop asks this object about the parents; those calls are not the module's.
    const std::size_t recorded = Doubles::trace().size();
    const BOOL created = [super createDirectoryAtPath:path
                          withIntermediateDirectories:intermediate
                                           attributes:attributes
                                                error:error];
    Doubles::trace().resize(recorded);
    return created;
}

- (BOOL)isWritableFileAtPath:(NSString*)path
{
    record("isWritable " + text(path));
    return script().writable ? *script().writable : [super isWritableFileAtPath:path];
}
@end

namespace {

id scriptedBundle(id /*self*/, SEL /*selector*/)
{
    static ScriptedBundle* const bundle = [[ScriptedBundle alloc] init];
    return bundle;
}

id recordingFileManager(id /*self*/, SEL /*selector*/)
{
    static RecordingFileManager* const manager = [[RecordingFileManager alloc] init];
    return manager;
}

void replaceClassMethod(Class type, SEL selector, id (*replacement)(id, SEL))
{
    method_setImplementation(class_getClassMethod(type, selector),
                             reinterpret_cast<IMP>(replacement));
}

} // namespace

void Doubles::install()
{
    replaceClassMethod([NSBundle class], @selector(mainBundle), scriptedBundle);
    replaceClassMethod([NSFileManager class], @selector(defaultManager), recordingFileManager);
}

// Core Foundation

const CFAllocatorRef kCFAllocatorDefault = nullptr;

CFStringRef __CFStringMakeConstantString(const char* text)
{
    // Constant strings belong to nobody; they are kept apart from what is counted.
    static std::map<std::string, Object> constants;
    Object& object = constants[text];
    object = {"constant", StringType, 1, text};
    return reinterpret_cast<CFStringRef>(&object);
}

CFRange CFRangeMake(CFIndex location, CFIndex length) { return {location, length}; }

void CFRelease(CFTypeRef reference)
{
    living(reference, "CFRelease");
    auto* const object = const_cast<Object*>(static_cast<const Object*>(reference));
    if (object->name == "constant" || object->type == BundleType)
        crash("CFRelease of what was never owned");
    --object->references;
    record("CFRelease " + object->name);
}

CFTypeID CFGetTypeID(CFTypeRef reference) { return living(reference, "CFGetTypeID")->type; }

CFBundleRef CFBundleGetMainBundle()
{
    static Object bundle{"bundle", BundleType, 1, {}};
    record("CFBundleGetMainBundle");
    return reinterpret_cast<CFBundleRef>(&bundle);
}

CFURLRef CFBundleCopyExecutableURL(CFBundleRef bundle)
{
    record("CFBundleCopyExecutableURL " + nameOf(bundle));
    return script().executableUrl ? reinterpret_cast<CFURLRef>(create("url", UrlType)) : nullptr;
}

CFTypeID CFDataGetTypeID() { return DataType; }

CFIndex CFDataGetLength(CFDataRef data)
{
    return static_cast<CFIndex>(living(data, "CFDataGetLength")->bytes.size());
}

void CFDataGetBytes(CFDataRef data, CFRange range, UInt8* buffer)
{
    const Object* const object = living(data, "CFDataGetBytes");
    record("CFDataGetBytes " + number(range.location) + ".." + number(range.length));
    const auto size = std::min(static_cast<std::size_t>(range.length), script().writableBytes);
    object->bytes.copy(reinterpret_cast<char*>(buffer), size,
                       static_cast<std::size_t>(range.location));
}

CFTypeID CFStringGetTypeID() { return StringType; }

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size,
                           CFStringEncoding encoding)
{
    const Object* const object = living(string, "CFStringGetCString");
    record("CFStringGetCString size=" + number(size)
           + (encoding == kCFStringEncodingUTF8 ? " UTF-8" : " other encoding"));
    if (object->bytes.size() >= static_cast<std::size_t>(size))
        return 0;
    buffer[object->bytes.copy(buffer, object->bytes.size())] = '\0';
    return 1;
}

// Security

OSStatus SecStaticCodeCreateWithPath(CFURLRef path, SecCSFlags flags, SecStaticCodeRef* code)
{
    record("SecStaticCodeCreateWithPath " + nameOf(path) + " flags=" + number(flags));
    if (script().staticCodeStatus == errSecSuccess)
        *code = reinterpret_cast<SecStaticCodeRef>(create("code", SecurityType));
    return script().staticCodeStatus;
}

OSStatus SecRequirementCreateWithString(CFStringRef text, SecCSFlags flags,
                                        SecRequirementRef* requirement)
{
    record("SecRequirementCreateWithString " + living(text, "SecRequirementCreateWithString")->bytes
           + " flags=" + number(flags));
    if (script().requirementStatus == errSecSuccess)
        *requirement = reinterpret_cast<SecRequirementRef>(create("requirement", SecurityType));
    return script().requirementStatus;
}

OSStatus SecStaticCodeCheckValidityWithErrors(SecStaticCodeRef code, SecCSFlags flags,
                                              SecRequirementRef requirement, CFErrorRef* errors)
{
    living(code, "SecStaticCodeCheckValidityWithErrors");
    living(requirement, "SecStaticCodeCheckValidityWithErrors");
    record("SecStaticCodeCheckValidityWithErrors " + nameOf(code) + " flags=" + number(flags) + ' '
           + nameOf(requirement) + (errors == nullptr ? "" : " with errors"));
    return script().validityStatus;
}

// IOKit

CFMutableDictionaryRef IOServiceMatching(const char* name)
{
    record(std::string("IOServiceMatching ") + name);
    return reinterpret_cast<CFMutableDictionaryRef>(create("matching", NumberType));
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching)
{
    living(matching, "IOServiceGetMatchingService");
    record("IOServiceGetMatchingService port=" + number(mainPort) + ' ' + nameOf(matching));
    // It consumes the caller's reference.
    --const_cast<Object*>(reinterpret_cast<const Object*>(matching))->references;
    if (!script().service)
        return 0;
    ++serviceReferences();
    return ServiceHandle;
}

CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options)
{
    if (entry != ServiceHandle || serviceReferences() != 1)
        crash("IORegistryEntryCreateCFProperty of a dead service");
    record("IORegistryEntryCreateCFProperty "
           + living(key, "IORegistryEntryCreateCFProperty")->bytes
           + (allocator == kCFAllocatorDefault ? "" : " with allocator")
           + " options=" + number(options));
    switch (script().property) {
    case Doubles::PropertyKind::Missing:
        return nullptr;
    case Doubles::PropertyKind::Text:
        return create("property", StringType, script().propertyBytes);
    case Doubles::PropertyKind::Data:
        return create("property", DataType, script().propertyBytes);
    case Doubles::PropertyKind::Other:
        return create("property", NumberType, script().propertyBytes);
    }
    return nullptr;
}

kern_return_t IOObjectRelease(io_object_t object)
{
    if (object != ServiceHandle || serviceReferences() != 1)
        crash("IOObjectRelease of a dead service");
    --serviceReferences();
    record("IOObjectRelease");
    return 0;
}

// AppKit

@implementation NSView
- (NSWindow*)window
{
    static NSWindow* const window = [[NSWindow alloc] init];
    record("window");
    return window;
}

- (void)setHidden:(BOOL)hidden
{
    record("view setHidden " + number(hidden));
}
@end

@implementation NSButton
- (void)setHidden:(BOOL)hidden
{
    record("button setHidden " + number(hidden));
}
@end

@implementation NSWindow
- (void)setTitleVisibility:(NSWindowTitleVisibility)visibility
{
    record("setTitleVisibility " + number(visibility));
}

- (void)setTitlebarAppearsTransparent:(BOOL)transparent
{
    record("setTitlebarAppearsTransparent " + number(transparent));
}

- (NSWindowStyleMask)styleMask
{
    record("styleMask");
    return 0xF; // titled, closable, miniaturizable, resizable
}

- (void)setStyleMask:(NSWindowStyleMask)mask
{
    record("setStyleMask " + number(mask));
}

- (NSButton*)standardWindowButton:(NSWindowButton)button
{
    record("standardWindowButton " + number(button));
    static NSButton* const theButton = [[NSButton alloc] init];
    return theButton;
}
@end
