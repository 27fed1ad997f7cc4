#pragma once

// The little of Security that the module uses, with Apple's types and values.

#include <CoreFoundation/CoreFoundation.h>

typedef const struct __SecCode* SecStaticCodeRef;
typedef struct __SecRequirement* SecRequirementRef;
typedef UInt32 SecCSFlags;

enum : OSStatus { errSecSuccess = 0 };

enum : SecCSFlags {
    kSecCSDefaultFlags = 0,
    kSecCSDoNotValidateExecutable = 1 << 1,
    kSecCSDoNotValidateResources = 1 << 2,
};

extern "C" {

OSStatus SecStaticCodeCreateWithPath(CFURLRef path, SecCSFlags flags, SecStaticCodeRef* code);
OSStatus SecRequirementCreateWithString(CFStringRef text, SecCSFlags flags,
                                        SecRequirementRef* requirement);
OSStatus SecStaticCodeCheckValidityWithErrors(SecStaticCodeRef code, SecCSFlags flags,
                                              SecRequirementRef requirement, CFErrorRef* errors);

} // extern "C"
