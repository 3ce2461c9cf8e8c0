#include "batch/SectionJson.h"

#include "model/ChiSquare.h"
#include "model/InversionRecord.h"
#include "model/TomoDocument.h"
#include "tomo/SecondLook.h"

namespace talvesk {

void putTrusted(Json& json, const TomoDocument& document) {
  const SectionMisfit misfit = trustedMisfitOf(document);
  const bool known = misfit.count > 0;
  json["trusted_rmse_ms"] = known ? Json(misfit.rmse * 1000.0) : Json(nullptr);
  json["trusted_rms_percent"] = known ? Json(misfit.relativeRms * 100.0) : Json(nullptr);
}

void putErrors(Json& json, const TomoDocument& document) {
  const PickErrorRule rule = errorRuleOf(document);
  json["sigma_floor_ms"] = rule.floor * 1000.0;
  json["sigma_percent"] = rule.share * 100.0;
  json["least_error_ms"] = kLeastPickError * 1000.0;
  json["errors_raised"] = raisedErrors(document);
}

Json suspectsJson(const std::vector<SuspectPick>& picks) {
  Json suspects = Json::array();
  for (const SuspectPick& each : picks) {
    Json suspect = Json::object();
    suspect["shot"] = each.record;
    suspect["receiver"] = each.receiver;
    suspect["time"] = each.measured;
    suspect["residual_ms"] = each.residual * 1000.0;
    suspect["sigma_ms"] = each.sigma * 1000.0;
    suspects.push_back(std::move(suspect));
  }
  return suspects;
}

}  // namespace talvesk
