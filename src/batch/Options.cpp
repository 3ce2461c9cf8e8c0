#include "batch/Options.h"

#include "base/TextNumber.h"
#include "batch/Failure.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <string_view>

#include <CLI/CLI.hpp>

namespace talvesk {
namespace {

constexpr int kLargestInt = 2147483647;

constexpr std::size_t kNameColumn = 30;
constexpr std::size_t kHelpColumns = 50;
constexpr const char* kExitCodes = "Exit code: 0 done, 1 failed, 2 wrong usage.";

/// Breaks a help text into lines that fit beside the column of names on a terminal.
std::string wrapped(const std::string& text) {
  std::string lines;
  std::size_t lineLength = 0;
  for (const std::string_view word : splitFields(text, ' ')) {
    if (lineLength > 0 && lineLength + 1 + word.size() > kHelpColumns) {
      lines += '\n';
      lineLength = 0;
    } else if (lineLength > 0) {
      lines += ' ';
      ++lineLength;
    }
    lines += word;
    lineLength += word.size();
  }
  return lines;
}

void wrapHelp(CLI::App& app) {
  app.get_formatter()->column_width(kNameColumn);
  app.description(wrapped(app.get_description()));
  for (CLI::Option* option : app.get_options()) {
    option->description(wrapped(option->get_description()));
    if (option->get_positional()) option->type_name("");
  }
  for (CLI::App* command : app.get_subcommands({})) wrapHelp(*command);
}

template <typename T>
struct Range {
  T least;
  T greatest;
};

/// The whole text as a number, or false. Neither "nan" nor "12 m" nor "0x10" is one.
template <typename T>
bool readWhole(std::string_view text, T& value) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  T read{};
  const auto result = std::from_chars(text.data(), text.data() + text.size(), read);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) return false;
  if (!std::isfinite(static_cast<double>(read))) return false;
  value = read;
  return true;
}

template <typename T>
T numberWithin(const std::string& what, const std::string& text, Range<T> range) {
  T value{};
  if (readWhole(text, value) && value >= range.least && value <= range.greatest) return value;
  const std::string kind = std::is_integral_v<T> ? "a whole number" : "a number";
  throw CLI::ValidationError(what, "'" + text + "' is not " + kind + " from " +
                                       formatDouble(static_cast<double>(range.least), 10) + " to " +
                                       formatDouble(static_cast<double>(range.greatest), 10));
}

/// An option with one number; `assign` takes it once it is in range.
template <typename T, typename Assign>
CLI::Option* addNumber(CLI::App& app, const std::string& name, const std::string& unit,
                       Range<T> range, const std::string& help, Assign assign) {
  return app
      .add_option_function<std::string>(
          name,
          [name, range, assign](const std::string& text) {
            assign(numberWithin<T>(name, text, range));
          },
          help)
      ->type_name(unit);
}

CLI::Option* addPath(CLI::App& app, const std::string& name, std::string& path,
                     const std::string& help) {
  return app.add_option(name, path, help)->type_name("FILE");
}

/// \param suffix in lower case; \param anyCase whether ".PNG" ends in ".png"
bool endsWith(const std::string& text, std::string_view suffix, bool anyCase) {
  if (text.size() <= suffix.size()) return false;
  return std::equal(suffix.begin(), suffix.end(), text.end() - static_cast<long>(suffix.size()),
                    [anyCase](char expected, char c) {
                      return c == expected ||
                             (anyCase && std::tolower(static_cast<unsigned char>(c)) == expected);
                    });
}

VelocityLayer readLayer(const std::string& text) {
  const auto fields = splitFields(text, ':');
  if (fields.size() != 4 || text.back() == ':') {
    throw CLI::ValidationError("--layer", "'" + text + "' is not TOP:BOTTOM:VTOP:VBOTTOM");
  }
  const auto field = [&](std::size_t i, Range<double> range) {
    return numberWithin("--layer " + text, std::string(fields[i]), range);
  };
  constexpr Range<double> kDepth{0.0, 999.99};
  constexpr Range<double> kVelocity{1.0, 999999.0};
  VelocityLayer layer;
  layer.initialDepth = field(0, kDepth);
  layer.finalDepth = field(1, kDepth);
  layer.initialVelocity = field(2, kVelocity);
  layer.finalVelocity = field(3, kVelocity);
  if (layer.finalDepth <= layer.initialDepth) {
    throw CLI::ValidationError("--layer", "'" + text + "': the bottom must be deeper than the top");
  }
  return layer;
}

void addGridOptions(CLI::App& app, InvertOptions& options) {
  addNumber(
      app, "--cell-size", "M", Range<double>{0.1, 1e6},
      "Side of the square cells, metres (default: a quarter of the smallest geophone spacing)",
      [&](double value) { options.cellSize = value; })
      ->group("Grid");
  addNumber(app, "--depth", "M", Range<double>{0.0, 1e6},
            "Depth of the grid below the surface, metres, at most the array length "
            "(default: half the array length)",
            [&](double value) { options.depth = value; })
      ->group("Grid");
  addNumber(app, "--nodes", "N", Range<int>{6, 1000},
            "Nodes per cell side, at least 6 (default: 6)",
            [&](int value) { options.nodes = value; })
      ->group("Grid");
  app.add_option_function<std::vector<std::string>>(
         "--layer",
         [&](const std::vector<std::string>& texts) {
           for (const std::string& text : texts) options.layers.push_back(readLayer(text));
         },
         "One layer of the starting model: depths of top and bottom in metres below the surface "
         "(0 to 999.99), velocities at top and bottom in m/s (1 to 999999). Once per "
         "layer, from the top down, each beginning with the velocity that the one above ends with "
         "(default: a model that grows with depth)")
      ->type_name("TOP:BOTTOM:VTOP:VBOTTOM")
      ->allow_extra_args(false)
      ->group("Grid");
}

void addRunOptions(CLI::App& app, TomographyParameters& run) {
  const auto count = [&](const char* name, int& target, const std::string& help) {
    addNumber(app, name, "N", Range<int>{1, kLargestInt}, help, [&target](int value) {
      target = value;
    })->group("Inversion");
  };
  count("--iterations", run.externalIterations,
        "External iterations, each with new rays (default: 10)");
  count("--solver-iterations", run.solverIterations,
        "Solver iterations on the rays of one external iteration (default: 20)");
  count("--smoothing", run.smoothing, "Smoothing radius, cells (default: 5)");
  app.add_option_function<std::string>(
         "--smoothing-type",
         [&](const std::string& text) {
           if (text == "uniform") {
             run.smoothingType = SmoothingType::kUniform;
           } else if (text == "linear") {
             run.smoothingType = SmoothingType::kLinear;
           } else if (text == "gaussian") {
             run.smoothingType = SmoothingType::kGaussian;
           } else if (text == "ray") {
             run.smoothingType = SmoothingType::kRayBased;
           } else {
             throw CLI::ValidationError("--smoothing-type", "'" + text +
                                                                "' is none of uniform, linear, "
                                                                "gaussian, ray");
           }
         },
         "uniform, linear, gaussian or ray (default: ray)")
      ->type_name("TYPE")
      ->group("Inversion");
  app.add_flag("--symmetric", run.symmetric,
               "Smooth as far up and down as sideways, instead of 0.7 times as far")
      ->group("Inversion");
  const auto velocity = [&](const char* name, double& target, const std::string& help) {
    addNumber(app, name, "M/S", Range<double>{1.0, 999999999.0}, help, [&target](double value) {
      target = value;
    })->group("Inversion");
  };
  velocity("--min-velocity", run.minVelocity, "Least velocity of a cell, m/s (default: 250)");
  velocity("--max-velocity", run.maxVelocity, "Greatest velocity of a cell, m/s (default: 3500)");
  app.add_flag("--single-thread", run.singleThread,
               "Trace rays on one processor; the results are the same")
      ->group("Inversion");
}

void addOutputOptions(CLI::App& app, InvertOptions& options) {
  CLI::Option* gridded = addPath(app, "--gridded", options.gridded,
                                 "Write a text line 'X Y Z V' per drawn cell: metres and m/s");
  CLI::Option* lineY = addNumber(app, "--line-y", "M", Range<double>{-1e9, 1e9},
                                 "Y of every line of --gridded, metres (default: 0)",
                                 [&](double value) { options.lineY = value; });
  CLI::Option* zOffset = addNumber(app, "--z-offset", "M", Range<double>{-1e9, 1e9},
                                   "Added to Z in --gridded, metres (default: 0)",
                                   [&](double value) { options.zOffset = value; });
  CLI::Option* image = app.add_option("--image", options.images,
                                      "Draw the section: .png, .svg or .pdf; once per picture")
                           ->type_name("FILE")
                           ->allow_extra_args(false);
  image->check([](const std::string& path) {
    for (const char* suffix : {".png", ".svg", ".pdf"}) {
      if (endsWith(path, suffix, true)) return std::string();
    }
    return "the name '" + path + "' must end in .png, .svg or .pdf";
  });
  CLI::Option* rays = app.add_flag("--rays", options.rays, "Draw the rays in --image");
  CLI::Option* contours = addNumber(app, "--contours", "N", Range<int>{0, 100},
                                    "Number of contour lines of velocity in --image (default: 0)",
                                    [&](int value) { options.contours = value; });
  for (CLI::Option* option : {lineY, zOffset}) option->needs(gridded);
  for (CLI::Option* option : {rays, contours}) option->needs(image);
  CLI::Option* otte =
      addPath(app, "--otte", options.otte, "Write the picks as a travel-time exchange file");
  CLI::Option* json = addPath(app, "--json", options.json,
                              "Write the results as JSON; '-' is standard output, and then all "
                              "diagnostics go to standard error");
  for (CLI::Option* option : {gridded, lineY, zOffset, image, rays, contours, otte, json}) {
    option->group("Output");
  }
}

void addInvert(CLI::App& app, InvertOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "invert", "Invert first-break picks into a velocity section of the ground");
  command.add_option("INPUT", options.input, "Travel-time file: .otte, .txt, .xyz or .csv")
      ->required();
  addGridOptions(command, options);
  addRunOptions(command, options.parameters);
  addOutputOptions(command, options);
  command.add_flag("--quiet", options.quiet, "Print nothing but errors");
  command.add_flag("--verbose", options.verbose,
                   "Print the engine's messages even where a progress bar would take their place");
  command.footer(
      std::string("In JSON velocities are in m/s, cell by cell with row 0 at the surface, and\n"
                  "times in seconds. Ctrl-C stops after the external iteration that is running\n"
                  "and still writes the results; a second one ends the program at once.\n") +
      kExitCodes);
}

void addOthers(CLI::App& app, InfoOptions& info, ConvertOptions& convert, DemoOptions& demo) {
  CLI::App& infoCommand = *app.add_subcommand("info", "Tell what travel-time files hold");
  infoCommand.add_option("FILE", info.files, "Travel-time files: .otte, .txt, .xyz or .csv")
      ->required();
  addPath(infoCommand, "--json", info.json,
          "Write positions (metres) and times (seconds) as JSON; '-' is standard output. Several "
          "files make one array");

  CLI::App& convertCommand = *app.add_subcommand(
      "convert", "Rewrite a travel-time file in the exchange format .otte (metres, milliseconds)");
  convertCommand.add_option("INPUT", convert.input, "Travel-time file: .otte, .txt, .xyz or .csv")
      ->required();
  convertCommand.add_option("OUT", convert.output, "The file to write, named *.otte")
      ->required()
      ->check([](const std::string& path) {
        return endsWith(path, ".otte", false) ? std::string()
                                              : "the name '" + path + "' must end in .otte";
      });
  convertCommand.add_flag("--quiet", convert.quiet, "Print nothing but errors");

  CLI::App& demoCommand = *app.add_subcommand(
      "demo", "Write a synthetic line over a buried valley, the same one every time");
  demoCommand.add_option("DIR", demo.folder, "Folder for demo.otte; made when it does not exist")
      ->required();
  demoCommand.add_flag("--quiet", demo.quiet, "Print nothing but errors");
}

CLI::App* chosenCommand(const CLI::App& app) {
  const auto chosen = app.get_subcommands();
  return chosen.empty() ? nullptr : chosen.front();
}

}  // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
  InfoOptions info;
  InvertOptions invert;
  ConvertOptions convert;
  DemoOptions demo;

  CLI::App app{"Talvesk without windows: refraction travel times to velocity sections.",
               "talvesk-batch"};
  app.set_version_flag("--version", std::string("talvesk-batch ") + TALVESK_VERSION);
  // One at most: an unknown word is told by its name, a missing one below.
  app.require_subcommand(0, 1);
  app.footer(kExitCodes);  // the commands inherit it
  addInvert(app, invert);
  addOthers(app, info, convert, demo);
  app.footer(std::string("'talvesk-batch COMMAND --help' explains a command.\n") + kExitCodes);
  wrapHelp(app);

  CommandLine result;
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      app.exit(error);
      return result;
    }
    const CLI::App* chosen = chosenCommand(app);
    result.exitCode = wrongUsage(chosen ? chosen->get_name() : "", error.what());
    return result;
  }

  if (chosenCommand(app) == nullptr) {
    result.exitCode = wrongUsage("", "a command is required: info, invert, convert or demo");
    return result;
  }
  const std::string name = chosenCommand(app)->get_name();
  if (name == "info") {
    result.command = std::move(info);
  } else if (name == "invert") {
    result.command = std::move(invert);
  } else if (name == "convert") {
    result.command = std::move(convert);
  } else {
    result.command = std::move(demo);
  }
  return result;
}

}  // namespace talvesk
