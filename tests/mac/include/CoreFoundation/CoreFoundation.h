#pragma once

// The little of Core Foundation that the module uses, with Apple's types and values.

typedef const void* CFTypeRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFData* CFDataRef;
typedef const struct __CFURL* CFURLRef;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef struct __CFDictionary* CFMutableDictionaryRef;
typedef struct __CFBundle* CFBundleRef;
typedef struct __CFError* CFErrorRef;
typedef unsigned long CFTypeID;
typedef signed long CFIndex;
typedef unsigned char Boolean;
typedef unsigned char UInt8;
typedef unsigned int UInt32;
typedef signed int SInt32;
typedef UInt32 CFStringEncoding;
typedef SInt32 OSStatus;

struct CFRange {
    CFIndex location;
    CFIndex length;
};

enum : CFStringEncoding { kCFStringEncodingUTF8 = 0x08000100 };

#define CFSTR(text) __CFStringMakeConstantString("" text "")

extern "C" {

extern const CFAllocatorRef kCFAllocatorDefault;

CFStringRef __CFStringMakeConstantString(const char* text);
CFRange CFRangeMake(CFIndex location, CFIndex length);
void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

CFBundleRef CFBundleGetMainBundle();
CFURLRef CFBundleCopyExecutableURL(CFBundleRef bundle);

CFTypeID CFDataGetTypeID();
CFIndex CFDataGetLength(CFDataRef data);
void CFDataGetBytes(CFDataRef data, CFRange range, UInt8* buffer);

CFTypeID CFStringGetTypeID();
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size,
                           CFStringEncoding encoding);

} // extern "C"
