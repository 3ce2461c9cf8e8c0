#include "batch/CertaintyJson.h"

#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/SectionCertainty.h"

#include <utility>

namespace talvesk {
namespace {

/// Not reached is null, as all that is no number.
Json quantilesJson(const Quantiles& quantiles) {
  Json json = Json::object();
  json["median"] = quantiles.median;
  json["low"] = quantiles.low;
  json["high"] = quantiles.high;
  return json;
}

}  // namespace

Json certaintyJson(const TomoDocument& document) {
  const Certainty& certainty = *document.result->certainty;
  const CertaintyNote note = certaintyNoteOf(document);
  Json json = quantilesJson(certainty.velocities);
  json["spread_percent"] = certaintySpreads(certainty);
  json["percent_beyond"] = note.percentBeyond;
  json["fits"] = note.fits();
  json["picks_changed"] = note.picksChanged;
  json["members"] = certainty.members;
  json["left_out"] = certainty.leftOut;
  json["seed"] = certainty.seed;
  json["deviation"] = certainty.deviations;
  json["members_with_rays"] = certainty.touched;
  Json models = Json::array();
  for (const CertaintyModel& model : certainty.models) {
    Json each = Json::object();
    each["name"] = model.name;
    each["chi2"] = model.chi2;
    each["members"] = model.members;
    models.push_back(std::move(each));
  }
  json["models"] = std::move(models);
  Json bands = Json::array();
  for (const IsovalueBand& band : certainty.bands) {
    Json each = quantilesJson(band.depths);
    each["velocity"] = band.velocity;
    bands.push_back(std::move(each));
  }
  json["depths"] = std::move(bands);
  return json;
}

}  // namespace talvesk
