#include "export/VtkGrid.h"

#include "base/AtomicFile.h"
#include "export/ExportFailure.h"
#include "export/LineOnMap.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/SectionCertainty.h"
#include "view/SectionValues.h"

#include <QByteArray>
#include <QSysInfo>
#include <QXmlStreamWriter>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace talvesk {
namespace {

constexpr std::uint8_t kQuadrilateral = 9;    ///< by VTK's numbers of cell types
constexpr std::size_t kMaxCells = 4'000'000;  ///< Qt counts the bytes of a text in 31 bits
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// The drawn cells and the corners that they have in common, numbered anew.
struct Cells {
  std::vector<std::uint32_t> cells;   ///< of the grid
  std::vector<double> points;         ///< x, y, z of each corner
  std::vector<std::int64_t> corners;  ///< four per cell, against the clock
  std::vector<std::int64_t> offsets;  ///< where the next cell's corners begin
};

/// \param map where the line lies; null: x along the line, y 0
Cells drawnCells(const SectionMesh& mesh, const LineOnMap* map) {
  Cells result;
  std::vector<std::int64_t> number(mesh.corners.size(), -1);
  const auto use = [&](std::uint32_t line, std::uint32_t column) {
    const std::size_t corner = mesh.corner(line, column);
    if (number[corner] < 0) {
      number[corner] = static_cast<std::int64_t>(result.points.size() / 3);
      const Point2D& place = mesh.corners[corner];
      const MapPoint onMap = map != nullptr ? map->at(place.x) : MapPoint{place.x, 0.0};
      result.points.insert(result.points.end(), {onMap.easting, onMap.northing, place.z});
    }
    result.corners.push_back(number[corner]);
  };
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      if (!mesh.isDrawn(row, column)) continue;
      use(row + 1, column);
      use(row + 1, column + 1);
      use(row, column + 1);
      use(row, column);
      result.cells.push_back(static_cast<std::uint32_t>(mesh.cell(row, column)));
      result.offsets.push_back(static_cast<std::int64_t>(result.corners.size()));
    }
  }
  return result;
}

/// The file's XML. Arrays are inline, in base64: exact, and able to say "not a number".
class VtuWriter {
 public:
  VtuWriter() : mXml(&mBytes) {
    mXml.setAutoFormatting(true);
    mXml.setAutoFormattingIndent(1);
    mXml.writeStartDocument();
    begin("VTKFile");
    attribute("type", "UnstructuredGrid");
    attribute("version", "1.0");
    attribute("byte_order",
              QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "LittleEndian" : "BigEndian");
    attribute("header_type", "UInt64");
  }

  void begin(const char* element) { mXml.writeStartElement(QLatin1String(element)); }
  void end() { mXml.writeEndElement(); }
  void attribute(const char* name, const char* value) {
    mXml.writeAttribute(QLatin1String(name), QLatin1String(value));
  }
  void attribute(const char* name, std::size_t value) {
    mXml.writeAttribute(QLatin1String(name), QString::number(value));
  }

  void text(const std::string& words) { mXml.writeCharacters(QString::fromStdString(words)); }

  template <typename T>
  void array(const char* type, const char* name, const std::vector<T>& values, int components = 1) {
    begin("DataArray");
    attribute("type", type);
    attribute("Name", name);
    if (components > 1) attribute("NumberOfComponents", static_cast<std::size_t>(components));
    attribute("format", "binary");
    const std::uint64_t size = values.size() * sizeof(T);
    QByteArray block(reinterpret_cast<const char*>(&size), sizeof size);
    block.append(reinterpret_cast<const char*>(values.data()), static_cast<int>(size));
    mXml.writeCharacters(QString::fromLatin1(block.toBase64()));
    end();
  }

  const QByteArray& finish() {
    mXml.writeEndDocument();
    return mBytes;
  }

 private:
  QByteArray mBytes;
  QXmlStreamWriter mXml;
};

std::vector<double> ofCells(const Cells& cells, const std::vector<double>& all) {
  std::vector<double> values;
  values.reserve(cells.cells.size());
  for (const std::uint32_t cell : cells.cells) {
    values.push_back(cell < all.size() && std::isfinite(all[cell]) ? all[cell] : kNone);
  }
  return values;
}

void writeCellData(VtuWriter& vtu, const Cells& cells, const TomoDocument& document) {
  vtu.begin("CellData");
  vtu.attribute("Scalars", "Velocity (m/s)");
  vtu.array("Float64", "Velocity (m/s)", ofCells(cells, document.model->grid->velocities()));
  vtu.array("Float64", "Slowness (s/m)", ofCells(cells, document.model->grid->slownesses()));
  vtu.array("Float64", "Vertical gradient (1/s)",
            ofCells(cells, verticalGradientValues(*document.model->grid)));
  if (document.result->has_tomographic_info) {
    std::vector<double> density = document.result->info_density;
    for (double& value : density) {
      if (value < 0.0) value = kNone;  // no inversion came by this cell
    }
    vtu.array("Float64", "Information density", ofCells(cells, density));
  }
  const std::optional<Certainty>& certainty = document.result->certainty;
  if (certainty && certainty->touched.size() == document.model->grid->cellCount()) {
    const Quantiles& velocities = certainty->velocities;
    vtu.array("Float64", "Median velocity (m/s)", ofCells(cells, velocities.median));
    vtu.array("Float64", "16 % velocity (m/s)", ofCells(cells, velocities.low));
    vtu.array("Float64", "84 % velocity (m/s)", ofCells(cells, velocities.high));
    vtu.array("Float64", "Uncertainty (%)", ofCells(cells, certaintySpreads(*certainty)));
  }
  vtu.end();
}

/// What program-readable data say of the reference system of the points.
void writeSystem(VtuWriter& vtu, const LineOnMap& map) {
  vtu.begin("FieldData");
  vtu.begin("DataArray");
  vtu.attribute("type", "Int32");
  vtu.attribute("Name", "EPSG");
  vtu.attribute("NumberOfTuples", std::size_t{1});
  vtu.attribute("format", "ascii");
  vtu.text(std::to_string(map.epsg()));
  vtu.end();
  vtu.end();
}

Status writeCells(const std::string& path, const TomoDocument& document, const LineOnMap* map) {
  if (!document.model->grid) {
    return cannotWrite(path, noGrid());
  }
  const Cells cells = drawnCells(sectionMesh(*document.model->grid, document.model->xOffset), map);
  if (cells.cells.empty()) return cannotWrite(path, noCellDrawn());
  if (cells.cells.size() > kMaxCells) {
    return cannotWrite(
        path,
        Message::tr("the section has too many cells for this format, %1").arg(cells.cells.size()));
  }

  VtuWriter vtu;
  vtu.begin("UnstructuredGrid");
  if (map != nullptr) writeSystem(vtu, *map);
  vtu.begin("Piece");
  vtu.attribute("NumberOfPoints", cells.points.size() / 3);
  vtu.attribute("NumberOfCells", cells.cells.size());
  writeCellData(vtu, cells, document);
  vtu.begin("Points");
  vtu.array("Float64", "Points", cells.points, 3);
  vtu.end();
  vtu.begin("Cells");
  vtu.array("Int64", "connectivity", cells.corners);
  vtu.array("Int64", "offsets", cells.offsets);
  vtu.array("UInt8", "types", std::vector<std::uint8_t>(cells.cells.size(), kQuadrilateral));
  vtu.end();
  const QByteArray& bytes = vtu.finish();
  return told(
      writeFileAtomically(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())}));
}

}  // namespace

Status writeVtkGrid(const std::string& path, const TomoDocument& document) {
  return writeCells(path, document, nullptr);
}

Status writeVtkCurtain(const std::string& path, const TomoDocument& document) {
  const LineOnMap map(document);
  if (!map.status().ok()) return cannotWrite(path, map.status().text());
  return writeCells(path, document, &map);
}

}  // namespace talvesk
