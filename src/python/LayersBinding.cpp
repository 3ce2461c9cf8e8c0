#include "base/TextNumber.h"
#include "io/Survey.h"
#include "python/Bindings.h"
#include "python/Values.h"
#include "refraction/BuildProfiles.h"
#include "refraction/LayerProposal.h"
#include "refraction/ReciprocalMethod.h"
#include "session/TableRules.h"

#include <cmath>
#include <memory>
#include <optional>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;

constexpr double kAsGiven = 1e-9;  // metres

using Marks = std::vector<std::vector<std::uint32_t>>;

/// A survey with its layered interpretation.
struct Layers {
  Survey survey;

  const Interpretation& all() const { return *survey.interpretation; }
};

void putMarks(const std::optional<Marks>& marks, const std::vector<ShotArrivals>& shots,
              Interpretation& work) {
  if (!marks) {
    if (!hasMarks(work.ttLayer)) work.ttLayer = proposeLayers(shots, work.ttLayer);
    return;
  }
  if (marks->size() != work.ttLayer.size()) {
    throw Error("marks must be a list per shot, " + std::to_string(work.ttLayer.size()));
  }
  for (std::size_t shot = 0; shot < marks->size(); ++shot) {
    const std::vector<std::uint32_t>& given = (*marks)[shot];
    if (given.size() != work.ttLayer[shot].layer.size()) {
      throw Error("marks of shot " + std::to_string(shot) + " must be one per channel");
    }
    for (const std::uint32_t layer : given) {
      if (layer > refractionDataStructure::kLastLayer) throw Error("marks must be 0, 1, 2 or 3");
    }
    work.ttLayer[shot].layer = given;
  }
}

/// An XY that cannot be taken counts as 0, which nobody has asked for.
void checkXY(const Interpretation& work, double xy) {
  for (std::size_t i = 0; i < work.refractData.cData.size(); ++i) {
    const computedData& refractor = work.refractData.cData[i];
    if (std::fabs(refractor.chosenXY - xy) < kAsGiven) continue;
    throw Error("xy " + formatDouble(xy) + ": the XY of layer " + std::to_string(i + 2) +
                " must be within " + formatDouble(widestXY(refractor.x)) +
                " m, six spacings of its geophones");
  }
}

Layers refract(const Survey& survey, const std::optional<Marks>& marks,
               const std::optional<double>& xy) {
  Layers layers = {survey};
  const std::vector<ShotArrivals> shots = shotArrivals(survey.document);
  ProfileOutcome outcome;
  raiseUnless(editSurvey(Edit::kRefraction, layers.survey, [&](Survey& next) {
    Interpretation& work = next.interpretation.edit();
    fitToSurvey(next.document, work);
    putMarks(marks, shots, work);
    if (xy) {
      chooseXY(work, 2, *xy);
      chooseXY(work, 3, *xy);
    }
    outcome = buildProfiles(shots, work);
    if (xy && outcome.built) checkXY(work, *xy);
    return Status();
  }));
  if (!outcome.built) {
    throw Error(outcome.warnings.empty() ? "There is nothing to build a profile of"
                                         : outcome.warnings.back().text());
  }
  for (const RefractionWarning& warning : outcome.warnings) warn(warning.text());
  return layers;
}

py::list refractorsOf(const Layers& layers) {
  py::list list;
  for (const computedData& data : layers.all().refractData.cData) {
    py::dict refractor;
    refractor["xy"] = data.chosenXY;
    refractor["x"] = arrayOf(data.x);
    refractor["elevation"] = arrayOf(data.elevation);
    refractor["velocity"] = arrayOf(data.velocity);
    refractor["depth"] = arrayOf(data.depth);
    refractor["tv"] = arrayOf(data.tV);
    refractor["tg"] = arrayOf(data.tG);
    list.append(refractor);
  }
  return list;
}

Marks marksOf(const Layers& layers) {
  Marks marks;
  for (const auto& shot : layers.all().ttLayer) marks.push_back(shot.layer);
  return marks;
}

}  // namespace

void bindLayers(py::module_& module) {
  py::class_<Layers>(module, "Layers", "The layered interpretation of a survey.")
      .def_property_readonly(
          "survey", [](const Layers& layers) { return std::make_shared<Survey>(layers.survey); },
          "The survey with the interpretation: a copy, which can be saved as a project.")
      .def_property_readonly(
          "v1", [](const Layers& layers) { return layers.all().refractData.v1; },
          "Velocity of the first layer, m/s.")
      .def_property_readonly(
          "refractors", refractorsOf,
          "Per refractor a dict: x, elevation of the surface, depth (metres), velocity (m/s), tv "
          "and tg (seconds) per receiver; xy (metres). What is not known is NaN.")
      .def_property_readonly("marks", marksOf,
                             "Per shot and channel the layer of the arrival, 0 for none.");
  module.def("refract", refract, py::arg("survey"), py::kw_only(), py::arg("marks") = py::none(),
             py::arg("xy") = py::none(),
             "Interprets first breaks by the generalized reciprocal method.\n\n"
             "marks: per shot and channel the layer of the arrival; those of the survey, else "
             "proposed ones. xy: metres. The survey stays as it is.");
}

}  // namespace talvesk::python
