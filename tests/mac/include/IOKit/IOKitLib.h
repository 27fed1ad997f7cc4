#pragma once

// The little of IOKit that the module uses, with Apple's types. The default main port has no
// name here: no single one stands in every SDK.

#include <CoreFoundation/CoreFoundation.h>

typedef unsigned int mach_port_t;
typedef mach_port_t io_object_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef UInt32 IOOptionBits;
typedef int kern_return_t;

extern "C" {

CFMutableDictionaryRef IOServiceMatching(const char* name);
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IOObjectRelease(io_object_t object);

} // extern "C"
