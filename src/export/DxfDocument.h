#pragma once

#include "base/Status.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// A corner of a drawing, metres: x to the right or east, y up the sheet or north, z.
struct DxfPoint {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

/// Where a text begins, or its middle.
enum class DxfAnchor { kStart, kMiddle };

/// A drawing in DXF of release 12, which every program that knows the format reads, as ASCII text.
/// Put together in memory and written in one go. One drawing unit is a metre; numbers have tenths
/// of a millimetre.
class DxfDocument {
 public:
  /// \param flat polylines are plane ones at z 0; else they go through space
  explicit DxfDocument(bool flat) : mFlat(flat) {}

  /// The layer of what follows, made at its first use. Letters, digits and "_" stay of its name,
  /// the rest becomes "_"; at most 31 characters. \param color of the AutoCAD colour index, 1 to
  /// 255
  void useLayer(const std::string& name, int color);
  /// A colour of its own for what follows in this layer, the nearest of the index. \param rgb
  /// 0xRRGGBB
  void useColor(std::uint32_t rgb);
  void addLine(const std::vector<DxfPoint>& points, bool closed);  ///< nothing for fewer than two
  void addPoint(const DxfPoint& place);
  /// Text that reads along a direction, upright in space or in the plane of a flat drawing. \param
  /// text UTF-8, of which a line is left \param east, north unit vector of the direction; of no
  /// meaning in a flat drawing \param anchor which point of the text is at the place
  void addText(const DxfPoint& place, double height, const std::string& text, double east = 1.0,
               double north = 0.0, DxfAnchor anchor = DxfAnchor::kStart);

  /// How large points are shown, metres.
  void setPointSize(double size) { mPointSize = size; }

  /// Replaces the file, whole or not at all.
  Status write(const std::string& path) const;

 private:
  struct Layer {
    std::string name;
    int color = 7;
  };

  void put(int code, const std::string& value);
  void put(int code, double value);
  void begin(const char* entity);
  void putPlace(const DxfPoint& place);
  std::string header() const;

  bool mFlat;
  double mPointSize = 1.0;
  std::vector<Layer> mLayers;
  std::size_t mLayer = 0;
  std::optional<int> mColor;  ///< in place of that of the layer
  std::string mEntities;
  bool mAny = false;
  DxfPoint mLeast;
  DxfPoint mMost;
};

/// A text as DXF has it: one line of ASCII, other letters as "\U+XXXX", and signs that would begin
/// a code written so that they stand for themselves. \param text UTF-8
std::string dxfText(const std::string& text);

}  // namespace talvesk
