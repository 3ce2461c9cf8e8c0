#include "model/ChiSquare.h"

#include "model/Mending.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

double sigmaOf(const TravelTime& record, std::size_t receiver, const PickErrorRule& rule) {
  const double own = record.errorOf(receiver);
  if (own > 0.0) return std::max(own, kLeastPickError);
  return std::max(rule.floor, rule.share * record.ttMisurati[receiver]);
}

std::size_t raisedErrors(const TomoDocument& document) {
  std::size_t count = 0;
  for (const TravelTime& record : *document.ttArray) {
    for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
      const double own = record.errorOf(trace);
      if (own > 0.0 && own < kLeastPickError) ++count;
    }
  }
  return count;
}

ChiSquare chiSquareOf(const std::vector<double>& scaled) {
  ChiSquare result;
  result.count = scaled.size();
  if (scaled.empty()) return result;
  const double deviation = robustDeviation(scaled);
  result.robust = deviation * deviation;
  result.limit = std::max(kSuspectErrors, kGrossDeviations * deviation);
  double kept = 0.0;
  double sum = 0.0;
  for (std::size_t i = 0; i < scaled.size(); ++i) {
    const double square = scaled[i] * scaled[i];
    sum += square;
    if (std::fabs(scaled[i]) > kSuspectErrors) ++result.beyond;
    if (std::fabs(scaled[i]) > result.limit) {
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

PickErrorRule errorRuleOf(const InversionRecord& run) {
  if (run.fit) return {run.fit->errorFloor, run.fit->errorShare};
  if (run.errorFloor > 0.0) return {run.errorFloor, run.errorShare};
  return {};
}

PickErrorRule errorRuleOf(const TomoDocument& document) {
  const auto& run = document.result->lastInversion;
  if (!document.result->has_tomographic_info || !run) return {};
  return errorRuleOf(*run);
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

SectionMisfit trustedMisfitOf(const TomoDocument& document) {
  std::vector<Residual> residuals = sectionResidualsOf(document);
  const std::vector<std::size_t> suspects =
      chiSquareOf(document, residuals, errorRuleOf(document)).suspects;
  for (auto each = suspects.rbegin(); each != suspects.rend(); ++each) {
    residuals.erase(residuals.begin() + static_cast<std::ptrdiff_t>(*each));
  }
  return misfitOf(residuals);
}

}  // namespace talvesk
