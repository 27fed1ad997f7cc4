#pragma once

class FuzzInput;
class QWidget;

/// What a screen reader does.
namespace Assistive {

/// Has the toolkit tell of every change, and asks about what changed at once, as the toolkit's
/// bridges to screen readers do.
void attach();

/// Walks from the window of @p target to some part of it and asks or does something there; seldom
/// it asks all the parts everything.
void use(QWidget& target, FuzzInput& input);

} // namespace Assistive
