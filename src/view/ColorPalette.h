#pragma once

#include "model/Parameters.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// A colour, components 0 to 1.
struct RgbColor {
  double r = 0.0;
  double g = 0.0;
  double b = 0.0;

  bool operator==(const RgbColor& other) const {
    return r == other.r && g == other.g && b == other.b;
  }
};

/// One colour stop of a gradient.
struct GradientColorPoint {
  double mr = 0.0;    ///< red, 0 to 1
  double mg = 0.0;    ///< green, 0 to 1
  double mb = 0.0;    ///< blue, 0 to 1
  double mval = 0.0;  ///< position along the gradient, 0 to 1

  bool operator==(const GradientColorPoint& other) const;
};

/// Colour stops in ascending order of position, the first at 0 and the last at 1.
class ColorGradient {
 public:
  const std::vector<GradientColorPoint>& points() const { return mPoints; }
  bool empty() const { return mPoints.empty(); }

  void add(const GradientColorPoint& point) { mPoints.push_back(point); }
  void clear() { mPoints.clear(); }
  /// Puts other stops in place of those there are; the caller minds their order.
  void assign(std::vector<GradientColorPoint> points) { mPoints = std::move(points); }
  /// Ascending positions; stops at the same place keep their order.
  void sort();

  /// The colour at t, linear between the two stops around it. Below the first stop and above the
  /// last, the colour of that stop; black for an empty gradient and for a t that is not a number.
  RgbColor colorAt(double t) const;

  bool operator==(const ColorGradient& other) const { return mPoints == other.mPoints; }

 private:
  std::vector<GradientColorPoint> mPoints;
};

/// The gradient types, by the numbers that the program has always given them.
inline constexpr int kFirstGradientType = 0;
inline constexpr int kLastGradientType = 8;

/// Adds the stops of a gradient type behind those that the gradient has; clear() it first to start
/// anew. Any number but 0 to 8 is told on the console's error stream and leaves the gradient as it
/// was.
void buildGradient(ColorGradient& gradient, int type);

/// A named gradient with the value scale that it is stretched over and the number of discrete
/// colours that a view samples from it.
struct ColorPalette {
  std::string name;                            ///< as shown in the palette chooser
  int n_colors = parameters::kColors.initial;  ///< discrete colours; colorTable() bounds it
  bool is_editable = true;                     ///< false for the built-in palettes
  double min_db =
      parameters::kMinVelocity.initial;  ///< lower end of the value scale, as a rule m/s
  double max_db = parameters::kMaxVelocity.initial;  ///< upper end of the value scale
  ColorGradient color_gradient;

  bool operator==(const ColorPalette& other) const;
};

/// The palettes of a project and which of them is in use. There is always at least one.
class ColorPaletteList {
 public:
  ColorPaletteList();  ///< the built-in palettes, the first one current

  std::size_t size() const { return mPalettes.size(); }
  const ColorPalette& operator[](std::size_t i) const { return mPalettes[i]; }
  ColorPalette& operator[](std::size_t i) { return mPalettes[i]; }
  const std::vector<ColorPalette>& palettes() const { return mPalettes; }

  std::size_t currentIndex() const { return curr_palette; }
  const ColorPalette& current() const { return mPalettes[curr_palette]; }
  ColorPalette& current() { return mPalettes[curr_palette]; }
  /// The palette of that name, the first of several; null when there is none.
  const ColorPalette* find(const std::string& name) const;

  std::size_t add(ColorPalette palette);  ///< at the end; returns its index
  bool select(std::size_t index);         ///< false, and no change, past the end
  /// Built-in palettes are neither removed nor renamed: false, and no change.
  bool remove(std::size_t index);
  bool rename(std::size_t index, std::string name);
  /// Takes over the palettes of a project; a current one past their end makes the first one
  /// current. False, and no change, when there are none.
  bool assign(std::vector<ColorPalette> palettes, std::size_t current);

  bool operator==(const ColorPaletteList& other) const {
    return curr_palette == other.curr_palette && mPalettes == other.mPalettes;
  }

 private:
  std::vector<ColorPalette> mPalettes;
  std::size_t curr_palette = 0;
};

/// A closed interval of values.
struct ValueRange {
  double min = 0.0;
  double max = 0.0;
  double span() const { return max - min; }
  bool contains(double value) const { return value >= min && value <= max; }
};

/// The discrete colours that a view shows a value range with: classes over the range, each with the
/// gradient's colour at its centre.
class ColorTable {
 public:
  static constexpr int kMaxColors = parameters::kColors.limits.most;

  /// \param palette its n_colors is held within 1 and kMaxColors
  /// \param range the values at both ends of the table
  ColorTable(const ColorPalette& palette, ValueRange range);
  /// Classes that end at the given values instead, however many colours the palette has.
  /// \param edges ascending, each once, inside the range
  ColorTable(const ColorPalette& palette, ValueRange range, const std::vector<double>& edges);
  /// Over the palette's own scale, min_db to max_db.
  explicit ColorTable(const ColorPalette& palette)
      : ColorTable(palette, {palette.min_db, palette.max_db}) {}

  const ValueRange& range() const { return mRange; }
  int size() const { return static_cast<int>(mColors.size()); }
  const RgbColor& operator[](int index) const { return mColors[static_cast<std::size_t>(index)]; }

  /// The class of a value, 0 to size() - 1; values beyond the range take the class at that end, and
  /// -1 stands for a value that is not a number.
  int indexOf(double value) const;
  /// The values where class `index` begins and ends.
  ValueRange classRange(int index) const;

 private:
  ValueRange mRange;
  std::vector<double> mEdges;  ///< between the classes; empty where they are equal
  std::vector<RgbColor> mColors;
};

}  // namespace talvesk
