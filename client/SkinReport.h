#pragma once

#include "libskin/SkinTable.h"

#include <QStringList>

/// What is wrong with a skin, for the user.
namespace SkinReport {

/// A line for each: file, key, and the reason in the language of the interface.
QStringList lines(const QVector<CorvelSkin::SkinProblem>& problems);

/// Why the skin of that name cannot be used.
QString refusal(const QString& skin, const QVector<CorvelSkin::SkinProblem>& problems);

/// Prints all that is wrong with the skin in @p folder. Returns the status to end with,
/// EXIT_FAILURE if there is anything.
int check(const QString& folder);

} // namespace SkinReport
