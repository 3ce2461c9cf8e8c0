#pragma once

#include <functional>

namespace talvesk::python {

/// Hands something over that the thread of the interpreter is to call, such as a progress callback.
using Tell = std::function<void(std::function<void()> news)>;
/// Whether the work is to end: Ctrl-C was pressed, or a callback has thrown. From any thread.
using Stopped = std::function<bool()>;

/// Does work that takes long on a thread of its own while other threads of the interpreter go on;
/// the caller waits, passes on what it is told and looks for signals. The work must not touch
/// Python. Called with the interpreter's lock, which it has again afterwards.
///
/// What a callback or a signal handler throws ends the work, waits for its end and is thrown on; so
/// is what the work itself throws.
void runBeside(const std::function<void(const Tell&, const Stopped&)>& work);

}  // namespace talvesk::python
