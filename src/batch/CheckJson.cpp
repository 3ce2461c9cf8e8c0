#include "batch/CheckJson.h"

#include "batch/JsonText.h"
#include "batch/ReciprocityText.h"
#include "doctor/FindingTexts.h"
#include "model/SurveyGeometry.h"

namespace talvesk {
namespace {

Json pointsJson(const std::vector<Point2D>& points, const char* second) {
  Json list = Json::array();
  for (const Point2D& point : points) list.push_back({{"x", point.x}, {second, point.z}});
  return list;
}

Json proposalJson(const doctor::Proposal& proposal) {
  Json json = Json::object();
  json["kind"] = doctor::keyOf(proposal.kind);
  json["text"] = doctor::describe(proposal).english();
  json["seconds"] = proposal.seconds;
  json["traces"] = proposal.traces;
  json["shots"] = proposal.others;
  json["points"] = pointsJson(proposal.points, "z");
  return json;
}

Json findingJson(const doctor::Finding& finding) {
  Json json = Json::object();
  json["kind"] = doctor::keyOf(finding.kind);
  json["shot"] = finding.shot ? Json(*finding.shot) : Json(nullptr);
  json["traces"] = finding.traces;
  json["text"] = finding.text.english();
  json["confidence"] = finding.confidence;
  json["proposal"] = finding.proposal ? proposalJson(*finding.proposal) : Json(nullptr);
  json["measured"] = pointsJson(finding.measured, "time");
  json["expected"] = pointsJson(finding.expected, "time");
  return json;
}

Json listJson(const std::vector<doctor::Finding>& findings) {
  Json list = Json::array();
  for (const doctor::Finding& finding : findings) list.push_back(findingJson(finding));
  return list;
}

}  // namespace

std::string checkJson(const TomoDocument& document, const std::vector<doctor::Finding>& findings,
                      const std::vector<doctor::Finding>& left,
                      const doctor::ReciprocityTable& reciprocity) {
  Json files = Json::array();
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) files.push_back(shotFile(document, i));
  Json json = Json::object();
  json["files"] = std::move(files);
  json["findings"] = listJson(findings);
  json["left"] = listJson(left);
  json["reciprocity"] = reciprocityJson(reciprocity);
  return linePerKey(json) + "\n";
}

}  // namespace talvesk
