#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

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

/// Texts of the engine, UTF-8, as lines of a message.
QStringList linesOf(const std::vector<std::string>& texts);

}  // namespace talvesk
