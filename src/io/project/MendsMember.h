#pragma once

#include "base/Samples.h"
#include "model/Mends.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// Samples of a channel as they were recorded.
struct StoredOriginal {
  Samples TAB;
  Samples TAB_DX;  ///< of pairs
  Samples TAB_SX;
};

struct StoredMends {
  std::uint32_t set = 0;      ///< trace set, from 0
  std::uint64_t samples = 0;  ///< fingerprint of its mended samples: whose mends they are
  ShotMends mends;
  /// By channel; empty where its shot file in the archive gives them, or nothing changed them.
  std::vector<StoredOriginal> originals;
};

/// What is put right of the recordings of a survey, and what they were before. The traces of a
/// project are the mended ones, so that programs which do not know of this show them with the picks
/// that belong to them.
struct MendsMember {
  std::vector<StoredMends> shots;
};

}  // namespace talvesk
