#pragma once

#include <QString>
#include <QStringList>

namespace talvesk {

/// What else the trade calls what a command does, one list per command: "starting model" for
/// "Define model velocity". They are looked for, never shown.
struct CommandWords {
  QString words;    ///< in the language of the window
  QString english;  ///< that everybody types at times
};

/// \param action its name in the form
/// \return nothing where the command is found well enough by its name and its tool tip
CommandWords wordsOfCommand(const QString& action);

/// The commands that have any.
QStringList commandsWithWords();

}  // namespace talvesk
