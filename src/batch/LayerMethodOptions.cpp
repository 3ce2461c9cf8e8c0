#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"
#include "refraction/methods/MethodComparison.h"

#include <algorithm>
#include <iterator>

namespace talvesk {
namespace {

constexpr const char* kAll = "all";
constexpr const char* kSmoothest = "smoothest";
constexpr const char* kMostEven = "most-even";
/// No line has geophones so far apart that six spacings come to this, metres.
constexpr Range<double> kAnyXY = {-10000.0, 10000.0};

/// One method besides the prescribed one, which it is compared with, or all.
std::vector<LayerMethod> readMethods(const std::string& option, const std::string& text) {
  if (text == kAll) return {std::begin(kAllLayerMethods), std::end(kAllLayerMethods)};
  std::string names;
  for (const LayerMethod method : kAllLayerMethods) {
    names += std::string(nameOf(method)) + ", ";
    if (text != nameOf(method)) continue;
    if (method == LayerMethod::kReciprocal) return {method};
    return {LayerMethod::kReciprocal, method};
  }
  throw CLI::ValidationError(option, "'" + text + "' is none of " + names + kAll);
}

void readXY(const std::string& option, const std::string& text, RefractOptions& options) {
  options.layering.xyRule = text == kSmoothest  ? XYRule::kSmoothest
                            : text == kMostEven ? XYRule::kMostEven
                                                : XYRule::kGiven;
  if (options.layering.xyRule == XYRule::kGiven) options.xy = numberWithin(option, text, kAnyXY);
}

}  // namespace

void addLayerMethods(CLI::App& command, RefractOptions& options) {
  using parameters::kBounds, parameters::kSeed, parameters::kXY;
  LayerMethodOptions& layering = options.layering;
  command
      .add_option_function<std::string>(
          "--method",
          [&layering](const std::string& text) {
            layering.methods = readMethods("--method", text);
          },
          "How layers are interpreted: reciprocal; or beside it delay-times (of all shots and "
          "geophones by least squares), intercept (intercept times of every shot), plus-minus "
          "(sums and differences of times from two shots); or all (default: reciprocal)")
      ->type_name("METHOD")
      ->group("Interpretation");
  const std::string xy = std::string("--") + kXY.key;
  command
      .add_option_function<std::string>(
          xy, [xy, &options](const std::string& text) { readXY(xy, text, options); },
          meaningOf(kXY) +
              " from -4 to 4, or any number up to six spacings of the geophones; smoothest for "
              "the one at which tV is smoothest, most-even for the one at which velocities are "
              "most even" +
              defaultOf(kXY, "that of the project, else "))
      ->type_name("M")
      ->group("Interpretation");
  addParameter(command, kBounds, "N",
               "Tell error bands of depths and velocities, by N interpretations of picks that are "
               "moved by their errors (default: 100 with --method all, else none)",
               [&layering](int value) { layering.bounds = value; })
      ->group("Interpretation");
  addParameter(command, kSeed, "N",
               "Number that the errors of --bounds come from" + defaultOf(kSeed),
               [&layering](int value) { layering.seed = value; })
      ->group("Interpretation");
}

}  // namespace talvesk
