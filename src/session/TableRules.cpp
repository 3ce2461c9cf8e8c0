#include "session/TableRules.h"

#include "io/Survey.h"
#include "refraction/ShotArrivals.h"

#include <algorithm>
#include <utility>

namespace talvesk {

void fitMarksToRecords(Survey& survey) {
  refractionDataStructure::Interpretation fitted = *survey.interpretation;
  fitToSurvey(survey.document, fitted);
  const auto size = [](const auto& marks) {
    return std::make_pair(marks.shotID, marks.layer.size());
  };
  const bool same =
      std::equal(fitted.ttLayer.begin(), fitted.ttLayer.end(),
                 survey.interpretation->ttLayer.begin(), survey.interpretation->ttLayer.end(),
                 [&](const auto& a, const auto& b) { return size(a) == size(b); });
  if (!same) survey.interpretation = std::move(fitted);
}

Status followTable(Edit edit, const Survey& before, Survey& next) {
  const EditRule& rule = ruleOf(edit);
  const PartSet touched = differingParts(before, next);
  for (const Part part : kParts) {
    const Fate fate = rule.fate(part);
    if (fate == Fate::kVoid) forgetPart(part, next);
    if ((fate == Fate::kKept || fate == Fate::kStale) && touched.has(part)) {
      return Status::failure(
          Message::tr("%1 would change what it must not; nothing was changed").arg(rule.text));
    }
  }
  PartSet records;
  for (const Part part : {Part::kRecordings, Part::kPicks, Part::kGeometry}) records.add(part);
  if (differingParts(before, next).any(records)) fitMarksToRecords(next);
  return {};
}

Status editSurvey(Edit edit, Survey& survey, const std::function<Status(Survey&)>& change) {
  Survey next = survey;
  Status status = change(next);
  if (status.ok()) status = followTable(edit, survey, next);
  if (status.ok()) survey = std::move(next);
  return status;
}

}  // namespace talvesk
