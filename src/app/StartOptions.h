#pragma once

#include <QString>
#include <QStringList>

namespace talvesk {

/// What the command line of the window asks for.
struct StartOptions {
  enum class Action { kOpenWindow, kPrintAndLeave, kRefuse };
  Action action = Action::kOpenWindow;
  QString text;       ///< what to print: help, version, or why the line is refused
  QStringList files;  ///< to load, in this order
};

/// \param arguments without the program's name. What begins with "-" is an option, up to "--";
/// "-" alone is a file.
StartOptions parseStartOptions(const QStringList& arguments);

}  // namespace talvesk
