#pragma once

#include "io/standard/SegyTraces.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace talvesk {

/// What the headers of a file say about where its traces lie.
struct SegyLayout {
  ByteOrder order = ByteOrder::kBig;
  std::uint64_t first = 0;  ///< where the header of the first trace begins
  std::uint64_t end = 0;    ///< where the traces end, by the size of the file
  std::size_t width = 4;    ///< bytes of a sample
  /// Samples and microseconds per trace by the header of the file; 0 where there is none.
  std::uint64_t samples = 0;
  double interval = 0.0;
  bool fixed = false;            ///< the file says that all traces have these
  std::uint32_t extensions = 0;  ///< most headers that may follow that of a trace
};

/// How well a layout explains a file.
struct SegyFit {
  bool whole = false;       ///< the traces end where the file does
  std::uint64_t alike = 0;  ///< traces whose headers are like the first
  std::uint64_t traces = 0;
};

/// The fit of the better of two layouts: with the samples that each trace header tells, and with
/// those of the file's header for all.
SegyFit fitOf(std::string_view bytes, const SegyLayout& layout);

/// Finds the traces. Of the numbers of samples that trace headers and file header tell, those are
/// taken with which the traces end where the file does: headers of cut or converted files are often
/// left from the file before. Where both fit, trace headers go first, unless the file says that its
/// traces are all of one length. What disagrees is told in a warning, and so is what is left over.
/// A last trace that is there in part is found whole.
std::vector<SegyTrace> findSegyTraces(std::string_view bytes, const SegyLayout& layout,
                                      std::vector<Message>& warnings);

}  // namespace talvesk
