#pragma once

#include <string>

namespace talvesk {

// Names of files in a project, which is flat.

/// The part of a path behind its last slash or backslash.
std::string bareName(const std::string& path);

/// Whether a name can be that of a file in a project: UTF-8 text without any folder in it, and of
/// control characters none but tabs and line breaks, for archives cannot spell the others.
bool isEntryName(const std::string& name);

}  // namespace talvesk
