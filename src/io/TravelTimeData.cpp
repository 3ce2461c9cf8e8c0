#include "io/TravelTimeData.h"

#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

namespace talvesk {

TravelTimeData travelTimesOf(const TomoDocument& document) {
  TravelTimeData data;
  data.strings = document.line->goephonesStringSet;
  data.records = document.ttArray;
  return data;
}

}  // namespace talvesk
