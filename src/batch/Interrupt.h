#pragma once

namespace talvesk {

/// What a Ctrl-C stops.
enum class Interruptible {
  kExternalIterations,  ///< once the one under way is through
  kAtOnce               ///< what keeps what it has found
};

/// From here on the first Ctrl-C only asks to stop; the second one ends the program. A program that
/// was started with the signal ignored, as by a script in the background, obeys it as well. Called
/// again, it says what is stopped from then on.
/// \param announce whether the first one is answered by a line on standard error
void listenForInterrupt(Interruptible work, bool announce);

bool interruptRequested();

}  // namespace talvesk
