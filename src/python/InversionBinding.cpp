#include "export/VtkGrid.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "python/Bindings.h"
#include "python/LineGrid.h"
#include "python/LongWork.h"
#include "python/Result.h"
#include "python/Values.h"
#include "session/TableRules.h"
#include "view/ColorPalette.h"

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

using Range = std::pair<std::optional<double>, std::optional<double>>;

/// What both methods take from the caller.
struct Wishes {
  std::optional<int> iterations;
  std::optional<double> minVelocity, maxVelocity;  ///< m/s
  bool singleThread = false;
  py::object progress;
};

/// The survey that is worked on, with the grid of the caller, else its own, else the proposed one.
Survey prepared(const Survey& survey, const LineGrid* grid) {
  if (!hasPicks(survey.document)) throw Error("The survey has not a single usable pick");
  Survey work = survey;
  const auto& own = work.document.model->grid;
  if (grid != nullptr) {
    layUnder(*grid, work);
  } else if (own == nullptr || own->cellCount() == 0) {
    layUnder(buildLineGrid(work, {}), work);
  }
  return work;
}

template <typename Values>
void tell(const Tell& teller, const py::object& progress, Values values) {
  // Only looked at, and so may be without the interpreter's lock.
  if (progress.is_none()) return;
  teller([&progress, values] { progress(values()); });
}

/// Keeps what was found of a run that failed late: an Error tells why, a warning would be missed.
Result finished(Result result) {
  raiseUnless(result.run.status);
  return result;
}

Result runSmoothed(Survey work, const TomographyParameters& parameters, const py::object& progress,
                   const PickErrorRule& errors) {
  Result result;
  runBeside([&](const Tell& teller, const Stopped& stopped) {
    Log log;
    const Status edited = editSurvey(Edit::kInversion, work, [&](Survey& next) {
      result.run = runInversion(
          next.document, parameters, log,
          [&](const TomographyProgress& state) {
            tell(teller, progress,
                 [completed = state.completed, total = state.total, rmse = state.misfit.rmse] {
                   py::dict values;
                   values["completed"] = completed;
                   values["total"] = total;
                   values["rmse_ms"] = rmse * 1000.0;
                   return values;
                 });
          },
          stopped);
      return Status();
    });
    if (result.run.status.ok()) result.run.status = edited;
  });
  result.survey = std::move(work);
  const TomoDocument& document = result.survey.document;
  result.chi2 = chiSquareOf(document, residualsOf(document), errors);
  return finished(std::move(result));
}

Result runFitted(Survey work, const FittedSettings& settings, const py::object& progress) {
  Result result;
  runBeside([&](const Tell& teller, const Stopped& stopped) {
    Log log;
    ReferencedRun run;
    const Status edited = editSurvey(Edit::kInversion, work, [&](Survey& next) {
      run = fitFromReference(
          next.document, settings, log,
          [&](const FittedRunProgress& state) {
            tell(teller, progress,
                 [completed = state.completed, total = state.most, chi2 = state.fit.chi2,
                  rmse = state.section.rmse] {
                   py::dict values;
                   values["completed"] = completed;
                   values["total"] = total;
                   values["chi2"] = chi2;
                   values["section_rmse_ms"] = rmse * 1000.0;
                   return values;
                 });
          },
          stopped);
      return run.fit.run.status;
    });
    result.run = run.fit.run;
    if (result.run.status.ok()) result.run.status = edited;
    result.fit = std::move(run);
  });
  result.survey = std::move(work);
  result.chi2 = result.fit->fit.fit;
  return finished(std::move(result));
}

SmoothingType smoothingOf(const std::string& word) {
  const auto& words = parameters::kSmoothingType.words;
  std::string all;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (word == words[i]) return smoothingTypeOf(static_cast<int>(i));
    all += (all.empty() ? "" : ", ") + std::string(words[i]);
  }
  throw Error("'" + word + "' is none of " + all);
}

PickErrorRule errorsOf(const std::array<double, 2>& sigma) {
  return {sigma[0] / 1000.0, sigma[1] / 100.0};
}

Result invert(const Survey& survey, const LineGrid* grid, const std::string& method,
              const std::array<double, 2>& sigma, const Wishes& wishes,
              TomographyParameters parameters, FittedSettings settings) {
  Survey work = prepared(survey, grid);
  if (wishes.iterations && *wishes.iterations < 1) throw Error("iterations must be 1 at least");
  if (method == "fitted") {
    settings.errors = errorsOf(sigma);
    settings.singleThread = wishes.singleThread;
    FittedOptions& fit = settings.fit;
    fit.minVelocity = wishes.minVelocity.value_or(fit.minVelocity);
    fit.maxVelocity = wishes.maxVelocity.value_or(fit.maxVelocity);
    fit.mostIterations = wishes.iterations.value_or(fit.mostIterations);
    return runFitted(std::move(work), settings, wishes.progress);
  }
  if (method != "smoothed") throw Error("'" + method + "' is none of smoothed, fitted");
  const GroundModel& model = *work.document.model;
  parameters.minVelocity = wishes.minVelocity.value_or(model.minVelocity);
  parameters.maxVelocity = wishes.maxVelocity.value_or(model.maxVelocity);
  parameters.externalIterations = wishes.iterations.value_or(parameters.externalIterations);
  parameters.singleThread = wishes.singleThread;
  return runSmoothed(std::move(work), parameters, wishes.progress, errorsOf(sigma));
}

LineGrid sectionOf(const Result& result) {
  return {result.survey.document.model};
}

Array perCell(const Result& result, const std::vector<double>& values) {
  const LineGrid grid = sectionOf(result);
  return tableOf(values, grid.grid().righe(), grid.grid().col());
}

py::list raysOf(const Result& result) {
  const LineGrid section = sectionOf(result);
  const GridGeometry& geometry = section.grid().geometry();
  py::list rays;
  for (const std::vector<std::uint32_t>& nodes : result.survey.document.result->rays) {
    std::vector<Point2D> points;
    for (const std::uint32_t node : nodes) {
      points.push_back({section.surveyX(geometry.nodeX(node)), -geometry.nodeZ(node)});
    }
    rays.append(pointsOf(points));
  }
  return rays;
}

py::list suspectsOf(const Result& result) {
  py::list list;
  if (!result.fit) return list;
  for (const SuspectPick& pick : result.fit->fit.suspects) {
    list.append(py::make_tuple(pick.record, pick.receiver, pick.residual * 1000.0));
  }
  return list;
}

Array paletteOf(const Result& result) {
  const ColorTable table(result.survey.palettes->current());
  std::vector<double> colours;
  for (int i = 0; i < table.size(); ++i) {
    const RgbColor one = table[i];
    colours.insert(colours.end(), {one.r, one.g, one.b});
  }
  return tableOf(colours, colours.size() / 3, 3);
}

std::string describe(const Result& result) {
  const SectionMisfit& misfit = result.run.sectionMisfit;
  return "<talvesk.Result: " + std::to_string(result.run.iterationsDone) +
         " iterations, section RMS " + Message::number(misfit.rmse * 1000.0, 3).english() +
         " ms, chi-square " + Message::number(result.chi2.chi2, 3).english() + ">";
}

/// A function of the Python half that takes the result.
auto view(const char* name) {
  return [name](const py::object& self, const py::args& args, const py::kwargs& options) {
    return py::module_::import("talvesk._views").attr(name)(self, *args, **options);
  };
}

}  // namespace

void bindInversion(py::module_& module) {
  py::class_<Result, std::shared_ptr<Result>> result(
      module, "Result",
      "A velocity section and how it fits the picks. Arrays per cell have a row per depth and a "
      "column per distance; names are those of talvesk-batch --json.");
  const auto read = [&](const char* name, auto get, const char* text) {
    result.def_property_readonly(name, get, text);
  };
  result.def("__repr__", describe);
  read(
      "survey", [](const Result& r) { return std::make_shared<Survey>(r.survey); },
      "The survey with the section: a copy, which can be saved as a project.");
  read("grid", sectionOf, "The section as a grid.");
  read(
      "velocity", [](const Result& r) { return perCell(r, sectionOf(r).grid().velocities()); },
      "m/s: array (rows, columns).");
  read(
      "coverage_m", [](const Result& r) { return perCell(r, r.survey.document.result->coorcount); },
      "Metres of ray per cell.");
  read(
      "info_density",
      [](const Result& r) { return perCell(r, r.survey.document.result->info_density); },
      "Smoothed number of rays per cell.");
  read(
      "hit_counts",
      [](const Result& r) {
        const auto& hits = r.survey.document.result->hitCounts;
        return perCell(r, std::vector<double>(hits.begin(), hits.end()));
      },
      "Rays per cell.");
  read(
      "section_rmse_ms", [](const Result& r) { return r.run.sectionMisfit.rmse * 1000.0; },
      "RMS misfit of the section along fresh rays, ms.");
  read(
      "section_rms_percent",
      [](const Result& r) { return r.run.sectionMisfit.relativeRms * 100.0; },
      "The same in percent of the times.");
  read(
      "rmse_ms", [](const Result& r) { return r.run.misfit.rmse * 1000.0; },
      "RMS misfit of the last solver pass, ms.");
  read(
      "picks_used", [](const Result& r) { return r.run.misfit.count; }, "Picks that took part.");
  read(
      "chi2", [](const Result& r) { return r.chi2.chi2; },
      "Mean square misfit over the errors of the picks, without suspects.");
  read(
      "chi2_all", [](const Result& r) { return r.chi2.all; }, "The same of all picks.");
  read(
      "suspect_count", [](const Result& r) { return r.chi2.suspects.size(); },
      "Picks off by more than five errors.");
  read(
      "chi2_history",
      [](const Result& r) { return r.fit ? r.fit->fit.chi2History : std::vector<double>(); },
      "Of the start and after every iteration of a fit.");
  read(
      "misfit_history_ms",
      [](const Result& r) {
        std::vector<double> history;
        for (const SectionMisfit& one : r.survey.document.result->sectionHistory) {
          history.push_back(one.rmse * 1000.0);
        }
        return history;
      },
      "RMS of the starting model and of the section of every iteration, ms.");
  read(
      "iterations_done", [](const Result& r) { return r.run.iterationsDone; }, "Iterations.");
  read(
      "outcome", [](const Result& r) { return r.fit ? r.fit->fit.outcome.english() : ""; },
      "Whether a fit explains the picks, in words.");
  read(
      "reference",
      [](const Result& r) -> std::optional<std::string> {
        return r.fit ? std::optional(r.fit->fit.reference) : std::nullopt;
      },
      "The model that a fit was held to.");
  read(
      "lambda_",
      [](const Result& r) { return r.fit ? std::optional(r.fit->fit.lambda) : std::nullopt; },
      "Weight of the roughness of a fit.");
  read("suspects", suspectsOf, "Picks off by more than five errors: (shot, channel, ms).");
  read(
      "statics_ms",
      [](const Result& r) {
        std::vector<double> statics = r.fit ? r.fit->fit.statics : std::vector<double>();
        for (double& one : statics) one *= 1000.0;
        return arrayOf(statics);
      },
      "Time shifts of the shots that a fit has found, ms; late is positive.");
  read(
      "computing_s", [](const Result& r) { return r.run.computingSeconds; }, "Seconds.");
  read(
      "drawn",
      [](const Result& r) {
        const LineGrid section = sectionOf(r);
        const Grid& grid = section.grid();
        std::vector<double> drawn(grid.cellCount());
        for (std::uint32_t cell = 0; cell < drawn.size(); ++cell) drawn[cell] = grid.draw(cell);
        return py::array_t<bool>(perCell(r, drawn));
      },
      "Whether a cell is in the part of the section that rays reach.");
  read("palette", paletteOf, "Colours of the section: array (colours, 3), from 0 to 1.");
  read("rays", raysOf, "Rays through the section: arrays (points, 2) of x and elevation.");
  result.def("to_xarray", view("to_xarray"), "The section as an xarray.Dataset.");
  result.def(
      "to_vtk",
      [](const Result& r, const std::filesystem::path& path) {
        raiseUnless(writeVtkGrid(path.string(), r.survey.document));
      },
      py::arg("path"), "Writes the section as an unstructured grid of VTK (*.vtu).");
  result.def("plot", view("plot"),
             "Draws the section with matplotlib: plot(ax=None, covered=True, rays=False).");
  module.def(
      "invert",
      [](const Survey& survey, const LineGrid* grid, const std::string& method,
         const std::optional<int>& iterations, const std::optional<double>& minVelocity,
         const std::optional<double>& maxVelocity, int solverIterations, int smoothing,
         const std::string& smoothingType, bool symmetric, bool coarseToFine,
         const std::string& reference, const std::array<double, 2>& sigma, bool robust, bool blocky,
         bool statics, bool singleThread, py::object progress) {
        TomographyParameters parameters;
        parameters.solverIterations = solverIterations;
        parameters.smoothing = smoothing;
        parameters.smoothingType = smoothingOf(smoothingType);
        parameters.symmetric = symmetric;
        parameters.coarseToFine = coarseToFine;
        if (solverIterations < 1 || smoothing < 1) {
          throw Error("solver_iterations and smoothing must be 1 at least");
        }
        FittedSettings settings;
        settings.reference = reference;
        settings.fit.robust = robust;
        settings.fit.blocky = blocky;
        settings.fit.statics = statics;
        return invert(survey, grid, method, sigma,
                      {iterations, minVelocity, maxVelocity, singleThread, std::move(progress)},
                      parameters, settings);
      },
      py::arg("survey"), py::arg("grid") = py::none(), py::arg("method") = "smoothed",
      py::kw_only(), py::arg("iterations") = py::none(), py::arg("min_velocity") = py::none(),
      py::arg("max_velocity") = py::none(),
      py::arg("solver_iterations") = parameters::kSolverIterations.initial,
      py::arg("smoothing") = parameters::kSmoothing.initial,
      py::arg("smoothing_type") =
          parameters::kSmoothingType.words[parameters::kSmoothingType.initial],
      py::arg("symmetric") = false, py::arg("coarse_to_fine") = false,
      py::arg("reference") = kBestReference,
      py::arg("sigma") =
          std::array<double, 2>{parameters::kErrorFloor.initial, parameters::kErrorShare.initial},
      py::arg("robust") = true, py::arg("blocky") = false, py::arg("statics") = false,
      py::arg("single_thread") = false, py::arg("progress") = py::none(),
      "Inverts first breaks into a velocity section, as talvesk-batch invert does.\n\n"
      "method: 'smoothed', solver passes and smoothing, or 'fitted', to the errors of the picks.\n"
      "sigma: (ms, percent), the error of picks that have none. progress: called with a dict after "
      "every iteration; what it raises ends the run, as Ctrl-C does. The survey stays as it is.");
}

}  // namespace talvesk::python
