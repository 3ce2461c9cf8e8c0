#pragma once

#include "base/Log.h"
#include "base/Shared.h"
#include "base/Status.h"
#include "tomo/DijkstraComputePathsThread.h"

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

/// The workers of all shots of a document, run in batches of consecutive shots.
class ForwardPass {
 public:
  /// Makes the workers, leaves out what the grid cannot hold (document.excluded, named in the log
  /// when it is news) and marks all computed times as missing.
  /// \param threads width of a batch, at least 1
  /// \param earlier node lists of rays through an earlier model or none, see RayBounds
  ForwardPass(TomoDocument& document, const SharedVector<std::vector<std::uint32_t>>& earlier,
              unsigned threads, Log& log, ThreadLines lines = ThreadLines::kTold);

  /// Traces rays (first time) and evaluates them, adding the workers' sums shot by shot. The result
  /// does not depend on the width of the batches.
  /// \param coorslow, coorcount one entry per cell, added to; null: sums are dropped, and the
  /// threads are told on the console only
  /// \param caption what a batch's line begins with; empty: no such line
  Status run(const std::string& caption, std::vector<double>* coorslow,
             std::vector<double>* coorcount);

  void refreshRayTimes();
  void appendRaysTo(std::vector<std::vector<std::uint32_t>>& rays) const;

 private:
  struct Slot {
    ShortestPaths search;
    std::vector<double> correction;
    std::vector<double> rayLength;
  };

  Status runBatch(std::size_t first, std::size_t last, std::vector<double>* coorslow,
                  std::vector<double>* coorcount);

  void tellThread(std::size_t shot, bool log);

  void expectRays();

  Log& mLog;
  const TomoDocument& mDocument;
  SharedVector<std::vector<std::uint32_t>> mEarlier;
  std::optional<RayBounds> mBounds;  ///< while rays are traced
  ThreadLines mLines;
  bool mTraced = false;
  std::vector<Slot> mSlots;  ///< outlive the workers, which write into them
  std::vector<std::unique_ptr<DijkstraComputePathsThread>> mWorkers;  ///< null: shot excluded
};

}  // namespace talvesk
