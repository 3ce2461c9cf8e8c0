#include "export/DxfDocument.h"

#include "base/AtomicFile.h"
#include "export/DxfColor.h"

#include <QString>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace talvesk {
namespace {

constexpr std::size_t kLongestName = 31;
constexpr std::size_t kLongestText = 255;
constexpr int kDecimals = 4;
constexpr int kPointMark = 34;  ///< a cross in a circle

std::string groupOf(int code, const std::string& value) {
  return std::to_string(code) + '\n' + value + '\n';
}

std::string fixed(double value) {
  std::array<char, 400> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::fixed, kDecimals);
  return {text.data(), end.ptr};
}

std::string layerName(const std::string& name) {
  std::string plain = name.substr(0, kLongestName);
  for (char& letter : plain) {
    const bool allowed = (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9');
    if (!allowed) letter = '_';
  }
  return plain;
}

std::string variable(const char* name, const std::string& groups) {
  return groupOf(9, name) + groups;
}

std::string table(const char* name, std::size_t count, const std::string& rows) {
  return groupOf(0, "TABLE") + groupOf(2, name) + groupOf(70, std::to_string(count)) + rows +
         groupOf(0, "ENDTAB");
}

std::string section(const char* name, const std::string& content) {
  return groupOf(0, "SECTION") + groupOf(2, name) + content + groupOf(0, "ENDSEC");
}

std::string pointGroups(const DxfPoint& point) {
  return groupOf(10, fixed(point.x)) + groupOf(20, fixed(point.y)) + groupOf(30, fixed(point.z));
}

}  // namespace

std::string dxfText(const std::string& text) {
  const QString letters = QString::fromStdString(text);
  std::string out;
  for (int i = 0; i < letters.size() && out.size() < kLongestText - 8; ++i) {
    const ushort code = letters[i].unicode();
    const bool doubled = letters[i] == '%' && ((i + 1 < letters.size() && letters[i + 1] == '%') ||
                                               (i > 0 && letters[i - 1] == '%'));
    if (code < 0x20 || code == 0x7F) {
      out += ' ';
    } else if (doubled) {
      out += "%%%";
    } else if (code == '^') {
      out += "^ ";
    } else if (code == '\\' && i + 1 < letters.size() &&
               (letters[i + 1] == 'U' || letters[i + 1] == 'M')) {
      out += "\\U+005C";
    } else if (code < 0x7F) {
      out += static_cast<char>(code);
    } else {
      std::array<char, 8> escaped{};
      std::snprintf(escaped.data(), escaped.size(), "\\U+%04X", code);
      out += escaped.data();
    }
  }
  return out;
}

void DxfDocument::put(int code, const std::string& value) {
  mEntities += groupOf(code, value);
}

void DxfDocument::put(int code, double value) {
  put(code, fixed(value));
}

void DxfDocument::begin(const char* entity) {
  put(0, entity);
  put(8, mLayers[mLayer].name);
  if (mColor) put(62, std::to_string(*mColor));
}

void DxfDocument::putPlace(const DxfPoint& place) {
  mEntities += pointGroups(place);
  if (!mAny) mLeast = mMost = place;
  mAny = true;
  mLeast = {std::min(mLeast.x, place.x), std::min(mLeast.y, place.y), std::min(mLeast.z, place.z)};
  mMost = {std::max(mMost.x, place.x), std::max(mMost.y, place.y), std::max(mMost.z, place.z)};
}

void DxfDocument::useLayer(const std::string& name, int color) {
  const std::string plain = layerName(name);
  const auto known = std::find_if(mLayers.begin(), mLayers.end(),
                                  [&](const Layer& layer) { return layer.name == plain; });
  mLayer = static_cast<std::size_t>(known - mLayers.begin());
  if (known == mLayers.end()) mLayers.push_back({plain, color});
  mColor.reset();
}

void DxfDocument::useColor(std::uint32_t rgb) {
  mColor = nearestDxfColor(rgb);
}

void DxfDocument::addLine(const std::vector<DxfPoint>& points, bool closed) {
  if (points.size() < 2) return;
  constexpr int kClosed = 1;
  constexpr int kSpatial = 8;
  constexpr int kSpatialVertex = 32;
  begin("POLYLINE");
  put(66, "1");  // vertices follow
  mEntities += pointGroups({});
  put(70, std::to_string((closed ? kClosed : 0) + (mFlat ? 0 : kSpatial)));
  for (const DxfPoint& point : points) {
    begin("VERTEX");
    putPlace(point);
    if (!mFlat) put(70, std::to_string(kSpatialVertex));
  }
  begin("SEQEND");
}

void DxfDocument::addPoint(const DxfPoint& place) {
  begin("POINT");
  putPlace(place);
}

void DxfDocument::addText(const DxfPoint& place, double height, const std::string& text,
                          double east, double north, DxfAnchor anchor) {
  // In space a text lies in a plane of its own, given by the normal; its place is in axes of that
  // plane: along the line, up, and towards who looks at it from the right hand of the line.
  const DxfPoint inPlane =
      mFlat ? place
            : DxfPoint{place.x * east + place.y * north, place.z, place.x * north - place.y * east};
  begin("TEXT");
  if (mFlat) {
    putPlace(place);
  } else {
    mEntities += pointGroups(inPlane);
  }
  put(40, height);
  put(1, dxfText(text));
  if (anchor == DxfAnchor::kMiddle) {
    put(72, "4");
    put(11, inPlane.x);
    put(21, inPlane.y);
    put(31, inPlane.z);
  }
  if (mFlat) return;
  std::array<char, 40> digits;
  const double normal[] = {north, -east, 0.0};
  for (int axis = 0; axis < 3; ++axis) {
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), normal[axis]);
    put(210 + 10 * axis, std::string(digits.data(), end.ptr));
  }
}

std::string DxfDocument::header() const {
  std::string layers;
  for (const Layer& layer : mLayers) {
    layers += groupOf(0, "LAYER") + groupOf(2, layer.name) + groupOf(70, "0") +
              groupOf(62, std::to_string(layer.color)) + groupOf(6, "CONTINUOUS");
  }
  const std::string lineType = groupOf(0, "LTYPE") + groupOf(2, "CONTINUOUS") + groupOf(70, "0") +
                               groupOf(3, "Solid line") + groupOf(72, "65") + groupOf(73, "0") +
                               groupOf(40, "0.0");
  const std::string style = groupOf(0, "STYLE") + groupOf(2, "STANDARD") + groupOf(70, "0") +
                            groupOf(40, "0.0") + groupOf(41, "1.0") + groupOf(50, "0.0") +
                            groupOf(71, "0") + groupOf(42, "1.0") + groupOf(3, "txt") +
                            groupOf(4, "");
  return section("HEADER", variable("$ACADVER", groupOf(1, "AC1009")) +
                               variable("$EXTMIN", pointGroups(mLeast)) +
                               variable("$EXTMAX", pointGroups(mMost)) +
                               variable("$PDMODE", groupOf(70, std::to_string(kPointMark))) +
                               variable("$PDSIZE", groupOf(40, fixed(mPointSize)))) +
         section("TABLES", table("LTYPE", 1, lineType) + table("LAYER", mLayers.size(), layers) +
                               table("STYLE", 1, style)) +
         section("BLOCKS", "");
}

Status DxfDocument::write(const std::string& path) const {
  return writeFileAtomically(path, header() + section("ENTITIES", mEntities) + groupOf(0, "EOF"));
}

}  // namespace talvesk
