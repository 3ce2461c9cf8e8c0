#pragma once

// How palettes are laid out in an XML archive, alone in a file or as a list in a project. Included
// by the sources that read or write such archives; it throws what the archive throws, and XmlError
// for a value.

#include "base/PlainText.h"
#include "base/TextNumber.h"
#include "io/XmlReader.h"
#include "view/ColorPalette.h"
#include "view/PaletteRepair.h"

#include <string>
#include <utility>
#include <vector>

#include <cereal/archives/xml.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>

namespace talvesk {
namespace palettes {

// The archive prints and reads numbers by the locale of the process, and takes "12 apples" for 12.
// As text they are the same elements, by rules of our own.

inline void put(cereal::XMLOutputArchive& archive, const char* key, double value) {
  constexpr int kAllDigits = 17;
  archive(cereal::make_nvp(key, formatDouble(value, kAllDigits)));
}
inline void put(cereal::XMLOutputArchive& archive, const char* key, int value) {
  archive(cereal::make_nvp(key, std::to_string(value)));
}

/// Strings are marked so that their blanks stay; the archive itself marks only blanks at the ends.
inline void put(cereal::XMLOutputArchive& archive, const char* key, const std::string& text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
  archive.setNextName(key);
  archive.startNode();
  if (text.empty() || (!isBlank(text.front()) && !isBlank(text.back()))) {
    archive.appendAttribute("xml:space", "preserve");
  }
  archive.saveValue(text);
  archive.finishNode();
}

template <typename Number, typename Parse>
void getNumber(cereal::XMLInputArchive& archive, const char* key, Number& value, Parse parse) {
  std::string text;
  archive(cereal::make_nvp(key, text));
  Number read{};
  if (parse(text, read) != NumberError::kNone) {
    throw XmlError(Message::tr("the value of %1 is not a number it can hold").arg(key));
  }
  value = read;
}
inline void get(cereal::XMLInputArchive& archive, const char* key, double& value) {
  getNumber(archive, key, value, parseWholeDouble);
}
inline void get(cereal::XMLInputArchive& archive, const char* key, int& value) {
  getNumber(archive, key, value, parseInt);
}

}  // namespace palettes

inline void save(cereal::XMLOutputArchive& archive, const GradientColorPoint& point) {
  palettes::put(archive, "mr", point.mr);
  palettes::put(archive, "mg", point.mg);
  palettes::put(archive, "mb", point.mb);
  palettes::put(archive, "mval", point.mval);
}

inline void load(cereal::XMLInputArchive& archive, GradientColorPoint& point) {
  palettes::get(archive, "mr", point.mr);
  palettes::get(archive, "mg", point.mg);
  palettes::get(archive, "mb", point.mb);
  palettes::get(archive, "mval", point.mval);
}

inline void save(cereal::XMLOutputArchive& archive, const ColorGradient& gradient) {
  ColorGradient sorted = gradient;
  sorted.sort();
  archive(cereal::make_nvp("color", sorted.points()));
}

inline void load(cereal::XMLInputArchive& archive, ColorGradient& gradient) {
  std::vector<GradientColorPoint> points;
  archive(cereal::make_nvp("color", points));
  gradient.assign(std::move(points));
}

inline void save(cereal::XMLOutputArchive& archive, const ColorPalette& palette) {
  palettes::put(archive, "name", palette.name);
  palettes::put(archive, "n_colors", palette.n_colors);
  archive(cereal::make_nvp("is_editable", palette.is_editable));
  palettes::put(archive, "min_db", palette.min_db);
  palettes::put(archive, "max_db", palette.max_db);
  archive(cereal::make_nvp("color_gradient", palette.color_gradient));
}

namespace palettes {

/// A palette as it comes, not looked at yet.
struct Unchecked {
  ColorPalette palette;
};

inline void load(cereal::XMLInputArchive& archive, Unchecked& unchecked) {
  ColorPalette& read = unchecked.palette;
  archive(cereal::make_nvp("name", read.name));
  palettes::get(archive, "n_colors", read.n_colors);
  archive(cereal::make_nvp("is_editable", read.is_editable));
  palettes::get(archive, "min_db", read.min_db);
  palettes::get(archive, "max_db", read.max_db);
  archive(cereal::make_nvp("color_gradient", read.color_gradient));
}

}  // namespace palettes

/// What comes out is fit for use, see repairPalette(); a palette that cannot be made so throws.
inline void load(cereal::XMLInputArchive& archive, ColorPalette& palette) {
  palettes::Unchecked read;
  load(archive, read);
  if (const Status repaired = repairPalette(read.palette); !repaired.ok()) {
    throw XmlError(
        Message::tr("palette %1: %2").arg(quoted(read.palette.name)).arg(repaired.text()));
  }
  palette = std::move(read.palette);
}

inline void save(cereal::XMLOutputArchive& archive, const ColorPaletteList& list) {
  palettes::put(archive, "n_palettes", static_cast<int>(list.size()));
  palettes::put(archive, "curr_palette", static_cast<int>(list.currentIndex()));
  archive(cereal::make_nvp("palettes", list.palettes()));
}

/// The palettes themselves say how many they are. A current one that is not there gives the first.
/// A palette that cannot be made fit for use is left out, with a line in `repairs`; when none is
/// fit the list stays as it is.
inline void load(cereal::XMLInputArchive& archive, ColorPaletteList& list,
                 std::vector<Message>& repairs) {
  int count = 0;
  int current = 0;
  std::vector<palettes::Unchecked> read;
  palettes::get(archive, "n_palettes", count);
  palettes::get(archive, "curr_palette", current);
  archive(cereal::make_nvp("palettes", read));
  if (read.empty()) throw XmlError(Message::tr("there are no palettes in it"));
  std::vector<ColorPalette> fit;
  std::size_t currentFit = read.size();
  for (std::size_t i = 0; i < read.size(); ++i) {
    ColorPalette& palette = read[i].palette;
    const std::string name = palette.name;
    if (const Status repaired = repairPalette(palette); !repaired.ok()) {
      repairs.push_back(
          Message::tr("palette %1: %2; it is left out").arg(quoted(name)).arg(repaired.text()));
      continue;
    }
    if (palette.name != name) {
      repairs.push_back(
          Message::tr("the name of palette %1 has control characters; they are blanks now")
              .arg(quoted(name)));
    }
    if (i == static_cast<std::size_t>(current)) currentFit = fit.size();
    fit.push_back(std::move(palette));
  }
  list.assign(std::move(fit), currentFit);
}

}  // namespace talvesk
