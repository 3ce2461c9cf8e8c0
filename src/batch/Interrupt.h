#pragma once

namespace talvesk {

/// From here on the first Ctrl-C only asks to stop; the second one ends the program. A program that
/// was started with the signal ignored, as by a script in the background, obeys it as well.
/// \param announce whether the first one is answered by a line on standard error
void listenForInterrupt(bool announce);

bool interruptRequested();

}  // namespace talvesk
