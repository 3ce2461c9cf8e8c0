#include "io/TravelTimeData.h"

#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

bool tellsErrors(const TravelTime& record) {
  for (std::size_t trace = 0; trace < record.pickErrors.size(); ++trace) {
    if (record.errorOf(trace) > 0.0) return true;
  }
  return false;
}

}  // namespace

bool tellsErrors(const TravelTimeData& data) {
  return std::any_of(data.records.begin(), data.records.end(),
                     [](const TravelTime& record) { return tellsErrors(record); });
}

TravelTimeData travelTimesOf(const TomoDocument& document) {
  TravelTimeData data;
  data.strings = document.line->goephonesStringSet;
  data.records = document.ttArray;
  return data;
}

}  // namespace talvesk
