#pragma once

#include "base/Status.h"
#include "model/KnownGround.h"

#include <string>
#include <string_view>

namespace talvesk {

// Tables of known ground: docs/file-formats.md describes them.

/// Fails, naming the line where there is one, when the file cannot be read or anything in it cannot
/// be; `known` is then as before.
Status readKnownGround(const std::string& path, KnownGround& known);

/// The same from the bytes of a file, in any encoding of tableText(). \param name for messages
Status parseKnownGround(std::string_view bytes, const std::string& name, KnownGround& known);

/// Numbers are those of the "C" locale and bring back the same ground.
Status writeKnownGround(const std::string& path, const KnownGround& known);

}  // namespace talvesk
