#include "model/ModelLoss.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk {
namespace {

/// Metres: what interpolating between two points may lose, and nothing that a ray would notice.
constexpr double kSameElevation = 1e-9;

double elevationAt(const SurveyProfile& profile, double x) {
  const auto right = std::lower_bound(profile.x.begin(), profile.x.end(), x);
  const auto i = right - profile.x.begin();
  if (right == profile.x.end()) return profile.elevation.back();
  if (i == 0 || *right == x) return profile.elevation[i];
  const double part = (x - profile.x[i - 1]) / (*right - profile.x[i - 1]);
  return profile.elevation[i - 1] + part * (profile.elevation[i] - profile.elevation[i - 1]);
}

/// Whether a surface has the other's elevations wherever the other bends.
bool follows(const SurveyProfile& surface, const SurveyProfile& other) {
  for (std::size_t i = 0; i < other.x.size(); ++i) {
    // False for numbers that are none, too.
    if (!(std::fabs(elevationAt(surface, other.x[i]) - other.elevation[i]) <= kSameElevation)) {
      return false;
    }
  }
  return true;
}

bool sameGround(const SurveyProfile& a, const SurveyProfile& b) {
  if (a.x.empty() || b.x.empty() || !a.hasGeometry() || !b.hasGeometry()) return false;
  return a.minX == b.minX && a.maxX == b.maxX && follows(a, b) && follows(b, a);
}

}  // namespace

ModelLoss modelLoss(const TomoDocument& document, const SurveyProfile& next) {
  if (document.model->grid == nullptr) return ModelLoss::kNothing;
  if (!sameGround(document.surveyProfile(), next)) return ModelLoss::kGrid;
  return document.result->has_tomographic_info ? ModelLoss::kResults : ModelLoss::kNothing;
}

void forgetModel(ModelLoss loss, TomoDocument& document) {
  if (loss == ModelLoss::kNothing) return;
  if (loss == ModelLoss::kGrid) {
    document.clearModelAndResults();
  } else if (document.model->grid != nullptr) {
    document.clearInversion();
    document.result.edit().info_density.assign(document.model->grid->cellCount(), -1.0);
  }
  for (TravelTime& record : document.ttArray.edit()) {
    record.ttCalcolati = std::vector<double>(record.ttMisurati.size(), kNoTime);
  }
}

}  // namespace talvesk
