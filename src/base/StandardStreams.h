#pragma once

namespace talvesk {

/// What a program does about its standard streams before anything else; some launchers hand over
/// fewer than three.

/// Takes the descriptors 0 to 2 that are closed, so that no file or socket that is opened later
/// gets one of these numbers, and with it what is printed. Reading and printing there goes on
/// failing.
void occupyClosedStreams();

/// Whether somebody reads at a terminal what is printed there.
bool outputIsTerminal();
bool errorsAreOnTerminal();

/// Printing to a pipe that nobody reads any more fails from here on, and no longer ends the
/// program.
void outliveReaders();

}  // namespace talvesk
