#include "batch/BlowPairRecords.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/ShotPicking.h"
#include "batch/SurveyedPlaces.h"
#include "io/project/projectReader.h"

#include <QDir>
#include <memory>
#include <ostream>

namespace talvesk {
namespace {

RecordFormat readFormat(const std::string& text) {
  if (text == "segy") return RecordFormat::kSegy;
  if (text == "seg2") return RecordFormat::kSeg2;
  throw CLI::ValidationError("--as", "'" + text + "' is none of segy, seg2");
}

/// Of the files to be written, whose names are known once the survey is.
std::vector<OutputFile> outputsOf(const TomoDocument& document, const RecordExport& wanted) {
  std::vector<OutputFile> outputs;
  for (const std::string& file : recordFiles(document, wanted)) {
    outputs.push_back({"--output-folder", file});
  }
  return outputs;
}

}  // namespace

void addRecords(CLI::App& app, RecordsOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "records",
      "Write the records of shot files or a project, as mended and with the positions that they "
      "have there, as SEG-Y or SEG-2: shot01.sgy and so on");
  const auto inputs = std::make_shared<std::vector<std::string>>();
  command.add_option("INPUT", *inputs, "Shot files, or one project (.tvsk)")->required();
  addSurveyedOptions(command, options.shots.surveyed);
  addElevationOptions(command, options.shots.elevations);
  addReader(command, options.shots.reader);
  const ShotOptionGroup shots = addPlaceOptions(command, options.shots);
  addPath(command, "-o,--output-folder", options.folder,
          "Folder for the files; made when it does not exist")
      ->required();
  command
      .add_option_function<std::string>(
          "--as", [&](const std::string& text) { options.format = readFormat(text); },
          "segy: SEG-Y revision 1, big-endian IEEE floats, sample intervals of whole microseconds "
          "only; seg2: SEG-2, 32-bit floats (default: segy)")
      ->type_name("FORMAT");
  CLI::Option* together =
      command.add_flag("--one-file", options.together, "All shots in one SEG-Y file, shots.sgy");
  const auto takePair = addBlowPair(command, options.pair, {together});
  command.add_flag("--quiet", options.quiet, kQuietHelp);
  command.final_callback([inputs, shots, together, takePair, &options] {
    takePair();
    if (inputs->size() == 1 && isProjectFile(inputs->front())) {
      options.project = inputs->front();
      if (shots.anyGiven()) {
        throw CLI::ValidationError("INPUT", "the options of shot files do not apply to a project");
      }
    } else {
      options.shots.files = *inputs;
    }
    shots.check(options.shots);
    if (together->count() > 0 && options.format == RecordFormat::kSeg2) {
      throw CLI::ValidationError("--one-file", "a SEG-2 file holds one shot");
    }
  });
}

int run(const RecordsOptions& options) {
  const Channels channels = openChannels({}, options.quiet);
  LoadedProject project;
  Status status = options.project.empty() ? loadShotFiles(options.shots, project)
                                          : readProject(options.project, project);
  if (status.ok()) {
    status = layOntoTables(options.project, options.shots, *channels.summary, project);
  }
  if (!status.ok()) return failed(status.message());
  if (!QDir().mkpath(QString::fromStdString(options.folder))) {
    return failed("Cannot make the folder " + options.folder);
  }
  if (options.pair) {
    status = writeBlowPairRecords(options, project.document,
                                  surveyFiles(options.project, options.shots), *channels.summary);
    if (status.code() == kWrongUsage) return wrongUsage("records", status.message());
    return status.ok() ? kDone : failed(status.message());
  }
  const RecordExport wanted = {options.format, options.folder, options.together};
  status = checkOutputFiles(outputsOf(project.document, wanted),
                            surveyFiles(options.project, options.shots));
  if (status.code() == kWrongUsage) return wrongUsage("records", status.message());
  std::vector<Message> notes;
  if (status.ok()) status = exportRecords(project.document, wanted, notes);
  if (!status.ok()) return failed(status.message());
  for (const std::string& note : notes) warn(note);
  const std::vector<std::string> files = recordFiles(project.document, wanted);
  *channels.summary << "Wrote " << files.front();
  if (files.size() > 1) *channels.summary << " to " << files.back();
  *channels.summary << std::endl;
  return kDone;
}

}  // namespace talvesk
