#pragma once

#include <QString>

#include <functional>

namespace TestSupport {

/// What the toolkit reports when @p action ends the process with a fatal message, for example a
/// failed assertion; empty if it does not. The action runs in a copy of this process.
QString fatalMessage(const std::function<void()>& action);

} // namespace TestSupport
