#pragma once

#include <QString>

class DataDirectory;
class SettingsModule;
struct Pictures;

/// What the program does when it is asked for an output and no client is started. Nothing of the
/// user's is changed. Each function returns the status with which the program ends.
namespace Reading {

/// Prints the names of @p pictures.
int listPictures(const Pictures& pictures);

/// Prints the record as JSON. What is wrong with the record's file is said afterwards and makes the
/// status a failure.
int printRecord(const DataDirectory& directory);

/// Writes the pages of the settings dialog, and the client's window, into the directory @p target,
/// which is created if it is missing, and prints the names of the pictures. Faults of the record's
/// file are said as above.
int writePages(const SettingsModule& module, const DataDirectory& directory, const QString& target);

} // namespace Reading
