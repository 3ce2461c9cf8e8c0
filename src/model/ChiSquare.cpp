#include "model/ChiSquare.h"

#include "model/Mending.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kSuspectErrors = 5.0;
constexpr double kSuspectDeviations = 3.5;  // Iglewicz and Hoaglin, How to detect outliers, 1993
constexpr double kLeastError = 1e-5;        // seconds; no instrument samples as finely
constexpr double kNormalMedian = 0.6745;    // of the sizes of normal deviates

double medianSize(const std::vector<double>& scaled) {
  std::vector<double> sizes;
  sizes.reserve(scaled.size());
  for (const double u : scaled) sizes.push_back(std::fabs(u));
  const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
  std::nth_element(sizes.begin(), middle, sizes.end());
  if (sizes.size() % 2 == 1) return *middle;
  return 0.5 * (*middle + *std::max_element(sizes.begin(), middle));
}

}  // namespace

double sigmaOf(const TravelTime& record, std::size_t receiver, const PickErrorRule& rule) {
  const double own = record.errorOf(receiver);
  if (own > 0.0) return std::max(own, kLeastError);
  return std::max(rule.floor, rule.share * record.ttMisurati[receiver]);
}

ChiSquare chiSquareOf(const std::vector<double>& scaled) {
  ChiSquare result;
  result.count = scaled.size();
  if (scaled.empty()) return result;
  const double deviation = medianSize(scaled) / kNormalMedian;
  result.robust = deviation * deviation;
  const double limit = std::max(kSuspectErrors, kSuspectDeviations * deviation);
  double kept = 0.0;
  double sum = 0.0;
  for (std::size_t i = 0; i < scaled.size(); ++i) {
    const double square = scaled[i] * scaled[i];
    sum += square;
    if (std::fabs(scaled[i]) > limit) {
      result.suspects.push_back(i);
    } else {
      kept += square;
    }
  }
  // The median itself is never suspect, so something is always kept.
  result.chi2 = kept / static_cast<double>(scaled.size() - result.suspects.size());
  result.all = sum / static_cast<double>(scaled.size());
  return result;
}

ChiSquare chiSquareOf(const TomoDocument& document, const std::vector<Residual>& residuals,
                      const PickErrorRule& rule) {
  std::vector<double> scaled;
  scaled.reserve(residuals.size());
  for (const Residual& each : residuals) {
    scaled.push_back(each.residual / sigmaOf(document.ttArray[each.record], each.receiver, rule));
  }
  return chiSquareOf(scaled);
}

PickErrorRule errorRuleOf(const TomoDocument& document) {
  const auto& run = document.result->lastInversion;
  if (!document.result->has_tomographic_info || !run || !run->fit) return {};
  return {run->fit->errorFloor, run->fit->errorShare};
}

double outstandingShift(const TomoDocument& document, std::size_t record) {
  const auto& run = document.result->lastInversion;
  if (!document.result->has_tomographic_info || !run || !run->fit) return 0.0;
  const std::vector<FoundShift>& shifts = run->fit->shifts;
  if (record >= shifts.size() || shifts[record].late == 0.0) return 0.0;
  const ShotMends& mends = mendsOfRecord(document, static_cast<std::int32_t>(record));
  return mends.timeShift == shifts[record].mended ? shifts[record].late : 0.0;
}

std::vector<Residual> sectionResidualsOf(const TomoDocument& document) {
  if (sectionMisfitOf(document).count == 0) return {};
  std::vector<Residual> residuals = residualsOf(document);
  for (Residual& each : residuals) each.residual += outstandingShift(document, each.record);
  return residuals;
}

ChiSquare sectionChiSquareOf(const TomoDocument& document) {
  ChiSquare fit = chiSquareOf(document, sectionResidualsOf(document), errorRuleOf(document));
  for (std::size_t i = 0; i < document.ttArray.size() && !fit.shifted; ++i) {
    fit.shifted = fit.count > 0 && outstandingShift(document, i) != 0.0;
  }
  return fit;
}

}  // namespace talvesk
