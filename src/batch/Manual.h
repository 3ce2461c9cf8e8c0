#pragma once

#include <string>

namespace CLI {
class App;
}

namespace talvesk {

/// The manual page of a program with commands, in troff's man macros. \param app whose help texts
/// are not broken into lines yet
std::string manualPage(const CLI::App& app);

/// A script for bash that completes commands, options, file names where a path is expected, and the
/// words of options that name a few.
std::string bashCompletion(const CLI::App& app);

}  // namespace talvesk
