#pragma once

class FuzzInput;
class QWidget;

/// What a user's devices send. Half of it takes the way of a real event, through the window of
/// @p target; the other half goes to @p target itself.
namespace Inputs {

void mouse(QWidget& target, FuzzInput& input);
void click(QWidget& target, FuzzInput& input);
void hover(QWidget& target, FuzzInput& input);
void wheel(QWidget& target, FuzzInput& input);
void key(QWidget& target, FuzzInput& input);
void text(QWidget& target, FuzzInput& input);
void inputMethod(QWidget& target, FuzzInput& input);
void contextMenu(QWidget& target, FuzzInput& input);
void drag(QWidget& target, FuzzInput& input);
void focus(QWidget& target, FuzzInput& input);
void clipboard(QWidget& target, FuzzInput& input);

/// Ends a drag that waits for its end: with the mouse over @p target, or with Escape.
void endDrag(QWidget& target, FuzzInput& input);

} // namespace Inputs
