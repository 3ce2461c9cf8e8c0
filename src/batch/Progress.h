#pragma once

#include "tomo/TomographyRun.h"
#include "tomo/fitted/Ensemble.h"
#include "tomo/fitted/FittedRun.h"

#include <iosfwd>
#include <string>

namespace talvesk {

enum class ProgressStyle {
  kSilent,
  kLines,  ///< a line per external iteration, for logs
  kBar,    ///< one line of a terminal, drawn again and again
};

/// Shows how far an inversion is and about how long it still takes.
class Progress {
 public:
  /// \param total external iterations; \param stream must outlive the object
  Progress(ProgressStyle style, std::ostream& stream, int total);
  /// Of what is not counted in external iterations.
  Progress(ProgressStyle style, std::ostream& stream) : mStyle(style), mStream(stream) {}

  /// Says what goes on before there is anything to count.
  void begin(const std::string& what);
  void show(const TomographyProgress& progress);
  void show(const FittedRunProgress& progress);
  void show(const EnsembleProgress& progress);
  void finish();  ///< leaves the bar's line

 private:
  void drawBar(const std::string& bar);

  ProgressStyle mStyle;
  std::ostream& mStream;
  bool mBarDrawn = false;
};

/// "External iteration 3 of 10: section of 2 3.3 ms (7 %), last solver pass 1.52 ms (3.1 %),
/// elapsed 0:12, remaining about 0:28".
std::string progressLine(const TomographyProgress& progress);

/// The same with a bar of `width` characters, short enough for a terminal of 80 columns at 30.
std::string progressBar(const TomographyProgress& progress, int width);

/// "Iteration 3, 25 at most: chi-square 1.52, section 0.84 ms (3.1 %), elapsed 0:02".
std::string progressLine(const FittedRunProgress& progress);

/// "Certainty: 3 of 24 members, 1 left out"; while there is none yet "Certainty: 2 of 5 models".
std::string progressLine(const EnsembleProgress& progress);

/// Says no more than that, as nobody knows how many iterations are to come.
std::string progressBar(const FittedRunProgress& progress);

}  // namespace talvesk
