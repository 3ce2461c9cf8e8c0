#pragma once

#include <array>
#include <cstddef>

namespace talvesk {

struct Survey;

/// What a survey consists of for who edits it and for who shows it. docs/edits.md says what belongs
/// to each of them.
enum class Part {
  kRecordings,
  kPicks,
  kGeometry,
  kModel,
  kResult,
  kMarks,
  kProfile,
  kLook,  ///< title, palettes, contours
  kMap,
  kRuns,         ///< the list of inversions that have been run
  kKnown,        ///< what is known of the ground from elsewhere
  kAnnotations,  ///< drawn on the section: marked isolines, texts, lithology
  kView          ///< what the section shows of all that; it is saved, but no edit
};
inline constexpr std::array<Part, 13> kParts = {
    Part::kRecordings, Part::kPicks,       Part::kGeometry, Part::kModel, Part::kResult,
    Part::kMarks,      Part::kProfile,     Part::kLook,     Part::kMap,   Part::kRuns,
    Part::kKnown,      Part::kAnnotations, Part::kView};

/// Some of the parts.
class PartSet {
 public:
  bool has(Part part) const { return (mBits & bit(part)) != 0; }
  bool empty() const { return mBits == 0; }
  bool any(PartSet others) const { return (mBits & others.mBits) != 0; }
  void add(Part part) { mBits |= bit(part); }
  void remove(Part part) { mBits &= ~bit(part); }
  static PartSet all() {
    PartSet parts;
    for (const Part part : kParts) parts.add(part);
    return parts;
  }

 private:
  static unsigned bit(Part part) { return 1U << static_cast<unsigned>(part); }

  unsigned mBits = 0;
};

/// The parts in which two surveys differ. What is one value in memory is equal; of the rest only
/// times, positions, marks and settings are looked at value by value.
PartSet differingParts(const Survey& a, const Survey& b);

/// Bytes of the samples, times, cells, rays and curves that the first survey does not share with
/// the second: what keeping it costs beside the other.
std::size_t bytesNotShared(const Survey& survey, const Survey& other);

/// Forgets a part, as far as anything is left of it.
void forgetPart(Part part, Survey& survey);

}  // namespace talvesk
