#pragma once

#include "base/Message.h"
#include "base/Point2D.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// A velocity that means something: its isoline stands out from the others and has a name.
struct MarkedIsoline {
  std::string name;                ///< "water table"; may be empty
  double velocity = 1500.0;        ///< m/s
  std::uint32_t color = 0x004fc0;  ///< 0xRRGGBB
  double width = 2.0;              ///< points of 1/96 inch
};

enum class AnnotationKind { kText, kLine, kPolygon };
inline constexpr std::array<AnnotationKind, 3> kAnnotationKinds = {
    AnnotationKind::kText, AnnotationKind::kLine, AnnotationKind::kPolygon};

/// What the ground of a polygon is, by the pattern that fills it.
enum class Lithology { kNone, kSand, kGravel, kClay, kSilt, kRock, kFill, kWater };
inline constexpr std::array<Lithology, 8> kLithologies = {
    Lithology::kNone, Lithology::kSand, Lithology::kGravel, Lithology::kClay,
    Lithology::kSilt, Lithology::kRock, Lithology::kFill,   Lithology::kWater};

/// Something that the user has drawn into the section.
struct Annotation {
  AnnotationKind kind = AnnotationKind::kText;
  std::string text;             ///< UTF-8; of lines and polygons it may be empty
  std::vector<Point2D> points;  ///< along the line and elevation, metres; one where a text stands
  Lithology pattern = Lithology::kNone;  ///< of a polygon
  std::uint32_t color = 0x000000;        ///< 0xRRGGBB
  double width = 1.5;                    ///< of lines and outlines, points of 1/96 inch
  double textSize = 9.0;                 ///< points of 1/72 inch
};

/// What the user has put on the section by hand. No inversion knows of it.
struct Annotations {
  std::vector<MarkedIsoline> isolines;
  std::vector<Annotation> items;  ///< later ones over earlier ones

  bool empty() const { return isolines.empty() && items.empty(); }

  static constexpr std::size_t kMostIsolines = 20;
  static constexpr std::size_t kMostItems = 200;
  static constexpr std::size_t kMostPoints = 5000;  ///< all together
  static constexpr std::size_t kLongestText = 200;  ///< bytes
  static constexpr double kThinnest = 0.2;          ///< points of 1/96 inch
  static constexpr double kThickest = 10.0;
  static constexpr double kSmallestText = 4.0;  ///< points of 1/72 inch
  static constexpr double kLargestText = 48.0;
};

bool operator==(const MarkedIsoline& a, const MarkedIsoline& b);
bool operator==(const Annotation& a, const Annotation& b);
bool operator==(const Annotations& a, const Annotations& b);
inline bool operator!=(const Annotations& a, const Annotations& b) {
  return !(a == b);
}

/// How many points an annotation needs at least, and whether it can have more.
std::size_t fewestPoints(AnnotationKind kind);

/// "Text", "Line", "Polygon".
Message nameOf(AnnotationKind kind);
/// "Sand", "Gravel", ...; "None".
Message nameOf(Lithology pattern);

/// What cannot be of something; empty when all can be.
Message faultOf(const MarkedIsoline& isoline);
Message faultOf(const Annotation& annotation);
/// The first of all, with the number of what it is about, from 1.
Message faultOf(const Annotations& annotations);

}  // namespace talvesk
