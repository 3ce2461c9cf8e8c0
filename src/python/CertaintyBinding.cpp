#include "base/TextNumber.h"
#include "python/Bindings.h"
#include "python/LongWork.h"
#include "python/Result.h"
#include "python/SureSection.h"
#include "session/TableRules.h"
#include "tomo/fitted/CertaintyRun.h"

#include <memory>
#include <utility>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

CertaintySettings settingsOf(const Result& result, int members, std::uint64_t seed,
                             std::vector<double> isovalues, bool singleThread) {
  if (members < parameters::kMembers.limits.least || members > parameters::kMembers.limits.most) {
    throw Error("members must be " + std::to_string(parameters::kMembers.limits.least) + " to " +
                std::to_string(parameters::kMembers.limits.most));
  }
  CertaintySettings settings = certaintySettings(result.survey.document);
  settings.members = members;
  settings.ensemble.seed = seed;
  settings.ensemble.isovalues = checkedIsovalues(std::move(isovalues));
  settings.singleThread = singleThread;
  return settings;
}

SureSection findCertainty(const Result& result, int members, std::uint64_t seed,
                          std::vector<double> isovalues, bool singleThread,
                          const py::object& progress) {
  const CertaintySettings settings =
      settingsOf(result, members, seed, std::move(isovalues), singleThread);
  SureSection sure = {result.survey};
  Status status;
  runBeside([&](const Tell& teller, const Stopped& stopped) {
    status = editSurvey(Edit::kCertainty, sure.survey, [&](Survey& next) {
      const std::unique_ptr<Ensemble> ensemble = ensembleOf(next.document, settings);
      Certainty certainty;
      const auto tell = [&](const EnsembleProgress& state) {
        if (progress.is_none()) return;
        teller([&progress, state] { progress(valuesOf(state)); });
      };
      Status run = runCertainty(*ensemble, next.document, settings, certainty, tell, stopped);
      if (run.ok()) next.document.result.edit().certainty = std::move(certainty);
      return run;
    });
  });
  raiseUnless(status);
  return sure;
}

py::list modelsOf(const SureSection& sure) {
  py::list list;
  for (const CertaintyModel& model : sure.certainty().models) {
    list.append(py::make_tuple(model.name, model.chi2, model.members));
  }
  return list;
}

py::dict isovaluesOf(const SureSection& sure) {
  py::dict all;
  for (const IsovalueBand& band : sure.certainty().bands) {
    py::dict depths;
    depths["median"] = arrayOf(band.depths.median);
    depths["p16"] = arrayOf(band.depths.low);
    depths["p84"] = arrayOf(band.depths.high);
    all[py::float_(band.velocity)] = depths;
  }
  return all;
}

}  // namespace

py::dict valuesOf(const EnsembleProgress& state) {
  py::dict values;
  values["completed"] = state.members;
  values["total"] = state.ofMembers;
  values["models"] = state.models;
  values["left_out"] = state.leftOut;
  return values;
}

std::vector<double> checkedIsovalues(std::vector<double> isovalues) {
  constexpr auto kLimits = parameters::kMinVelocity.limits;
  for (const double velocity : isovalues) {
    if (!(velocity >= kLimits.least && velocity <= kLimits.most)) {
      throw Error("isovalues must be " + formatDouble(kLimits.least) + " to " +
                  formatDouble(kLimits.most, 9) + " m/s, not " + formatDouble(velocity));
    }
  }
  return isovalues;
}

void bindCertainty(py::module_& module) {
  py::class_<SureSection> sure(module, "Certainty",
                               "In what the sections agree that explain the picks of a survey as "
                               "well as one another. Arrays "
                               "per cell have a row per depth and a column per distance.");
  const auto read = [&](const char* name, auto get, const char* text) {
    sure.def_property_readonly(name, get, text);
  };
  read(
      "members", [](const SureSection& s) { return s.certainty().members; }, "That count.");
  read(
      "left_out", [](const SureSection& s) { return s.certainty().leftOut; },
      "Members that do not explain the picks.");
  read(
      "seed", [](const SureSection& s) { return s.certainty().seed; }, "Of the errors.");
  read(
      "median", [](const SureSection& s) { return s.perCell(s.certainty().velocities.median); },
      "Median velocity, m/s.");
  read(
      "p16", [](const SureSection& s) { return s.perCell(s.certainty().velocities.low); },
      "Velocity that 16 % of the members stay below, m/s.");
  read(
      "p84", [](const SureSection& s) { return s.perCell(s.certainty().velocities.high); },
      "Velocity that 84 % of the members stay below, m/s.");
  read(
      "log_deviation", [](const SureSection& s) { return s.perCell(s.certainty().deviations); },
      "Standard deviation of the logarithm of velocity.");
  read(
      "members_with_rays",
      [](const SureSection& s) {
        const auto& touched = s.certainty().touched;
        return py::array_t<std::uint32_t>({s.grid().righe(), s.grid().col()}, touched.data());
      },
      "Members with a ray in the cell; where there is none only the models tell.");
  read("models", modelsOf, "What members were held to: (name, chi-square of its fit, members).");
  read("isovalues", isovaluesOf,
       "Per velocity asked for (m/s) its depth below the surface, per column of the grid: dict of "
       "'median', 'p16', 'p84' in metres; NaN where it is not reached.");
  read(
      "survey", [](const SureSection& s) { return std::make_shared<Survey>(s.survey); },
      "The survey with section and certainty: a copy, which can be saved as a project.");
  module.def("certainty", findCertainty, py::arg("result"),
             py::arg("members") = parameters::kMembers.initial, py::kw_only(),
             py::arg("seed") = parameters::kSeed.initial,
             py::arg("isovalues") = std::vector<double>(), py::arg("single_thread") = false,
             py::arg("progress") = py::none(),
             "How sure a section is: many sections are fitted to picks moved by their errors.\n\n"
             "Member k is a function of the survey, the seed and k; the result does not depend on "
             "the number of threads, and is that of talvesk-batch invert --certainty.");
}

}  // namespace talvesk::python
