#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/Images.h"
#include "batch/LayerFindings.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/RefractSummary.h"
#include "batch/RefractionJson.h"
#include "batch/Reports.h"
#include "batch/ShotPicking.h"
#include "batch/StartModel.h"
#include "figures/RefractionFigure.h"
#include "io/LayerFile.h"
#include "io/project/projectReader.h"
#include "model/TomographyOutcome.h"
#include "refraction/Branches.h"
#include "refraction/BuildProfiles.h"
#include "refraction/FittedProfile.h"
#include "refraction/LayerProposal.h"
#include "refraction/LayeredFit.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/Profile.h"
#include "refraction/SurveyProposal.h"
#include "refraction/WeighedPicks.h"
#include "refraction/methods/ProfileErrors.h"
#include "session/TableRules.h"
#include "tomo/RayRecomputation.h"
#include "view/RefractorLines.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;

constexpr double kManyErrors = 3.0;

/// The picks of a survey and what is found from them.
struct Work {
  std::vector<ShotArrivals> shots;
  std::vector<std::vector<double>> errors;  ///< of the picks
  std::optional<SurveyProposal> proposal;   ///< over the survey
  bool wasFitted = false;                   ///< the profile that the project came with
  ProfileOutcome outcome;
  LayeredFit fit;
  LayerFindings findings;
  std::vector<std::string> remarks;  ///< on the profile

  bool hasOneLayer() const {
    return proposal && proposal->hasLayers() && proposal->grounds[*proposal->chosen].layers == 1;
  }
};

void propose(const RefractOptions& options, Interpretation& interpretation, Work& work) {
  if (options.propose != ProposalMethod::kSurvey) {
    interpretation.ttLayer = proposeLayers(work.shots, interpretation.ttLayer);
    return;
  }
  work.proposal =
      proposeFromSurvey(work.shots, work.errors, interpretation.ttLayer, options.layerCount);
  interpretation.ttLayer = work.proposal->marks;
}

Status markLayers(const RefractOptions& options, const TomoDocument& document,
                  Interpretation& interpretation, Work& work) {
  fitToSurvey(document, interpretation);
  if (options.layers.empty()) {
    const bool kept = !options.propose && hasMarks(interpretation.ttLayer);
    if (!kept) propose(options, interpretation, work);  // else those of the project
    return {};
  }
  LayerMarks marks;
  const Status status = readLayerMarks(options.layers, document, marks);
  if (!status.ok()) return status;
  for (std::size_t shot = 0; shot < marks.size(); ++shot) {
    interpretation.ttLayer[shot].layer = std::move(marks[shot]);
  }
  return {};
}

/// Whether the profile of a project is the one that is asked for: it was fitted to these picks, and
/// nothing says how another would be found.
bool keepsProfile(const RefractOptions& options, const Interpretation& interpretation,
                  const Work& work) {
  const bool otherAsked = options.propose || options.profile || options.xy ||
                          options.layering.xyRule != XYRule::kGiven || !options.layers.empty();
  return work.wasFitted && !otherAsked &&
         !picksChangedSince(work.shots, interpretation.refractData);
}

/// The profile asked for. The reciprocal method says what is missing where nothing can be fitted.
void build(const RefractOptions& options, Interpretation& interpretation, Work& work,
           Status& refused) {
  work.wasFitted = interpretation.refractData.isFitted();
  if (work.hasOneLayer()) {
    forgetResults(interpretation);  // an earlier profile is not of these marks
    return;
  }
  if (keepsProfile(options, interpretation, work)) {
    work.outcome.built = true;
    work.fit = fitOfProfile(work.shots, work.errors, interpretation);
    return;
  }
  if (options.isFitted() && work.proposal->hasLayers()) {
    work.fit = fitProfile(work.shots, work.errors, *work.proposal, interpretation);
    work.outcome.built = work.fit.total.picks > 0;
    if (work.outcome.built) return;
  }
  work.outcome = buildWithXY(options, work.shots, interpretation, refused);
  if (work.outcome.built) work.fit = fitOfProfile(work.shots, work.errors, interpretation);
}

/// Says when a profile fits much less than it could: than the waves of a proposal do, or without
/// one than the errors of its picks let expect. Empty otherwise.
std::string whyFitsLess(const Work& work, const Interpretation& interpretation) {
  if (work.proposal) {
    return whyProfileFitsLess(work.shots, work.fit, *work.proposal, interpretation).english();
  }
  const LayerMisfit& all = work.fit.total;
  const double times = std::sqrt(all.chi2);
  if (all.picks == 0 || !(times > kManyErrors)) return {};
  return "the profile fits its picks to " + shortNumber(all.rms * 1000.0) + " ms only, " +
         shortNumber(times) + " times their errors";
}

/// What a user must know of the profile.
std::vector<std::string> profileRemarks(const RefractOptions& options, const Work& work,
                                        const Interpretation& interpretation) {
  std::vector<std::string> remarks;
  for (const RefractionWarning& warning : work.outcome.warnings) {
    remarks.push_back(warning.text());
  }
  if (!work.outcome.built) {
    if (!remarks.empty()) remarks.pop_back();  // told as the reason
    return remarks;
  }
  if (options.isFitted() && !interpretation.refractData.isFitted()) {
    remarks.emplace_back(
        "no profile can be fitted to all picks; it is that of the reciprocal method");
  }
  const bool fitted = interpretation.refractData.isFitted();
  if (work.wasFitted && !fitted) {
    remarks.emplace_back(
        "the profile of the project was fitted to all its picks; it is replaced by that of the "
        "reciprocal method (--propose survey fits one again)");
  }
  const std::string why = whyFitsLess(work, interpretation);
  if (!why.empty()) remarks.push_back(why);
  if (fitted && work.findings.hasBands()) {
    remarks.emplace_back(
        "no error bands: --bounds moves picks through the reciprocal method only, this profile is "
        "fitted");
  }
  return remarks;
}

std::string reasonOf(const Work& work, const ShotPairReach& reach) {
  const ProfileOutcome& outcome = work.outcome;
  const auto& proposal = work.proposal;
  if (proposal && !proposal->hasLayers()) return proposal->statement();
  if (outcome.warnings.empty()) return "there is nothing to build a profile of";
  const RefractionWarning& last = outcome.warnings.back();
  if (last.kind != RefractionWarning::Kind::kNoShotPair) return last.text();
  if (!reach.hasShots()) return last.text() + ": no shot has picks of layer 2";
  return last.text() + ": shots with picks of layer 2 reach from " + formatDouble(reach.firstShot) +
         " to " + formatDouble(reach.lastShot) + " m, but geophones from " +
         formatDouble(reach.firstReceiver) + " to " + formatDouble(reach.lastReceiver) + " m";
}

void summarize(const Interpretation& interpretation, const Work& work, std::ostream& out) {
  if (work.proposal) out << "Proposal, by its waves: " << work.proposal->statement() << '\n';
  summarizeProfile(interpretation, work.shots, work.fit, out);
  summarizeFindings(work.findings, out);
  out.flush();
}

/// The profile, and below it what several methods find.
std::string tableOf(const Interpretation& interpretation, const LayerFindings& findings) {
  const auto& results = interpretation.refractData;
  if (!findings.comparison) return profileTable(results);
  const std::string comparison = comparisonTable(*findings.comparison);
  return results.cData.empty() ? comparison : profileTable(results) + '\n' + comparison;
}

/// Tries every output: a picture that cannot be drawn must not cost the numbers.
int writeResults(const RefractOptions& options, const LoadedProject& project, const Work& work) {
  const TomoDocument& document = project.document;
  const Interpretation& interpretation = *project.interpretation;
  OutputAttempts attempt;
  attempt(options.json, [&](const auto& path) {
    return writeOutput(
        path, refractionJson(interpretation, work.fit, work.proposal, work.remarks, work.findings));
  });
  attempt(options.table, [&](const auto& path) {
    return writeOutput(path, tableOf(interpretation, work.findings));
  });
  attempt(options.misfit,
          [&](const auto& path) { return writeOutput(path, misfitTable(work.fit)); });
  attempt(options.project, [&](const auto& path) { return writeProject(path, project); });
  const std::optional<ProfileErrors> errors =
      work.findings.comparison && !interpretation.refractData.isFitted()
          ? profileErrors(*work.findings.comparison, interpretation.refractData)
          : std::nullopt;
  RefractionFigureOptions figure;
  figure.errors = errors ? &*errors : nullptr;
  for (const std::string& image : options.images) {
    attempt(image, [&](const auto& path) {
      return writeRefractionFigure(document, interpretation, figure, path);
    });
  }
  attempt(options.report, [&](const auto& path) {
    return writeReportFile(
        {document, &interpretation, work.findings.methods(), &work.fit, figure.errors},
        options.reportFields,
        sectionFigureOptions(project.section, project.palettes->current(),
                             refractorLines(interpretation)),
        path);
  });
  return attempt.exitCode();
}

std::vector<OutputFile> outputsOf(const RefractOptions& options) {
  std::vector<OutputFile> outputs = {{"--json", options.json},
                                     {"--table", options.table},
                                     {"--misfit", options.misfit},
                                     {"--project", options.project},
                                     {"--report", options.report}};
  for (const std::string& image : options.images) outputs.push_back({"--image", image});
  return outputs;
}

std::vector<std::string> inputsOf(const RefractOptions& options) {
  std::vector<std::string> inputs = surveyFiles(options.input, options.shots);
  if (!options.layers.empty()) inputs.push_back(options.layers);
  return inputs;
}

/// The section of a project is drawn in a report, and its rays are not in the project.
Status prepareReport(const RefractOptions& options, TomoDocument& document) {
  if (options.report.empty() || !document.result->has_tomographic_info) return {};
  Log log;
  return recomputeRays(document, log);
}

/// What was asked for that shows a profile, by the names of its options.
std::string outputsOfProfile(const RefractOptions& options) {
  const std::pair<const char*, bool> all[] = {{"--table", !options.table.empty()},
                                              {"--misfit", !options.misfit.empty()},
                                              {"--image", !options.images.empty()},
                                              {"--report", !options.report.empty()},
                                              {"--start-model", options.startModel.has_value()}};
  std::string names;
  for (const auto& [name, asked] : all) {
    if (asked) names += (names.empty() ? "" : ", ") + std::string(name);
  }
  return names;
}

/// A proposal of one layer has marks and nothing below them: what shows a profile is not written.
int endWithoutRefractor(const RefractOptions& options, const LoadedProject& project,
                        const Work& work, const Channels& channels) {
  RefractOptions marksOnly;
  marksOnly.json = options.json;
  marksOnly.project = options.project;
  for (const Message& remark : work.proposal->remarks()) warn(remark);
  const std::string missing = outputsOfProfile(options);
  if (!missing.empty()) {
    warn(missing + ": there is no profile to show; what was asked for there is not written");
  }
  writeResults(marksOnly, project, work);
  summarize(*project.interpretation, work, *channels.summary);
  return failed("1 layer: there is no refractor to build a profile of");
}

}  // namespace

int run(const RefractOptions& options) {
  const std::vector<OutputFile> outputs = outputsOf(options);
  const Channels channels = openChannels(outputs, options.quiet, options.verbose);
  const Status places = checkOutputFiles(outputs, inputsOf(options));
  if (places.code() == kWrongUsage) return wrongUsage("refract", places.message());
  if (!places.ok()) return failed(places.message());
  if (!options.images.empty() || !options.report.empty()) prepareDrawing();

  LoadedProject project;
  TomoDocument& document = project.document;
  PickingManner manner;
  manner.quiet = options.quiet;
  manner.summary = channels.summary;
  Status status = readSurvey(options.input, options.picks, options.shots, manner, project);
  if (!status.ok()) return failed(status.message());
  if (!options.quiet && !document.picksComplete()) {
    warn("uncomplete set of picks; the interpretation is run anyway");
  }

  Work work;
  work.shots = shotArrivals(document);
  work.errors = pickErrors(document, work.shots);
  status = editSurvey(Edit::kRefraction, project, [&](Survey& next) {
    Interpretation& edited = next.interpretation.edit();
    Status marked = markLayers(options, document, edited, work);
    if (marked.ok()) build(options, edited, work, marked);
    return marked;
  });
  if (!status.ok()) return failed(status.message());
  const Interpretation& interpretation = *project.interpretation;
  work.findings = findLayers(options.layering, document, interpretation);
  if (work.hasOneLayer()) return endWithoutRefractor(options, project, work, channels);
  if (!work.outcome.built) {
    const std::string reason = reasonOf(work, shotPairReach(work.shots, interpretation.ttLayer, 2));
    const bool layered = work.proposal && work.proposal->hasLayers();
    if (!work.findings.foundLayers()) {
      return failed(layered ? work.proposal->statement().english() + ": " + reason : reason);
    }
    warn("no profile by the reciprocal method: " + reason);
  }
  // What is left out or replaced is told even who wants to hear nothing else.
  if (work.proposal) {
    for (const Message& remark : work.proposal->remarks()) warn(remark);
  }
  work.remarks = profileRemarks(options, work, interpretation);
  for (const std::string& remark : work.remarks) warn(remark);
  for (const std::string& remark : remarksOf(work.findings)) warn(remark);
  if (options.startModel) {
    status = putStartModel(*options.startModel, project);
    if (!status.ok()) return failed(status.message());
  }
  status = prepareReport(options, document);
  if (!status.ok()) return failed(status.message());
  const int exitCode = writeResults(options, project, work);
  summarize(interpretation, work, *channels.summary);
  return exitCode;
}

}  // namespace talvesk
