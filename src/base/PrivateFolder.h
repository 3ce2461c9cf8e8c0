#pragma once

#include <string>

namespace talvesk {

/// Creates a folder that is not there yet and that only its user may look into, from its first
/// moment on. False when there is one (errno is EEXIST) or it cannot be created (errno says why).
bool createPrivateFolder(const std::string& path);

}  // namespace talvesk
