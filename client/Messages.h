#pragma once

#include <QMessageBox>

/// What the program says, and the status that it ends with for it.
namespace Messages {

/// On the standard output. EXIT_FAILURE, and told, when that cannot be written.
int print(const QByteArray& text);

/// On the standard error. Returns EXIT_FAILURE.
int complain(const QString& message);

/// On the standard error always, in a box too when somebody can see it.
void tell(QMessageBox::Icon icon, const QString& message);

/// The same, as an error. Returns EXIT_FAILURE.
int fail(const QString& message);

} // namespace Messages
