#pragma once

#include <string>

namespace talvesk {

/// Every complaint of talvesk-batch is one line on standard error that begins with its name. Line
/// breaks and control characters, which messages may quote from a file, are shown as blanks.

/// What a file says of itself, or is called, as it may stand in a terminal.
std::string asOneLine(std::string text);

int failed(const std::string& message);  ///< returns kFailed
void warn(const std::string& message);   ///< for what does not stop the program

/// \param command whose help is worth reading; may be empty. Returns kWrongUsage.
int wrongUsage(const std::string& command, const std::string& message);

}  // namespace talvesk
