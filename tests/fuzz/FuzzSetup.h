#pragma once

#include <QByteArray>
#include <QString>

namespace FuzzSetup {

/// Starts an offscreen application of a home directory of its own, once a process, and silences
/// the toolkit's messages. Returns that home directory.
const QString& application();

/// Makes @p name hold @p content, and whoever looks at the time of its last change see a change.
void writeFile(const QString& name, const QByteArray& content);

} // namespace FuzzSetup
