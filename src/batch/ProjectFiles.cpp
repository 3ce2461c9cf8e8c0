#include "batch/ProjectFiles.h"

#include "base/AtomicFile.h"
#include "base/StreamPlace.h"
#include "base/TextNumber.h"
#include "base/WorkingFolder.h"
#include "batch/Failure.h"
#include "io/FileFormats.h"
#include "io/project/ProjectLock.h"
#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/LeftOut.h"
#include "model/Mending.h"
#include "model/PickGrades.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "refraction/PicksFingerprint.h"
#include "tomo/ForwardPass.h"

#include <QString>
#include <QTemporaryDir>
#include <ostream>

namespace talvesk {
namespace {

Status workingFolder(std::string& path) {
  const WorkingFolder folder = WorkingFolder::ofUser();
  path = folder.path;
  if (folder.create()) return {};
  return Status::failure("Cannot create the folder " + path + ", where projects are put together");
}

/// An archive is put together in a file, whose bytes then go on.
Status streamProject(const std::string& path, const LoadedProject& project) {
  const QTemporaryDir folder;
  const std::string file = folder.filePath(QStringLiteral("project.tvsk")).toStdString();
  std::string bytes;
  Status status = writeProject(file, project);
  if (status.ok()) status = readWholeFile(file, bytes);
  return status.ok() ? writeStream(path, bytes) : status;
}

std::string countOf(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string methodOf(const TomoDocument& document) {
  const auto& run = document.result->lastInversion;
  if (!run) return "done";
  return run->fit ? "fitted" : "smoothed";
}

void describeInversion(const TomoDocument& document, std::ostream& out) {
  const SectionMisfit misfit = sectionMisfitOf(document);
  out << methodOf(document);
  if (misfit.count > 0) {
    out << ", RMS misfit of the section " << formatDouble(misfit.rmse * 1000.0) << " ms, "
        << formatDouble(misfit.relativeRms * 100.0) << " %";
  }
  if (const ChiSquare fit = sectionChiSquareOf(document); fit.count > 0) {
    const PickErrorRule rule = errorRuleOf(document);
    out << ", chi-square " << formatDouble(fit.chi2, 4) << " by errors of "
        << formatDouble(rule.floor * 1000.0) << " ms or " << formatDouble(rule.share * 100.0)
        << " %, suspects " << fit.suspects.size();
  }
  // A fit has no solver pass beside the section.
  if (methodOf(document) != "fitted" && document.result->RMSE_tomography >= 0.0) {
    out << ", last solver pass " << formatDouble(document.result->RMSE_tomography) << " %";
  }
  if (document.result->smoothedResult) out << "; smoothed since";
  if (picksChangedSince(document)) out << "; picks have changed since";
  out << "\n";
  for (const std::string& line : describe(leftOut(document, findExcluded(document)), document)) {
    out << "              " << line << "\n";
  }
}

void listFilters(const TomoDocument& document, std::ostream& out) {
  for (std::size_t set = 0; set < document.recordings->traceSets.size(); ++set) {
    for (const FilterStep& step : filtersOf(*document.recordings, set)) {
      out << "  filter      shot " << set + 1 << ": " << describe(step) << "\n";
    }
  }
}

void listMends(const TomoDocument& document, std::ostream& out) {
  for (std::size_t set = 0; set < document.recordings->mends.size(); ++set) {
    for (const Message& line : describeMends(document, set)) {
      out << "  mend        shot " << set + 1 << ": " << line << "\n";
    }
  }
}

/// A window that has the project open asks before it saves over what is written now.
void warnOfHolder(const std::string& path, const ProjectHolder& holder) {
  const std::string who = holder.process.empty() ? "another program"
                                                 : holder.user + " on " + holder.host +
                                                       " (process " + holder.process + ")";
  warn(path + " is in use by " + who + "; it is replaced all the same");
}

}  // namespace

bool isProjectFile(const std::string& path) {
  return hasSuffixOf(projectFormat(), path);
}

Status readProject(const std::string& path, LoadedProject& project) {
  std::string folder;
  if (Status status = workingFolder(folder); !status.ok()) return status;
  projectReader reader;
  if (reader.load(path, folder, project) != 0) {
    return Status::failure(path + " is not a valid project: " + reader.message());
  }
  for (const std::string& repair : reader.repairs()) warn(path + ": " + repair);
  for (const std::string& warning : reader.warnings()) {
    warn(path + ": " + warning);
  }
  return {};
}

Status writeProject(const std::string& path, const LoadedProject& project) {
  if (isStreamPlace(path)) return streamProject(path, project);
  std::string folder;
  if (Status status = workingFolder(folder); !status.ok()) return status;
  const ProjectLock::Outcome lock = ProjectLock::take(path);
  if (lock.holder) warnOfHolder(path, *lock.holder);
  ProjectWriter writer;
  if (writer.save(path, folder, project.document, project.interpretation, project.palettes,
                  project.section, project.own) != 0) {
    return Status::failure("The project " + path + " has not been saved: " + writer.message());
  }
  for (const std::string& warning : writer.warnings()) warn(warning);
  return {};
}

std::string picksText(const std::vector<TravelTime>& records) {
  std::size_t times = 0;
  std::size_t picks = 0;
  for (const TravelTime& record : records) {
    times += record.ttMisurati.size();
    picks += pickCount(record);
  }
  const PickGrades grades = gradesOf(records);
  std::string text = "  picks       " + std::to_string(picks) + " of " + std::to_string(times) +
                     " times\n  errors      ";
  if (!grades.any()) return text + "-\n";
  return text + std::to_string(grades.good) + " sure to " +
         formatDouble(parameters::kGoodPick.value) + " ms, " + std::to_string(grades.doubtful) +
         " doubtful, " + std::to_string(grades.unknown) + " not known\n";
}

void describe(const std::string& path, const LoadedProject& project, std::ostream& out) {
  const TomoDocument& document = project.document;
  std::size_t geophones = 0;
  std::size_t traces = 0;
  for (const auto& string : document.line->goephonesStringSet) geophones += string.size();
  for (const TraceSet& set : document.recordings->traceSets) traces += set.size();
  out << asOneLine(path) << "\n  format      project\n  title       " << asOneLine(document.title)
      << "\n  strings     " << document.line->goephonesStringSet.size() << "\n  geophones   "
      << geophones << "\n  shots       " << document.ttArray.size() << "\n  traces      " << traces
      << " of " << countOf(document.recordings->traceSets.size(), "file") << "\n"
      << picksText(document.ttArray) << "  grid        ";
  if (const Grid* grid = document.model->grid.get()) {
    out << countOf(grid->righe(), "row") << ", " << countOf(grid->col(), "column") << " of "
        << formatDouble(grid->aLato()) << " m\n";
  } else {
    out << "none\n";
  }
  listMends(document, out);
  listFilters(document, out);
  out << "  inversion   ";
  if (!document.result->has_tomographic_info) {
    out << "none\n";
  } else {
    describeInversion(document, out);
  }
  const auto& profile = project.interpretation->refractData;
  out << "  layers      ";
  if (profile.cData.empty()) {
    out << "none\n";
  } else {
    out << countOf(profile.cData.size(), "refractor")
        << (picksChangedSince(document, profile) ? ", picks have changed since\n" : "\n");
  }
}

}  // namespace talvesk
