#include "batch/ResultJson.h"

#include "batch/CertaintyJson.h"
#include "batch/JsonText.h"
#include "batch/KnownJson.h"
#include "batch/ReciprocityText.h"
#include "batch/Resolution.h"
#include "batch/RunList.h"
#include "batch/SectionJson.h"
#include "io/ReadShotFile.h"
#include "io/TravelTimeData.h"
#include "io/project/projectReader.h"
#include "model/ChiSquare.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/Mending.h"
#include "model/PickGrades.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "refraction/PicksFingerprint.h"
#include "tomo/SecondLook.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/References.h"

namespace talvesk {
namespace {

/// A quantity of a misfit, or null when there was nothing to compare.
template <typename AnyMisfit, typename T>
Json ofPicks(const AnyMisfit& misfit, T value) {
  return misfit.count > 0 ? Json(value) : Json(nullptr);
}

/// The misfit of a section along fresh rays. Shots and receivers count from 0.
void putSectionMisfit(Json& json, const SectionMisfit& misfit) {
  json["section_rmse_ms"] = ofPicks(misfit, misfit.rmse * 1000.0);
  json["section_rms_percent"] = ofPicks(misfit, misfit.relativeRms * 100.0);
  json["section_bias_ms"] = ofPicks(misfit, misfit.bias * 1000.0);
  json["section_max_abs_ms"] = ofPicks(misfit, misfit.maxAbs * 1000.0);
  json["section_max_abs_shot"] = ofPicks(misfit, misfit.maxShot);
  json["section_max_abs_receiver"] = ofPicks(misfit, misfit.maxReceiver);
}

Json pointJson(const Point2D& point) {
  return Json::array({point.x, point.z});
}

Json stringsJson(const std::vector<std::vector<Point2D>>& strings) {
  Json list = Json::array();
  for (const auto& string : strings) {
    Json points = Json::array();
    for (const Point2D& point : string) points.push_back(pointJson(point));
    list.push_back(std::move(points));
  }
  return list;
}

/// Null where it is not known, milliseconds.
Json errorsJson(const TravelTime& record) {
  Json errors = Json::array();
  for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
    const double sigma = record.errorOf(trace);
    errors.push_back(sigma > 0.0 ? Json(1e3 * sigma) : Json(nullptr));
  }
  return errors;
}

void putGrades(Json& json, const PickGrades& grades) {
  json["picks_good"] = grades.good;
  json["picks_doubtful"] = grades.doubtful;
  json["picks_of_unknown_error"] = grades.unknown;
}

Json recordJson(const TravelTime& record) {
  Json shot = Json::object();
  shot["position"] = pointJson(record.shotPos2d);
  shot["string"] = record.indexStesa;
  shot["trace_set"] = record.traceSetID;
  shot["times"] = record.ttMisurati;
  shot["errors_ms"] = errorsJson(record);
  putGrades(shot, gradesOf(record));
  return shot;
}

/// Null without any. Traces and shots are counted from 0, as in the rest.
Json mendsJson(const ShotMends& mends) {
  if (!mends.any()) return nullptr;
  Json traces = Json::array();
  for (std::size_t j = 0; j < mends.traces.size(); ++j) {
    const TraceMend& mend = mends.traces[j];
    if (!mend.any()) continue;
    Json trace = Json::object();
    trace["trace"] = j;
    trace["killed"] = mend.killed;
    trace["reversed"] = mend.reversed;
    trace["muted_before"] = mend.mutedBefore;
    trace["gain"] = mend.gain;
    traces.push_back(std::move(trace));
  }
  Json json = Json::object();
  json["time_shift"] = mends.timeShift;
  json["disabled"] = mends.disabled;
  json["order_reversed"] = mends.orderReversed;
  json["stacked_with"] = mends.stackedWith;
  json["traces"] = std::move(traces);
  return json;
}

Json gridJson(const TomoDocument& document) {
  const Grid& grid = *document.model->grid;
  Json json = Json::object();
  json["righe"] = grid.righe();
  json["col"] = grid.col();
  json["nV"] = grid.nV();
  json["aLato"] = grid.aLato();
  json["x_offset"] = document.model->xOffset;
  return json;
}

Json excludedJson(const std::vector<ExcludedPosition>& positions) {
  Json list = Json::array();
  for (const ExcludedPosition& position : positions) {
    Json json = Json::object();
    json["shot"] = position.shot;
    // The whole shot has no receiver to name.
    json["receiver"] = position.receiver < 0 ? Json(nullptr) : Json(position.receiver);
    json["x"] = position.x;
    list.push_back(std::move(json));
  }
  return list;
}

Json historyJson(const std::vector<Misfit>& history) {
  Json list = Json::array();
  for (std::size_t i = 0; i < history.size(); ++i) {
    Json json = Json::object();
    json["iteration"] = i + 1;
    json["rmse_ms"] = ofPicks(history[i], history[i].rmse * 1000.0);
    json["rms_percent"] = ofPicks(history[i], history[i].relativeRms * 100.0);
    list.push_back(std::move(json));
  }
  return list;
}

/// Entry 0 is the starting model.
Json sectionHistoryJson(const std::vector<SectionMisfit>& history) {
  Json list = Json::array();
  for (std::size_t i = 0; i < history.size(); ++i) {
    Json json = Json::object();
    json["iteration"] = i;
    putSectionMisfit(json, history[i]);
    list.push_back(std::move(json));
  }
  return list;
}

/// Entry 0 of the misfits is the starting model. The trimmed ones, without gross errors, decide.
Json coarseToFineJson(const CoarseToFineResult& all) {
  Json json = Json::object();
  json["kept_iteration"] = all.kept;
  json["radii"] = all.radii;
  Json misfits = Json::array();
  Json trimmed = Json::array();
  for (const SectionMisfit& each : all.sections) {
    misfits.push_back(ofPicks(each, each.rmse * 1000.0));
    trimmed.push_back(ofPicks(each, each.trimmed * 1000.0));
  }
  json["section_rmse_ms"] = std::move(misfits);
  json["trimmed_rmse_ms"] = std::move(trimmed);
  return json;
}

Json sectionTimesJson(const TomoDocument& document) {
  Json times = Json::array();
  for (const TravelTime& record : document.ttArray) times.push_back(record.ttCalcolati);
  return times;
}

void putChiSquare(Json& json, const char* method, const ChiSquare& fit) {
  json["method"] = method;
  json["chi2"] = ofPicks(fit, fit.chi2);
  json["chi2_all"] = ofPicks(fit, fit.all);
  json["suspect_count"] = fit.suspects.size();
}

Json textsJson(const std::vector<Message>& messages) {
  Json texts = Json::array();
  for (const Message& message : messages) texts.push_back(message.english());
  return texts;
}

/// What could have been started from; those of the picks come first, the best of them first.
Json referencesJson(const References& references) {
  Json list = Json::array();
  for (const ReferenceModel& model : references.models) {
    Json json = Json::object();
    json["name"] = keyOf(model.kind);
    json["description"] = model.description.english();
    json["chi2"] = model.fit.chi2;
    json["chi2_huber"] = model.fit.huber;
    json["unknowns"] = model.decided;
    json["score"] = model.fit.score;
    list.push_back(std::move(json));
  }
  return list;
}

/// Fits that were made, in their order; the one that is kept starts from the reference.
Json trialsJson(const std::vector<ReferenceTrial>& trials) {
  Json list = Json::array();
  for (const ReferenceTrial& trial : trials) {
    Json json = Json::object();
    json["reference"] = trial.reference;
    json["chi2"] = trial.fit.chi2;
    json["suspects"] = trial.fit.suspects.size();
    json["iterations"] = trial.iterations;
    json["target"] = trial.end == FitEnd::kTarget;
    list.push_back(std::move(json));
  }
  return list;
}

Json lateShotsJson(const std::vector<ShotShift>& shots) {
  Json list = Json::array();
  for (const ShotShift& shot : shots) {
    Json json = Json::object();
    json["shot"] = shot.record;
    json["late_ms"] = shot.late * 1000.0;
    list.push_back(std::move(json));
  }
  return list;
}

/// Shots and receivers count from 0.
void putFit(Json& json, const ReferencedRun& run) {
  const FittedRunResult& fit = run.fit;
  putChiSquare(json, "fitted", fit.fit);
  json["chi2_history"] = fit.chi2History;
  json["reference"] = fit.reference;
  json["references"] = referencesJson(run.references);
  json["references_refused"] = textsJson(run.references.refused);
  json["lambda"] = fit.lambda;
  json["outcome"] = fit.outcome.english();
  json["constraints"] = constraintsJson(fit.known);
  json["trials"] = trialsJson(run.trials);
  json["late_shots"] = lateShotsJson(fit.lateShots);
  json["suspects"] = suspectsJson(fit.suspects);
  Json statics = Json::array();
  for (const double shift : fit.statics) statics.push_back(shift * 1000.0 + 0.0);  // no -0
  json["statics_ms"] = fit.statics.empty() ? Json(nullptr) : std::move(statics);
}

/// The keys of a fit, of a section that is none.
void putSmoothed(Json& json, const TomoDocument& document) {
  putChiSquare(json, "smoothed", sectionChiSquareOf(document));
  for (const char* key : {"chi2_history", "reference", "lambda"}) json[key] = nullptr;
  json["suspects"] = suspectsJson(suspectsOf(document));
  json["statics_ms"] = nullptr;
}

/// The iteration whose section is kept; 0 is the model that it started from.
int keptIteration(const TomographyResult& result, const ReferencedRun* fit) {
  if (fit != nullptr) return fit->fit.kept;
  return result.coarseToFine ? result.coarseToFine->kept : result.iterationsDone;
}

Json pickErrorsJson(const TomoDocument& document) {
  Json errors = Json::array();
  for (const TravelTime& record : document.ttArray) errors.push_back(errorsJson(record));
  return errors;
}

Json tracesJson(const ShotFileData& data, bool samples) {
  Json traces = Json::array();
  for (const ShotRecord& record : data.traces) {
    Json trace = Json::object();
    trace["samples"] = record.samples.size();
    trace["sample_interval"] = record.sampleInterval;
    trace["source"] = pointJson(record.source);
    trace["receiver"] = pointJson(record.receiver);
    trace["delay"] = record.delay;
    if (samples) trace["data"] = record.samples;
    traces.push_back(std::move(trace));
  }
  return traces;
}

Json failureJson(const std::string& file, const Status& status) {
  Json json = Json::object();
  json["file"] = file;
  json["status"] = status.code();
  json["message"] = status.message();
  return json;
}

/// What the standard makes of a shot file.
Json standardJson(const ReadShotFile& file, const std::vector<Message>& losses, bool samples) {
  Json json = Json::object();
  json["status"] = file.outcome.status.code();
  if (!file.outcome.status.ok()) {
    json["message"] = file.outcome.status.message();
    return json;
  }
  json["format"] = file.outcome.format;
  Json shots = Json::array();
  for (const StandardReading::Shot& shot : file.shots) {
    Json record = Json::object();
    record["name"] = shot.name;
    record["traces"] = tracesJson(shot.data, samples);
    shots.push_back(std::move(record));
  }
  json["shots"] = std::move(shots);
  json["warnings"] = textsJson(file.outcome.warnings);
  json["lost_by_rules"] = textsJson(losses);
  return json;
}

}  // namespace

std::string inversionJson(const TomoDocument& document, const TomographyResult& result,
                          const ReferencedRun* fit, const ResolutionReport* resolution) {
  const Misfit& misfit = result.misfit;
  Json json = Json::object();
  json["grid"] = gridJson(document);
  json["iterations_done"] = result.iterationsDone;
  json["kept_iteration"] = keptIteration(result, fit);
  json["elapsed_s"] = result.elapsedSeconds;
  json["rmse_ms"] = ofPicks(misfit, misfit.rmse * 1000.0);
  json["rms_percent"] = ofPicks(misfit, misfit.relativeRms * 100.0);
  json["max_error_ms"] = ofPicks(misfit, misfit.maxError * 1000.0);
  json["max_error_percent"] = ofPicks(misfit, misfit.maxRelativeError * 100.0);
  json["picks_used"] = misfit.count;
  json["excluded"] = excludedJson(document.result->excluded);
  json["misfit_history"] = historyJson(result.history);
  json["velocities"] = document.model->grid->velocities();
  json["hit_counts"] = document.result->hitCounts;
  json["coverage_m"] = document.result->coorcount;
  json["info_density"] = document.result->info_density;
  Json drawn = Json::array();
  for (std::uint32_t cell = 0; cell < document.model->grid->cellCount(); ++cell) {
    drawn.push_back(document.model->grid->draw(cell));
  }
  json["to_be_draw"] = std::move(drawn);
  json["computed_times"] = result.lastPassTimes;
  putSectionMisfit(json, result.sectionMisfit);
  putTrusted(json, document);
  json["section_history"] = sectionHistoryJson(document.result->sectionHistory);
  if (result.coarseToFine) json["coarse_to_fine"] = coarseToFineJson(*result.coarseToFine);
  json["section_times"] = sectionTimesJson(document);
  json["errors_ms"] = pickErrorsJson(document);
  putErrors(json, document);
  putGrades(json, gradesOf(document.ttArray));
  json["computing_s"] = result.computingSeconds;
  if (fit != nullptr) {
    putFit(json, *fit);
    if (document.result->certainty) json["certainty"] = certaintyJson(document);
  } else {
    putSmoothed(json, document);
  }
  if (resolution != nullptr) json["resolution"] = resolutionJson(*resolution);
  return linePerKey(json) + "\n";
}

std::string travelTimesJson(const TravelTimeData& data) {
  Json shots = Json::array();
  for (const TravelTime& record : data.records) shots.push_back(recordJson(record));
  Json json = Json::object();
  json["format"] = data.format;
  json["strings"] = stringsJson(data.strings);
  json["shots"] = std::move(shots);
  return jsonText(json) + "\n";
}

std::string shotFileJson(const std::string& file, const ReadShotFile& byRules,
                         const ReadShotFile& byStandard, const std::vector<Message>& losses,
                         bool samples) {
  Json json = failureJson(file, byRules.outcome.status);
  if (byRules.outcome.status.ok()) {
    json = Json::object();
    json["format"] = byRules.outcome.format;
    json["status"] = 0;
    json["traces"] = tracesJson(byRules.shots.front().data, samples);
  }
  json["standard"] = standardJson(byStandard, losses, samples);
  return jsonText(json) + "\n";
}

std::string unreadableJson(const std::string& file, const Status& status) {
  return jsonText(failureJson(file, status)) + "\n";
}

std::string picksJson(const TomoDocument& document, const std::string& filter,
                      const doctor::ReciprocityTable& reciprocity) {
  Json shots = Json::array();
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const TraceSet& traces = document.recordings->traceSets[i];
    Json shot = recordJson(record);
    shot["file"] = document.recordings->filenames[i];
    const std::string name = shotRecord(document, i);
    if (!name.empty()) shot["record"] = name;
    shot["samples_before_shot"] = traces.empty() ? 0 : traces.front().droppedSamples;
    shot["accepted"] = pickCount(record);
    shot["rejected"] = record.ttMisurati.size() - pickCount(record);
    shots.push_back(std::move(shot));
  }
  Json json = Json::object();
  json["filter"] = filter;
  json["strings"] = stringsJson(document.line->goephonesStringSet);
  json["shots"] = std::move(shots);
  json["reciprocity"] = reciprocityJson(reciprocity);
  return linePerKey(json) + "\n";
}

std::string projectJson(const LoadedProject& project) {
  const TomoDocument& document = project.document;
  Json shots = Json::array();
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    Json shot = recordJson(record);
    const std::string path = shotFile(document, i);
    const std::string file = path.substr(path.find_last_of('/') + 1);
    shot["file"] = file.empty() ? Json(nullptr) : Json(file);
    shot["traces"] =
        i < document.recordings->traceSets.size() ? document.recordings->traceSets[i].size() : 0;
    shot["computed_times"] = record.ttCalcolati;
    shot["mends"] = mendsJson(mendsOfRecord(document, static_cast<std::int32_t>(i)));
    Json filters = Json::array();
    for (const FilterStep& step : filtersOf(*document.recordings, i)) {
      filters.push_back(describe(step).english());
    }
    shot["filters"] = std::move(filters);
    shots.push_back(std::move(shot));
  }
  Json json = Json::object();
  json["format"] = "tvsk";
  json["title"] = document.title;
  json["wave_type"] = document.recordings->waveType == WaveType::S ? "S" : "P";
  json["strings"] = stringsJson(document.line->goephonesStringSet);
  json["shots"] = std::move(shots);
  json["has_tomographic_info"] = document.result->has_tomographic_info;
  json["rms_percent"] = document.result->RMSE_tomography < 0.0
                            ? Json(nullptr)
                            : Json(document.result->RMSE_tomography);
  putSectionMisfit(json, sectionMisfitOf(document));
  putTrusted(json, document);
  const auto& run = document.result->lastInversion;
  const bool fitted = run && run->fit;
  putChiSquare(json, fitted ? "fitted" : "smoothed", sectionChiSquareOf(document));
  if (!document.result->has_tomographic_info) json["method"] = nullptr;
  json["reference"] = fitted ? Json(run->fit->reference) : Json(nullptr);
  putKnownGround(json, document);
  json["crs"] = document.map->geoCoord_isSet ? Json(document.map->geoCoord.CRS) : Json(nullptr);
  json["runs"] = runsJson(document);
  json["palette"] = project.palettes->current().name;
  json["layered_shots"] = project.interpretation->ttLayer.size();
  const auto& profile = project.interpretation->refractData;
  json["refractors"] = profile.cData.size();
  // A profile of an earlier version does not know its picks.
  json["picks_changed_since_profile"] = profile.cData.empty() || profile.picks == 0
                                            ? Json(nullptr)
                                            : Json(picksChangedSince(document, profile));
  json["grid"] = nullptr;
  if (document.model->grid != nullptr) {
    json["grid"] = gridJson(document);
    json["velocities"] = document.model->grid->velocities();
    json["info_density"] = document.result->info_density;
  }
  return linePerKey(json) + "\n";
}

std::string jsonArray(const std::vector<std::string>& values) {
  std::string array;
  for (const std::string& value : values) {
    array += (array.empty() ? "[\n" : ",\n") + value.substr(0, value.find_last_not_of('\n') + 1);
  }
  return (array.empty() ? "[" : array + "\n") + "]\n";
}

}  // namespace talvesk
