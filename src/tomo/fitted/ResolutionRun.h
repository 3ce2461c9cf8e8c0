#pragma once

#include "tomo/fitted/ResolutionTest.h"

#include <functional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What a resolution test disturbs.
enum class ResolutionBackground {
  kSection,  ///< the section that the document has
  kRows      ///< that section with the mean velocity of every row along the line
};

/// What the user chooses before a resolution test.
struct ResolutionRequest {
  ResolutionSettings test;
  std::vector<double> sizes;  ///< metres; of the tests, in this order; empty: that of `test`
  bool trySizes = false;      ///< instead of these: sizesToTry()
  ResolutionBackground background = ResolutionBackground::kSection;
  PickErrorRule errors;
  bool singleThread = false;
  unsigned threads = 0;  ///< see TomographyParameters
};

struct ResolutionReport {
  Status status;  ///< failed: the tests completed before stay
  bool stopped = false;
  std::vector<ResolutionResult> tests;  ///< completed, in the order of the sizes
  std::vector<ResolvedSize> smallest;   ///< by depth, of the tests that were completed
  std::vector<double> background;       ///< m/s per cell
};

/// Tests what the survey of a document would see, on its grid and with the picks and errors that it
/// has. The document must hold a grid; it is not changed.
/// \param progress tests completed and iterations of the one under way, from the calling thread
/// \param goOn false stops: the tests that are completed stay
ResolutionReport runResolution(
    const TomoDocument& document, const ResolutionRequest& request,
    const std::function<void(std::size_t test, int iteration)>& progress = {},
    const std::function<bool()>& goOn = {});

}  // namespace talvesk
