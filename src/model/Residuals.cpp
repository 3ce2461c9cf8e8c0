#include "model/Residuals.h"

#include "model/PickFingerprint.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

std::vector<Residual> residualsOf(const TomoDocument& document) {
  std::vector<Residual> residuals;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const auto string = static_cast<std::size_t>(std::max(record.indexStesa, 0));
    const std::size_t count = std::min(record.ttMisurati.size(), record.ttCalcolati.size());
    for (std::size_t j = 0; j < count; ++j) {
      const double computed = record.ttCalcolati[j];
      if (!hasPick(record.ttMisurati[j]) || computed == kNoTime) continue;
      double offset = std::nan("");
      if (record.indexStesa >= 0 && string < document.line->goephonesStringSet.size() &&
          j < document.line->goephonesStringSet[string].size()) {
        offset = std::abs(document.line->goephonesStringSet[string][j].x - record.shotPos2d.x);
      }
      residuals.push_back({i, j, offset, record.ttMisurati[j], computed - record.ttMisurati[j]});
    }
  }
  return residuals;
}

namespace {

double trimmedRms(const std::vector<Residual>& residuals) {
  std::vector<double> values;
  for (const Residual& each : residuals) values.push_back(each.residual);
  const double limit = kGrossDeviations * robustDeviation(values);
  double squares = 0.0;
  std::size_t count = 0;
  for (const double value : values) {
    if (std::fabs(value) > limit) continue;
    squares += value * value;
    ++count;
  }
  // The least one never stands out.
  return std::sqrt(squares / static_cast<double>(count));
}

}  // namespace

SectionMisfit misfitOf(const std::vector<Residual>& residuals) {
  SectionMisfit misfit;
  double squares = 0.0;
  double relativeSquares = 0.0;
  double sum = 0.0;
  for (const Residual& each : residuals) {
    ++misfit.count;
    const double relative = each.residual / each.measured;
    squares += each.residual * each.residual;
    relativeSquares += relative * relative;
    sum += each.residual;
    if (misfit.maxShot >= 0 && std::fabs(each.residual) <= misfit.maxAbs) continue;
    misfit.maxAbs = std::fabs(each.residual);
    misfit.maxShot = static_cast<std::int32_t>(each.record);
    misfit.maxReceiver = static_cast<std::int32_t>(each.receiver);
  }
  if (misfit.count == 0) return misfit;
  misfit.rmse = std::sqrt(squares / misfit.count);
  misfit.relativeRms = std::sqrt(relativeSquares / misfit.count);
  misfit.bias = sum / misfit.count;
  misfit.trimmed = trimmedRms(residuals);
  return misfit;
}

SectionMisfit misfitOfTimes(const TomoDocument& document) {
  return misfitOf(residualsOf(document));
}

SectionMisfit sectionMisfitOf(const TomoDocument& document) {
  if (!document.result->has_tomographic_info || !document.result->timesOfSection) return {};
  return misfitOfTimes(document);
}

bool picksChangedSince(const TomoDocument& document) {
  return document.result->lastInversion && document.result->lastInversion->picks != 0 &&
         document.result->lastInversion->picks != fingerprintOfPicks(document.ttArray);
}

}  // namespace talvesk
