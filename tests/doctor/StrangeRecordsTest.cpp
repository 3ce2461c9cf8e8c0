// Projects and readers may hold anything; the checks must come to an end and say something sane.
#include "doctor/Doctor.h"
#include "doctor/SyntheticLine.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk::doctor {
namespace {

using namespace testing;

struct Strange {
  const char* name;
  void (*make)(TomoDocument&);
};

void fill(TomoDocument& document, double value) {
  for (TraceSet& set : document.recordings.edit().traceSets) {
    for (Trace& trace : set) {
      for (double& sample : trace.samples.edit()) sample = value;
    }
  }
}

void setIntervals(TomoDocument& document, double seconds) {
  for (TraceSet& set : document.recordings.edit().traceSets) {
    for (Trace& trace : set) trace.sampleInterval = seconds;
  }
}

void resize(TomoDocument& document, std::size_t samples) {
  for (TraceSet& set : document.recordings.edit().traceSets) {
    for (Trace& trace : set) trace.samples.edit().resize(samples);
  }
}

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

const Strange kStrange[] = {
    {"all NaN", [](TomoDocument& d) { fill(d, kNan); }},
    {"all infinite", [](TomoDocument& d) { fill(d, kInf); }},
    {"one NaN", [](TomoDocument& d) { tracesOf(d, 1)[3].samples.edit()[500] = kNan; }},
    {"huge", [](TomoDocument& d) { scaleTrace(d, 2, 5, 1e300); }},
    {"tiny", [](TomoDocument& d) { scaleTrace(d, 2, 5, 1e-300); }},
    {"no samples", [](TomoDocument& d) { resize(d, 0); }},
    {"one sample", [](TomoDocument& d) { resize(d, 1); }},
    {"nine samples", [](TomoDocument& d) { resize(d, 9); }},
    {"one long trace", [](TomoDocument& d) { tracesOf(d, 0)[0].samples.edit().resize(100000); }},
    {"one short trace", [](TomoDocument& d) { tracesOf(d, 0)[0].samples.edit().resize(3); }},
    {"interval 0", [](TomoDocument& d) { setIntervals(d, 0.0); }},
    {"no interval", [](TomoDocument& d) { setIntervals(d, Trace().sampleInterval); }},
    {"interval NaN", [](TomoDocument& d) { setIntervals(d, kNan); }},
    {"interval of an hour", [](TomoDocument& d) { setIntervals(d, 3600.0); }},
    {"interval of nothing", [](TomoDocument& d) { setIntervals(d, 1e-300); }},
    {"delay", [](TomoDocument& d) { tracesOf(d, 3)[0].delay = -1e300; }},
    {"one trace", [](TomoDocument& d) { tracesOf(d, 0).resize(1); }},
    {"no traces", [](TomoDocument& d) { tracesOf(d, 0).clear(); }},
    {"no string", [](TomoDocument& d) { d.ttArray.edit()[2].indexStesa = -1; }},
    {"string that is none", [](TomoDocument& d) { d.ttArray.edit()[2].indexStesa = 99; }},
    {"set that is none", [](TomoDocument& d) { d.ttArray.edit()[2].traceSetID = 99; }},
    {"geophones at NaN", [](TomoDocument& d) { placeGeophones(d, kNan, 1.0); }},
    {"geophones far away", [](TomoDocument& d) { placeGeophones(d, 1e300, 1e299); }},
    {"shot at infinity", [](TomoDocument& d) { placeShot(d, 1, kInf); }},
    {"no geophones", [](TomoDocument& d) { d.line.edit().goephonesStringSet[0].clear(); }},
    {"no strings", [](TomoDocument& d) { d.line.edit().goephonesStringSet.clear(); }},
    {"no recordings", [](TomoDocument& d) { d.recordings = Recordings(); }},
    {"nothing", [](TomoDocument& d) { d = TomoDocument(); }},
};

TEST(StrangeRecords, areCheckedToTheEndAndProposalsKeepTheSurveySane) {
  for (const Strange& strange : kStrange) {
    TomoDocument document = soundLine();
    strange.make(document);
    const std::vector<Finding> findings = checkRecordings(document);
    EXPECT_LT(findings.size(), 100U) << strange.name;
    for (const Finding& finding : findings) {
      EXPECT_TRUE(finding.confidence >= 0.0 && finding.confidence <= 1.0) << strange.name;
      EXPECT_FALSE(finding.text.empty()) << strange.name;
      if (!finding.proposal) continue;
      EXPECT_TRUE(std::isfinite(finding.proposal->seconds)) << strange.name << finding.text;
      for (const Point2D& point : finding.proposal->points) {
        EXPECT_TRUE(isFinite(point)) << strange.name << ": " << finding.text;
      }
      // It may be refused; then with a reason.
      const Status status = carryOut(finding, *finding.proposal, document);
      EXPECT_TRUE(status.ok() || !status.message().empty()) << strange.name;
    }
  }
}

}  // namespace
}  // namespace talvesk::doctor
