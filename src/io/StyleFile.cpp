#include "io/StyleFile.h"

#include "base/AtomicFile.h"
#include "base/PlainText.h"
#include "io/EntryName.h"
#include "io/project/ProjectMembers_records.inl"
#include "io/project/ProjectRepair.h"
#include "model/TomoDocument.h"
#include "view/PaletteRepair.h"

#include <cstdint>
#include <exception>
#include <sstream>
#include <utility>

namespace talvesk {

template <class V>
void describe(V& fields, GradientColorPoint& stop) {
  fields("mr", stop.mr);
  fields("mg", stop.mg);
  fields("mb", stop.mb);
  fields("mval", stop.mval);
}

namespace {

constexpr std::size_t kLargestFile = std::size_t{1} << 20;
constexpr std::uint32_t kVersion = 1;

/// As it stands in the file.
struct StyleRecord {
  std::uint32_t version = kVersion;
  std::string name;  ///< of the palette
  std::int32_t colors = 0;
  double least = 0.0;  ///< ends of its range, m/s
  double most = 0.0;
  std::vector<GradientColorPoint> stops;
  SectionViewSettings section;
  std::vector<MarkedIsoline> isolines;
};

template <class V>
void describe(V& fields, StyleRecord& record) {
  fields("style_version", record.version);
  fields("palette", record.name);
  fields("n_colors", record.colors);
  fields("min_db", record.least);
  fields("max_db", record.most);
  fields("color", record.stops);
  fields("section_view", record.section);
  fields("isolines", record.isolines);
}

StyleRecord recordOf(const SectionStyle& style) {
  const ColorPalette& palette = style.palette;
  return {kVersion,       palette.name,   palette.n_colors,
          palette.min_db, palette.max_db, palette.color_gradient.points(),
          style.section,  style.isolines};
}

/// What a file says may still be nothing that can be drawn.
Status styleFrom(StyleRecord record, SectionStyle& style) {
  SectionStyle read;
  read.palette.name = withoutControls(std::move(record.name));
  read.palette.n_colors = record.colors;
  read.palette.min_db = record.least;
  read.palette.max_db = record.most;
  read.palette.color_gradient.assign(std::move(record.stops));
  if (Status status = repairPalette(read.palette); !status.ok()) return status;
  std::vector<Message> repairs;
  repairSection(record.section, repairs);
  if (!repairs.empty()) return Status::failure(repairs.front());
  read.section = std::move(record.section);
  Annotations drawn;
  drawn.isolines = std::move(record.isolines);
  if (Status status = mendAnnotations(drawn); !status.ok()) return status;
  read.isolines = std::move(drawn.isolines);
  style = std::move(read);
  return {};
}

bool looksLike(const ColorPalette& a, const ColorPalette& b) {
  return a.color_gradient == b.color_gradient && a.n_colors == b.n_colors;
}

/// The palette of the style in the list, with its range.
void selectIn(ColorPaletteList& palettes, const ColorPalette& palette) {
  std::size_t found = palettes.size();
  for (std::size_t i = palettes.size(); i-- > 0;) {
    if (palettes[i].name == palette.name && looksLike(palettes[i], palette)) found = i;
  }
  if (found == palettes.size()) {
    // Another of that name stays what it is.
    ColorPalette added = palette;
    added.is_editable = true;
    for (int n = 2; palettes.find(added.name) != nullptr; ++n) {
      added.name = palette.name + " (" + std::to_string(n) + ")";
    }
    found = palettes.add(std::move(added));
  }
  palettes[found].min_db = palette.min_db;
  palettes[found].max_db = palette.max_db;
  palettes.select(found);
}

}  // namespace

SectionStyle styleOf(const TomoDocument& document, const ColorPalette& palette,
                     const SectionViewSettings& section) {
  return {palette, section, document.annotations->isolines};
}

void applyStyle(const SectionStyle& style, TomoDocument& document, ColorPaletteList& palettes,
                SectionViewSettings& section) {
  const SectionQuantity quantity = section.quantity;
  section = style.section;
  section.quantity = quantity;
  section.lockRange = true;
  selectIn(palettes, style.palette);
  if (document.annotations->isolines != style.isolines) {
    document.annotations.edit().isolines = style.isolines;
  }
}

Status writeStyle(const std::string& path, const SectionStyle& style) {
  std::ostringstream stream;
  XmlWriter writer(stream);
  StyleRecord record = recordOf(style);
  xml::Output output(writer);
  describe(output, record);
  if (!writer.finish()) return Status::failure(Message::tr("Cannot write %1").arg(path));
  return writeFileAtomically(path, stream.str());
}

Status readStyle(const std::string& path, SectionStyle& style) {
  std::string text;
  if (Status status = readWholeFile(path, text, kLargestFile); !status.ok()) return status;
  const auto fault = [&path](const Message& why) {
    return Status::failure(Message::tr("%1 is no style file: %2").arg(bareName(path)).arg(why));
  };
  try {
    std::istringstream stream(text);
    XmlReader reader(stream, "cereal");
    StyleRecord record;
    xml::readRecord(reader, record);
    if (record.version > kVersion) {
      return fault(Message::tr("a newer version of Talvesk has written it"));
    }
    const Status status = styleFrom(std::move(record), style);
    return status.ok() ? status : fault(status.text());
  } catch (const XmlError& error) {
    return fault(error.reason);
  } catch (const std::exception& error) {
    return fault(error.what());
  }
}

}  // namespace talvesk
