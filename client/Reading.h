#pragma once

#include <QString>

class DataDirectory;
class SettingsModule;
struct Pictures;

/// What the program does without starting a client: it changes nothing of the user's. Each returns
/// the status to end with.
namespace Reading {

/// Prints the names of @p pictures.
int listPictures(const Pictures& pictures);

/// Prints the record as JSON. One that is not right is told afterwards, and is a failure.
int printRecord(const DataDirectory& directory);

/// Writes the pages of the settings dialog into the directory @p target, which is created if it is
/// missing, and prints the names of the pictures. The record is told of as above.
int writePages(const SettingsModule& module, const DataDirectory& directory, const QString& target);

} // namespace Reading
