#pragma once

/// What macOS says about the window of a native view.
struct NativeWindow {
    bool titleHidden;
    bool titleBarTransparent;
    bool closeButtonHidden;
    bool zoomButtonHidden;
    bool minimizeButtonHidden;
    unsigned long styleMask;

    /// @p view is an NSView*, such as QWidget::winId() of a shown widget.
    static NativeWindow of(void* view);
};
