#include "model/KnownGround.h"

#include "base/Fingerprint.h"
#include "grid/SurveyProfile.h"

#include <cmath>
#include <tuple>

namespace talvesk {
namespace {

auto fieldsOf(const KnownLayer& a) {
  return std::tie(a.top, a.bottom, a.velocity, a.error);
}
auto fieldsOf(const KnownBorehole& a) {
  return std::tie(a.name, a.x, a.offset, a.layers);
}
auto fieldsOf(const KnownDepth& a) {
  return std::tie(a.name, a.x, a.depth, a.error, a.refractor, a.isovalue, a.above, a.below);
}
auto fieldsOf(const KnownCorner& a) {
  return std::tie(a.x, a.depth);
}
auto fieldsOf(const KnownBody& a) {
  return std::tie(a.name, a.velocity, a.outline);
}
auto fieldsOf(const KnownGround& a) {
  return std::tie(a.boreholes, a.depths, a.bodies);
}

constexpr int kMostRefractors = 9;

// All are false for what is no number, too.
bool isPlace(double metres) {
  return std::fabs(metres) <= kLargestCoordinate;
}
bool isDepth(double metres) {
  return metres >= 0.0 && metres <= KnownGround::kDeepest;
}
bool isVelocity(double v) {
  return v >= KnownGround::kSlowest && v <= KnownGround::kFastest;
}
bool isVelocityOrNone(double v) {
  return v == 0.0 || isVelocity(v);
}

Message noVelocity(double value) {
  return Message::tr("%1 is no velocity of ground (%2 to %3)")
      .arg(Message::velocity(value))
      .arg(Message::velocity(KnownGround::kSlowest))
      .arg(Message::velocity(KnownGround::kFastest));
}

Message noDepth(double value) {
  return Message::tr("%1 is no depth below the surface (0 to %2)")
      .arg(Message::length(value))
      .arg(Message::length(KnownGround::kDeepest));
}

Message noPlace(double value) {
  return Message::tr("%1 is no position along the line").arg(Message::length(value));
}

Message faultOfName(const std::string& name) {
  if (name.empty()) return Message::tr("it has no name");
  if (name.size() > KnownGround::kLongestName) return Message::tr("its name is too long");
  return {};
}

template <typename Thing>
Message firstFault(const std::vector<Thing>& things) {
  for (const Thing& thing : things) {
    Message fault = faultOf(thing);
    if (!fault.empty()) return joined(titleOf(thing), std::move(fault));
  }
  return {};
}

}  // namespace

bool operator==(const KnownLayer& a, const KnownLayer& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const KnownBorehole& a, const KnownBorehole& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const KnownDepth& a, const KnownDepth& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const KnownCorner& a, const KnownCorner& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const KnownBody& a, const KnownBody& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const KnownGround& a, const KnownGround& b) {
  return fieldsOf(a) == fieldsOf(b);
}

double KnownDepth::velocityAtDepth() const {
  if (isovalue > 0.0) return isovalue;
  return above > 0.0 && below > 0.0 ? std::sqrt(above * below) : 0.0;
}

Message faultOf(const KnownLayer& layer) {
  for (const double depth : {layer.top, layer.bottom}) {
    if (!isDepth(depth)) return noDepth(depth);
  }
  if (!(layer.top < layer.bottom)) {
    return Message::tr("a layer from %1 to %2 has its bottom not below its top")
        .arg(Message::length(layer.top))
        .arg(Message::length(layer.bottom));
  }
  if (!isVelocity(layer.velocity)) return noVelocity(layer.velocity);
  if (!(layer.error >= 0.0 && layer.error < layer.velocity)) {
    return Message::tr("an error of %1 must not be negative, and less than its velocity, %2")
        .arg(Message::velocity(layer.error))
        .arg(Message::velocity(layer.velocity));
  }
  return {};
}

Message faultOf(const KnownBorehole& borehole) {
  if (Message fault = faultOfName(borehole.name); !fault.empty()) return fault;
  for (const double place : {borehole.x, borehole.offset}) {
    if (!isPlace(place)) return noPlace(place);
  }
  if (borehole.layers.empty()) return Message::tr("it has no layer");
  double bottom = 0.0;
  for (const KnownLayer& layer : borehole.layers) {
    if (Message fault = faultOf(layer); !fault.empty()) return fault;
    if (layer.top < bottom) {
      return Message::tr("the layer from %1 begins above the bottom of the one before, %2")
          .arg(Message::length(layer.top))
          .arg(Message::length(bottom));
    }
    bottom = layer.bottom;
  }
  return {};
}

Message faultOf(const KnownDepth& depth) {
  if (Message fault = faultOfName(depth.name); !fault.empty()) return fault;
  if (!isPlace(depth.x)) return noPlace(depth.x);
  if (!isDepth(depth.depth) || depth.depth == 0.0) return noDepth(depth.depth);
  if (!(depth.error >= 0.0 && depth.error <= KnownGround::kDeepest)) {
    return Message::tr("%1 is no error of a depth").arg(Message::length(depth.error));
  }
  if (depth.refractor < 0 || depth.refractor > kMostRefractors) {
    return Message::tr("refractors have the numbers 1 to %1").arg(kMostRefractors);
  }
  for (const double v : {depth.isovalue, depth.above, depth.below}) {
    if (!isVelocityOrNone(v)) return noVelocity(v);
  }
  if (depth.above > 0.0 && depth.below > 0.0 && depth.above == depth.below) {
    return Message::tr("the velocities above and below are the same, so nothing begins here");
  }
  return {};
}

Message faultOf(const KnownBody& body) {
  if (Message fault = faultOfName(body.name); !fault.empty()) return fault;
  if (!isVelocity(body.velocity)) return noVelocity(body.velocity);
  if (body.outline.size() < 3) return Message::tr("its outline needs three corners at least");
  for (const KnownCorner& corner : body.outline) {
    if (!isPlace(corner.x)) return noPlace(corner.x);
    if (!isDepth(corner.depth)) return noDepth(corner.depth);
  }
  return {};
}

Message faultOf(const KnownGround& known) {
  std::size_t parts = 0;
  for (const KnownBorehole& borehole : known.boreholes) parts += borehole.layers.size();
  for (const KnownBody& body : known.bodies) parts += body.outline.size();
  if (known.things() > KnownGround::kMostThings || parts > KnownGround::kMostParts) {
    return Message::tr(
               "more is known than can be held: %1 boreholes, depths and bodies at most, "
               "with %2 layers and corners")
        .arg(KnownGround::kMostThings)
        .arg(KnownGround::kMostParts);
  }
  Message fault = firstFault(known.boreholes);
  if (fault.empty()) fault = firstFault(known.depths);
  return fault.empty() ? firstFault(known.bodies) : fault;
}

Message titleOf(const KnownBorehole& borehole) {
  return Message::tr("borehole %1").arg(borehole.name);
}
Message titleOf(const KnownDepth& depth) {
  return Message::tr("known depth %1").arg(depth.name);
}
Message titleOf(const KnownBody& body) {
  return Message::tr("body %1").arg(body.name);
}

std::uint64_t fingerprintOf(const KnownGround& known) {
  if (known.empty()) return 0;
  Fingerprint print;
  const auto count = [&](std::size_t size) { print.take(static_cast<std::uint64_t>(size)); };
  count(known.boreholes.size());
  for (const KnownBorehole& hole : known.boreholes) {
    print.take(hole.x);
    count(hole.layers.size());
    for (const KnownLayer& layer : hole.layers) {
      for (const double v : {layer.top, layer.bottom, layer.velocity, layer.error}) print.take(v);
    }
  }
  count(known.depths.size());
  for (const KnownDepth& point : known.depths) {
    for (const double v : {point.x, point.depth, point.error, point.isovalue, point.above,
                           point.below, static_cast<double>(point.refractor)}) {
      print.take(v);
    }
  }
  for (const KnownBody& body : known.bodies) {
    print.take(body.velocity);
    count(body.outline.size());
    for (const KnownCorner& corner : body.outline) {
      print.take(corner.x);
      print.take(corner.depth);
    }
  }
  return print.value();
}

}  // namespace talvesk
