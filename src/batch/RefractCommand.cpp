#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/Images.h"
#include "batch/LayerFindings.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
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

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;

/// The picks of a survey and what is found from them.
struct Work {
  std::vector<ShotArrivals> shots;
  std::vector<std::vector<double>> errors;  ///< of the picks
  std::optional<SurveyProposal> proposal;   ///< over the survey
  ProfileOutcome outcome;
  LayeredFit fit;
  LayerFindings findings;
  std::vector<std::string> remarks;  ///< on the profile
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

/// The profile asked for. The reciprocal method says what is missing where nothing can be fitted.
void build(const RefractOptions& options, Interpretation& interpretation, Work& work,
           Status& refused) {
  if (options.isFitted() && work.proposal->hasLayers()) {
    work.fit = fitProfile(work.shots, work.errors, *work.proposal, interpretation);
    work.outcome.built = work.fit.total.picks > 0;
    if (work.outcome.built) return;
  }
  work.outcome = buildWithXY(options, work.shots, interpretation, refused);
  if (work.outcome.built) work.fit = fitOfProfile(work.shots, work.errors, interpretation);
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
  if (interpretation.refractData.isFitted() && work.findings.comparison) {
    remarks.emplace_back(
        "the profile is fitted to all picks; errors and other methods are told of profiles of "
        "their "
        "own, and its picture has no bands");
  }
  if (work.proposal) {
    const Message why = whyProfileFitsLess(work.shots, work.fit, *work.proposal, interpretation);
    if (!why.empty()) remarks.push_back(why.english());
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

std::string rangeOf(const std::vector<double>& values, const std::string& unit) {
  std::vector<double> known;
  std::copy_if(values.begin(), values.end(), std::back_inserter(known),
               [](double value) { return std::isfinite(value); });
  if (known.empty()) return "unknown";
  const auto ends = std::minmax_element(known.begin(), known.end());
  return formatDouble(*ends.first, 4) + " to " + formatDouble(*ends.second, 4) + ' ' + unit;
}

/// Of the first layer of a fitted profile, whose velocity is a mean.
std::string atSurface(const refractionDataStructure::FirstLayer& first) {
  if (first.x.empty()) return {};
  std::string text = " in the mean, " + rangeOf(first.velocity, "m/s") + " at the surface";
  if (first.growth > 0.0) {
    text += ", growing by " + formatDouble(100.0 * first.growth, 2) +
            " % of it per metre down to " + formatDouble(first.growsTo, 2) + " m";
  }
  return text;
}

std::string misfitOf(const LayeredFit& fit, std::uint32_t layer) {
  const auto found = std::find_if(fit.perLayer.begin(), fit.perLayer.end(),
                                  [layer](const LayerMisfit& one) { return one.layer == layer; });
  if (found == fit.perLayer.end()) return {};
  return ", misfit " + formatDouble(found->rms * 1000.0, 2) + " ms (chi2 " +
         formatDouble(found->chi2, 2) + ") of " + std::to_string(found->picks) + " picks";
}

void summarize(const Interpretation& interpretation, const Work& work, std::ostream& out) {
  const auto& results = interpretation.refractData;
  if (work.proposal) out << "Proposal: " << work.proposal->statement() << '\n';
  if (!results.cData.empty()) {
    out << "Layer 1: " << (results.v1 > 0.0 ? formatDouble(results.v1, 4) + " m/s" : "no velocity")
        << atSurface(results.first) << misfitOf(work.fit, 1) << '\n';
  }
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    const computedData& refractor = results.cData[i];
    out << "Layer " << i + 2 << ": ";
    if (results.isFitted()) {
      out << "fitted to all picks, " << refractor.x.size() << " places";
    } else {
      out << "shots " << interpretation.phnt_A[i].shotID + 1 << " and "
          << interpretation.phnt_R[i].shotID + 1 << ", " << refractor.x.size() << " receivers";
    }
    out << ", velocity " << rangeOf(refractor.velocity, "m/s") << ", depth "
        << rangeOf(refractor.depth, "m") << misfitOf(work.fit, static_cast<std::uint32_t>(i) + 2)
        << '\n';
  }
  summarizeFindings(work.findings, out);
  out.flush();
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
    return writeOutput(path, work.findings.comparison ? comparisonTable(*work.findings.comparison)
                                                      : profileTable(interpretation.refractData));
  });
  attempt(options.misfit,
          [&](const auto& path) { return writeOutput(path, misfitTable(work.fit)); });
  attempt(options.project, [&](const auto& path) { return writeProject(path, project); });
  const std::optional<ProfileErrors> errors =
      work.findings.comparison
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
