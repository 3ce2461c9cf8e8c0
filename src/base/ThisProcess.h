#pragma once

#include <string>

namespace talvesk {

/// Who runs this program, and as what: asked of the system, for services run without the variables
/// that desktops set.

/// The login name of the user, or the number where the system has no name for it.
std::string userName();

/// The user's home folder, without a separator at the end; what HOME names, else what the system
/// knows.
std::string homeFolder();

/// The number of this process.
long processNumber();

}  // namespace talvesk
