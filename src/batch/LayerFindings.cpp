#include "batch/LayerFindings.h"

#include "base/TextNumber.h"
#include "model/ChiSquare.h"
#include "model/TomoDocument.h"
#include "refraction/BuildProfiles.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;

constexpr double kAsGiven = 1e-9;  // metres

/// Says so when an XY was not taken as it was given.
Status checkXY(const Interpretation& interpretation, double xy) {
  for (std::size_t i = 0; i < interpretation.refractData.cData.size(); ++i) {
    const computedData& refractor = interpretation.refractData.cData[i];
    if (std::fabs(refractor.chosenXY - xy) < kAsGiven) continue;
    return Status::failure("--xy " + formatDouble(xy) + ": the XY of layer " +
                           std::to_string(i + 2) + " must be within " +
                           formatDouble(widestXY(refractor.x)) +
                           " m, six spacings of its geophones");
  }
  return {};
}

/// Whether an XY is another than the one that the profile was built with.
bool takeProposals(XYRule rule, Interpretation& interpretation) {
  bool other = false;
  for (std::size_t i = 0; i < interpretation.refractData.cData.size(); ++i) {
    const auto number = static_cast<std::uint32_t>(i) + 2;
    const XYChoice choice = findXY(interpretation, number);
    const double xy = (rule == XYRule::kSmoothest ? choice.smoothest : choice.mostEven).xy;
    other = other || xy != interpretation.refractData.cData[i].chosenXY;
    chooseXY(interpretation, number, xy);
  }
  return other;
}

Json namesOf(const std::vector<Support>& support) {
  Json names = Json::array();
  for (const Support one : support) names.push_back(nameOf(one));
  return names;
}

Json proposalJson(const XYProposal& proposal) {
  Json json = Json::object();
  json["xy"] = proposal.xy;
  json["told"] = proposal.told;
  return json;
}

Json choiceJson(const XYChoice& choice) {
  Json tried = Json::array();
  for (const XYTried& one : choice.tried) {
    Json row = Json::object();
    row["xy"] = one.xy;
    row["roughness"] = one.roughness;
    row["unevenness"] = one.unevenness;
    tried.push_back(std::move(row));
  }
  Json xy = Json::object();
  xy["receivers"] = choice.receivers;
  xy["smoothest"] = proposalJson(choice.smoothest);
  xy["most_even"] = proposalJson(choice.mostEven);
  xy["tried"] = std::move(tried);
  return xy;
}

Json bandJson(const Band& band) {
  Json json = Json::object();
  json["low"] = band.low;
  json["high"] = band.high;
  return json;
}

Json layerJson(const MethodLayer& layer) {
  Json json = Json::object();
  json["layer"] = layer.layer;
  json["depth"] = layer.depth;
  json["velocity"] = layer.velocity;
  if (!layer.depthBand.empty()) {
    json["depth_band"] = bandJson(layer.depthBand);
    json["velocity_band"] = bandJson(layer.velocityBand);
  }
  json["depth_support"] = namesOf(layer.depthSupport);
  json["velocity_support"] = namesOf(layer.velocitySupport);
  return json;
}

Json methodJson(const MethodResult& result) {
  Json layers = Json::array();
  for (const MethodLayer& layer : result.layers) layers.push_back(layerJson(layer));
  Json remarks = Json::array();
  for (const Message& remark : result.remarks) remarks.push_back(remark.english());
  Json json = Json::object();
  json["method"] = nameOf(result.method);
  json["layers"] = std::move(layers);
  json["remarks"] = std::move(remarks);
  return json;
}

std::string textOf(const XYProposal& proposal) {
  return proposal.told ? formatDouble(proposal.xy) + " m" : "not told by the picks";
}

}  // namespace

bool LayerFindings::foundLayers() const {
  return comparison && std::any_of(comparison->results.begin(), comparison->results.end(),
                                   [](const MethodResult& r) { return !r.layers.empty(); });
}

ProfileOutcome buildWithXY(const RefractOptions& options, const std::vector<ShotArrivals>& shots,
                           Interpretation& interpretation, Status& refused) {
  if (options.xy) {
    chooseXY(interpretation, 2, *options.xy);
    chooseXY(interpretation, 3, *options.xy);
  }
  ProfileOutcome outcome = buildProfiles(shots, interpretation);
  if (!outcome.built) {
    // With other methods the run goes on, and an earlier profile is not of these marks.
    if (options.layering.methods.size() > 1) forgetResults(interpretation);
    return outcome;
  }
  if (options.layering.xyRule != XYRule::kGiven) {
    if (takeProposals(options.layering.xyRule, interpretation)) {
      outcome = buildProfiles(shots, interpretation);
    }
  } else if (options.xy) {
    refused = checkXY(interpretation, *options.xy);
  }
  return outcome;
}

LayerFindings findLayers(const LayerMethodOptions& options, const TomoDocument& document,
                         const Interpretation& interpretation) {
  LayerFindings findings;
  const std::vector<ShotArrivals> shots = shotArrivals(document);
  for (std::size_t i = 0; i < interpretation.refractData.cData.size(); ++i) {
    const auto number = static_cast<std::uint32_t>(i) + 2;
    if (!interpretation.refractData.isFitted()) {
      findings.xy.push_back(findXY(interpretation, number));
    }
    findings.support.push_back(supportOf(shots, interpretation, number));
  }
  BoundsOptions bounds;
  const bool all = options.methods.size() == std::size(kAllLayerMethods);
  bounds.members = options.bounds.value_or(all ? parameters::kBounds.initial : 0);
  bounds.seed = static_cast<std::uint64_t>(options.seed);
  if (bounds.members > 0 || options.methods.size() > 1) {
    findings.comparison = compareMethods(
        layerPicksOf(document, interpretation, errorRuleOf(document)), options.methods, bounds);
  }
  return findings;
}

void addFindings(const LayerFindings& findings, std::size_t refractor, Json& json) {
  if (refractor >= findings.support.size()) return;
  if (refractor < findings.xy.size()) json["xy_choice"] = choiceJson(findings.xy[refractor]);
  json["depth_support"] = namesOf(findings.support[refractor].depth);
  json["velocity_support"] = namesOf(findings.support[refractor].velocity);
}

Json comparisonJson(const MethodComparison& comparison) {
  Json x = Json::array();
  Json elevation = Json::array();
  for (const Point2D& receiver : comparison.results.front().receivers) {
    x.push_back(receiver.x);
    elevation.push_back(receiver.z);
  }
  Json methods = Json::array();
  for (const MethodResult& result : comparison.results) methods.push_back(methodJson(result));
  Json disagreements = Json::array();
  for (const Disagreement& one : comparison.disagreements) {
    Json json = Json::object();
    json["layer"] = one.layer;
    json["depth"] = one.depth;
    json["velocity"] = one.velocity;
    disagreements.push_back(std::move(json));
  }
  Json json = Json::object();
  json["v1"] = comparison.results.front().v1;
  json["members"] = comparison.bounds.members;
  json["seed"] = comparison.bounds.seed;
  json["x"] = std::move(x);
  json["elevation"] = std::move(elevation);
  json["methods"] = std::move(methods);
  json["disagreements"] = std::move(disagreements);
  return json;
}

std::vector<std::string> remarksOf(const LayerFindings& findings) {
  std::vector<std::string> remarks;
  if (!findings.comparison) return remarks;
  for (const MethodResult& result : findings.comparison->results) {
    if (result.method == LayerMethod::kReciprocal) continue;  // its warnings are those of the run
    for (const Message& remark : result.remarks) {
      remarks.push_back(std::string(nameOf(result.method)) + ": " + remark.english());
    }
  }
  return remarks;
}

void summarizeFindings(const LayerFindings& findings, std::ostream& out) {
  for (std::size_t i = 0; i < findings.support.size(); ++i) {
    const auto& depth = findings.support[i].depth;
    const auto count = [&depth](Support support) {
      return std::count(depth.begin(), depth.end(), support);
    };
    out << "Layer " << i + 2 << ": ";
    if (i >= findings.xy.size()) {
      const auto told = static_cast<std::size_t>(count(Support::kPicks));
      out << depth.size() - told << " of " << depth.size() << " depths not told by picks\n";
      continue;
    }
    if (!findings.xy[i].tried.empty()) {
      out << "XY by smoothest tV " << textOf(findings.xy[i].smoothest)
          << ", by most even velocities " << textOf(findings.xy[i].mostEven) << "; ";
    }
    out << "of " << depth.size() << " depths " << count(Support::kPhantom)
        << " rest on phantom arrivals, " << count(Support::kGap) << " on gaps, "
        << count(Support::kExtrapolated) << " on continuations\n";
  }
  if (!findings.comparison) return;
  for (const Message& line : comparisonSummary(*findings.comparison)) {
    out << line.english() << '\n';
  }
}

}  // namespace talvesk
