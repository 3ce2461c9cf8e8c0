#pragma once

struct zip_error;
struct zip_source;

namespace talvesk {

class FileReplacement;

/// Where a new archive goes: into a file that has begun to replace another one. Left to itself the
/// library writes a file of its own, of which nobody can tell whether its writer is still there.
/// \return null, and the reason in `error`, when there is no memory; `file` must outlive the
/// archive
zip_source* zipSinkInto(FileReplacement& file, zip_error* error);

}  // namespace talvesk
