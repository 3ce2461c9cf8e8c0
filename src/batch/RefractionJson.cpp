#include "batch/RefractionJson.h"

#include "batch/JsonText.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

using namespace refractionDataStructure;

Json curveJson(const phantom& curve) {
  Json x = Json::array();
  Json elevation = Json::array();
  for (const Point2D& point : curve.points) {
    x.push_back(point.x);
    elevation.push_back(point.z);
  }
  Json json = Json::object();
  json["shot"] = curve.shotID;
  json["slope"] = curve.slope;
  json["intercept"] = curve.intercept;
  json["reciprocal_time"] = curve.reciprocalTime;
  json["x"] = std::move(x);
  json["elevation"] = std::move(elevation);
  json["times"] = curve.times;
  return json;
}

Json familyJson(const std::vector<double>& family) {
  Json list = Json::array();
  for (std::size_t i = 0; i < kXYFamily.size(); ++i) list.push_back(memberOf(family, i));
  return list;
}

Json refractorJson(const Interpretation& all, std::size_t index) {
  const computedData& data = all.refractData.cData[index];
  Json json = Json::object();
  json["layer"] = index + 2;
  if (index < all.phnt_A.size() && index < all.phnt_R.size()) {
    json["forward"] = curveJson(all.phnt_A[index]);
    json["reverse"] = curveJson(all.phnt_R[index]);
    json["t_ab"] = std::max(all.phnt_A[index].reciprocalTime, all.phnt_R[index].reciprocalTime);
  }
  const bool hasXY = !all.refractData.isFitted();
  if (hasXY) json["xy"] = data.chosenXY;
  json["x"] = data.x;
  json["elevation"] = data.elevation;
  json["tv"] = data.tV;
  json["tg"] = data.tG;
  json["velocity"] = data.velocity;
  json["depth"] = data.depth;
  if (hasXY) {
    json["tv_family"] = familyJson(data.tVs);
    json["tg_family"] = familyJson(data.tGs);
  }
  return json;
}

Json firstLayerJson(const FirstLayer& first) {
  Json json = Json::object();
  json["x"] = first.x;
  json["velocity"] = first.velocity;
  json["growth"] = first.growth;
  json["grows_to"] = first.growsTo;
  return json;
}

Json misfitJson(const LayerMisfit& one) {
  Json json = Json::object();
  json["picks"] = one.picks;
  json["rms"] = one.rms;
  json["mean"] = one.mean;
  json["chi2"] = one.chi2;
  return json;
}

Json fitJson(const LayeredFit& fit) {
  Json shots = Json::array();
  for (const LayerMisfit& one : fit.perShot) {
    Json json = Json::object();
    json["shot"] = one.shot;
    json["layer"] = one.layer;
    json.update(misfitJson(one));
    shots.push_back(std::move(json));
  }
  Json layers = Json::array();
  for (const LayerMisfit& one : fit.perLayer) {
    Json json = Json::object();
    json["layer"] = one.layer;
    json.update(misfitJson(one));
    layers.push_back(std::move(json));
  }
  Json json = Json::object();
  json["all"] = misfitJson(fit.total);
  json["layers"] = std::move(layers);
  json["shots"] = std::move(shots);
  return json;
}

Json groundJson(const GroundFit& ground) {
  Json json = Json::object();
  json["layers"] = ground.layers;
  json["misfit"] = ground.misfit;
  json["chi2"] = ground.chi2;
  json["unknowns"] = ground.unknowns;
  json["criterion"] = ground.criterion;
  json["velocities"] = ground.velocities;
  if (ground.layers == 0) json["gradient"] = ground.gradient;
  return json;
}

Json proposalJson(const SurveyProposal& proposal) {
  Json grounds = Json::array();
  for (const GroundFit& ground : proposal.grounds) {
    if (ground.fitted) grounds.push_back(groundJson(ground));
  }
  Json pieces = Json::array();
  for (const ShortPiece& piece : proposal.shortPieces) {
    Json json = Json::object();
    json["shot"] = piece.shot;
    json["side"] = piece.side == Side::kRight ? "right" : "left";
    json["layer"] = piece.layer;
    json["picks"] = piece.picks;
    pieces.push_back(std::move(json));
  }
  Json left = Json::array();
  for (const TraceRef& pick : proposal.standOut) {
    Json json = Json::object();
    json["shot"] = pick.shot;
    json["trace"] = pick.trace;
    left.push_back(std::move(json));
  }
  Json json = Json::object();
  json["statement"] = proposal.statement().english();
  json["layers"] = proposal.hasLayers() ? proposal.grounds[*proposal.chosen].layers : 0U;
  json["grounds"] = std::move(grounds);
  json["short_pieces"] = std::move(pieces);
  json["stand_out"] = std::move(left);
  return json;
}

}  // namespace

std::string refractionJson(const Interpretation& interpretation, const LayeredFit& fit,
                           const std::optional<SurveyProposal>& proposal,
                           const std::vector<std::string>& warnings,
                           const LayerFindings& findings) {
  Json shots = Json::array();
  for (const layerStruct& marks : interpretation.ttLayer) {
    Json shot = Json::object();
    shot["shot"] = marks.shotID;
    shot["enabled"] = marks.enabled;
    shot["layers"] = marks.layer;
    shot["shifts"] = marks.trasla;
    if (marks.shotID < fit.times.size()) shot["times"] = fit.times[marks.shotID];
    shots.push_back(std::move(shot));
  }
  Json refractors = Json::array();
  for (std::size_t i = 0; i < interpretation.refractData.cData.size(); ++i) {
    refractors.push_back(refractorJson(interpretation, i));
    addFindings(findings, i, refractors.back());
  }
  Json json = Json::object();
  const double v1 = interpretation.refractData.v1;
  json["v1"] = v1 > 0.0 ? v1 : std::nan("");  // 0 before anything was built
  json["profile"] = interpretation.refractData.isFitted() ? "fitted" : "reciprocal";
  if (interpretation.refractData.isFitted()) {
    json["first_layer"] = firstLayerJson(interpretation.refractData.first);
  } else {
    json["xy_family"] = kXYFamily;
  }
  json["refractors"] = std::move(refractors);
  json["shots"] = std::move(shots);
  if (proposal) json["proposal"] = proposalJson(*proposal);
  if (fit.total.picks > 0) json["misfit"] = fitJson(fit);
  if (findings.comparison) json["comparison"] = comparisonJson(*findings.comparison);
  json["warnings"] = warnings;
  return linePerKey(json) + "\n";
}

}  // namespace talvesk
