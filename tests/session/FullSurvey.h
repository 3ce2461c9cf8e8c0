#pragma once

#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/KeptRun.h"
#include "model/KnownGround.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ShotDocument.h"
#include "support/TestSurveys.h"

namespace talvesk::testing {

/// A survey in which every part holds something that a new one does not.
inline Survey fullSurvey(std::size_t shots = 3, std::size_t traces = 12,
                         std::size_t samples = 400) {
  Survey survey;
  TomoDocument& document = survey.document;
  document = shotDocument(shots, traces, samples);
  for (TravelTime& record : document.ttArray.edit()) {
    record.ttCalcolati = record.ttMisurati;
    record.setWaiting(2, true);
  }
  document.title = "Dam";
  putGrid(document, 10.0, 1.0);
  document.model.edit().layers = {{0.0, 300.0, 10.0, 2500.0}};
  TomographyOutcome& result = document.result.edit();
  result.has_tomographic_info = true;
  result.RMSE_tomography = 2.5;
  result.rays = {{1, 2, 3}, {4, 5}};
  result.lastInversion = InversionRecord();
  document.runs.edit().emplace_back().number = 1;
  document.known.edit().depths.push_back({"P1", 2.0, 3.0});
  document.map = MapPosition{{32632, 1.0, 2.0, 3.0, 4.0}, true};
  auto& interpretation = survey.interpretation.edit();
  for (std::size_t i = 0; i < shots; ++i) {
    refractionDataStructure::layerStruct marks;
    marks.shotID = static_cast<std::uint32_t>(i);
    marks.layer.assign(traces, 1);
    marks.trasla.assign(traces, 0.0);
    interpretation.ttLayer.push_back(marks);
  }
  interpretation.refractData.v1 = 400.0;
  interpretation.refractData.cData.emplace_back().velocity = {1500.0};
  survey.palettes.edit().current().max_db = 4321.0;
  survey.section.contours.filled = true;
  survey.section.verticalExaggeration = 2.0;
  return survey;
}

/// Whether two surveys are one in memory, part by part: nothing was made anew.
inline bool isSame(const Survey& a, const Survey& b) {
  const TomoDocument& x = a.document;
  const TomoDocument& y = b.document;
  return x.recordings.isSharedWith(y.recordings) && x.ttArray.isSharedWith(y.ttArray) &&
         x.line.isSharedWith(y.line) && x.model.isSharedWith(y.model) &&
         x.result.isSharedWith(y.result) && x.map.isSharedWith(y.map) &&
         x.runs.isSharedWith(y.runs) && x.known.isSharedWith(y.known) && x.title == y.title &&
         a.interpretation.isSharedWith(b.interpretation) && a.palettes.isSharedWith(b.palettes) &&
         a.section == b.section;
}

}  // namespace talvesk::testing
