#include "io/ReadingComparison.h"

#include "base/Console.h"
#include "io/SegyFile.h"
#include "io/ShotFile.h"
#include "io/standard/StandardReader.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <utility>

namespace talvesk {
namespace {

using Traces = std::vector<const ShotRecord*>;
using Span = ReadingSummary::Span;

constexpr double kMsPerSecond = 1000.0;
/// Positions of SEG-Y and SU went through single precision.
constexpr double kSamePlace = 1e-3;  ///< metres
constexpr double kSameRatio = 1e-5;
/// Least cosine between the samples of two readings that differ in scale alone. Rounding leaves
/// 1e-12; samples of the wrong width or byte order are far below.
constexpr double kSameShape = 0.99;

Traces tracesOf(const ReadShotFile& file) {
  Traces traces;
  traces.reserve(file.traceCount());
  for (const StandardReading::Shot& shot : file.shots) {
    for (const ShotRecord& trace : shot.data.traces) traces.push_back(&trace);
  }
  return traces;
}

template <typename ValueOf>
Span spanOf(const Traces& traces, ValueOf valueOf) {
  if (traces.empty()) return {};
  Span span{valueOf(*traces.front()), valueOf(*traces.front())};
  for (const ShotRecord* trace : traces) {
    span.least = std::min(span.least, valueOf(*trace));
    span.most = std::max(span.most, valueOf(*trace));
  }
  return span;
}

double sourceX(const ShotRecord& trace) {
  return trace.source.x;
}
double receiverX(const ShotRecord& trace) {
  return trace.receiver.x;
}

bool isSilent(const ShotRecord& trace) {
  return std::all_of(trace.samples.begin(), trace.samples.end(), [](double v) { return v == 0.0; });
}

bool near(double a, double b) {
  return std::fabs(a - b) <=
         std::max(kSamePlace, kSameRatio * std::max(std::fabs(a), std::fabs(b)));
}

/// Zeros that the standard put in front of a record that began after the shot.
std::size_t leadOf(const ShotRecord& rules, const ShotRecord& standard) {
  const talvesk::Span<double> samples = standard.samples;
  if (samples.size() <= rules.samples.size()) return 0;
  const auto lead = static_cast<std::ptrdiff_t>(samples.size() - rules.samples.size());
  const bool zeros =
      std::all_of(samples.begin(), samples.begin() + lead, [](double v) { return v == 0.0; });
  return zeros ? static_cast<std::size_t>(lead) : 0;
}

bool sameShape(const ShotRecord& rules, const ShotRecord& standard) {
  const std::size_t lead = leadOf(rules, standard);
  const std::size_t room = standard.samples.size() - std::min(lead, standard.samples.size());
  const std::size_t count = std::min(rules.samples.size(), room);
  const talvesk::Span<double> x = rules.samples;
  const talvesk::Span<double> y = standard.samples;
  double product = 0.0;
  double first = 0.0;
  double second = 0.0;
  for (std::size_t i = 0; i + 1 < count; ++i) {  // the rules never read the last one
    const double a = x[i];
    const double b = y[lead + i];
    product += a * b;
    first += a * a;
    second += b * b;
  }
  return product >= kSameShape * std::sqrt(first) * std::sqrt(second);
}

/// Seconds from the shot to the first sample that was recorded.
double startOf(const ShotRecord& trace, std::size_t lead) {
  return trace.delay + static_cast<double>(lead) * trace.sampleInterval;
}

template <typename XOf>
Message placesOf(const Traces& traces, XOf x) {
  const Span span = spanOf(traces, x);
  return span.least == span.most ? Message::length(span.least)
                                 : Message::tr("%1 to %2")
                                       .arg(Message::length(span.least))
                                       .arg(Message::length(span.most));
}

/// Finds the losses of one file; traces are compared in the order of the file.
class Comparison {
 public:
  Comparison(const ReadShotFile& byRules, const ReadShotFile& byStandard)
      : mShots(byStandard.shots.size()),
        mRules(tracesOf(byRules)),
        mStandard(tracesOf(byStandard)) {
    const std::size_t pairs = std::min(mRules.size(), mStandard.size());
    mRulePairs.assign(mRules.begin(), mRules.begin() + static_cast<std::ptrdiff_t>(pairs));
    mStandardPairs.assign(mStandard.begin(),
                          mStandard.begin() + static_cast<std::ptrdiff_t>(pairs));
  }

  std::vector<Message> losses() && {
    if (mRules.empty()) {
      lost(Message::tr("the program's rules find no trace in it"));
      return std::move(mLosses);
    }
    findRecords();
    findSamples();
    findTimes();
    findPositions();
    return std::move(mLosses);
  }

 private:
  void lost(Message clause) { mLosses.push_back(std::move(clause)); }

  template <typename Differ>
  std::size_t countPairs(Differ differ) const {
    std::size_t count = 0;
    for (std::size_t i = 0; i < mRulePairs.size(); ++i) {
      if (differ(*mRulePairs[i], *mStandardPairs[i])) ++count;
    }
    return count;
  }

  void findRecords() {
    if (mRules.size() < mStandard.size()) {
      lost((mShots > 1 ? Message::tr("the program's rules read %1 of its %2 traces of %3 shots")
                       : Message::tr("the program's rules read %1 of its %2 traces"))
               .arg(mRules.size())
               .arg(mStandard.size())
               .arg(mShots));
    } else if (mShots > 1) {
      lost(Message::tr("the program's rules make one shot of its %1").arg(mShots));
    }
  }

  void findSamples() {
    const std::size_t silent = countPairs([](const ShotRecord& rules, const ShotRecord& standard) {
      return isSilent(rules) && !isSilent(standard);
    });
    if (silent > 0) {
      lost(Message::tr("%1 of %2 traces are all zeros by the program's rules")
               .arg(silent)
               .arg(mRulePairs.size()));
    }
    const std::size_t other = countPairs([](const ShotRecord& rules, const ShotRecord& standard) {
      return !isSilent(rules) && !isSilent(standard) && !sameShape(rules, standard);
    });
    if (other > 0) {
      lost(Message::tr("the samples of %1 of %2 traces are not those of the standard, and not for "
                       "their scale alone")
               .arg(other)
               .arg(mRulePairs.size()));
    }
    const std::size_t shorter = countPairs([](const ShotRecord& rules, const ShotRecord& standard) {
      return rules.samples.size() + leadOf(rules, standard) < standard.samples.size();
    });
    if (shorter > 0) {
      lost(Message::tr("%1 of %2 traces are shorter by the program's rules")
               .arg(shorter)
               .arg(mRulePairs.size()));
    }
  }

  void findTimes() {
    const auto interval = [](const ShotRecord& trace) {
      return kMsPerSecond * trace.sampleInterval;
    };
    const bool sameInterval = countPairs([](const ShotRecord& rules, const ShotRecord& standard) {
                                return std::fabs(rules.sampleInterval - standard.sampleInterval) >
                                       kSameRatio * standard.sampleInterval;
                              }) == 0;
    if (!sameInterval) {
      lost(Message::tr("the sample interval is %1 ms by the program's rules, %2 ms by the standard")
               .arg(spanOf(mRulePairs, interval).least)
               .arg(spanOf(mStandardPairs, interval).least));
      return;  // starts are counted in it
    }
    for (std::size_t i = 0; i < mRulePairs.size(); ++i) {
      const double rules = startOf(*mRulePairs[i], 0);
      const double standard =
          startOf(*mStandardPairs[i], leadOf(*mRulePairs[i], *mStandardPairs[i]));
      if (std::fabs(rules - standard) <= 0.5 * mStandardPairs[i]->sampleInterval) continue;
      lost(Message::tr("its records start %1 ms from the shot by the program's rules, %2 ms by the "
                       "standard")
               .arg(kMsPerSecond * rules)
               .arg(kMsPerSecond * standard));
      return;
    }
  }

  void findPositions() {
    findPlaces(Message::tr("its geophones are at %1 by the program's rules, at %2 by the standard"),
               receiverX);
    findPlaces(Message::tr("its shot is at %1 by the program's rules, at %2 by the standard"),
               sourceX);
    const std::size_t flat = countPairs([](const ShotRecord& rules, const ShotRecord& standard) {
      return !near(rules.receiver.z, standard.receiver.z) ||
             !near(rules.source.z, standard.source.z);
    });
    if (flat > 0) {
      lost(Message::tr("the elevations of %1 of %2 traces are others by the program's rules")
               .arg(flat)
               .arg(mRulePairs.size()));
    }
  }

  template <typename XOf>
  void findPlaces(Message clause, XOf x) {
    const std::size_t moved = countPairs([x](const ShotRecord& rules, const ShotRecord& standard) {
      return !near(x(rules), x(standard));
    });
    if (moved == 0) return;
    lost(std::move(clause).arg(placesOf(mRulePairs, x)).arg(placesOf(mStandardPairs, x)));
  }

  std::size_t mShots;
  Traces mRules;
  Traces mStandard;
  Traces mRulePairs;  ///< as many as both have
  Traces mStandardPairs;
  std::vector<Message> mLosses;
};

/// Whether some standard may be that of a file, so that files of other kinds, of any size, are not
/// read to no purpose.
bool mayBeShotFile(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return false;  // a pipe or a folder among others
  std::string head(8192, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(file.gcount()));
  const std::vector<StandardFormat>& formats = standardFormats();
  return std::any_of(formats.begin(), formats.end(), [&](const StandardFormat& format) {
    return format.likelihood(head, static_cast<std::size_t>(size)) != Likelihood::kNo;
  });
}

/// Swallows what readers tell the console.
class QuietConsole {
 public:
  QuietConsole() : mOut(console::out()), mError(console::error()) {
    console::setOut(console::nowhere());
    console::setError(console::nowhere());
  }
  ~QuietConsole() {
    console::setOut(mOut);
    console::setError(mError);
  }
  QuietConsole(const QuietConsole&) = delete;
  QuietConsole& operator=(const QuietConsole&) = delete;

 private:
  std::ostream& mOut;
  std::ostream& mError;
};

}  // namespace

ReadingSummary summaryOf(const ReadShotFile& file) {
  const Traces traces = tracesOf(file);
  ReadingSummary summary;
  summary.shots = file.shots.size();
  summary.traces = traces.size();
  summary.samples =
      spanOf(traces, [](const ShotRecord& t) { return static_cast<double>(t.samples.size()); });
  summary.sampleInterval = spanOf(traces, [](const ShotRecord& t) { return t.sampleInterval; });
  summary.delay = spanOf(traces, [](const ShotRecord& t) { return t.delay; });
  summary.sourceX = spanOf(traces, sourceX);
  summary.receiverX = spanOf(traces, receiverX);
  return summary;
}

bool mayHaveLost(const ReadShotFile& byRules) {
  const ShotFileOutcome& outcome = byRules.outcome;
  if (!outcome.status.ok() || outcome.format != "seg2" || !outcome.warnings.empty()) return true;
  const Traces traces = tracesOf(byRules);
  std::set<double> places;
  for (const ShotRecord* trace : traces) {
    if (trace->sampleInterval <= 0.0 || isSilent(*trace)) return true;
    if (!near(trace->source.x, traces.front()->source.x)) return true;
    places.insert(trace->receiver.x);
  }
  return traces.empty() || places.size() < traces.size();
}

std::vector<Message> lostByRules(const ReadShotFile& byRules, const ReadShotFile& byStandard) {
  if (!byStandard.outcome.status.ok() || byStandard.traceCount() == 0) return {};
  if (!byRules.outcome.status.ok()) {
    return {Message::tr("the program's rules cannot read it")};
  }
  return Comparison(byRules, byStandard).losses();
}

std::optional<FullerReading> readFuller(const ReadShotFile& byRules) {
  if (!mayHaveLost(byRules)) return std::nullopt;
  const bool knownSuffix = byRules.outcome.status.code() != kUnknownSuffix;
  if (!knownSuffix && !mayBeShotFile(byRules.outcome.path)) return std::nullopt;
  const QuietConsole quiet;
  SegyState unused;
  FullerReading fuller;
  fuller.byStandard = readShotFileBy(ShotReader::kStandard, byRules.outcome.path, unused);
  fuller.losses = lostByRules(byRules, fuller.byStandard);
  if (fuller.losses.empty()) return std::nullopt;
  return fuller;
}

}  // namespace talvesk
