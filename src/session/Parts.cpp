#include "session/Parts.h"

#include "io/Survey.h"
#include "model/Annotations.h"
#include "model/GroundModel.h"
#include "model/KeptRun.h"
#include "model/KnownGround.h"
#include "model/Recordings.h"
#include "model/RefractionDataStructure.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "refraction/ShotArrivals.h"
#include "view/ColorPalette.h"

#include <algorithm>
#include <cstring>
#include <unordered_set>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;

bool samePoint(const Point2D& a, const Point2D& b) {
  const auto same = [](double x, double y) { return x == y || (x != x && y != y); };
  return same(a.x, b.x) && same(a.z, b.z);
}

void compareRecords(const SharedVector<TravelTime>& a, const SharedVector<TravelTime>& b,
                    PartSet& parts) {
  if (a.isSharedWith(b)) return;
  if (a.size() != b.size()) {
    for (const Part part : {Part::kPicks, Part::kGeometry}) parts.add(part);
  }
  for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
    if (a[i].ttMisurati != b[i].ttMisurati || a[i].unconfirmed != b[i].unconfirmed ||
        a[i].pickErrors != b[i].pickErrors) {
      parts.add(Part::kPicks);
    }
    if (!samePoint(a[i].shotPos2d, b[i].shotPos2d) || a[i].indexStesa != b[i].indexStesa ||
        a[i].traceSetID != b[i].traceSetID) {
      parts.add(Part::kGeometry);
    }
    if (a[i].ttCalcolati != b[i].ttCalcolati) parts.add(Part::kResult);
  }
}

bool sameMarks(const Interpretation& a, const Interpretation& b) {
  return std::equal(a.ttLayer.begin(), a.ttLayer.end(), b.ttLayer.begin(), b.ttLayer.end(),
                    [](const auto& x, const auto& y) {
                      return x.shotID == y.shotID && x.layer == y.layer && x.enabled == y.enabled;
                    });
}

/// As they stand in memory: what is no number is itself.
template <typename T>
bool sameBytes(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0);
}

bool sameCurves(const std::vector<refractionDataStructure::phantom>& a,
                const std::vector<refractionDataStructure::phantom>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
    return x.enabled == y.enabled && x.layer == y.layer && x.shotID == y.shotID &&
           sameBytes(x.points, y.points) && sameBytes(x.times, y.times);
  });
}

bool sameProfile(const Interpretation& a, const Interpretation& b) {
  using refractionDataStructure::computedData;
  const auto sameShifts = [](const auto& x, const auto& y) {
    return sameBytes(x.trasla, y.trasla);
  };
  const auto sameData = [](const computedData& x, const computedData& y) {
    for (const auto values : {&computedData::tG, &computedData::tV, &computedData::tGs,
                              &computedData::tVs, &computedData::x, &computedData::elevation,
                              &computedData::velocity, &computedData::depth}) {
      if (!sameBytes(x.*values, y.*values)) return false;
    }
    return x.chosenXY == y.chosenXY;
  };
  const auto& p = a.refractData;
  const auto& q = b.refractData;
  // Shots that were added have no shifts.
  const std::size_t shots = std::min(a.ttLayer.size(), b.ttLayer.size());
  return sameCurves(a.phnt_A, b.phnt_A) && sameCurves(a.phnt_R, b.phnt_R) && p.v1 == q.v1 &&
         sameBytes(p.v2, q.v2) && sameBytes(p.v3, q.v3) && p.picks == q.picks &&
         sameBytes(p.first.x, q.first.x) && sameBytes(p.first.velocity, q.first.velocity) &&
         p.first.growth == q.first.growth && p.first.growsTo == q.first.growsTo &&
         std::equal(p.cData.begin(), p.cData.end(), q.cData.begin(), q.cData.end(), sameData) &&
         std::equal(a.ttLayer.begin(), a.ttLayer.begin() + static_cast<std::ptrdiff_t>(shots),
                    b.ttLayer.begin(), sameShifts);
}

bool hasProfile(const Interpretation& interpretation) {
  return !interpretation.phnt_A.empty() || !interpretation.phnt_R.empty() ||
         !interpretation.refractData.cData.empty() || interpretation.refractData.v1 != 0.0;
}

void compareInterpretations(const Shared<Interpretation>& a, const Shared<Interpretation>& b,
                            PartSet& parts) {
  if (a.isSharedWith(b)) return;
  if (!sameMarks(*a, *b)) parts.add(Part::kMarks);
  if (!sameProfile(*a, *b)) parts.add(Part::kProfile);
}

bool sameView(SectionViewSettings a, const SectionViewSettings& b) {
  a.contours = b.contours;
  a.lockRange = b.lockRange;
  return a == b;
}

/// Adds up what one survey does not share with another.
class Sum {
 public:
  template <typename T>
  void add(const std::vector<T>& values) {
    mBytes += values.size() * sizeof(T);
  }
  template <typename T>
  void add(const SharedVector<T>& values, const SharedVector<T>* other) {
    if (other == nullptr || !values.isSharedWith(*other)) add(*values);
  }
  void addDoubles(std::size_t count) { mBytes += count * sizeof(double); }
  std::size_t bytes() const { return mBytes; }

 private:
  std::size_t mBytes = 0;
};

template <typename T>
const T* entry(const std::vector<T>& list, std::size_t i) {
  return i < list.size() ? &list[i] : nullptr;
}

constexpr auto kSamplesOfTrace = {&Trace::samples, &Trace::samplesDX, &Trace::samplesSX,
                                  &Trace::filtered};

/// Samples that somebody has, by their place in memory: what one survey shows may be what another
/// keeps as the original of a mended trace.
using SamplesSeen = std::unordered_set<const void*>;

SamplesSeen samplesOf(const Recordings& recordings) {
  SamplesSeen seen;
  for (const auto* sets : {&recordings.traceSets, &recordings.originals}) {
    for (const TraceSet& traces : *sets) {
      for (const Trace& trace : traces) {
        for (auto samples : kSamplesOfTrace) seen.insert((trace.*samples).block());
      }
    }
  }
  return seen;
}

void addRecordings(const Recordings& survey, const Recordings& other, Sum& sum) {
  SamplesSeen seen = samplesOf(other);
  for (const auto* sets : {&survey.traceSets, &survey.originals}) {
    for (const TraceSet& traces : *sets) {
      sum.add(traces);
      for (const Trace& trace : traces) {
        for (auto samples : kSamplesOfTrace) {
          const Samples& each = trace.*samples;
          if (seen.insert(each.block()).second && !each.onDisk()) sum.addDoubles(each.size());
        }
      }
    }
  }
}

void addRecords(const SharedVector<TravelTime>& survey, const SharedVector<TravelTime>& other,
                Sum& sum) {
  sum.add(*survey);
  for (std::size_t i = 0; i < survey.size(); ++i) {
    const TravelTime* twin = entry(*other, i);
    for (auto times : {&TravelTime::ttMisurati, &TravelTime::ttCalcolati}) {
      sum.add(survey[i].*times, twin != nullptr ? &(twin->*times) : nullptr);
    }
  }
}

void addModel(const GroundModel& survey, const GroundModel& other, Sum& sum) {
  if (survey.grid == nullptr || survey.grid == other.grid) return;
  const bool sameCells =
      other.grid != nullptr && survey.grid->sharedGeometry() == other.grid->sharedGeometry();
  sum.add(survey.grid->slownesses());
  // Of a geometry the depths of lines and nodes, a few numbers per cell.
  for (int i = 0; i < (sameCells ? 0 : 4); ++i) sum.add(survey.grid->slownesses());
}

void addResult(const TomographyOutcome& survey, const TomographyOutcome& other, Sum& sum) {
  sum.add(survey.info_density);
  sum.add(survey.coorcount);
  sum.add(survey.hitCounts);
  if (survey.rays.isSharedWith(other.rays)) return;
  sum.add(*survey.rays);
  for (const auto& ray : survey.rays) sum.add(ray);
}

/// Of runs that the other survey does not have.
void addRuns(const SharedVector<KeptRun>& runs, const SharedVector<KeptRun>& other, Sum& sum) {
  for (const KeptRun& run : runs) {
    const bool shared = std::any_of(other.begin(), other.end(), [&](const KeptRun& each) {
      return each.slowness.isSharedWith(run.slowness);
    });
    if (shared) continue;
    sum.add(*run.slowness);
    sum.add(*run.coorcount);
    sum.add(*run.hitCounts);
    for (const auto& times : run.times) sum.add(*times);
  }
}

void addInterpretation(const Interpretation& interpretation, Sum& sum) {
  for (const auto& shot : interpretation.ttLayer) {
    sum.add(shot.layer);
    sum.add(shot.trasla);
  }
  for (const auto* curves : {&interpretation.phnt_A, &interpretation.phnt_R}) {
    for (const auto& curve : *curves) {
      sum.add(curve.points);
      sum.add(curve.times);
    }
  }
  for (const auto& data : interpretation.refractData.cData) {
    for (const auto* values : {&data.tG, &data.tV, &data.tGs, &data.tVs, &data.x, &data.elevation,
                               &data.velocity, &data.depth}) {
      sum.add(*values);
    }
  }
}

/// The records stay, and so do their rows of marks.
void forgetMarks(Survey& survey) {
  const auto isMarked = [](const auto& shot) {
    return !shot.enabled || std::any_of(shot.layer.begin(), shot.layer.end(),
                                        [](std::uint32_t layer) { return layer != 0; });
  };
  const auto& marks = survey.interpretation->ttLayer;
  if (std::none_of(marks.begin(), marks.end(), isMarked)) return;
  for (auto& shot : survey.interpretation.edit().ttLayer) {
    std::fill(shot.layer.begin(), shot.layer.end(), refractionDataStructure::kNoLayer);
    shot.enabled = true;
  }
}

}  // namespace

PartSet differingParts(const Survey& a, const Survey& b) {
  PartSet parts;
  const auto addIf = [&parts](bool differs, Part part) {
    if (differs) parts.add(part);
  };
  addIf(!a.document.recordings.isSharedWith(b.document.recordings), Part::kRecordings);
  compareRecords(a.document.ttArray, b.document.ttArray, parts);
  addIf(!a.document.line.isSharedWith(b.document.line), Part::kGeometry);
  addIf(!a.document.model.isSharedWith(b.document.model), Part::kModel);
  addIf(!a.document.result.isSharedWith(b.document.result), Part::kResult);
  compareInterpretations(a.interpretation, b.interpretation, parts);
  const bool samePalettes = a.palettes.isSharedWith(b.palettes) || *a.palettes == *b.palettes;
  addIf(!samePalettes || a.document.title != b.document.title ||
            a.section.contours != b.section.contours || a.section.lockRange != b.section.lockRange,
        Part::kLook);
  addIf(!a.document.map.isSharedWith(b.document.map), Part::kMap);
  addIf(!a.document.runs.isSharedWith(b.document.runs), Part::kRuns);
  addIf(!a.document.known.isSharedWith(b.document.known) && *a.document.known != *b.document.known,
        Part::kKnown);
  addIf(!a.document.annotations.isSharedWith(b.document.annotations) &&
            *a.document.annotations != *b.document.annotations,
        Part::kAnnotations);
  addIf(!sameView(a.section, b.section), Part::kView);
  return parts;
}

std::size_t bytesNotShared(const Survey& survey, const Survey& other) {
  Sum sum;
  const TomoDocument& a = survey.document;
  const TomoDocument& b = other.document;
  if (!a.recordings.isSharedWith(b.recordings)) addRecordings(*a.recordings, *b.recordings, sum);
  if (!a.ttArray.isSharedWith(b.ttArray)) addRecords(a.ttArray, b.ttArray, sum);
  if (!a.model.isSharedWith(b.model)) addModel(*a.model, *b.model, sum);
  if (!a.result.isSharedWith(b.result)) addResult(*a.result, *b.result, sum);
  if (!a.runs.isSharedWith(b.runs)) addRuns(a.runs, b.runs, sum);
  if (!survey.interpretation.isSharedWith(other.interpretation)) {
    addInterpretation(*survey.interpretation, sum);
  }
  return sum.bytes();
}

void forgetPart(Part part, Survey& survey) {
  TomoDocument& document = survey.document;
  switch (part) {
    case Part::kRecordings:
      document.recordings = {};
      break;
    case Part::kPicks:
    case Part::kGeometry:
      break;  // no edit makes them void that does not also replace them
    case Part::kModel:
      if (document.model->grid != nullptr) document.clearModelAndResults();
      break;
    case Part::kResult:
      if (!document.result->has_tomographic_info) break;
      document.clearInversion();
      if (document.model->grid != nullptr) {
        document.result.edit().info_density.assign(document.model->grid->cellCount(), -1.0);
      }
      break;
    case Part::kMarks:
      forgetMarks(survey);
      break;
    case Part::kProfile:
      if (hasProfile(*survey.interpretation)) forgetResults(survey.interpretation.edit());
      break;
    case Part::kLook:
    case Part::kView:
      break;
    case Part::kMap:
      document.map = {};
      break;
    case Part::kRuns:
      if (!document.runs.empty()) document.runs = {};
      break;
    case Part::kKnown:
      if (!document.known->empty()) document.known = {};
      break;
    case Part::kAnnotations:
      if (!document.annotations->empty()) document.annotations = {};
      break;
  }
}

}  // namespace talvesk
