#pragma once

#include "base/Message.h"

#include <cstddef>
#include <string_view>

namespace talvesk {

// The readers of travel-time files name what they read in plain English and pay for a message only
// once something is wrong.

/// What a reader calls a number ("shot distance"), as a message. Names that are keywords of a
/// format stay as they are.
Message inWords(std::string_view what);

/// "1 shot", "3 shots". \param noun a singular that counts is known of
Message counted(std::size_t count, std::string_view noun);

}  // namespace talvesk
