#include "batch/CheckJson.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/ReciprocityText.h"
#include "batch/ShotPicking.h"
#include "doctor/Doctor.h"
#include "doctor/FindingTexts.h"
#include "doctor/ReciprocityTable.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "session/SureMends.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

using doctor::Finding;
using Findings = std::vector<Finding>;

bool isProposed(const Finding& finding) {
  return finding.proposal.has_value();
}

std::string shotName(const TomoDocument& document, std::size_t shot) {
  const std::string path = shotFile(document, shot);
  return path.empty() ? std::string()
                      : " (" + asOneLine(path.substr(path.find_last_of('/') + 1)) + ")";
}

void tell(const Findings& findings, const TomoDocument& document, std::ostream& out) {
  if (findings.empty()) out << "Nothing is doubtful.\n";
  for (const Finding& finding : findings) {
    if (finding.shot) {
      out << "shot " << *finding.shot + 1 << shotName(document, *finding.shot);
    } else {
      out << "survey";
    }
    out << "\n  " << doctor::nameOf(finding.kind) << ", " << std::lround(100.0 * finding.confidence)
        << " % sure: " << finding.text << '\n';
    if (finding.proposal) out << "  proposal: " << doctor::describe(*finding.proposal) << '\n';
  }
}

Status load(const CheckOptions& options, LoadedProject& project) {
  if (!options.input.empty()) return readProject(options.input, project);
  return loadShotFiles(options.shots, project);
}

/// Carries out what is proposed and sure, and looks again, until nothing is. \return what is left
Findings mend(Findings findings, const CheckOptions& options, std::ostream& out, Survey& survey) {
  const SureMends mends =
      mendWhatIsSure(std::move(findings), options.sure, survey, [&](const Findings& again) {
        out << "\nMended, and checked again:\n";
        tell(again, survey.document, out);
      });
  for (const Message& note : mends.notes) warn(note);
  const std::size_t done = mends.done;
  findings = mends.left;
  out << done << (done == 1 ? " proposal" : " proposals") << " carried out.\n";
  const auto left = std::count_if(findings.begin(), findings.end(), isProposed);
  if (left > 0) {
    out << left << (left == 1 ? " proposal is" : " proposals are") << " left that "
        << (left == 1 ? "was" : "were") << " less than " << options.sure
        << " % sure, or could not be carried out; --sure P carries out less sure ones.\n";
  }
  const Status counted = countFromShot(options.shots, out, survey);
  if (!counted.ok()) warn(counted.message());
  return findings;
}

}  // namespace

int run(const CheckOptions& options) {
  const std::vector<OutputFile> outputs = {{"--json", options.json}, {"--mend", options.project}};
  const Channels channels = openChannels(outputs, options.quiet);
  const Status places = checkOutputFiles(outputs, surveyFiles(options.input, options.shots));
  if (places.code() == kWrongUsage) return wrongUsage("check", places.message());
  if (!places.ok()) return failed(places.message());

  std::ostream& out = *channels.summary;
  LoadedProject project;
  const Status loaded = load(options, project);
  if (!loaded.ok()) return failed(loaded.message());
  if (project.document.recordings->traceSets.empty()) {
    return failed(options.input + ": it holds no recordings to check");
  }
  const Findings findings = doctor::checkRecordings(project.document);
  tell(findings, project.document, out);
  const doctor::ReciprocityTable reciprocity = doctor::reciprocityOf(project.document);
  tellReciprocity(reciprocity, project.document, out);
  Findings left = findings;
  if (!options.project.empty()) left = mend(findings, options, out, project);
  out.flush();

  OutputAttempts attempt(&out);
  attempt(options.project, [&](const auto& path) { return writeProject(path, project); });
  attempt(options.json, [&](const auto& path) {
    return writeOutput(path, checkJson(project.document, findings, left, reciprocity));
  });
  if (attempt.exitCode() != kDone) return attempt.exitCode();
  const bool doubtful = std::any_of(left.begin(), left.end(), isProposed);
  return options.strict && doubtful ? kDoubtful : kDone;
}

}  // namespace talvesk
