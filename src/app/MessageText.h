#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace talvesk {

class Message;

/// A message of the rooms below the window in the language of the window, with decimals as users
/// have them. Where the language has no translation of it, it is English.
QString textOf(const Message& message);

/// Several messages, one a line.
QStringList linesOf(const std::vector<Message>& messages);

/// What a file dialog offers, of the lines of FileFormats.h.
QString dialogFilter(const std::vector<Message>& lines);

}  // namespace talvesk
