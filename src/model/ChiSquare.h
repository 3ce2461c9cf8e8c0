#pragma once

#include "model/Parameters.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;
struct InversionRecord;
struct Residual;
struct SectionMisfit;
struct TravelTime;

/// The error of a pick that states none: the floor, or a share of its time where that is more.
struct PickErrorRule {
  double floor = parameters::kErrorFloor.initial / 1000.0;  ///< seconds, positive
  double share = parameters::kErrorShare.initial / 100.0;   ///< of the time, not negative
};

/// One standard deviation of a pick, seconds: its own where it states one, else that of the rule.
double sigmaOf(const TravelTime& record, std::size_t receiver, const PickErrorRule& rule);

/// Errors that a pick may be off by at least before it is suspect.
inline constexpr double kSuspectErrors = 5.0;

/// Errors that picks state are taken as this much where they are less, seconds: no instrument
/// samples as finely.
inline constexpr double kLeastPickError = 1e-5;
/// How many picks state less.
std::size_t raisedErrors(const TomoDocument& document);

/// How times fit picks, measured by the errors of the picks: 1 is a fit as good as they are.
struct ChiSquare {
  double chi2 = 0.0;      ///< mean square of the residuals over their errors, suspects left out
  double all = 0.0;       ///< the same of all picks
  double robust = 0.0;    ///< from the median of the sizes, which gross errors hardly change
  std::size_t count = 0;  ///< picks, suspects included; 0 means that nothing here is valid
  std::vector<std::size_t> suspects;  ///< indices of the residuals, ascending
  double limit = kSuspectErrors;      ///< errors that a suspect is off by at least
  std::size_t beyond = 0;             ///< picks off by more than kSuspectErrors, suspect or not
  bool shifted = false;               ///< counts time shifts of shots, see outstandingShift()
};

/// A pick is suspect when it is off by more than five of its errors and, where the times do not fit
/// the picks at all yet, stands out from the rest by 3.5 robust deviations.
/// \param scaled residuals over their errors, all finite
ChiSquare chiSquareOf(const std::vector<double>& scaled);

/// Of the computed times of a document, whatever they come from. \param residuals residualsOf()
ChiSquare chiSquareOf(const TomoDocument& document, const std::vector<Residual>& residuals,
                      const PickErrorRule& rule);

/// By what rule picks that state no error are told of where a section comes from such an inversion.
PickErrorRule errorRuleOf(const InversionRecord& run);
/// The same of the section that a document holds; the usual one where no inversion is known.
PickErrorRule errorRuleOf(const TomoDocument& document);

/// Seconds that a record begins too late by, as the fit of its section has found; 0 as soon as the
/// record has been given another time shift than it had by then.
double outstandingShift(const TomoDocument& document, std::size_t record);

/// The residuals of the section that the document holds, with outstanding shifts; none when the
/// computed times are not those through it.
std::vector<Residual> sectionResidualsOf(const TomoDocument& document);

/// Of the section that the document holds: those residuals over their errors; count 0 without any.
/// The suspects are indices of them.
ChiSquare sectionChiSquareOf(const TomoDocument& document);

/// What that chi-square is made of, in times: suspects are left out, outstanding shifts counted.
SectionMisfit trustedMisfitOf(const TomoDocument& document);

}  // namespace talvesk
