#include "batch/KnownJson.h"

#include "model/KnownGround.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/fitted/KnownCells.h"

#include <utility>
#include <vector>

namespace talvesk {
namespace {

Json listed(const std::vector<KnownFit::Departure>& departures) {
  Json list = Json::array();
  for (const KnownFit::Departure& each : departures) {
    Json one = Json::object();
    one["name"] = each.name.english();
    one["in_sigma"] = each.inErrors;
    list.push_back(std::move(one));
  }
  return list;
}

}  // namespace

Json constraintsJson(const std::optional<KnownFit>& known) {
  if (!known) return nullptr;
  Json json = Json::object();
  json["count"] = known->all.size();
  json["rms_sigma"] = known->all.empty() ? Json(nullptr) : Json(known->rms());
  json["fixed_cells"] = known->fixedCells;
  json["residuals"] = listed(known->all);
  json["not_honoured"] = listed(known->missed());
  Json unused = Json::array();
  for (const Message& each : known->unused) unused.push_back(each.english());
  json["unused"] = std::move(unused);
  return json;
}

void putKnownGround(Json& json, const TomoDocument& document) {
  const KnownGround& known = *document.known;
  json["known_ground"] = nullptr;
  if (!known.empty()) {
    Json counts = Json::object();
    counts["boreholes"] = known.boreholes.size();
    counts["depths"] = known.depths.size();
    counts["bodies"] = known.bodies.size();
    json["known_ground"] = std::move(counts);
  }
  // Null: the section was not held to any.
  const auto& run = document.result->lastInversion;
  json["known_ground_changed_since"] = run && run->fit && run->fit->known != 0
                                           ? Json(run->fit->known != fingerprintOf(known))
                                           : Json(nullptr);
}

}  // namespace talvesk
