#pragma once

// The little of AppKit that the module uses, with Apple's values.

#import <Foundation/Foundation.h>

enum : NSInteger { NSWindowTitleVisible = 0, NSWindowTitleHidden = 1 };
typedef NSInteger NSWindowTitleVisibility;

enum : NSUInteger { NSWindowStyleMaskFullSizeContentView = 1 << 15 };
typedef NSUInteger NSWindowStyleMask;

enum : NSUInteger {
    NSWindowCloseButton = 0,
    NSWindowMiniaturizeButton = 1,
    NSWindowZoomButton = 2,
};
typedef NSUInteger NSWindowButton;

@class NSWindow;

@interface NSView : NSObject
- (NSWindow*)window;
- (void)setHidden:(BOOL)hidden;
@end

@interface NSButton : NSView
@end

@interface NSWindow : NSObject
- (void)setTitleVisibility:(NSWindowTitleVisibility)visibility;
- (void)setTitlebarAppearsTransparent:(BOOL)transparent;
- (NSWindowStyleMask)styleMask;
- (void)setStyleMask:(NSWindowStyleMask)mask;
- (NSButton*)standardWindowButton:(NSWindowButton)button;
@end
