#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// What the members of an ensemble that are done have left behind, so that it can go on later and
/// elsewhere and come to the same bits. The fits of its models are not in it: they are a function
/// of survey and settings.
struct EnsembleState {
  /// How many numbers may be in it that a project keeps it and can still be read.
  static constexpr std::size_t kMostNumbers = 3000000;

  /// What has become of a member.
  enum Member : std::uint8_t { kOpen, kCounts, kLeftOut };

  std::uint64_t key = 0;              ///< ensembleKey() of survey and settings
  std::vector<double> start;          ///< s/m per cell: the section, which projects round
  std::vector<std::uint8_t> members;  ///< Member of each
  /// Cell by cell of ln velocity, then column by column of every isovalue's depth: how many bins
  /// follow, and of each its number and how many members are in it.
  std::vector<std::int64_t> bins;
  std::vector<std::int64_t> sums;      ///< of ln velocity per cell, fixed point
  std::vector<std::int64_t> squares;   ///< the same
  std::vector<std::uint32_t> touched;  ///< members with a ray in the cell, per cell

  std::size_t numbers() const {
    return start.size() + members.size() + bins.size() + sums.size() + squares.size() +
           touched.size();
  }
};

}  // namespace talvesk
