#include "module/NativeWindow.h"

#import <AppKit/AppKit.h>

NativeWindow NativeWindow::of(void* view)
{
    NSWindow* const window = [static_cast<NSView*>(view) window];
    return {[window titleVisibility] == NSWindowTitleHidden,
            static_cast<bool>([window titlebarAppearsTransparent]),
            static_cast<bool>([[window standardWindowButton:NSWindowCloseButton] isHidden]),
            static_cast<bool>([[window standardWindowButton:NSWindowZoomButton] isHidden]),
            static_cast<bool>([[window standardWindowButton:NSWindowMiniaturizeButton] isHidden]),
            [window styleMask]};
}
