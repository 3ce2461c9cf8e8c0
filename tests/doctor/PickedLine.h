#pragma once

#include "doctor/SyntheticLine.h"

namespace talvesk::doctor::testing {

/// Gives every trace of a sound line the pick that is true, late by as much as its shot is.
/// \param late seconds, by shot; shorter where the rest is on time
inline void pickLine(TomoDocument& document, const std::vector<double>& late = {}) {
  std::vector<TravelTime>& records = document.ttArray.edit();
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::vector<Point2D> receivers = document.receiversOf(records[i]);
    std::vector<double>& times = records[i].ttMisurati.edit();
    for (std::size_t t = 0; t < times.size(); ++t) {
      times[t] =
          arrival(records[i].shotPos2d.x, receivers[t].x) + (i < late.size() ? late[i] : 0.0);
    }
  }
}

}  // namespace talvesk::doctor::testing
