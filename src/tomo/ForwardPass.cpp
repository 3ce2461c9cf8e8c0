#include "tomo/ForwardPass.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/Solver.h"

#include <QThread>
#include <algorithm>
#include <exception>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

bool sameExclusions(const std::vector<ExcludedPosition>& a,
                    const std::vector<ExcludedPosition>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const ExcludedPosition& p, const ExcludedPosition& q) {
                      return p.shot == q.shot && p.receiver == q.receiver;
                    });
}

struct ShotFailure {
  std::size_t shot;
  std::string what;
};

/// Says which shot it was when something fails.
template <typename Work>
void ofShot(std::size_t shot, Work work) {
  try {
    work();
  } catch (const std::exception& error) {
    throw ShotFailure{shot, error.what()};
  } catch (...) {
    throw ShotFailure{shot, "Unknown exception"};
  }
}

void both(Log& log, const std::string& line) {
  console::out() << line << std::endl;
  log.write(line);
}

}  // namespace

unsigned searchThreads() {
  return static_cast<unsigned>(std::max(QThread::idealThreadCount(), 1));
}

unsigned searchThreads(bool singleThread, unsigned wanted) {
  if (singleThread) return 1;
  return wanted > 0 ? wanted : searchThreads();
}

Status checkTraceable(const TomoDocument& document) {
  if (document.model->grid == nullptr || document.model->grid->cellCount() == 0) {
    return Status::failure(Message::tr("There is no grid with cells; build the grid first."));
  }
  const Message invalid = document.model->grid->invalidSlowness();
  if (!invalid.empty()) {
    return Status::failure(Message::tr("The velocity model cannot be used: %1").arg(invalid));
  }
  return {};
}

std::string describe(const ExcludedPosition& position) {
  std::string text = "Left out: shot " + std::to_string(position.shot + 1);
  if (position.receiver >= 0) text += ", receiver " + std::to_string(position.receiver + 1);
  return text + " at x = " + formatDouble(position.x) +
         " m lies beyond the grid or has no geophone string";
}

std::vector<ExcludedPosition> findExcluded(const TomoDocument& document) {
  const GridGeometry& g = document.model->grid->geometry();
  return findExcluded(
      document, [&](double x) { return g.topNodeIndex(x + document.model->xOffset) == kNoNode; });
}

std::vector<ExcludedPosition> findExcluded(const TomoDocument& document,
                                           const std::function<bool(double x)>& outside) {
  std::vector<ExcludedPosition> excluded;
  for (std::size_t s = 0; s < document.ttArray.size(); ++s) {
    const TravelTime& record = document.ttArray[s];
    const auto shot = static_cast<std::int32_t>(s);
    const bool noString = record.indexStesa < 0 || static_cast<std::size_t>(record.indexStesa) >=
                                                       document.line->goephonesStringSet.size();
    if (noString || outside(record.shotPos2d.x)) {
      excluded.push_back({shot, -1, record.shotPos2d.x});
      continue;
    }
    const auto& spread = document.line->goephonesStringSet[record.indexStesa];
    const std::size_t n = std::min(spread.size(), record.ttMisurati.size());
    for (std::size_t i = 0; i < n; ++i) {
      if (!outside(spread[i].x)) continue;
      excluded.push_back({shot, static_cast<std::int32_t>(i), spread[i].x});
    }
  }
  return excluded;
}

ForwardPass::ForwardPass(TomoDocument& document,
                         const SharedVector<std::vector<std::uint32_t>>& earlier, TraceCrew& crew,
                         Log& log, ThreadLines lines)
    : mLog(log), mDocument(document), mCrew(crew), mEarlier(earlier), mLines(lines) {
  std::vector<ExcludedPosition> excluded = findExcluded(document);
  if (!sameExclusions(excluded, document.result->excluded)) {
    for (const ExcludedPosition& position : excluded) log.write(describe(position), 1);
  }
  document.result.edit().excluded = std::move(excluded);
  document.result.edit().timesOfSection = false;

  std::vector<TravelTime>& records = document.ttArray.edit();
  const std::size_t shots = records.size();
  mWorkers.resize(shots);
  std::vector<bool> whole(shots, true);
  for (const ExcludedPosition& p : document.result->excluded) {
    if (p.receiver < 0) whole[p.shot] = false;
  }
  for (std::size_t s = 0; s < shots; ++s) {
    TravelTime& record = records[s];
    record.ttCalcolati = std::vector<double>(record.ttMisurati.size(), kNoTime);
    if (!whole[s]) continue;
    const std::uint32_t source =
        document.model->grid->geometry().topNodeIndex(record.shotPos2d.x + document.model->xOffset);
    mWorkers[s] = std::make_unique<DijkstraComputePathsThread>(
        document, static_cast<std::uint32_t>(s), source);
  }
  mBatch = std::min<std::size_t>(crew.width(), std::max<std::size_t>(shots, 1));
}

Status ForwardPass::run(const std::string& caption, std::vector<double>* coorslow,
                        std::vector<double>* coorcount) {
  const bool adds = coorslow != nullptr;
  try {
    tellBatch(0, caption, adds);
    if (mTraced) {
      for (std::size_t shot = mBatch; shot < mWorkers.size(); shot += mBatch) {
        tellBatch(shot, caption, adds);
      }
    } else {
      trace(caption, adds);
    }
    for (std::size_t shot = 0; shot < mWorkers.size(); shot += mCrew.sums().size()) {
      const std::size_t end = std::min(shot + mCrew.sums().size(), mWorkers.size());
      evaluate(shot, end);
      if (adds) addUp(shot, end, *coorslow, *coorcount);
    }
  } catch (const ShotFailure& failure) {
    return Status::failure(
        Message::tr("Ray tracing of shot %1 failed: %2").arg(failure.shot + 1).arg(failure.what));
  }
  return {};
}

void ForwardPass::trace(const std::string& caption, bool adds) {
  expectRays();
  const std::size_t shots = mWorkers.size();
  const auto work = [&](unsigned worker, std::size_t shot) {
    DijkstraComputePathsThread* rays = mWorkers[shot].get();
    if (rays != nullptr) ofShot(shot, [&] { rays->traceRays(mCrew.scratch(worker)); });
  };
  mCrew.pool().run(shots, work, [&](std::size_t shot) {
    if (shot % mBatch != mBatch - 1 && shot + 1 < shots) return;
    if (adds) console::out() << " --- Updating coorslow and coorcount " << std::endl;
    tellBatch(shot + 1, caption, adds);
  });
  mTraced = true;
  mBounds.reset();
}

void ForwardPass::evaluate(std::size_t first, std::size_t end) {
  mCrew.pool().run(end - first, [&](unsigned worker, std::size_t i) {
    DijkstraComputePathsThread* rays = mWorkers[first + i].get();
    if (rays == nullptr) return;
    ofShot(first + i, [&] { rays->evaluateRays(mCrew.scratch(worker), mCrew.sums()[i]); });
  });
}

void ForwardPass::expectRays() {
  mBounds.emplace(*mDocument.model->grid, *mEarlier);
  std::size_t firstRay = 0;
  for (const auto& worker : mWorkers) {
    if (worker == nullptr) continue;
    worker->expect(*mBounds, firstRay);
    firstRay += worker->receivers();
  }
}

void ForwardPass::tellBatch(std::size_t first, const std::string& caption, bool log) {
  if (first >= mWorkers.size()) return;
  const std::size_t end = std::min(first + mBatch, mWorkers.size());
  if (!caption.empty()) {
    both(mLog,
         caption + " Traces from " + std::to_string(first) + " to " + std::to_string(end - 1));
  }
  for (std::size_t shot = first; !mTraced && shot < end; ++shot) tellThread(shot, log);
}

void ForwardPass::tellThread(std::size_t shot, bool log) {
  if (mLines == ThreadLines::kSilent) return;
  const std::string line = " --- Creating and running thread " + std::to_string(shot);
  console::out() << line << std::endl;
  if (log) mLog.write(line);
}

/// Every cell by itself gets the sums of the shots in their order, whichever thread adds them.
void ForwardPass::addUp(std::size_t firstShot, std::size_t endShot, std::vector<double>& coorslow,
                        std::vector<double>& coorcount) {
  const auto add = [&](std::size_t first, std::size_t end) {
    if (firstShot == 0) {
      std::fill(&coorslow[first], coorslow.data() + end, 0.0);
      std::fill(&coorcount[first], coorcount.data() + end, 0.0);
    }
    for (std::size_t shot = firstShot; shot < endShot; ++shot) {
      if (mWorkers[shot] == nullptr) continue;
      mWorkers[shot]->addTo(coorslow, coorcount, mCrew.sums()[shot - firstShot], first, end);
    }
  };
  forEachPart(mCrew.pool(), coorslow.size(), kCellsAtOnce, add);
}

void ForwardPass::takeRays(std::vector<std::vector<std::uint32_t>>& rays) {
  for (const auto& worker : mWorkers) {
    if (worker == nullptr) continue;
    for (std::vector<std::uint32_t>& nodes : worker->takeNodes()) rays.push_back(std::move(nodes));
  }
}

}  // namespace talvesk
