#include "base/SampleStore.h"
#include "io/Survey.h"
#include "io/TravelTimeData.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/SurveyLine.h"
#include "processing/FirstBreak.h"
#include "processing/NoiseReduction.h"
#include "processing/ShotFilters.h"
#include "processing/joint/JointPicker.h"
#include "python/Bindings.h"
#include "python/LongWork.h"
#include "python/SurveyFiles.h"
#include "python/Values.h"
#include "session/PickEdits.h"
#include "session/TableRules.h"

#include <cmath>
#include <filesystem>
#include <limits>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

namespace fs = std::filesystem;

using Paths = std::vector<fs::path>;

void warnOf(const std::vector<std::string>& warnings) {
  for (const std::string& text : warnings) warn(text);
}

const TravelTime& recordOf(const Survey& survey, std::size_t shot) {
  if (shot >= survey.document.ttArray.size()) throw py::index_error("no such shot");
  return survey.document.ttArray[shot];
}

const TraceSet& tracesOf(const Survey& survey, std::size_t shot) {
  const TraceSet* traces = survey.document.tracesOf(recordOf(survey, shot));
  if (traces == nullptr || traces->empty()) throw Error("The shot has no traces, only picks");
  return *traces;
}

ShotReader readerOf(const std::string& word) {
  if (word == "rules") return ShotReader::kRules;
  if (word == "standard") return ShotReader::kStandard;
  throw Error("'" + word + "' is none of rules, standard");
}

std::optional<TimeUnit> unitOf(const std::optional<std::string>& word) {
  if (!word) return {};
  if (*word == "ms") return TimeUnit::kMilliseconds;
  if (*word == "s") return TimeUnit::kSeconds;
  throw Error("'" + *word + "' is none of ms, s");
}

std::shared_ptr<Survey> read(const std::variant<fs::path, Paths>& files, const std::string& reader,
                             const std::optional<std::string>& timeUnit, bool asRecorded,
                             bool onDisk) {
  std::vector<std::string> paths;
  if (const auto* one = std::get_if<fs::path>(&files)) paths.push_back(one->string());
  if (const auto* many = std::get_if<Paths>(&files)) {
    for (const fs::path& path : *many) paths.push_back(path.string());
  }
  Reading reading;
  reading.reader = readerOf(reader);
  reading.picks.byContent = reading.reader == ShotReader::kStandard;
  reading.picks.timeUnit = unitOf(timeUnit);
  reading.asRecorded = asRecorded;
  std::vector<std::string> warnings;
  auto survey = std::make_shared<Survey>();
  {
    const py::gil_scoped_release free;
    const SampleStore::Choice choice(onDisk ? SamplesOnDisk::kAlways
                                            : SampleStore::instance().when());
    *survey = readSurvey(paths, reading, warnings);
  }
  warnOf(warnings);
  return survey;
}

py::dict samplesInUse() {
  const SampleStore::Usage usage = SampleStore::instance().usage();
  py::dict bytes;
  bytes["memory"] = usage.memory;
  bytes["disk"] = usage.disk;
  return bytes;
}

void save(const Survey& survey, const fs::path& path) {
  const Survey copy = survey;  // the other threads of Python may edit it meanwhile
  std::vector<std::string> warnings;
  {
    const py::gil_scoped_release free;
    saveProject(path.string(), copy, warnings);
  }
  warnOf(warnings);
}

void write(const Survey& survey, const fs::path& path) {
  std::vector<std::string> warnings;
  writePicks(path.string(), survey, warnings);
  warnOf(warnings);
}

Array trace(const Survey& survey, std::size_t shot, std::size_t channel, bool filtered) {
  const TraceSet& traces = tracesOf(survey, shot);
  if (channel >= traces.size()) throw py::index_error("no such channel");
  return viewOf(filtered ? traces[channel].filtered : traces[channel].samples);
}

Array traces(const Survey& survey, std::size_t shot, bool filtered) {
  const TraceSet& all = tracesOf(survey, shot);
  std::size_t samples = 0;
  const auto of = [&](const Trace& one) -> const Samples& {
    return filtered ? one.filtered : one.samples;
  };
  for (const Trace& one : all) samples = std::max(samples, of(one).size());
  Array array({all.size(), samples});
  double* out = array.mutable_data();
  for (const Trace& one : all) {
    const Span<double> values = of(one);
    double* end = std::copy(values.begin(), values.end(), out);
    out += samples;
    std::fill(end, out, std::numeric_limits<double>::quiet_NaN());
  }
  return array;
}

double sampleInterval(const Survey& survey, std::size_t shot) {
  return tracesOf(survey, shot).front().sampleInterval;
}

double firstSample(const Survey& survey, std::size_t shot) {
  const Trace& first = tracesOf(survey, shot).front();
  return first.delay + static_cast<double>(first.droppedSamples) * first.sampleInterval;
}

std::vector<Point2D> placesOf(const GivenArray& points, const char* name) {
  if (points.ndim() != 2 || points.shape(1) != 2) {
    throw Error(std::string(name) + " must be an array (places, 2) of x and elevation");
  }
  std::vector<Point2D> places;
  for (py::ssize_t i = 0; i < points.shape(0); ++i) {
    const Point2D place = {points.at(i, 0), points.at(i, 1)};
    if (!std::isfinite(place.x) || !std::isfinite(place.z)) {
      throw Error(std::string(name) + " must be finite numbers");
    }
    places.push_back(place);
  }
  return places;
}

std::shared_ptr<Survey> layOut(const GivenArray& geophones, const GivenArray& shots) {
  TravelTimeData data;
  data.strings = {placesOf(geophones, "geophones")};
  for (const Point2D& place : placesOf(shots, "shots")) {
    TravelTime record;
    record.shotPos2d = place;
    record.traceSetID = static_cast<std::int32_t>(data.records.size());
    record.ttMisurati = std::vector<double>(data.strings.front().size(), kUnpicked);
    record.ttCalcolati = std::vector<double>(data.strings.front().size(), kNoTime);
    data.records.push_back(std::move(record));
  }
  auto survey = std::make_shared<Survey>();
  raiseUnless(importTravelTimes(std::move(data), survey->document));
  return survey;
}

/// Where picks are times of traces, those before their first sample are none.
void setPicks(Survey& survey, std::size_t shot, const GivenArray& times,
              const std::optional<GivenArray>& errors) {
  const std::size_t traces = recordOf(survey, shot).ttMisurati.size();
  const auto fits = [&](const GivenArray& values, const char* name) {
    if (values.ndim() == 1 && static_cast<std::size_t>(values.size()) == traces) return;
    throw Error(std::string(name) + " must be one per trace, " + std::to_string(traces) +
                " numbers");
  };
  fits(times, "times");
  if (errors) fits(*errors, "errors");
  std::vector<PickChange> changes;
  for (std::size_t i = 0; i < traces; ++i) {
    PickChange change;
    change.trace = static_cast<std::int32_t>(i);
    const double time = times.data()[i];
    if (std::isinf(time) || time < 0.0) {
      throw Error("times must be seconds, or not a number where there is no pick");
    }
    change.time = hasPick(time) ? time : kNoTime;
    if (errors) change.error = std::isnan(errors->data()[i]) ? 0.0 : errors->data()[i];
    if (change.error && *change.error != 0.0 && !isPickError(*change.error)) {
      throw Error("errors must be seconds above 0, or not a number where none is known");
    }
    changes.push_back(change);
  }
  raiseUnless(editSurvey(Edit::kPick, survey, [&](Survey& next) {
    const Status may = mayPick(next.document, static_cast<std::int32_t>(shot), changes);
    if (may.ok()) changePicks(next.document, static_cast<std::int32_t>(shot), changes);
    return may;
  }));
}

/// Those asked for, else all that have traces.
std::vector<std::int32_t> shotsToWorkOn(const Survey& survey,
                                        const std::optional<std::vector<std::size_t>>& asked) {
  std::vector<std::int32_t> shots;
  if (asked) {
    for (const std::size_t shot : *asked) {
      tracesOf(survey, shot);
      shots.push_back(static_cast<std::int32_t>(shot));
    }
    return shots;
  }
  const std::vector<TraceSet>& sets = survey.document.recordings->traceSets;
  for (std::size_t i = 0; i < sets.size(); ++i) {
    if (!sets[i].empty()) shots.push_back(static_cast<std::int32_t>(i));
  }
  if (shots.empty()) throw Error("The survey has no traces, only picks");
  return shots;
}

Status pickBy(const std::string& method, const std::vector<std::int32_t>& shots,
              const JointPickOptions& options, const Stopped& stopped, TomoDocument& document) {
  if (method == "joint") {
    JointPickOutcome outcome;
    return pickJointly(document, shots, options, outcome, [&] { return !stopped(); });
  }
  const Status status = pickShots(document, shots, options.useFiltered, options.threads);
  for (const std::int32_t shot : shots) markPicksAutomatic(document, shot);
  return status;
}

void pick(Survey& survey, const std::string& method,
          const std::optional<std::vector<std::size_t>>& asked, const JointPickOptions& options) {
  if (method != "single" && method != "joint") {
    throw Error("'" + method + "' is none of single, joint");
  }
  const std::vector<std::int32_t> shots = shotsToWorkOn(survey, asked);
  Survey work = survey;
  Status status;
  runBeside([&](const Tell&, const Stopped& stopped) {
    status = editSurvey(Edit::kAutoPick, work, [&](Survey& next) {
      return pickBy(method, shots, options, stopped, next.document);
    });
  });
  raiseUnless(status);
  survey = std::move(work);
}

std::optional<FilterCorner> cornerOf(const std::optional<double>& hertz, int order) {
  if (!hertz) return {};
  return FilterCorner{*hertz, order};
}

void filter(Survey& survey, const std::string& kind, const BandFilter& band,
            const std::optional<std::vector<std::size_t>>& asked) {
  const std::vector<std::int32_t> shots = shotsToWorkOn(survey, asked);
  FilterOutcome outcome;
  Survey work = survey;
  Status status;
  {
    const py::gil_scoped_release free;
    status = editSurvey(Edit::kFilter, work, [&](Survey& next) {
      if (kind == "agc") outcome = agcShots(next.document, shots);
      if (kind == "hushel") outcome = reduceNoise(next.document, shots);
      if (kind == "band") outcome = bandFilterShots(next.document, shots, band);
      return Status();
    });
  }
  raiseUnless(status);
  if (kind != "agc" && kind != "hushel" && kind != "band") {
    throw Error("'" + kind + "' is none of agc, hushel, band");
  }
  if (outcome.failed > 0 && outcome.filtered == 0) raiseUnless(outcome.status);
  survey = std::move(work);
  if (outcome.failed == 0) return;
  warn(std::to_string(outcome.failed) + " of " + std::to_string(outcome.failed + outcome.filtered) +
       " traces cannot be filtered; " + outcome.status.message());
}

std::string describe(const Survey& survey) {
  std::size_t picks = 0;
  std::size_t times = 0;
  for (const TravelTime& record : survey.document.ttArray) {
    picks += pickCount(record);
    times += record.ttMisurati.size();
  }
  return "<talvesk.Survey: " + std::to_string(survey.document.ttArray.size()) + " shots, " +
         std::to_string(picks) + " of " + std::to_string(times) + " times picked>";
}

}  // namespace

void bindSurvey(py::module_& module) {
  const auto copy = [](const Survey& survey) { return std::make_shared<Survey>(survey); };
  py::class_<Survey, std::shared_ptr<Survey>>(
      module, "Survey",
      "Shots along a line of geophones, their traces and first breaks. Shots and channels count "
      "from 0; lengths are metres, times seconds. A copy costs next to nothing.")
      .def("__len__", [](const Survey& survey) { return survey.document.ttArray.size(); })
      .def("__repr__", describe)
      .def("copy", copy, "A survey of its own, with the same content.")
      .def("__copy__", copy)
      .def("__deepcopy__", [copy](const Survey& survey, const py::dict&) { return copy(survey); })
      .def_property(
          "title", [](const Survey& survey) { return survey.document.title; },
          [](Survey& survey, const std::string& title) {
            raiseUnless(editSurvey(Edit::kTitle, survey, [&](Survey& next) {
              next.document.title = title;
              return Status();
            }));
          },
          "Heading of reports.")
      .def_property_readonly(
          "files", [](const Survey& survey) { return survey.document.recordings->filenames; },
          "Shot files, one per set of traces.")
      .def_property_readonly(
          "shots", [](const Survey& survey) { return pointsOf(survey.document.shotPoints()); },
          "Positions of the shots: array (shots, 2) of x and elevation.")
      .def(
          "geophones",
          [](const Survey& survey, std::size_t shot) {
            return pointsOf(survey.document.receiversOf(recordOf(survey, shot)));
          },
          py::arg("shot") = 0, "Where the receivers of a shot stand: array (channels, 2).")
      .def("trace", trace, py::arg("shot"), py::arg("channel"), py::arg("filtered") = false,
           "Samples of a channel, without a copy: a read-only array.")
      .def("traces", traces, py::arg("shot"), py::arg("filtered") = false,
           "All channels of a shot: array (channels, samples), NaN behind shorter traces.")
      .def("dt", sampleInterval, py::arg("shot") = 0, "Sample interval, seconds.")
      .def("t0", firstSample, py::arg("shot") = 0, "Time of the first sample after the shot.")
      .def(
          "times",
          [](const Survey& survey, std::size_t shot) {
            return pickedTimes(recordOf(survey, shot));
          },
          py::arg("shot"), "First breaks of a shot, seconds; NaN where there is no pick.")
      .def(
          "errors",
          [](const Survey& survey, std::size_t shot) { return pickErrors(recordOf(survey, shot)); },
          py::arg("shot"), "Their errors, one standard deviation, seconds; NaN: not known.")
      .def(
          "computed",
          [](const Survey& survey, std::size_t shot) {
            return computedTimes(recordOf(survey, shot));
          },
          py::arg("shot"), "Times through the section, seconds; NaN where there is none.")
      .def("set_picks", setPicks, py::arg("shot"), py::arg("times"), py::arg("errors") = py::none(),
           "Gives a shot its first breaks, one per channel; NaN removes a pick.")
      .def(
          "pick",
          [](Survey& survey, const std::string& method,
             const std::optional<std::vector<std::size_t>>& shots, bool filtered, double slowest,
             double fastest, double worst, bool keepConfirmed, unsigned threads) {
            pick(survey, method, shots,
                 {slowest, fastest, worst, filtered, keepConfirmed, threads});
          },
          py::arg("method") = "single", py::kw_only(), py::arg("shots") = py::none(),
          py::arg("filtered") = false, py::arg("slowest") = parameters::kSlowestJoint.initial,
          py::arg("fastest") = parameters::kFastestJoint.initial,
          py::arg("worst") = parameters::kWorstPick.initial, py::arg("keep_confirmed") = false,
          py::arg("threads") = 0,
          "Picks first breaks: 'single', trace by trace, or 'joint', along the line with errors. "
          "The velocities (m/s) and the worst error (ms) are those of 'joint'.")
      .def(
          "filter",
          [](Survey& survey, const std::string& kind, const std::optional<double>& low,
             const std::optional<double>& high, int lowOrder, int highOrder,
             const std::optional<std::vector<std::size_t>>& shots) {
            filter(survey, kind, {cornerOf(low, lowOrder), cornerOf(high, highOrder)}, shots);
          },
          py::arg("kind"), py::kw_only(), py::arg("low") = py::none(), py::arg("high") = py::none(),
          py::arg("low_order") = 1, py::arg("high_order") = 1, py::arg("shots") = py::none(),
          "Makes filtered copies of the traces: 'agc', 'hushel' (14 to 85 Hz) or 'band', what low- "
          "and high-pass (Hz) leave.")
      .def("save", save, py::arg("path"), "Saves a project (*.tvsk).")
      .def("write_picks", write, py::arg("path"),
           "Writes positions and picks in the travel-time format that the suffix tells: .otte, or "
           ".sgt with the errors.")
      .def(
          "table",
          [](const py::object& self) {
            return py::module_::import("talvesk._tables").attr("picks_of")(self);
          },
          "All picks as a pandas table, a row per shot and channel.");
  module.def(
      "lay_out", layOut, py::arg("geophones"), py::arg("shots"),
      "A survey without traces or picks: arrays (places, 2) of x and elevation. All geophones "
      "record all shots; set_picks() gives them times.");
  module.def(
      "read", read, py::arg("paths"), py::kw_only(), py::arg("reader") = "rules",
      py::arg("time_unit") = py::none(), py::arg("as_recorded") = false, py::arg("on_disk") = false,
      "Reads shot files, one travel-time file, or one project.\n\n"
      "reader: 'rules' or 'standard', as talvesk-batch --reader. time_unit: 'ms' or 's', of "
      "tables whose heading names none. as_recorded: times count from the first sample also "
      "where recording began before the shot. on_disk: the samples, and what is made of them, "
      "are kept on the disk however few they are; by itself that is so for what comes after "
      "a quarter of the memory is full of samples.");
  module.def("samples_in_use", samplesInUse,
             "Bytes that the samples of all surveys take: a dict of 'memory' and 'disk'.");
}

}  // namespace talvesk::python
