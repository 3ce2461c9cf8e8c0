#include "io/standard/Seg2Positions.h"

#include "io/standard/TraceTally.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

struct Unit {
  std::initializer_list<const char*> names;
  double metres;
};

/// The metres of a unit; 0 where it is not known. NONE is what many instruments write for metres.
double metresOf(const std::string& unit) {
  static const std::initializer_list<Unit> kUnits = {
      {{"", "NONE", "METERS", "METRES", "METER", "METRE", "M"}, 1.0},
      {{"FEET", "FOOT", "FT"}, 0.3048},
      {{"INCHES", "INCH", "IN"}, 0.0254},
      {{"CENTIMETERS", "CENTIMETRES", "CENTIMETER", "CENTIMETRE", "CM"}, 0.01}};
  for (const Unit& known : kUnits) {
    if (std::find(known.names.begin(), known.names.end(), unit) != known.names.end()) {
      return known.metres;
    }
  }
  return 0.0;
}

struct Range {
  double least = 0.0;
  double most = 0.0;

  double extent() const { return most - least; }
};

template <typename ValueOf>
Range rangeOf(const std::vector<Seg2Trace>& traces, ValueOf valueOf) {
  const auto [least, most] = std::minmax_element(
      traces.begin(), traces.end(), [valueOf](const Seg2Trace& a, const Seg2Trace& b) {
        return valueOf(a.header.receiver) < valueOf(b.header.receiver);
      });
  return {valueOf(least->header.receiver), valueOf(most->header.receiver)};
}

bool hasManyDecimals(double value) {
  const double thousands = 1000.0 * value;
  return std::abs(thousands - std::round(thousands)) > 1e-6;
}

/// Degrees have many decimals, and geophones of one record are within some kilometres.
bool looksGeographic(const std::vector<Seg2Trace>& traces) {
  const auto first = [](const Seg2Position& position) { return position.at[0]; };
  const auto second = [](const Seg2Position& position) { return position.at[1]; };
  const bool degrees = std::all_of(traces.begin(), traces.end(), [](const Seg2Trace& trace) {
    const Seg2Position& p = trace.header.receiver;
    const double larger = std::max(std::abs(p.at[0]), std::abs(p.at[1]));
    const double smaller = std::min(std::abs(p.at[0]), std::abs(p.at[1]));
    return p.numbers >= 2 && larger <= 180.0 && smaller <= 90.0 && smaller > 0.0;
  });
  const bool decimals = std::any_of(traces.begin(), traces.end(), [](const Seg2Trace& trace) {
    const Seg2Position& p = trace.header.receiver;
    return hasManyDecimals(p.at[0]) && hasManyDecimals(p.at[1]);
  });
  constexpr double kDegrees = 0.05;
  return degrees && decimals && rangeOf(traces, first).extent() < kDegrees &&
         rangeOf(traces, second).extent() < kDegrees;
}

class Placing {
 public:
  Placing(std::vector<Seg2Trace>& traces, std::vector<Message>& warnings)
      : mTraces(traces), mWarnings(warnings) {}

  void place(const std::string& units) {
    if (mTraces.empty()) return;
    warnOfMissing(&Seg2TraceHeader::source, Message::tr("source position"));
    warnOfMissing(&Seg2TraceHeader::receiver, Message::tr("receiver position"));
    convert(units);
    chooseAxis();
    for (Seg2Trace& trace : mTraces) {
      trace.record.source = pointOf(trace.header.source);
      trace.record.receiver = pointOf(trace.header.receiver);
    }
  }

 private:
  bool anyReceiver() const {
    return std::any_of(mTraces.begin(), mTraces.end(),
                       [](const Seg2Trace& trace) { return trace.header.receiver.numbers > 0; });
  }

  void warnOfMissing(Seg2Position Seg2TraceHeader::*position, const Message& name) {
    TraceTally missing;
    for (std::size_t i = 0; i < mTraces.size(); ++i) {
      if ((mTraces[i].header.*position).numbers == 0) missing.count(mTraces[i].index);
    }
    if (!missing.any()) return;
    mWarnings.push_back(Message::tr("the header of %1 tells no %2; 0 stands for it")
                            .arg(missing.which(mTraces.size()))
                            .arg(name));
  }

  void convert(const std::string& units) {
    const double metres = metresOf(units);
    if (metres == 1.0) return;
    if (metres == 0.0) {
      mWarnings.push_back(
          Message::tr("the UNITS of its header, %1, are not known; its positions were taken as "
                      "metres")
              .arg(units));
      return;
    }
    mWarnings.push_back(
        Message::tr("its positions are in %1 and were converted to metres, %2 m each")
            .arg(units)
            .arg(metres));
    for (Seg2Trace& trace : mTraces) {
      for (double& value : trace.header.source.at) value *= metres;
      for (double& value : trace.header.receiver.at) value *= metres;
    }
  }

  /// A line is along x, unless all that changes is y.
  void chooseAxis() {
    if (mTraces.size() < 2 || !anyReceiver()) return;
    if (looksGeographic(mTraces)) {
      mWarnings.push_back(
          Message::tr("its receiver positions look like longitude and latitude in degrees, not "
                      "like metres; give the survey its geometry"));
      return;
    }
    const Range x = rangeOf(mTraces, [](const Seg2Position& position) { return position.x(); });
    const Range y = rangeOf(mTraces, [](const Seg2Position& position) { return position.y(); });
    mAlongY = x.extent() == 0.0 && y.extent() > 0.0;
    if (mAlongY) {
      mWarnings.push_back(
          Message::tr("its geophones differ in y but not in x; y was taken as the "
                      "position along the line"));
    } else if (x.extent() == 0.0) {
      mWarnings.push_back(
          Message::tr("all its geophones are at x = %1; give the survey its geometry")
              .arg(Message::length(x.least)));
    } else if (y.extent() > kStraight) {
      mWarnings.push_back(Message::tr("its geophones differ by up to %1 in y, which is not used; "
                                      "positions along the line are x")
                              .arg(Message::length(y.extent())));
    }
  }

  Point2D pointOf(const Seg2Position& position) const {
    return {mAlongY ? position.y() : position.x(), position.z()};
  }

  static constexpr double kStraight = 0.01;  // metres

  std::vector<Seg2Trace>& mTraces;
  std::vector<Message>& mWarnings;
  bool mAlongY = false;
};

}  // namespace

void placeTraces(const std::string& units, std::vector<Seg2Trace>& traces,
                 std::vector<Message>& warnings) {
  Placing(traces, warnings).place(units);
}

}  // namespace talvesk
