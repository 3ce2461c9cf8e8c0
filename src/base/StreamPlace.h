#pragma once

#include "base/Status.h"

#include <string>
#include <string_view>

namespace talvesk {

/// Places to write to that are no files: pipes, devices such as /dev/null, and the program's own
/// open streams, by the names /dev/stdout, /dev/stderr and /dev/fd/N. What is written there cannot
/// be taken back, and nothing is put in their place.

/// Whether a path names such a place. Disks are none: what they hold would be gone.
bool isStreamPlace(const std::string& path);

/// Whether it names the program's standard output, whatever that is connected to.
bool isStandardOutput(const std::string& path);

/// Whether it names a device, which takes anything from anybody.
bool isDevice(const std::string& path);

/// Whether it names a pipe in the file system.
bool isNamedPipe(const std::string& path);

/// Keeps a pipe in the file system open as long as the program lives, so that its reader does not
/// see an end before the bytes come. Waits until somebody reads from it.
Status holdPipeOpen(const std::string& path);

/// Writes all bytes to such a place. Fails, and does not wait, where nobody reads from a pipe. A
/// reader who leaves sends SIGPIPE, see outliveReaders().
Status writeStream(const std::string& path, std::string_view bytes);

}  // namespace talvesk
