#include "model/Annotations.h"

#include "grid/SurveyProfile.h"

#include <cmath>
#include <tuple>

namespace talvesk {
namespace {

constexpr double kSlowest = 1.0;      ///< m/s
constexpr double kFastest = 20000.0;  ///< m/s
constexpr std::uint32_t kWhite = 0xffffff;

auto fieldsOf(const MarkedIsoline& a) {
  return std::tie(a.name, a.velocity, a.color, a.width);
}
auto fieldsOf(const Annotation& a) {
  return std::tie(a.kind, a.text, a.points, a.pattern, a.color, a.width, a.textSize);
}

// All are false for what is no number, too.
bool within(double value, double least, double most) {
  return value >= least && value <= most;
}
bool isPlace(const Point2D& p) {
  return std::fabs(p.x) <= kLargestCoordinate && std::fabs(p.z) <= kLargestCoordinate;
}

Message faultOfLook(const std::string& text, std::uint32_t color, double width) {
  if (text.size() > Annotations::kLongestText) return Message::tr("its text is too long");
  if (color > kWhite) return Message::tr("its colour is none");
  if (!within(width, Annotations::kThinnest, Annotations::kThickest)) {
    return Message::tr("a line is %1 to %2 points wide")
        .arg(Annotations::kThinnest)
        .arg(Annotations::kThickest);
  }
  return {};
}

}  // namespace

bool operator==(const MarkedIsoline& a, const MarkedIsoline& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const Annotation& a, const Annotation& b) {
  return fieldsOf(a) == fieldsOf(b);
}
bool operator==(const Annotations& a, const Annotations& b) {
  return a.isolines == b.isolines && a.items == b.items;
}

std::size_t fewestPoints(AnnotationKind kind) {
  switch (kind) {
    case AnnotationKind::kText:
      return 1;
    case AnnotationKind::kLine:
      return 2;
    case AnnotationKind::kPolygon:
      break;
  }
  return 3;
}

Message nameOf(AnnotationKind kind) {
  switch (kind) {
    case AnnotationKind::kText:
      return Message::tr("Text");
    case AnnotationKind::kLine:
      return Message::tr("Line");
    case AnnotationKind::kPolygon:
      break;
  }
  return Message::tr("Polygon");
}

Message nameOf(Lithology pattern) {
  switch (pattern) {
    case Lithology::kSand:
      return Message::tr("Sand");
    case Lithology::kGravel:
      return Message::tr("Gravel");
    case Lithology::kClay:
      return Message::tr("Clay");
    case Lithology::kSilt:
      return Message::tr("Silt");
    case Lithology::kRock:
      return Message::tr("Rock");
    case Lithology::kFill:
      return Message::tr("Fill");
    case Lithology::kWater:
      return Message::tr("Water");
    case Lithology::kNone:
      break;
  }
  return Message::tr("None");
}

Message faultOf(const MarkedIsoline& isoline) {
  if (!within(isoline.velocity, kSlowest, kFastest)) {
    return Message::tr("%1 is no velocity of ground (%2 to %3)")
        .arg(Message::velocity(isoline.velocity))
        .arg(Message::velocity(kSlowest))
        .arg(Message::velocity(kFastest));
  }
  return faultOfLook(isoline.name, isoline.color, isoline.width);
}

Message faultOf(const Annotation& annotation) {
  // They may come from a file, as any number.
  if (annotation.kind < kAnnotationKinds.front() || annotation.kind > kAnnotationKinds.back()) {
    return Message::tr("it is neither text nor line nor polygon");
  }
  if (annotation.pattern < kLithologies.front() || annotation.pattern > kLithologies.back()) {
    return Message::tr("its pattern is none");
  }
  if (Message fault = faultOfLook(annotation.text, annotation.color, annotation.width);
      !fault.empty()) {
    return fault;
  }
  const bool isText = annotation.kind == AnnotationKind::kText;
  if (isText && annotation.text.empty()) return Message::tr("it says nothing");
  const std::size_t fewest = fewestPoints(annotation.kind);
  if (annotation.points.size() < fewest || (isText && annotation.points.size() > fewest)) {
    return isText
               ? Message::tr("a text stands at one point, not at %1").arg(annotation.points.size())
               : Message::tr("it has %1 points and needs %2 at least")
                     .arg(annotation.points.size())
                     .arg(fewest);
  }
  for (const Point2D& p : annotation.points) {
    if (!isPlace(p))
      return Message::tr("%1, %2 is no place of a section")
          .arg(Message::length(p.x))
          .arg(Message::length(p.z));
  }
  if (!within(annotation.textSize, Annotations::kSmallestText, Annotations::kLargestText)) {
    return Message::tr("a text is %1 to %2 points high")
        .arg(Annotations::kSmallestText)
        .arg(Annotations::kLargestText);
  }
  return {};
}

Message faultOf(const Annotations& annotations) {
  std::size_t points = 0;
  for (const Annotation& item : annotations.items) points += item.points.size();
  if (annotations.isolines.size() > Annotations::kMostIsolines ||
      annotations.items.size() > Annotations::kMostItems || points > Annotations::kMostPoints) {
    return Message::tr(
               "a section holds %1 marked isolines and %2 annotations with %3 points at most")
        .arg(Annotations::kMostIsolines)
        .arg(Annotations::kMostItems)
        .arg(Annotations::kMostPoints);
  }
  for (std::size_t i = 0; i < annotations.isolines.size(); ++i) {
    Message fault = faultOf(annotations.isolines[i]);
    if (!fault.empty())
      return joined(Message::tr("marked isoline %1").arg(i + 1), std::move(fault));
  }
  for (std::size_t i = 0; i < annotations.items.size(); ++i) {
    Message fault = faultOf(annotations.items[i]);
    if (!fault.empty()) return joined(Message::tr("annotation %1").arg(i + 1), std::move(fault));
  }
  return {};
}

}  // namespace talvesk
