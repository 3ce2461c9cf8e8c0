#include "tomo/LayeredProfile.h"

#include "grid/SharpLayers.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "tomo/CellDepth.h"
#include "tomo/GridSetup.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {

using refractionDataStructure::computedData;
using refractionDataStructure::processingData;

namespace {

constexpr double kRoundVelocity = 50.0;  // m/s, of a velocity that is proposed

/// Faster and slower ones come from files that somebody else wrote.
bool isVelocity(double value) {
  return value >= parameters::kSlowestLayer.value && value <= parameters::kFastestLayer.value;
}

bool isDepth(double value) {
  return std::fabs(value) <= kLargestCoordinate;
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

double LayeredProfile::along(const std::vector<Known>& known, double x) {
  const auto next = std::lower_bound(known.begin(), known.end(), x,
                                     [](const Known& at, double place) { return at.x < place; });
  if (next == known.begin()) return known.front().value;
  if (next == known.end()) return known.back().value;
  const Known& before = *(next - 1);
  return before.value + (next->value - before.value) * (x - before.x) / (next->x - before.x);
}

/// \return false where nothing of the refractor is known
bool LayeredProfile::take(std::size_t index, const computedData& data) {
  Refractor taken;
  std::size_t negative = 0;
  for (std::size_t i = 0; i < data.x.size(); ++i) {
    const double x = data.x[i];
    if (!std::isfinite(x) || (!taken.x.empty() && !(x > taken.x.back()))) continue;
    const double depth = i < data.depth.size() ? data.depth[i] : std::nan("");
    taken.x.push_back(x);
    taken.depth.push_back(depth);
    if (isDepth(depth)) taken.depths.push_back({x, std::max(depth, 0.0)});
    if (depth < 0.0) ++negative;
    if (i < data.velocity.size() && isVelocity(data.velocity[i])) {
      taken.velocities.push_back({x, data.velocity[i]});
    }
  }
  if (taken.depths.empty() || taken.velocities.empty()) return false;
  const std::size_t layer = index + 2;
  const std::size_t receivers = taken.x.size();
  if (const std::size_t gaps = receivers - taken.depths.size(); gaps > 0) {
    mNotes.push_back(Message::tr("Layer %1 has no depth at %2 of %3 receivers; it is taken from "
                                 "their neighbours.")
                         .arg(layer)
                         .arg(gaps)
                         .arg(receivers));
  }
  if (const std::size_t gaps = receivers - taken.velocities.size(); gaps > 0) {
    mNotes.push_back(Message::tr("Layer %1 has no velocity at %2 of %3 receivers; it is taken from "
                                 "their neighbours.")
                         .arg(layer)
                         .arg(gaps)
                         .arg(receivers));
  }
  if (negative > 0) {
    mNotes.push_back(Message::tr("Layer %1 has a negative depth at %2 of %3 receivers; it begins "
                                 "at the surface there.")
                         .arg(layer)
                         .arg(negative)
                         .arg(receivers));
  }
  mRefractors.push_back(std::move(taken));
  return true;
}

Status LayeredProfile::read(const processingData& results, LayeredProfile& out) {
  LayeredProfile profile;
  if (results.cData.empty()) {
    return Status::failure(
        Message::tr("There is no layered profile; build the profiles of the refraction first."));
  }
  if (!isVelocity(results.v1)) {
    return Status::failure(
        Message::tr("The first layer of the layered profile has no velocity. Mark direct waves as "
                    "layer 1 and build the profiles again."));
  }
  profile.mV1 = results.v1;
  if (results.isFitted()) {
    profile.mNotes.push_back(
        Message::tr(
            "The velocity of layer 1 changes along the line and with depth in this profile; "
            "here it is its mean, %1, everywhere.")
            .arg(Message::velocity(results.v1, 4)));
  }
  if (!profile.take(0, results.cData[0])) {
    return Status::failure(
        Message::tr("The first refractor of the layered profile has no depth or no velocity at any "
                    "receiver."));
  }
  if (results.cData.size() > 1 && !profile.take(1, results.cData[1])) {
    profile.mNotes.push_back(Message::tr(
        "Layer 3 has no depth or no velocity at any receiver; the ground ends with layer 2."));
  }
  profile.noteCrossings();
  out = std::move(profile);
  return {};
}

void LayeredProfile::noteCrossings() {
  if (refractors() < 2) return;
  const std::vector<Known>& lower = mRefractors[1].depths;
  const auto crossings = std::count_if(lower.begin(), lower.end(), [this](const Known& at) {
    return at.value < along(mRefractors[0].depths, at.x);
  });
  if (crossings == 0) return;
  mNotes.push_back(Message::tr("Layer 3 begins above layer 2 at %1 of %2 receivers; layer 2 is "
                               "left out there.")
                       .arg(crossings)
                       .arg(lower.size()));
}

double LayeredProfile::firstX(std::size_t refractor) const {
  return mRefractors[refractor].depths.front().x;
}

double LayeredProfile::lastX(std::size_t refractor) const {
  return mRefractors[refractor].depths.back().x;
}

double LayeredProfile::depth(std::size_t refractor, double x) const {
  const double own = along(mRefractors[refractor].depths, x);
  return refractor == 0 ? own : std::max(own, depth(refractor - 1, x));
}

double LayeredProfile::velocity(std::size_t layer, double x) const {
  return layer == 0 ? mV1 : along(mRefractors[layer - 1].velocities, x);
}

std::optional<double> LayeredProfile::knownDepth(std::size_t refractor, double x) const {
  const Refractor& of = mRefractors[refractor];
  const auto next = std::lower_bound(of.x.begin(), of.x.end(), x);
  if (next == of.x.end()) return std::nullopt;
  const auto i = static_cast<std::size_t>(next - of.x.begin());
  if (*next == x) return isDepth(of.depth[i]) ? std::optional(of.depth[i]) : std::nullopt;
  if (i == 0 || !isDepth(of.depth[i - 1]) || !isDepth(of.depth[i])) return std::nullopt;
  const double share = (x - of.x[i - 1]) / (of.x[i] - of.x[i - 1]);
  return of.depth[i - 1] + share * (of.depth[i] - of.depth[i - 1]);
}

std::vector<VelocityLayer> LayeredProfile::columnAt(double x) const {
  constexpr double kNoEnd = std::numeric_limits<double>::infinity();
  std::vector<VelocityLayer> column;
  double top = 0.0;
  for (std::size_t layer = 0; layer <= refractors(); ++layer) {
    const double bottom = layer < refractors() ? std::max(top, depth(layer, x)) : kNoEnd;
    if (!(bottom > top)) continue;
    const double v = velocity(layer, x);
    column.push_back({top, v, bottom, v});
    top = bottom;
  }
  return column;
}

double LayeredProfile::middleVelocity(std::size_t refractor) const {
  const auto usual = [this](std::size_t layer) {
    if (layer == 0) return mV1;
    std::vector<double> values;
    for (const Known& at : mRefractors[layer - 1].velocities) values.push_back(at.value);
    return median(std::move(values));
  };
  const double middle = (usual(refractor) + usual(refractor + 1)) / 2.0;
  return std::max(kRoundVelocity, kRoundVelocity * std::round(middle / kRoundVelocity));
}

namespace {

/// What the grid does to the profile: it goes on beyond its ends, or ends above a refractor.
void noteReach(const Grid& grid, double xOffset, const LayeredProfile& profile,
               std::vector<Message>& notes) {
  const double left = -xOffset;
  const double right = grid.col() * grid.aLato() - xOffset;
  for (std::size_t refractor = 0; refractor < profile.refractors(); ++refractor) {
    const double first = profile.firstX(refractor);
    const double last = profile.lastX(refractor);
    if (left < first || right > last) {
      notes.push_back(Message::tr("Layer %1 is known from %2 to %3; its depth and velocity stay "
                                  "as they are there to the ends of the grid.")
                          .arg(refractor + 2)
                          .arg(Message::length(first))
                          .arg(Message::length(last)));
    }
    std::uint32_t above = 0;
    for (std::uint32_t column = 0; column < grid.col() && grid.righe() > 0; ++column) {
      const std::uint32_t lowest = grid.cellIndex(grid.righe() - 1, column);
      const double x = grid.cellCentre(lowest).x - xOffset;
      if (cellDepth(grid.geometry(), lowest) < profile.depth(refractor, x)) ++above;
    }
    if (above == 0) continue;
    notes.push_back(Message::tr("The grid ends above layer %1 in %2 of %3 columns.")
                        .arg(refractor + 2)
                        .arg(above)
                        .arg(grid.col()));
  }
}

}  // namespace

Status startFromProfile(TomoDocument& document, const processingData& results, double thickness,
                        std::vector<Message>& notes) {
  LayeredProfile profile;
  Status status = LayeredProfile::read(results, profile);
  if (!status.ok()) return status;
  if (document.model->grid == nullptr || document.model->grid->cellCount() == 0) {
    return Status::failure(Message::tr("There is no grid with cells; build the grid first."));
  }
  const Grid& current = *document.model->grid;
  const double xOffset = document.model->xOffset;
  std::vector<double> slownesses(current.cellCount());
  for (std::uint32_t column = 0; column < current.col(); ++column) {
    const double x = current.cellCentre(column).x - xOffset;
    const std::vector<VelocityLayer> ground = profile.columnAt(x);
    for (std::uint32_t row = 0; row < current.righe(); ++row) {
      const std::uint32_t cell = current.cellIndex(row, column);
      const double depth = cellDepth(current.geometry(), cell);
      slownesses[cell] = 1.0 / velocityInLayers(ground, depth, thickness);
    }
  }
  notes = profile.notes();
  noteReach(current, xOffset, profile, notes);
  installGrid(document, std::make_unique<Grid>(current.sharedGeometry(), std::move(slownesses)));
  return {};
}

}  // namespace talvesk
