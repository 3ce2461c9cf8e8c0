#pragma once

#include "base/Log.h"
#include "base/Shared.h"
#include "base/Status.h"
#include "tomo/DijkstraComputePathsThread.h"
#include "tomo/TraceCrew.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct ExcludedPosition;

/// How many ray searches run at once unless the user asks for a single one.
unsigned searchThreads();
/// How many a run takes. \param wanted 0: as many as without a wish
unsigned searchThreads(bool singleThread, unsigned wanted);

/// Fails when rays cannot be traced: without a grid, without cells, or with a cell that has no
/// valid velocity.
Status checkTraceable(const TomoDocument& document);

/// Shots and receivers that the current grid has no top-line node for, and shots whose geophone
/// string does not exist (receiver -1).
std::vector<ExcludedPosition> findExcluded(const TomoDocument& document);

/// The same for a grid that is to be. \param outside whether it has no node at a survey abscissa
std::vector<ExcludedPosition> findExcluded(const TomoDocument& document,
                                           const std::function<bool(double x)>& outside);

/// One line for users, who count shots and receivers from 1.
std::string describe(const ExcludedPosition& position);

/// Whether the console hears of every worker that is started.
enum class ThreadLines { kTold, kSilent };

/// The rays of all shots of a document. Shots are taken from one queue by the threads of a crew;
/// what is told and added up comes in the order of the shots, in batches of as many as there are
/// threads.
class ForwardPass {
 public:
  /// Makes the workers, leaves out what the grid cannot hold (document.excluded, named in the log
  /// when it is news) and marks all computed times as missing.
  /// \param earlier node lists of rays through an earlier model or none, see RayBounds
  ForwardPass(TomoDocument& document, const SharedVector<std::vector<std::uint32_t>>& earlier,
              TraceCrew& crew, Log& log, ThreadLines lines = ThreadLines::kTold);

  /// Traces rays (first time) and evaluates them, adding the workers' sums shot by shot. The result
  /// does not depend on the number of threads.
  /// \param coorslow, coorcount one entry per cell, set to the sums of this pass; null: sums are
  /// dropped, and the threads are told on the console only
  /// \param caption what a batch's line begins with; empty: no such line
  Status run(const std::string& caption, std::vector<double>* coorslow,
             std::vector<double>* coorcount);

  /// Appends the node lists of all rays, once after the first run.
  void takeRays(std::vector<std::vector<std::uint32_t>>& rays);

 private:
  void expectRays();
  void tellBatch(std::size_t first, const std::string& caption, bool log);
  void tellThread(std::size_t shot, bool log);
  void trace(const std::string& caption, bool adds);
  void evaluate(std::size_t first, std::size_t end);
  void addUp(std::size_t firstShot, std::size_t endShot, std::vector<double>& coorslow,
             std::vector<double>& coorcount);

  Log& mLog;
  const TomoDocument& mDocument;
  TraceCrew& mCrew;
  SharedVector<std::vector<std::uint32_t>> mEarlier;
  std::optional<RayBounds> mBounds;  ///< while rays are traced
  ThreadLines mLines;
  bool mTraced = false;
  std::size_t mBatch = 1;                                             ///< shots
  std::vector<std::unique_ptr<DijkstraComputePathsThread>> mWorkers;  ///< null: shot excluded
};

}  // namespace talvesk
