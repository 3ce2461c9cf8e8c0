#pragma once

#include "model/KnownGround.h"

#include <array>
#include <string>
#include <vector>

namespace talvesk {

// Known ground as the rows of a table, in files and where it is typed in: a row is a layer of a
// borehole, a known depth, or a corner of a body. Rows of one name belong together.

enum class KnownKind { kBorehole, kDepth, kBody };
inline constexpr std::array<const char*, 3> kKnownKinds = {"borehole", "depth", "body"};

/// The numbers of a row. Metres and m/s.
enum class KnownColumn {
  kX,
  kOffset,
  kDepth,   ///< of a layer's top, of a refractor, of a corner
  kBottom,  ///< of a layer
  kVelocity,
  kError,  ///< of the velocity of a layer, m/s; of a depth, m
  kRefractor,
  kAbove,
  kBelow
};
inline constexpr std::array<const char*, 9> kKnownColumns = {
    "x", "offset", "depth", "bottom", "velocity", "error", "refractor", "above", "below"};

struct KnownRow {
  KnownKind kind = KnownKind::kBorehole;
  std::string name;
  std::array<double, kKnownColumns.size()> numbers;  ///< not a number: the field is empty

  KnownRow();
  double& operator[](KnownColumn column) { return numbers[static_cast<std::size_t>(column)]; }
  double operator[](KnownColumn column) const { return numbers[static_cast<std::size_t>(column)]; }
};

/// The columns that rows of a kind may fill, in their order; those before `needed` must be filled.
struct KnownLayout {
  std::vector<KnownColumn> columns;
  std::size_t needed;
};
const KnownLayout& layoutOf(KnownKind kind);

/// Takes a row into known ground, which is valid so far but for bodies that lack corners. A depth
/// without a name gets one.
/// \return what is wrong with it; `known` is of no use then. Empty when it is taken.
Message addRow(const KnownRow& row, KnownGround& known);

/// Boreholes first, then depths, then bodies. Of these the ground comes back.
std::vector<KnownRow> rowsOf(const KnownGround& known);

}  // namespace talvesk
