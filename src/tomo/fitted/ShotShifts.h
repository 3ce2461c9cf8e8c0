#pragma once

#include "tomo/fitted/FitData.h"

#include <vector>

namespace talvesk {

/// From how many errors on what is off counts by its size instead of its square (Huber): squares
/// up to there are 95 % as good as least squares on normal errors.
constexpr double kHuber = 1.345;

/// What a time shift counts by beside its error: shots are hardly ever late, but then by much.
/// \param shift, error seconds, the error positive
double shiftWeight(double shift, double error);

/// The time shifts of shots that explain most of what times leave of their picks, by Huber's
/// measure: a shot that is late as a whole is told from picks that are off one by one. They add up
/// to zero.
/// \param times computed, seconds per pick
/// \param triggerError how far shots are thought to be off, seconds, positive
/// \param robust false: by squares
/// \return seconds per shot of the data, late is positive
std::vector<double> shotShifts(const FitData& data, const std::vector<double>& times,
                               double triggerError, bool robust);

/// The time shifts of shots that stand out from the others, by the times there and back between
/// shots, which are equal whatever the ground: nothing is asked of a model. Zero for all others and
/// for shots that fewer than two others tell of.
/// \return seconds per shot of the data, late is positive
std::vector<double> reciprocalShifts(const FitData& data, double triggerError);

/// The same, also by what times leave of a shot's picks as a whole: of shots that others tell
/// little of, and as much of a shift as a section that knows of none has not made up for. \param
/// times computed, seconds per pick
std::vector<double> seemingShifts(const FitData& data, const std::vector<double>& times,
                                  double triggerError);

/// The same picks as if no shot stood out so. Models that are read from the picks would else have a
/// hollow under a shot that is late.
FitData picksOnTime(FitData data, double triggerError);

}  // namespace talvesk
