#include "io/standard/ShotSplit.h"

#include <algorithm>
#include <set>
#include <utility>

namespace talvesk {
namespace {

using Traces = std::vector<SplitKey>;
using Place = std::pair<double, double>;

Place placeOf(const SplitKey& trace) {
  return {trace.sourceX, trace.sourceY};
}

/// The parts that begin wherever `starts(trace before, trace)`.
template <typename Starts>
std::vector<ShotSplit::Part> runs(const Traces& traces, Starts starts) {
  std::vector<ShotSplit::Part> parts;
  for (std::size_t i = 0; i < traces.size(); ++i) {
    if (i == 0 || starts(traces[i - 1], traces[i])) parts.push_back({i, 0, {}});
    ++parts.back().count;
  }
  return parts;
}

/// Whether no two parts have the same key: a key that comes back was sorted apart.
template <typename KeyOf>
bool areDistinct(const Traces& traces, const std::vector<ShotSplit::Part>& parts, KeyOf keyOf) {
  std::set<decltype(keyOf(traces.front()))> seen;
  return std::all_of(parts.begin(), parts.end(), [&](const ShotSplit::Part& part) {
    return seen.insert(keyOf(traces[part.first])).second;
  });
}

bool sourceStandsStill(const Traces& traces, const ShotSplit::Part& part) {
  const auto first = traces.begin() + static_cast<std::ptrdiff_t>(part.first);
  return std::all_of(first, first + static_cast<std::ptrdiff_t>(part.count),
                     [&](const SplitKey& trace) { return placeOf(trace) == placeOf(*first); });
}

bool sourcesStandStill(const Traces& traces, const std::vector<ShotSplit::Part>& parts) {
  return std::all_of(parts.begin(), parts.end(),
                     [&](const ShotSplit::Part& part) { return sourceStandsStill(traces, part); });
}

/// Of the parts all but the last; a file may end in the middle of a shot.
bool haveSeveralTraces(const std::vector<ShotSplit::Part>& parts) {
  return std::all_of(parts.begin(), parts.end() - 1,
                     [](const ShotSplit::Part& part) { return part.count > 1; });
}

class Splitter {
 public:
  Splitter(const Traces& traces, bool sortedOtherwise)
      : mTraces(traces), mSortedOtherwise(sortedOtherwise) {}

  ShotSplit split() {
    const auto name = [](const char* word, std::int32_t number) {
      return word + std::to_string(number);
    };
    const bool split =
        byNumber([](const SplitKey& t) { return t.fieldRecord; },
                 [&](const SplitKey& t) { return name("FFID ", t.fieldRecord); },
                 Message::tr("field record (bytes 9 to 12)")) ||
        byNumber([](const SplitKey& t) { return t.sourcePoint; },
                 [&](const SplitKey& t) { return name("shot point ", t.sourcePoint); },
                 Message::tr("energy source point (bytes 17 to 20)")) ||
        byPlace() || byRestart();
    if (split) mSplit.doubtful = false;
    if (!split) mSplit.parts = {{0, mTraces.size(), {}}};
    return std::move(mSplit);
  }

 private:
  void take(std::vector<ShotSplit::Part> parts, Message by) {
    mSplit.parts = std::move(parts);
    mSplit.by = std::move(by);
  }

  template <typename KeyOf, typename NameOf>
  bool byNumber(KeyOf keyOf, NameOf nameOf, const Message& by) {
    auto parts = runs(mTraces, [&](const SplitKey& before, const SplitKey& trace) {
      return keyOf(before) != keyOf(trace);
    });
    if (parts.size() < 2) return false;
    mSplit.doubtful = true;
    const bool single = parts.size() == mTraces.size();
    const bool sized = single ? !mSortedOtherwise && areDistinct(mTraces, parts, placeOf)
                              : haveSeveralTraces(parts);
    if (!sized || !sourcesStandStill(mTraces, parts) || !areDistinct(mTraces, parts, keyOf)) {
      return false;
    }
    for (ShotSplit::Part& part : parts) part.name = nameOf(mTraces[part.first]);
    take(std::move(parts), by);
    return true;
  }

  bool byPlace() {
    auto parts = runs(mTraces, [](const SplitKey& before, const SplitKey& trace) {
      return placeOf(before) != placeOf(trace);
    });
    if (parts.size() < 2) return false;
    mSplit.doubtful = true;
    if (!haveSeveralTraces(parts) || !areDistinct(mTraces, parts, placeOf)) return false;
    nameByNumber("source ", parts);
    take(std::move(parts), Message::tr("position of the source"));
    return true;
  }

  bool byRestart() {
    auto parts = runs(mTraces, [](const SplitKey& before, const SplitKey& trace) {
      return trace.traceInRecord <= before.traceInRecord;
    });
    // All traces of one number, or numbers that fall, tell nothing.
    if (parts.size() < 2 || parts.size() == mTraces.size()) return false;
    mSplit.doubtful = true;
    const auto startsAlike = [&](const ShotSplit::Part& part) {
      return mTraces[part.first].traceInRecord == mTraces.front().traceInRecord;
    };
    if (!haveSeveralTraces(parts) || !sourcesStandStill(mTraces, parts) ||
        !std::all_of(parts.begin(), parts.end(), startsAlike)) {
      return false;
    }
    nameByNumber("record ", parts);
    take(std::move(parts),
         Message::tr("number of the trace in its record (bytes 13 to 16), which starts again"));
    return true;
  }

  static void nameByNumber(const char* word, std::vector<ShotSplit::Part>& parts) {
    for (std::size_t i = 0; i < parts.size(); ++i) parts[i].name = word + std::to_string(i + 1);
  }

  const Traces& mTraces;
  bool mSortedOtherwise;
  ShotSplit mSplit;
};

}  // namespace

ShotSplit splitShots(const std::vector<SplitKey>& traces, bool sortedOtherwise) {
  return Splitter(traces, sortedOtherwise).split();
}

}  // namespace talvesk
