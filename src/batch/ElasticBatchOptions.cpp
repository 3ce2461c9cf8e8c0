#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "refraction/methods/MethodComparison.h"

namespace talvesk {
namespace {

constexpr const char* kOutputGroup = "Output";

DensityRule readDensities(const std::string& option, const std::string& text) {
  DensityRule rule;
  rule.gardner = text == "gardner";
  if (rule.gardner) return rule;
  rule.layers.clear();
  for (const std::string_view field : splitFields(text + ',', ',')) {
    rule.layers.push_back(numberWithin(option, std::string(field), rangeOf(parameters::kDensity)));
  }
  return rule;
}

/// How the command line calls a quantity.
struct QuantityName {
  const char* name;
  ElasticQuantity quantity;
};
constexpr QuantityName kQuantityNames[] = {
    {"vp_vs", ElasticQuantity::kRatio}, {"poisson", ElasticQuantity::kPoisson},
    {"g0", ElasticQuantity::kShear},    {"e0", ElasticQuantity::kYoung},
    {"k", ElasticQuantity::kBulk},      {"m", ElasticQuantity::kConstrained}};

ElasticQuantity readQuantity(const std::string& option, const std::string& text) {
  std::string names;
  for (const QuantityName& one : kQuantityNames) {
    if (text == one.name) return one.quantity;
    names += (names.empty() ? "" : ", ") + std::string(one.name);
  }
  throw CLI::ValidationError(option, "'" + text + "' is none of " + names);
}

void addSections(CLI::App& command, ElasticBatchOptions& options) {
  CLI::Option* section = mustEndIn(
      command
          .add_option("--section", options.sections,
                      "The sections of both in place of their layers, cell by cell where both "
                      "show one: a table (.csv), or a picture of --quantity: .png, .svg or "
                      ".pdf; once per file")
          ->type_name("FILE")
          ->allow_extra_args(false)
          ->group(kOutputGroup),
      {".csv", ".png", ".svg", ".pdf"}, true);
  command
      .add_option_function<std::string>(
          "--quantity",
          [&options](const std::string& text) {
            options.sectionQuantity = readQuantity("--quantity", text);
          },
          "What pictures of --section show: vp_vs, poisson, g0, e0, k or m (default: vp_vs)")
      ->type_name("NAME")
      ->needs(section)
      ->group(kOutputGroup);
}

void addMatching(CLI::App& command, ElasticBatchOptions& options) {
  using parameters::kBounds, parameters::kDensity, parameters::kSeed, parameters::kShiftOfS,
      parameters::kTopTolerance;
  const std::string density = std::string("--") + kDensity.key;
  command
      .add_option_function<std::string>(
          density,
          [density, &options](const std::string& text) {
            options.matching.density = readDensities(density, text);
          },
          meaningOf(kDensity) +
              ": a number for all layers, or numbers from above separated by ',', the last for all "
              "below; or gardner, 310 Vp^0.25 after Gardner and others (1974), which was found for "
              "rocks" +
              defaultOf(kDensity))
      ->type_name("D,D,...|gardner");
  addParameter(command, kShiftOfS, "M", meaningOf(kShiftOfS) + defaultOf(kShiftOfS),
               [&options](double value) { options.matching.shift = value; });
  addParameter(command, kTopTolerance, "PERCENT",
               meaningOf(kTopTolerance) + "; told, not left out" + defaultOf(kTopTolerance),
               [&options](double value) { options.matching.topTolerance = value; });
  addParameter(command, kBounds, "N",
               "Tell errors of all that follows from the velocities, by N interpretations of picks "
               "that are moved by their errors (default: none)",
               [&options](int value) { options.bounds = value; });
  addParameter(command, kSeed, "N",
               "Number that the errors of --bounds come from" + defaultOf(kSeed),
               [&options](int value) { options.seed = value; });
}

}  // namespace

void addElastic(CLI::App& app, ElasticBatchOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "elastic",
      "Put layered interpretations of P and S waves together: Vp/Vs, Poisson's ratio and "
      "small-strain moduli along the line, where both were interpreted");
  mustEndIn(command.add_option("P", options.p, "The project of P waves, named *.tvsk")->required(),
            {".tvsk"}, true);
  mustEndIn(command.add_option("S", options.s, "The project of S waves, named *.tvsk")->required(),
            {".tvsk"}, true);
  addMatching(command, options);
  addPath(command, "--json", options.json,
          "Write all as JSON, metres, m/s, kg/m3 and MPa; '-' is standard output")
      ->group(kOutputGroup);
  addPath(command, "--out", options.table,
          "Write a table (CSV), a line per layer and place: depths by P and S, velocities, Vp/Vs, "
          "Poisson's ratio, density, G0, E0, K and M in MPa, with errors where --bounds asks for "
          "them; '-' is standard output")
      ->group(kOutputGroup);
  mustEndIn(command
                .add_option("--picture", options.pictures,
                            "Draw curves along the line: .png, .svg or .pdf; once per picture")
                ->type_name("FILE")
                ->allow_extra_args(false)
                ->group(kOutputGroup),
            {".png", ".svg", ".pdf"}, true);
  addSections(command, options);
  command.add_flag("--quiet", options.quiet, kQuietHelp);
}

}  // namespace talvesk
