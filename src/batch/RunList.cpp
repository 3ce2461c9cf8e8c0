#include "batch/RunList.h"

#include "base/PlainText.h"
#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "io/Survey.h"
#include "model/ChiSquare.h"
#include "model/KeptRuns.h"
#include "model/TomographyOutcome.h"
#include "session/TableRules.h"
#include "tomo/KeepRun.h"

#include <ostream>

namespace talvesk {
namespace {

constexpr double kMsPerSecond = 1000.0;

std::string methodOf(const KeptRun& run) {
  return run.record.fit ? "fitted" : "smoothed";
}

std::string changesText(const RunChanges& changes) {
  std::string text;
  if (changes.picks) text += "; picks have changed since";
  if (changes.ground) {
    text += "; the surface or the ends of the line have changed since";
  } else if (changes.positions) {
    text += "; positions have changed since";
  }
  return text;
}

void list(const KeptRun& run, bool shown, const TomoDocument& document, std::ostream& out) {
  out << (shown ? "  * " : "    ") << run.number << "  " << methodOf(run);
  const PickErrorRule rule = errorRuleOf(run.record);
  if (run.chi2 >= 0.0) {
    out << ", chi-square " << formatDouble(run.chi2) << " by errors of "
        << formatDouble(rule.floor * kMsPerSecond) << " ms or " << formatDouble(rule.share * 100.0)
        << " %";
  }
  if (run.trustedRms >= 0.0)
    out << ", RMS " << formatDouble(run.trustedRms * kMsPerSecond) << " ms";
  if (const SectionMisfit misfit = run.misfit(); misfit.count > 0) {
    out << ", RMS of all picks as they are " << formatDouble(misfit.rmse * kMsPerSecond) << " ms, "
        << formatDouble(misfit.relativeRms * 100.0) << " %";
  }
  out << ", iterations " << run.iterations() << ", " << formatDouble(run.record.computingSeconds, 3)
      << " s";
  if (!run.when.empty()) out << ", " << run.when;
  if (!run.name.empty()) out << ", " << quoted(run.name);
  out << changesText(changesSince(run, document)) << "\n";
}

Json known(double value) {
  return value < 0.0 ? Json(nullptr) : Json(value);
}

Json settingsJson(const InversionRecord& record) {
  Json json = Json::object();
  json["iterations"] = record.externalIterations;
  json["min_velocity"] = record.minVelocity;
  json["max_velocity"] = record.maxVelocity;
  const PickErrorRule rule = errorRuleOf(record);
  json["sigma_ms"] = rule.floor * kMsPerSecond;
  json["sigma_percent"] = rule.share * 100.0;
  if (record.fit) {
    json["reference"] = record.fit->reference;
    json["robust"] = record.fit->robust;
    json["blocky"] = record.fit->blocky;
    json["statics"] = record.fit->statics;
    json["trigger_error_ms"] =
        record.fit->statics ? Json(record.fit->triggerError * kMsPerSecond) : Json(nullptr);
    json["lambda"] = record.fit->lambda;
    return json;
  }
  json["solver_iterations"] = record.solverIterations;
  json["smoothing"] = record.smoothing;
  json["smoothing_type"] = record.smoothingType;
  json["symmetric"] = record.symmetric;
  json["coarse_to_fine"] = record.coarseToFine > 0;
  return json;
}

Json runJson(const KeptRun& run, bool shown, const TomoDocument& document) {
  const SectionMisfit misfit = run.misfit();
  const RunChanges changes = changesSince(run, document);
  Json json = Json::object();
  json["number"] = run.number;
  json["name"] = run.name.empty() ? Json(nullptr) : Json(run.name);
  json["shown"] = shown;
  json["when"] = run.when.empty() ? Json(nullptr) : Json(run.when);
  json["method"] = methodOf(run);
  json["settings"] = settingsJson(run.record);
  json["iterations"] = run.iterations();
  json["chi2"] = known(run.chi2);
  json["chi2_all"] = known(run.chi2All);
  json["trusted_rmse_ms"] = known(run.trustedRms * kMsPerSecond);
  json["section_rmse_ms"] = misfit.count > 0 ? Json(misfit.rmse * kMsPerSecond) : Json(nullptr);
  json["section_rms_percent"] = misfit.count > 0 ? Json(misfit.relativeRms * 100.0) : Json(nullptr);
  json["computing_s"] = run.record.computingSeconds;
  json["rows"] = run.size.righe;
  json["columns"] = run.size.col;
  json["cell_size"] = run.size.aLato;
  json["picks_changed"] = changes.picks;
  json["positions_changed"] = changes.positions;
  json["ground_changed"] = changes.ground;
  return json;
}

std::string namesOf(const SharedVector<KeptRun>& runs) {
  std::string names;
  for (const KeptRun& run : runs) {
    names += (names.empty() ? "" : ", ") + std::to_string(run.number);
    if (!run.name.empty()) names += " " + quoted(run.name);
  }
  return names.empty() ? "it keeps none" : "it keeps " + names;
}

}  // namespace

void listRuns(const TomoDocument& document, std::ostream& out) {
  const auto shown = shownRun(document);
  out << "  runs        " << (document.runs.empty() ? "none" : std::to_string(document.runs.size()))
      << "\n";
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    list(document.runs[i], shown == i, document, out);
  }
}

Json runsJson(const TomoDocument& document) {
  const auto shown = shownRun(document);
  Json runs = Json::array();
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    runs.push_back(runJson(document.runs[i], shown == i, document));
  }
  return runs;
}

Status chooseRun(const std::string& called, unsigned threads, Survey& survey, Log& log) {
  const auto index = findRun(*survey.document.runs, called);
  if (!index) {
    return Status::failure("the project has no inversion run " + quoted(called) + "; " +
                           namesOf(survey.document.runs));
  }
  const KeptRun run = survey.document.runs[*index];
  const bool wasSure = survey.document.result->certainty.has_value();
  const Status status = editSurvey(Edit::kUseRun, survey, [&](Survey& next) {
    return useRun(*index, threads, next.document, log);
  });
  const std::string changes = changesText(changesSince(run, survey.document));
  if (status.ok() && !changes.empty()) warn(run.title().english() + changes);
  if (status.ok() && wasSure) {
    warn("the certainty of the project is that of its section, and is left out beside " +
         run.title().english());
  }
  return status;
}

}  // namespace talvesk
