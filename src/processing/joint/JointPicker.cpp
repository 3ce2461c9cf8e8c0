#include "processing/joint/JointPicker.h"

#include "base/SampleStore.h"
#include "model/TomoDocument.h"
#include "processing/joint/ArrivalPeriod.h"
#include "processing/joint/JointGather.h"
#include "processing/joint/Reciprocity.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <new>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kMostLooks = 5;  // gathers that tell the frequency of all
constexpr int kLooks = 2;              // the second with what the first found

/// Runs a step over all gathers on several threads, each gather on one. False when it was stopped
/// or the machine has no memory.
class Crew {
 public:
  Crew(unsigned threads, const std::function<bool()>& goOn) : mThreads(threads), mGoOn(goOn) {
    if (mThreads == 0) mThreads = std::max(std::thread::hardware_concurrency(), 1U);
  }

  template <typename Step>
  bool run(std::vector<JointGather>& gathers, Step step) {
    std::atomic<std::size_t> next{0};
    const auto work = [&](bool asks) noexcept {
      try {
        for (std::size_t g = next++; g < gathers.size() && !mStopped; g = next++) {
          if (asks && mGoOn && !mGoOn()) mStopped = true;
          if (!mStopped) step(gathers[g]);
        }
      } catch (const std::exception&) {
        mFailed = true;
        mStopped = true;
      }
    };
    std::vector<std::thread> pool;
    try {
      for (unsigned t = 1; t < mThreads; ++t) pool.emplace_back(work, false);
    } catch (const std::system_error&) {
      // The system gives no more threads: those that run do all the work.
    }
    work(true);
    for (std::thread& thread : pool) thread.join();
    return !mStopped;
  }

  bool failed() const { return mFailed; }

 private:
  unsigned mThreads;
  const std::function<bool()>& mGoOn;
  std::atomic<bool> mStopped{false};
  std::atomic<bool> mFailed{false};
};

/// The median of what gathers of a line say, some of them from its beginning to its end.
std::optional<double> frequencyOf(const std::vector<JointGather>& gathers, double stretch,
                                  Crew& crew) {
  std::vector<JointGather> some;
  const std::size_t count = std::min(gathers.size(), kMostLooks);
  for (std::size_t i = 0; i < count; ++i) some.push_back(gathers[i * gathers.size() / count]);
  std::vector<std::optional<double>> found(count);
  crew.run(some, [&](JointGather& gather) {
    found[static_cast<std::size_t>(&gather - some.data())] = gather.look(stretch);
    gather.forgetPrepared();
  });
  std::vector<double> frequencies;
  for (const std::optional<double>& one : found) {
    if (one) frequencies.push_back(*one);
  }
  if (frequencies.empty()) return std::nullopt;
  std::sort(frequencies.begin(), frequencies.end());
  return frequencies[frequencies.size() / 2];
}

double stretchOf(const std::vector<JointGather>& gathers, Crew& crew) {
  double stretch = 1.0;
  for (int look = 0; look < kLooks; ++look) {
    const std::optional<double> frequency = frequencyOf(gathers, stretch, crew);
    const double better = frequency ? stretchFor(*frequency) : stretch;
    if (better == stretch) break;
    stretch = better;
  }
  return stretch;
}

void takeReciprocals(std::vector<JointGather>& gathers) {
  std::vector<ArrivalCurve> curves;
  for (const JointGather& gather : gathers) curves.push_back(gather.curve());
  const Reciprocity reciprocity(curves);
  for (JointGather& gather : gathers) gather.heed(reciprocity);
}

/// Whether there is memory for the traces of all gathers as they are prepared; where not, each
/// prepares its own once more for the second pass.
bool canKeepPrepared(const std::vector<JointGather>& gathers) {
  std::size_t bytes = 0;
  for (const JointGather& gather : gathers) bytes += gather.preparedBytes();
  return bytes <= SampleStore::instance().spare();
}

/// All but storing. False when it was stopped.
bool pick(std::vector<JointGather>& gathers, Crew& crew) {
  const double stretch = stretchOf(gathers, crew);
  const bool keep = canKeepPrepared(gathers);
  const bool first = crew.run(gathers, [&](JointGather& gather) {
    gather.prepare(stretch);
    gather.follow();
    gather.refine();
    if (!keep) gather.forgetPrepared();
  });
  if (!first) return false;
  takeReciprocals(gathers);
  return crew.run(gathers, [&](JointGather& gather) {
    if (!keep) gather.prepare(stretch);
    gather.follow();
    gather.refine();
    gather.leaveOutDoubtful();
    if (!keep) gather.forgetPrepared();
  });
}

Status noPlaces() {
  return Status::failure(
      Message::tr("no trace has a place and a sample interval; give the line its geometry"));
}

Status noMemory() {
  return Status::failure(Message::tr("the machine has no memory left to pick first breaks"));
}

bool hasTimes(const GuideLine& guide) {
  return std::all_of(guide.points.begin(), guide.points.end(), [](const Point2D& point) {
    return std::isfinite(point.x) && std::isfinite(point.z);
  });
}

}  // namespace

Status pickJointly(TomoDocument& document, const std::vector<std::int32_t>& shots,
                   const JointPickOptions& options, JointPickOutcome& outcome,
                   const std::function<bool()>& goOn) {
  outcome = {};
  std::vector<JointGather> gathers;
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < shots.size(); ++place) {
    JointGather gather(document, shots[place], options);
    outcome.traces += gather.traceCount();
    outcome.mended += gather.mendedCount();
    if (!gather.usable()) continue;
    gathers.push_back(std::move(gather));
    places.push_back(place);
  }
  if (gathers.empty()) return noPlaces();
  Crew crew(options.threads, goOn);
  const bool done = pick(gathers, crew);
  SampleStore::instance().giveBack();
  if (crew.failed()) return noMemory();
  outcome.stopped = !done;
  if (!done) return {};
  outcome.errors.resize(shots.size());
  for (std::size_t g = 0; g < gathers.size(); ++g) {
    outcome.errors[places[g]] = gathers[g].store(document, outcome);
  }
  return {};
}

Status fillAlong(TomoDocument& document, std::int32_t shot, const GuideLine& guide,
                 const JointPickOptions& options, JointPickOutcome& outcome) {
  outcome = {};
  if (!hasTimes(guide)) {
    return Status::failure(Message::tr("the guide line has no times to follow"));
  }
  if (!(guide.reach >= 0.0)) {
    return Status::failure(Message::tr("the reach of the guide line has to be at least 0 ms"));
  }
  JointPickOptions filling = options;
  filling.keepConfirmed = true;
  std::vector<JointGather> gathers;
  gathers.emplace_back(document, shot, filling);
  outcome.traces = gathers[0].traceCount();
  outcome.mended = gathers[0].mendedCount();
  if (!gathers[0].usable()) return noPlaces();
  gathers[0].heed(guide);
  const std::function<bool()> always;
  Crew crew(1, always);
  pick(gathers, crew);
  if (crew.failed()) return noMemory();
  outcome.errors = {gathers[0].store(document, outcome)};
  return {};
}

}  // namespace talvesk
