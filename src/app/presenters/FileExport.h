#pragma once

#include "base/Status.h"

#include <QString>
#include <functional>

class QFileDialog;

namespace talvesk {

struct Desk;

// Files that the window writes for others: how they are named, asked for and told of.

/// What files of this survey are called: as its project, its title, or the folder of its shots.
QString proposedName(const Desk& desk);
/// Puts that name into a dialog. \param suffix without its dot
void proposeName(QFileDialog& dialog, const Desk& desk, const char* suffix);

/// The file to write, with the suffix where the user gave none; empty when the user gave up.
QString askForExport(Desk& desk, const QString& title, const QString& filter, const char* suffix);
/// Writes a file that may take as long as a breath, and tells the outcome.
void exportTo(Desk& desk, const QString& file,
              const std::function<Status(const std::string&)>& write);
void showWriting(Desk& desk, const QString& file);  ///< in the status bar

}  // namespace talvesk
