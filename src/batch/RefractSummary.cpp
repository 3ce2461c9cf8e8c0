#include "batch/RefractSummary.h"

#include "base/TextNumber.h"
#include "batch/Diagnostics.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>

namespace talvesk {
namespace {

using namespace refractionDataStructure;

/// Where the geophones of a survey stand, metres.
struct Reach {
  double first = INFINITY;
  double last = -INFINITY;

  bool holds(double x) const { return x >= first && x <= last; }
};

Reach geophonesOf(const std::vector<ShotArrivals>& shots) {
  Reach reach;
  for (const ShotArrivals& shot : shots) {
    for (const Point2D& receiver : shot.receivers) {
      reach.first = std::min(reach.first, receiver.x);
      reach.last = std::max(reach.last, receiver.x);
    }
  }
  return reach;
}

/// "2 to 7.5", or nothing where none of the values is known.
std::string endsOf(const std::vector<double>& values) {
  std::vector<double> known;
  std::copy_if(values.begin(), values.end(), std::back_inserter(known),
               [](double value) { return std::isfinite(value); });
  if (known.empty()) return {};
  const auto ends = std::minmax_element(known.begin(), known.end());
  return formatDouble(*ends.first, 4) + " to " + formatDouble(*ends.second, 4);
}

std::string rangeOf(const std::vector<double>& x, const std::vector<double>& values,
                    const Reach& reach, const std::string& unit) {
  std::vector<double> within;
  std::vector<double> beyond;
  for (std::size_t i = 0; i < std::min(x.size(), values.size()); ++i) {
    (reach.holds(x[i]) ? within : beyond).push_back(values[i]);
  }
  const std::string ends = endsOf(within);
  const std::string endsBeyond = endsOf(beyond);
  const std::string text = ends.empty() ? "unknown" : ends + ' ' + unit;
  return endsBeyond.empty() ? text
                            : text + " (beyond the geophones " + endsBeyond + ' ' + unit + ')';
}

/// Of the first layer of a fitted profile, whose velocity is a mean.
std::string atSurface(const FirstLayer& first, const Reach& reach) {
  if (first.x.empty()) return {};
  std::string text =
      " in the mean, " + rangeOf(first.x, first.velocity, reach, "m/s") + " at the surface";
  if (first.growth > 0.0) {
    text += ", growing by " + shortNumber(100.0 * first.growth) + " % of it per metre down to " +
            shortNumber(first.growsTo) + " m";
  }
  return text;
}

std::string misfitText(const LayerMisfit& one) {
  return "misfit " + shortNumber(one.rms * 1000.0) + " ms (chi2 " + shortNumber(one.chi2) +
         ") of " + std::to_string(one.picks) + (one.picks == 1 ? " pick" : " picks");
}

std::string misfitOf(const LayeredFit& fit, std::uint32_t layer) {
  const auto found = std::find_if(fit.perLayer.begin(), fit.perLayer.end(),
                                  [layer](const LayerMisfit& one) { return one.layer == layer; });
  return found == fit.perLayer.end() ? "" : ", " + misfitText(*found);
}

}  // namespace

void summarizeProfile(const Interpretation& interpretation, const std::vector<ShotArrivals>& shots,
                      const LayeredFit& fit, std::ostream& out) {
  const processingData& results = interpretation.refractData;
  if (results.cData.empty()) return;
  const Reach reach = geophonesOf(shots);
  if (fit.total.picks > 0) out << "Profile: " << misfitText(fit.total) << '\n';
  out << "Layer 1: " << (results.v1 > 0.0 ? formatDouble(results.v1, 4) + " m/s" : "no velocity")
      << atSurface(results.first, reach) << misfitOf(fit, 1) << '\n';
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    const computedData& refractor = results.cData[i];
    out << "Layer " << i + 2 << ": ";
    if (results.isFitted()) {
      out << "fitted to all picks, " << refractor.x.size() << " places";
    } else {
      out << "shots " << interpretation.phnt_A[i].shotID + 1 << " and "
          << interpretation.phnt_R[i].shotID + 1 << ", " << refractor.x.size() << " receivers";
    }
    out << ", velocity " << rangeOf(refractor.x, refractor.velocity, reach, "m/s") << ", depth "
        << rangeOf(refractor.x, refractor.depth, reach, "m")
        << misfitOf(fit, static_cast<std::uint32_t>(i) + 2) << '\n';
  }
}

}  // namespace talvesk
