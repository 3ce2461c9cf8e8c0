#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

/// "Cannot write PATH: REASON", also told on the console's error stream.
Status cannotWrite(const std::string& path, const std::string& reason);

/// The outcome of writing a file; a failure is told on the console's error stream, too.
Status told(Status written);

}  // namespace talvesk
