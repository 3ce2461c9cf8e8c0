#include "batch/DrawingExports.h"
#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "batch/PrintExports.h"

#include <functional>

namespace talvesk {
namespace {

constexpr const char* kOutputGroup = "Output";
constexpr const char* kMapGroup = "Place on the globe";
constexpr const char* kColorGroup = "Colours of --kml-section";

/// Two numbers with a separator between them.
void readPair(const std::string& option, const std::string& form, const std::string& text,
              char separator, double& first, double& second) {
  constexpr Range<double> kAnything{-1e12, 1e12};
  const auto fields = splitFields(text, separator);
  if (fields.size() != 2 || text.back() == separator) {
    throw CLI::ValidationError(option, "'" + text + "' is not " + form);
  }
  first = numberWithin(option, std::string(fields[0]), kAnything);
  second = numberWithin(option, std::string(fields[1]), kAnything);
}

CLI::Option* addPair(CLI::App& app, const std::string& name, const std::string& form,
                     char separator, const std::string& help,
                     const std::function<void(double, double)>& assign) {
  return app
      .add_option_function<std::string>(
          name,
          [name, form, separator, assign](const std::string& text) {
            double first = 0.0;
            double second = 0.0;
            readPair(name, form, text, separator, first, second);
            assign(first, second);
          },
          help)
      ->type_name(form);
}

CLI::Option* addGridded(CLI::App& app, ExportOptions& options) {
  GriddedTextOptions& text = options.griddedText;
  CLI::Option* gridded = addPath(app, "--gridded", options.gridded,
                                 "A text line 'X Y Z V' per drawn cell: metres and m/s");
  CLI::Option* y = addNumber(app, "--y", "M", Range<double>{-1e9, 1e9},
                             "Y of every line of --gridded, metres (default: 0)",
                             [&text](double value) { text.lineY = value; });
  CLI::Option* z = addNumber(app, "--z-offset", "M", Range<double>{-1e9, 1e9},
                             "Added to Z in --gridded, metres (default: 0)",
                             [&text](double value) { text.zOffset = value; });
  CLI::Option* survey = app.add_flag("--survey-x", text.surveyX,
                                     "X in --gridded is the distance along the line, without the "
                                     "offset of the grid");
  for (CLI::Option* option : {y, z, survey}) option->needs(gridded)->group(kOutputGroup);
  return gridded->group(kOutputGroup);
}

void readSign(const std::string& text, ExportOptions& options) {
  options.refractorByGradient = text == "gradient";
  if (options.refractorByGradient) return;
  options.refractorAt = numberWithin("--refractor-at", text, rangeOf(parameters::kLayerVelocity));
}

void addRefractor(CLI::App& app, ExportOptions& options) {
  CLI::Option* refractor = mustEndIn(
      app.add_option("--refractor", options.refractors,
                     "A refractor of the layered profile beside the same in the section, geophone "
                     "by geophone with mean and RMS of the differences: .csv or .json, or as two "
                     "lines over the section: .png, .svg or .pdf; once per file")
          ->type_name("FILE")
          ->allow_extra_args(false)
          ->group(kOutputGroup),
      {".csv", ".json", ".png", ".svg", ".pdf"}, true);
  app.add_option_function<std::string>(
         "--refractor-at", [&options](const std::string& text) { readSign(text, options); },
         "What stands for the refractor in the section: a velocity in m/s, or gradient, the "
         "steepest gradient of ln v with depth (default: the middle between the velocities of the "
         "layers above and below)")
      ->type_name("V|gradient")
      ->needs(refractor)
      ->group(kOutputGroup);
  addNumber(app, "--refractor-layer", "N", Range<int>{2, 3},
            "Layer that begins at the refractor (default: 2)",
            [&options](int value) { options.refractorLayer = value; })
      ->needs(refractor)
      ->group(kOutputGroup);
}

/// The fields of a report go with a page on many lines, too.
void addReportIndex(CLI::App& app, CLI::Option* report, ExportOptions& options) {
  CLI::Option* index =
      addPath(app, "--report-index", options.index,
              "Of any number of projects a web page each and one on all of them, with a table of "
              "misfit and coverage, small sections, a map and links: the name of that page, "
              "*.html, or a folder, where it is index.html; a project that cannot be read stands "
              "there with the reason")
          ->type_name("PAGE|FOLDER")
          ->group(report->get_group());
  for (const char* name : {"--report-title", "--client", "--site", "--author", "--date"}) {
    CLI::Option* field = app.get_option(name);
    field->remove_needs(report);
    field->check([index, report](const std::string&) -> std::string {
      if (index->count() > 0 || report->count() > 0) return {};
      return "goes with --report or --report-index";
    });
  }
}

/// One project, or an index of many and nothing else.
void checkProjects(ExportOptions& options) {
  if (!options.index.empty()) {
    if (options.anyOutput() || !(options.run + options.style).empty() || options.geography) {
      throw CLI::ValidationError(
          "--report-index",
          "goes with the texts of a report and --quiet, and with no other option");
    }
    return;
  }
  if (options.projects.size() > 1) {
    throw CLI::ValidationError(
        "PROJECT",
        "'" + options.projects[1] + "' is one more: several projects go with --report-index only");
  }
  options.project = options.projects.front();
  if (!options.anyOutput()) throw CLI::ValidationError("export", "no file to write is given");
}

void addOutputs(CLI::App& app, ExportOptions& options) {
  addGridded(app, options);
  const auto output = [&app](const char* name, std::string& path, const char* suffix,
                             const char* help) {
    return mustEndIn(addPath(app, name, path, help)->group(kOutputGroup), {suffix}, true);
  };
  output("--vtk", options.vtk, ".vtu", "The drawn cells as a VTK unstructured grid, named *.vtu");
  output("--grd", options.surfer, ".grd",
         "Velocities on a regular raster as a Surfer ASCII grid, named *.grd");
  output("--certainty-table", options.certainty, ".csv",
         "How sure the section is, a line per drawn cell: median, 16 and 84 % and spread, named "
         "*.csv");
  output("--otte", options.otte, ".otte", "The picks as a travel-time exchange file");
  output("--sgt", options.sgt, ".sgt", kUnifiedHelp);
  addPath(app, "--residuals", options.residuals, kResidualsHelp)->group(kOutputGroup);
  addRefractor(app, options);
  addPath(app, "--pick-headers", options.pickedRecords,
          "Copies of the shot files with the picks in their trace headers, into this folder, which "
          "is made when it does not exist: FIRST_BREAK in seconds in SEG-2, whole microseconds in "
          "bytes 233 to 236 in SEG-Y and SU")
      ->type_name("DIR")
      ->group(kOutputGroup);
  CLI::Option* line = output("--kml-line", options.kmlLine, ".kml",
                             "Geophones and shots as marks on the globe, named *.kml");
  CLI::Option* section = output("--kml-section", options.kmlSection, ".kml",
                                "The section standing on the globe, named *.kml");
  addImages(app, options.images,
            "The section as the project shows it: .png, .svg or .pdf; once per picture")
      ->group(kOutputGroup);
  addPrintExports(app, options.prints, kOutputGroup);
  CLI::Option* report = addReport(app, options.report, options.reportFields);
  addReportIndex(app, report, options);
  const std::vector<CLI::Option*> onMap = addDrawingExports(app, options.drawings);

  const auto geography = [&options]() -> geographicsCoord& {
    if (!options.geography) options.geography.emplace();
    return *options.geography;
  };
  CLI::Option* epsg =
      addNumber(app, "--epsg", "N", Range<int>{1, 2147483647},
                "EPSG code of the projected system of --first and --last (default: the project's)",
                [geography](int value) { geography().CRS = value; });
  CLI::Option* first =
      addPair(app, "--first", "E,N", ',', "Easting and northing of the first geophone, metres",
              [geography](double east, double north) {
                geography().mEastFstGeoph = east;
                geography().mNorthFstGeoph = north;
              });
  CLI::Option* last =
      addPair(app, "--last", "E,N", ',', "Easting and northing of the last geophone, metres",
              [geography](double east, double north) {
                geography().mEastLstGeoph = east;
                geography().mNorthLstGeoph = north;
              });
  epsg->needs(first)->needs(last)->group(kMapGroup);
  first->needs(epsg)->group(kMapGroup);
  last->needs(epsg)->group(kMapGroup);

  app.add_option("--palette", options.palette, "Name of the palette (default: the project's)")
      ->type_name("NAME")
      ->needs(section)
      ->group(kColorGroup);
  addPair(app, "--range", "MIN:MAX", ':', "Velocities at its ends, m/s (default: the project's)",
          [&options](double least, double most) {
            if (!(most > least)) {
              throw CLI::ValidationError("--range", "the maximum must be above the minimum");
            }
            options.range = ValueRange{least, most};
          })
      ->needs(section)
      ->group(kColorGroup);
  std::vector<CLI::Option*> placed = {line, section, report};
  placed.insert(placed.end(), onMap.begin(), onMap.end());
  epsg->check([placed](const std::string&) -> std::string {
    std::string names;
    for (const CLI::Option* option : placed) {
      if (option->count() > 0) return {};
      names += (names.empty() ? "" : option == placed.back() ? " and " : ", ") + option->get_name();
    }
    return "only " + names + " tell the place of the line";
  });
}

}  // namespace

void addExport(CLI::App& app, ExportOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "export",
      "Write the section of a project for other programs, each output as it is asked for");
  mustEndIn(command
                .add_option("PROJECT", options.projects,
                            "The project, named *.tvsk; any number with --report-index")
                ->required(),
            {".tvsk"}, true);
  command
      .add_option("--use", options.run,
                  "The inversion run whose section is written, by its number or name; 'info "
                  "PROJECT --list' lists them (default: that which the project shows)")
      ->type_name("RUN");
  addOutputs(command, options);
  mustEndIn(addPath(command, "--style", options.style,
                    "How the section looks in pictures, reports and KML: palette, range, contours, "
                    "exaggeration, switches and marked isolines of this file, named *.tvstyle "
                    "(default: the project's)"),
            {".tvstyle"}, true);
  addFeet(command);
  command.add_flag("--quiet", options.quiet, kQuietHelp);
  command.final_callback([&options] {
    checkProjects(options);
    if (!options.drawings.isovalues.empty() && !options.drawings.drawsLines()) {
      throw CLI::ValidationError("--isovalues", "only --dxf and --gpkg have lines of velocities");
    }
  });
}

}  // namespace talvesk
