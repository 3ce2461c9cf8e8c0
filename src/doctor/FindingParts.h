#pragma once

#include "doctor/Finding.h"
#include "doctor/SurveyView.h"

#include <functional>
#include <vector>

namespace talvesk::doctor {

// What findings are put together of.

Message milliseconds(double seconds);  ///< as a number, without the unit

/// That a record is late, or early, by what the times to other shots and back say.
/// \param shift, error seconds; positive is late \param pairs that agree
Message lateByOthers(double shift, double error, std::size_t pairs);
Message lateOrEarly(double shift);

/// A finding about a shot that shows its arrivals.
Finding aboutShot(Finding::Kind kind, const ShotView& shot, double confidence, Message text);

Proposal moveShot(Point2D point);
Proposal moveGeophones(std::vector<Point2D> points);
Proposal ofTraces(Proposal::Kind kind, std::vector<std::size_t> traces);

/// Traces, or shots, as users count them: "trace 3", "traces 3, 5 and 17".
Message traceList(const std::vector<std::size_t>& traces);
Message shotList(const std::vector<std::size_t>& shots);

/// What a check finds in each shot, in the order of the shots. It runs on several threads.
std::vector<Finding> findInEachShot(
    const SurveyView& view, const std::function<std::vector<Finding>(const ShotView&)>& check);

}  // namespace talvesk::doctor
