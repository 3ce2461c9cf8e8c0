#pragma once

#include "base/Message.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// What tells the shot that a trace belongs to.
struct SplitKey {
  std::int32_t fieldRecord = 0;
  std::int32_t sourcePoint = 0;
  std::int32_t traceInRecord = 0;
  double sourceX = 0.0;  ///< of the map, to be compared only
  double sourceY = 0.0;
};

/// The shots that the traces of a file fall into.
struct ShotSplit {
  struct Part {
    std::size_t first = 0;  ///< trace
    std::size_t count = 0;
    std::string name;  ///< "FFID 12"; empty where there is one part
  };

  std::vector<Part> parts;  ///< all traces, in their order; at least one part
  Message by;  ///< what told them apart, "field record (bytes 9 to 12)"; empty for one part
  bool doubtful = false;  ///< the headers tell several shots, but not consistently: one part
};

/// Splits by the first of these that is consistent: field record, energy source point, position of
/// the source, number of the trace within its record starting again.
///
/// Consistent means: the traces of a part follow each other, so that none of its like comes later;
/// the source stands still within a part; and a part has more than one trace, but for the last,
/// which may be cut short. Parts of one trace all are believed of records and source points only,
/// and only where every source stands elsewhere: there are programs that number the traces of one
/// shot there, and stacked sections have a source per trace. Sources that all stand at one place
/// are taken as unknown.
///
/// \param sortedOtherwise by midpoint, or stacked, as the file says: parts of one trace are no
/// shots
ShotSplit splitShots(const std::vector<SplitKey>& traces, bool sortedOtherwise);

}  // namespace talvesk
