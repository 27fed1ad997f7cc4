#pragma once

/**
 * Six plain C functions that answer questions about the running application and its machine.
 *
 * The module exports them for its host; HostPlatform_mac.mm and HostPlatform_unix.cpp implement
 * them, one per system. They are called on the GUI thread and lock nothing. Texts are UTF-8.
 * Nothing is reported: a helper that finds no answer returns an empty text or 0, and that answer
 * is kept like any other.
 */

#define HOST_PLATFORM_EXPORT __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/**
 * The directory of the application's per-user data, without a trailing slash. Found and, if
 * need be, created by the first call; later calls return the same pointer, whatever became of
 * the directory since.
 *
 * macOS: the sandbox container, or else "<home>/.<bundle identifier>".
 * Linux: "$HOME/.<identifier>", the identifier being QCoreApplication::organizationDomain()
 * reversed by its dots, a dot and applicationName(), or the name alone without a domain. Set
 * these before the first call.
 *
 * While a file stands at that path, or the directory cannot be created, one more "." is put in
 * front of the whole path, which makes it relative to the current directory; there is no limit
 * to that. Without a home directory the answer is the current directory.
 *
 * The text lies in a static buffer of 512 bytes and is never freed. A path of 512 bytes or more
 * is cut there and has no terminator.
 */
HOST_PLATFORM_EXPORT const char* ApplicationHomePath(void);

/**
 * Hides the native title bar and its three buttons of the window that shows @p view; the
 * window keeps its frame. @p view is an NSView*, such as QWidget::winId() of a shown widget,
 * and stays the caller's.
 *
 * Does nothing on Linux, where a window goes without its title bar by Qt::FramelessWindowHint.
 */
HOST_PLATFORM_EXPORT void hideWindowCaptionBar(void* view);

/**
 * The version of the application: on macOS its bundle's "CFBundleShortVersionString" (null if
 * it has none), on Linux QCoreApplication::applicationVersion().
 *
 * Copy the text, never free it. On macOS it lives until the caller's autorelease pool is
 * drained, on Linux until a call that finds another version set.
 */
HOST_PLATFORM_EXPORT const char* GetMainExecutableVersion(void);

/**
 * The same version as a number: "major.minor.patch" gives major * 1000000 + minor * 10000 +
 * patch, cut to 32 bits. With a single dot the number is major * 1000000, without one it is 0.
 */
HOST_PLATFORM_EXPORT int GetMainExecutableVersionNum(void);

/**
 * The serial number of the machine (not of a disk), empty if there is none: on macOS that of the
 * platform expert device, on Linux the DMI product serial, or the machine id where the system
 * withholds it.
 *
 * Read by the first call into a static buffer of 256 bytes, never freed.
 */
HOST_PLATFORM_EXPORT const char* GetDiskId(void);

/**
 * The UUID of the machine, empty if there is none: on macOS that of the platform expert device,
 * on Linux the DMI product UUID, or the machine id where the system withholds it.
 *
 * Read by the first call into a static buffer of 512 bytes, never freed.
 */
HOST_PLATFORM_EXPORT const char* GetSystemUuid(void);

#ifdef __cplusplus
} // extern "C"
#endif
