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
  json["xy"] = data.chosenXY;
  json["x"] = data.x;
  json["elevation"] = data.elevation;
  json["tv"] = data.tV;
  json["tg"] = data.tG;
  json["velocity"] = data.velocity;
  json["depth"] = data.depth;
  json["tv_family"] = familyJson(data.tVs);
  json["tg_family"] = familyJson(data.tGs);
  return json;
}

}  // namespace

std::string refractionJson(const Interpretation& interpretation,
                           const std::vector<RefractionWarning>& warnings,
                           const LayerFindings& findings) {
  Json shots = Json::array();
  for (const layerStruct& marks : interpretation.ttLayer) {
    Json shot = Json::object();
    shot["shot"] = marks.shotID;
    shot["enabled"] = marks.enabled;
    shot["layers"] = marks.layer;
    shot["shifts"] = marks.trasla;
    shots.push_back(std::move(shot));
  }
  Json refractors = Json::array();
  for (std::size_t i = 0; i < interpretation.refractData.cData.size(); ++i) {
    refractors.push_back(refractorJson(interpretation, i));
    addFindings(findings, i, refractors.back());
  }
  Json texts = Json::array();
  for (const RefractionWarning& warning : warnings) texts.push_back(warning.text());
  Json json = Json::object();
  const double v1 = interpretation.refractData.v1;
  json["v1"] = v1 > 0.0 ? v1 : std::nan("");  // 0 before anything was built
  json["xy_family"] = kXYFamily;
  json["refractors"] = std::move(refractors);
  json["shots"] = std::move(shots);
  if (findings.comparison) json["comparison"] = comparisonJson(*findings.comparison);
  json["warnings"] = std::move(texts);
  return linePerKey(json) + "\n";
}

}  // namespace talvesk
