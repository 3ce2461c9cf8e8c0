#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

// Reasons that several formats have.
inline Message noGrid() {
  return Message::tr("the survey has no grid; create the grid or run the inversion first");
}
inline Message noCellDrawn() {
  return Message::tr("no cell of the section is drawn");
}

/// "Cannot write PATH: REASON", also told on the console's error stream.
Status cannotWrite(const std::string& path, const Message& reason);

/// The outcome of writing a file; a failure is told on the console's error stream, too.
Status told(Status written);

}  // namespace talvesk
