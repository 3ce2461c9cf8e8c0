#include "model/FilterSteps.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "processing/FkTransform.h"
#include "processing/NotchFilter.h"
#include "processing/VelocityFilter.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using Values = std::vector<double>;
using Direction = VelocityFilter::Direction;

constexpr double kInterval = 0.0005;

Values signal(std::size_t samples, const std::function<double(double)>& of) {
  Values values(samples);
  for (std::size_t j = 0; j < samples; ++j) values[j] = of(kInterval * static_cast<double>(j));
  return values;
}

double sine(double hertz, double t) {
  return std::sin(2.0 * M_PI * hertz * t + 0.7);
}

/// One swing of 60 Hz at a time.
double wavelet(double t) {
  const double a = std::pow(M_PI * 60.0 * t, 2.0);
  return (1.0 - 2.0 * a) * std::exp(-a);
}

double largest(const Values& values, std::size_t from = 0, std::size_t to = 1U << 20) {
  double most = 0.0;
  for (std::size_t j = from; j < std::min(to, values.size()); ++j) {
    most = std::max(most, std::fabs(values[j]));
  }
  return most;
}

Values notched(const Values& in, NotchFilter filter = {}) {
  Values out;
  const Status status = notchTrace(in, kInterval, filter, out);
  EXPECT_TRUE(status.ok()) << status.message();
  return out;
}

TEST(Notch, takesOutHumToTheEndsOfTheTrace) {
  const Values hum = signal(1000, [](double t) {
    return 3.0 + 5.0 * sine(50.0, t) + 2.0 * sine(150.0, t) + sine(250.0, t);
  });
  Values left = notched(hum);
  for (double& value : left) value -= 3.0;
  EXPECT_LT(largest(left), 1e-6) << "the level stays";
}

TEST(Notch, isAsWideAsItsQualitySaysAndMovesNothing) {
  NotchFilter filter;
  filter.quality = 25.0;  // 2 Hz
  const std::pair<double, double> gains[] = {{20.0, 1.0},     {49.0, 0.7071},  {51.0, 0.7071},
                                             {149.0, 0.7071}, {151.0, 0.7071}, {99.0, 0.7071},
                                             {400.0, 1.0}};
  for (const auto& [hertz, gain] : gains) {
    const Values in = signal(20000, [hz = hertz](double t) { return sine(hz, t); });
    const Values out = notched(in, filter);
    double along = 0.0;
    double power = 0.0;
    for (std::size_t j = 8000; j < 12000; ++j) {
      along += in[j] * out[j];
      power += in[j] * in[j];
    }
    EXPECT_NEAR(along / power, gain, 0.02) << hertz << " Hz, in phase";
  }
}

TEST(Notch, leavesTheQuietBeforeAnArrivalQuiet) {
  const auto arrival = [](double t) { return t < 0.2 ? 0.0 : 50.0 * wavelet(t - 0.22); };
  const Values clean = signal(1000, arrival);
  const Values noisy =
      signal(1000, [&](double t) { return arrival(t) + 4.0 * sine(49.97, t) + sine(99.94, t); });
  NotchFilter filter;
  filter.quality = 100.0;  // of the arrival itself a part of this width rings before it
  const Values out = notched(noisy, filter);
  EXPECT_LT(largest(out, 0, 300), 0.15 * largest(noisy, 0, 300));
  const auto peak = [](const Values& values) {
    return std::max_element(values.begin(), values.end()) - values.begin();
  };
  EXPECT_EQ(peak(out), peak(clean));
}

TEST(Notch, refusesWhatItCannotDo) {
  NotchFilter slow;
  slow.hertz = 1000.0;
  const std::pair<Values, NotchFilter> cases[] = {
      {Values(1000, 1.0), slow}, {Values(30, 1.0), {}}, {{NAN, 1.0, 2.0}, {}}};
  for (const auto& [in, filter] : cases) {
    Values out = {7.0};
    EXPECT_FALSE(notchTrace(in, kInterval, filter, out).ok());
    EXPECT_EQ(out, Values{7.0});
  }
  Values out = {7.0};
  EXPECT_TRUE(notchTrace(Values(), kInterval, {}, out).ok());
  EXPECT_TRUE(out.empty());
}

constexpr std::size_t kTraces = 48;

/// A shot of plane waves, geophones a metre apart, seconds per metre each.
TomoDocument planeWaves(const Values& slownesses) {
  constexpr std::size_t traces = kTraces;
  TomoDocument document;
  std::vector<Point2D> string;
  TraceSet set(traces);
  for (std::size_t i = 0; i < traces; ++i) {
    const auto x = static_cast<double>(i);
    string.push_back({x, 0.0});
    set[i].sampleInterval = kInterval;
    set[i].samples = signal(1000, [&](double t) {
      double sum = 0.0;
      for (const double slowness : slownesses) sum += wavelet(t - 0.25 - slowness * (x - 24.0));
      return sum;
    });
  }
  document.line.edit().goephonesStringSet = {string};
  document.recordings.edit().traceSets = {std::move(set)};
  TravelTime record;
  record.traceSetID = 0;
  record.indexStesa = 0;
  record.ttMisurati.edit().assign(traces, kUnpicked);
  document.ttArray.edit() = {record};
  return document;
}

VelocityFilter between(double slowest, double fastest, Direction direction, bool rejects = false) {
  VelocityFilter filter;
  filter.slowest = slowest;
  filter.fastest = fastest;
  filter.direction = direction;
  filter.rejects = rejects;
  return filter;
}

/// What is left of a wave in the middle of the line.
double leftOf(double slowness, const VelocityFilter& filter) {
  TomoDocument document = planeWaves({slowness});
  std::vector<Message> notes;
  const FilterOutcome outcome = velocityFilterShots(document, {0}, filter, false, notes);
  EXPECT_EQ(outcome.filtered, kTraces) << outcome.status.message();
  EXPECT_TRUE(notes.empty());
  const Trace& trace = document.recordings->traceSets[0][24];
  const Values out(trace.filtered.begin(), trace.filtered.end());
  const Values in(trace.samples.begin(), trace.samples.end());
  return largest(out) / largest(in);
}

TEST(VelocityFilter, keepsTheWavesOfItsRangeAndWay) {
  const double slow = 1.0 / 300.0;
  const double fast = 1.0 / 1500.0;
  const struct {
    VelocityFilter filter;
    double slowness;
    bool stays;
  } cases[] = {
      {between(800, 0, Direction::kBoth), fast, true},
      {between(800, 0, Direction::kBoth), -fast, true},
      {between(800, 0, Direction::kBoth), slow, false},
      {between(800, 0, Direction::kForth), fast, true},
      {between(800, 0, Direction::kForth), -fast, false},
      {between(800, 0, Direction::kBack), -fast, true},
      {between(200, 500, Direction::kBoth), slow, true},
      {between(200, 500, Direction::kBoth), fast, false},
      {between(200, 500, Direction::kBoth, true), slow, false},
      {between(200, 500, Direction::kBoth, true), fast, true},
      {between(200, 500, Direction::kBack, true), slow, true},
  };
  for (const auto& each : cases) {
    const double left = leftOf(each.slowness, each.filter);
    EXPECT_TRUE(each.stays ? left > 0.8 && left < 1.2 : left < 0.25)
        << left << " of " << 1.0 / each.slowness << " m/s within " << each.filter.slowest;
  }
}

TEST(VelocityFilter, setsInAlongItsTaper) {
  VelocityFilter filter = between(500, 2000, Direction::kBoth);
  filter.taper = 20.0;
  const auto weight = [&](double velocity) { return weightOf(filter, 50.0, 50.0 / velocity); };
  EXPECT_EQ(weight(500.0), 1.0);
  EXPECT_EQ(weight(2000.0), 1.0);
  EXPECT_NEAR(weight(500.0 / 1.1), 0.5, 1e-9);
  EXPECT_NEAR(weight(2000.0 / 0.9), 0.5, 1e-9);
  EXPECT_EQ(weight(500.0 / 1.21), 0.0);
  EXPECT_EQ(weight(2000.0 / 0.79), 0.0);
  filter.rejects = true;
  EXPECT_NEAR(weight(500.0 / 1.1), 0.5, 1e-9);
  EXPECT_EQ(weightOf(filter, 0.0, 0.01), 1.0) << "no wave at all is rejected";
}

TEST(VelocityFilter, putTogetherPassAndRejectAreTheTraces) {
  TomoDocument passed = planeWaves({1.0 / 400.0, -1.0 / 1200.0});
  TomoDocument rejected = passed;
  std::vector<Message> notes;
  velocityFilterShots(passed, {0}, between(300, 700, Direction::kForth), false, notes);
  velocityFilterShots(rejected, {0}, between(300, 700, Direction::kForth, true), false, notes);
  for (std::size_t i = 0; i < kTraces; ++i) {
    const Trace& a = passed.recordings->traceSets[0][i];
    const Trace& b = rejected.recordings->traceSets[0][i];
    const double mean =
        std::accumulate(a.samples.begin(), a.samples.end(), 0.0) / static_cast<double>(1000);
    for (std::size_t j = 0; j < 1000; ++j) {
      ASSERT_NEAR(a.filtered[j] + b.filtered[j], a.samples[j] - mean, 1e-9) << i;
    }
  }
}

TEST(VelocityFilter, refusesUnevenLinesAndTellsOfMissingTraces) {
  const auto run = [](TomoDocument& document, std::vector<Message>& notes) {
    return velocityFilterShots(document, {0}, VelocityFilter(), false, notes);
  };
  std::vector<Message> notes;
  TomoDocument uneven = planeWaves({0.001});
  uneven.line.edit().goephonesStringSet[0][7].x += 0.3;
  FilterOutcome outcome = run(uneven, notes);
  EXPECT_EQ(outcome.filtered, 0U);
  EXPECT_EQ(outcome.failed, kTraces);
  EXPECT_THAT(outcome.status.message(), HasSubstr("shot 1: its geophones are not evenly spaced"));
  EXPECT_TRUE(uneven.recordings->traceSets[0][0].filtered.empty());

  TomoDocument gap = planeWaves({0.001});
  for (std::size_t i = 10; i < kTraces; ++i) gap.line.edit().goephonesStringSet[0][i].x += 1.0;
  ShotMends killed;
  killed.traces.resize(4);
  killed.traces[3].killed = true;
  ASSERT_TRUE(setMends(0, killed, gap).ok());
  outcome = run(gap, notes);
  EXPECT_EQ(outcome.filtered, kTraces) << outcome.status.message();
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_THAT(notes[0].english(), HasSubstr("of 49 places along its line 2 have no trace"));

  TomoDocument lengths = planeWaves({0.001});
  lengths.recordings.edit().traceSets[0][5].samples = Values(10, 1.0);
  EXPECT_THAT(run(lengths, notes).status.message(), HasSubstr("trace 6 has another length"));
}

TEST(FkSpectrum, standsWhereTheWaveIs) {
  const TomoDocument document = planeWaves({-1.0 / 500.0});
  TraceLine line;
  ASSERT_TRUE(findTraceLine(document, 0, false, line).ok());
  const FkSpectrum spectrum =
      FkTransform(document.recordings->traceSets[0], line, false).spectrum(200.0);
  const auto most = std::max_element(spectrum.amplitudes.begin(), spectrum.amplitudes.end());
  EXPECT_EQ(*most, 1.0F);
  const auto at = static_cast<std::size_t>(most - spectrum.amplitudes.begin());
  const double f = spectrum.frequencies[at / spectrum.wavenumbers.size()];
  const double k = spectrum.wavenumbers[at % spectrum.wavenumbers.size()];
  EXPECT_NEAR(f, 60.0, 10.0);
  EXPECT_NEAR(f / k, -500.0, 60.0) << "back along the line";
  EXPECT_TRUE(std::is_sorted(spectrum.wavenumbers.begin(), spectrum.wavenumbers.end()));
  EXPECT_NEAR(spectrum.wavenumbers.front(), -0.5, 1e-9) << "two geophones are half a wave apart";
}

TEST(FilterSteps, tellWhatMadeACopy) {
  TomoDocument document = planeWaves({0.001});
  NotchFilter notch;
  notchShots(document, {0}, notch, false);
  std::vector<Message> notes;
  velocityFilterShots(document, {0}, VelocityFilter(), true, notes);
  std::vector<FilterStep> steps = filtersOf(*document.recordings, 0);
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(describe(steps[0]).english(), "notches at 50 Hz and multiples, 5 in all, quality 50");
  EXPECT_EQ(describe(steps[1]).english(),
            "velocities of 600 m/s and more, both ways, pass (taper 20 %)");
  notchShots(document, {0}, notch, false);
  EXPECT_EQ(filtersOf(*document.recordings, 0).size(), 1U) << "of the recordings again";
  for (Trace& trace : document.recordings.edit().traceSets[0]) trace.filtered = {};
  EXPECT_TRUE(filtersOf(*document.recordings, 0).empty());
}

}  // namespace
}  // namespace talvesk
