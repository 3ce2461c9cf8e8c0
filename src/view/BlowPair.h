#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "model/TomoDocument.h"
#include "model/Trace.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {

/// A recording of a shot: of an S-wave pair one of its two, else the only one.
struct Blow {
  enum class Part { kWhole, kDX, kSX };

  std::size_t shot = 0;  ///< record of the document, from 0
  Part part = Part::kWhole;

  friend bool operator==(const Blow& a, const Blow& b) {
    return a.shot == b.shot && a.part == b.part;
  }
};

/// All of a survey: two of each S-wave pair, one of every other shot with samples.
std::vector<Blow> blowsOf(const TomoDocument& document);

/// Which other blow one wants to compare with this: that of the other sense of an S-wave pair, else
/// of the shot that stands nearest, the first after this one where several do. None for a survey of
/// one.
std::optional<Blow> counterpartOf(const TomoDocument& document, const Blow& blow);

struct BlowPairOptions {
  /// Metres within which two geophones are at one place.
  double tolerance = 0.1;
  /// The second is made as strong as the first, by the root of the mean square of all that is
  /// compared. Blows of opposite sense are never equally strong.
  bool balanced = false;
  bool filtered = false;  ///< the filtered copies of traces that have one
};

/// Two blows laid over each other: what they recorded at the same places, on one axis of time, and
/// their difference and sum. Of blows of opposite sense at one point the difference enhances S
/// waves, which change their sign, and the sum P waves, which do not.
struct BlowPair {
  /// Shots of `document`; the last two only where `noSum` is empty.
  enum Set : std::size_t { kFirst, kSecond, kDifference, kSum };

  Blow first;
  Blow second;
  TomoDocument document;  ///< of these, with the picks of the first two, by channels of the first

  std::size_t matched = 0;         ///< traces of each
  std::size_t unmatchedFirst = 0;  ///< traces of the first without a partner in the second
  std::size_t unmatchedSecond = 0;
  std::size_t killed = 0;        ///< matched traces that are left out, killed or empty in either
  std::size_t tooFarInTime = 0;  ///< the same, whose records begin too far apart
  double shotsApart = 0.0;       ///< metres between the places of the two shots
  double spacing = 0.0;          ///< usual metres between geophones; 0: there is one only
  /// Nothing tells where geophones were: all are at one place, and traces go by their numbers.
  bool withoutPlaces = false;
  double secondLater = 0.0;      ///< seconds that the record of the second begins later
  double strength = 1.0;         ///< of the second, by that of the first
  double factor = 1.0;           ///< that the second was multiplied by
  std::size_t zerosAtStart = 0;  ///< samples of sum and difference before the second begins
  std::size_t cutAtEnd = 0;      ///< samples of the first that the second does not reach
  Message noSum;                 ///< why there is neither difference nor sum; empty where there are

  bool hasSum() const { return noSum.empty(); }
  /// Which shot a set of `document` is of, and the place of: the difference and the sum have those
  /// of the first.
  std::size_t shotOf(Set set) const { return set == kSecond ? second.shot : first.shot; }
  /// The shots are so far apart that their difference and sum are not of one place: by more than a
  /// tenth of what geophones are.
  bool isOfTwoPlaces() const;
  /// They are, or it is not known.
  bool arePlacesDoubtful() const;
};

/// Lays two blows over each other. Traces belong together by the places of their geophones, each to
/// the nearest; time counts from the first sample of the first blow, and records that begin
/// otherwise, relative to their shots, are moved by whole samples; what takes more memory than a
/// small multiple of both is left out. Difference and sum need equal sample intervals and starts
/// that are whole samples apart.
/// \return failure where no geophones are at one place, or a blow does not exist; `pair` is as
/// before then
Status layOver(const TomoDocument& document, const Blow& first, const Blow& second,
               const BlowPairOptions& options, BlowPair& pair);

/// How many traces go together, and by what.
Message describeMatch(const BlowPair& pair);

/// How far apart the two shots are, and whether that matters.
Message describeShotPlaces(const BlowPair& pair);

/// One line for everything that is left out, cut or taken as zero; none as a rule.
std::vector<Message> describeLosses(const BlowPair& pair);

/// One line for each thing that the user must know of how the two go together, the losses last.
std::vector<Message> describe(const BlowPair& pair);

/// "difference of shots 3 and 5", or the sum.
Message nameOf(const BlowPair& pair, BlowPair::Set which);

}  // namespace talvesk
