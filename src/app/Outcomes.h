#pragma once

#include <QString>

class QWidget;

namespace talvesk {

class Log;
class Status;

// How the window tells what became of a command.

/// Milliseconds that the status bar shows an outcome.
inline constexpr int kMessageTime = 10000;

/// Logs a failure and shows it in a box. \param text what the user wanted and did not get; the
/// message of the status says why
void tellFailure(QWidget* window, Log& log, const QString& text, const Status& status);

}  // namespace talvesk
