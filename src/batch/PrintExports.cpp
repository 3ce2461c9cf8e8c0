#include "batch/PrintExports.h"

#include "batch/OptionParsing.h"
#include "batch/Options.h"
#include "figures/print/PrintFigures.h"
#include "figures/print/PrintPages.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <array>

namespace talvesk {
namespace {

struct PrintOption {
  const char* name;
  std::string PrintExports::*path;
  const char* help;
};

constexpr std::array<PrintOption, 7> kPrints = {
    {{"--print", &PrintExports::section,
      "The section as the project shows it on a sheet of paper, along the line true to scale, with "
      "title and scale bar, named *.pdf"},
     {"--print-curves", &PrintExports::curves, "The same of the travel-time curves, named *.pdf"},
     {"--print-layers", &PrintExports::layers, "The same of the layered profile, named *.pdf"},
     {"--print-traces", &PrintExports::traces,
      "The same of the traces of every shot, one after the other, named *.pdf"},
     {"--print-misfit", &PrintExports::misfit,
      "The misfit of every iteration of the inversion on a sheet of that paper, named *.pdf"},
     {"--print-residuals", &PrintExports::residuals,
      "The residuals shot by geophone on a sheet of that paper, named *.pdf"},
     {"--print-residual-section", &PrintExports::residualSection,
      "The residuals along the rays as a section true to scale, named *.pdf"}}};

void addChoices(CLI::App& command, PrintExports& prints, std::vector<CLI::Option*>& choices) {
  constexpr Range<double> kScales{PrintSheet::kLeastScale, PrintSheet::kMostScale};
  choices.push_back(command
                        .add_option_function<std::string>(
                            "--scale",
                            [&prints, kScales](const std::string& text) {
                              prints.scale = text == "fit" ? PrintSheet::kToFit
                                                           : numberWithin("--scale", text, kScales);
                            },
                            "Metres along the line to a metre of paper in all prints, or fit: as "
                            "large as the sheet has room for (default: 500)")
                        ->type_name("N|fit"));
  std::vector<std::string> names;
  for (const Paper& paper : papers()) names.push_back(paper.name);
  choices.push_back(command.add_option("--paper", prints.paper, "Paper of prints (default: A3)")
                        ->check(CLI::IsMember(names)));
  choices.push_back(command.add_flag("--portrait", prints.portrait,
                                     "That paper upright (default: its longer side below)"));
  choices.push_back(addNumber(command, "--exaggeration", "X", rangeOf(parameters::kExaggeration),
                              "Height of a metre over its width in --print, --print-layers and "
                              "--print-residual-section (default: as the project shows it)",
                              [&prints](double value) { prints.exaggeration = value; }));
  choices.push_back(
      addNumber(command, "--ms-per-cm", "MS",
                Range<double>{PrintSettings::kLeastMsPerCm, PrintSettings::kMostMsPerCm},
                "Milliseconds to a centimetre of paper in --print-curves and --print-traces "
                "(default: as the sheet has room)",
                [&prints](double value) { prints.msPerCm = value; }));
  choices.push_back(command.add_flag("--tiles", prints.tiles,
                                     "What is larger than the sheet goes over several, each with "
                                     "axes of its own and lines to put them together (default: it "
                                     "is not printed)"));
}

PrintSettings settingsOf(const PrintExports& prints) {
  const auto chosen = std::find_if(papers().begin(), papers().end(),
                                   [&](const Paper& paper) { return paper.name == prints.paper; });
  PrintSettings settings;
  settings.sheet = PrintSheet::on(*chosen, !prints.portrait, prints.scale);
  settings.exaggeration = prints.exaggeration;
  settings.msPerCm = prints.msPerCm;
  settings.tiles = prints.tiles;
  return settings;
}

Status print(const std::vector<PrintFigure>& figures, const PrintExports& prints,
             const std::string& path) {
  std::vector<PrintPages> sets(figures.size());
  for (std::size_t i = 0; i < figures.size(); ++i) {
    const Status status = preparePrint(figures[i], settingsOf(prints), sets[i]);
    if (!status.ok()) return status;
  }
  return writePrint(sets, path);
}

Status printTraces(const TomoDocument& document, const PrintExports& prints,
                   const std::string& path) {
  std::vector<PrintFigure> figures;
  const auto& sets = document.recordings->traceSets;
  for (std::size_t shot = 0; shot < sets.size(); ++shot) {
    if (!sets[shot].empty()) figures.push_back(printedGather(document, shot, {}));
  }
  if (figures.empty()) return Status::failure(Message::tr("The document has no traces to draw."));
  return print(figures, prints, path);
}

Status printMisfit(const TomoDocument& document, const PrintExports& prints,
                   const std::string& path) {
  const auto& run = document.result->lastInversion;
  return print({printedMisfit(document, run ? *run : InversionRecord())}, prints, path);
}

}  // namespace

std::vector<OutputFile> filesOf(const PrintExports& prints) {
  std::vector<OutputFile> files;
  for (const PrintOption& option : kPrints) files.push_back({option.name, prints.*option.path});
  return files;
}

void addPrintExports(CLI::App& command, PrintExports& prints, const char* group) {
  std::vector<CLI::Option*> files;
  for (const PrintOption& option : kPrints) {
    files.push_back(
        mustEndIn(addPath(command, option.name, prints.*option.path, option.help), {".pdf"}, true)
            ->group(group));
  }
  std::vector<CLI::Option*> choices;
  addChoices(command, prints, choices);
  for (CLI::Option* option : choices) {
    option->group(group)->check([files](const std::string&) -> std::string {
      const bool any = std::any_of(files.begin(), files.end(),
                                   [](const CLI::Option* file) { return file->count() > 0; });
      return any ? "" : "goes with --print or another print";
    });
  }
}

void writePrints(const PrintExports& prints, const LoadedProject& project,
                 const SectionFigureOptions& section, OutputAttempts& attempt) {
  const TomoDocument& document = project.document;
  const auto each = [&](const std::string& file, const std::function<PrintFigure()>& make) {
    attempt(file, [&](const std::string& path) { return print({make()}, prints, path); });
  };
  each(prints.section, [&] { return printedSection(document, section); });
  each(prints.curves, [&] { return printedCurves(document, {}); });
  each(prints.layers, [&] { return printedLayers(document, *project.interpretation, {}); });
  attempt(prints.traces,
          [&](const std::string& path) { return printTraces(document, prints, path); });
  attempt(prints.misfit,
          [&](const std::string& path) { return printMisfit(document, prints, path); });
  const bool tells = !(prints.residuals + prints.residualSection).empty();
  const ResidualTable table = tells ? residualTableOf(document) : ResidualTable();
  each(prints.residuals,
       [&] { return printedResiduals(document, table, ResidualView::kMap, section); });
  each(prints.residualSection,
       [&] { return printedResiduals(document, table, ResidualView::kSection, section); });
}

}  // namespace talvesk
