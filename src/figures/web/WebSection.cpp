#include "figures/FigureWords.h"
#include "figures/ProfileLines.h"
#include "figures/SectionPaper_layout.h"
#include "figures/report/ReportBuilder.h"
#include "figures/web/WebParts.h"
#include "model/GroundModel.h"
#include "model/KeptRuns.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/RayLines.h"
#include "view/ShownUnit.h"
#include "view/SimplifiedLine.h"
#include "view/VelocityDifference.h"

#include <QColor>
#include <algorithm>
#include <cmath>
#include <cstdint>

// The section: its cells with what is known of each, and what lies over them.

namespace talvesk::web {
namespace {

struct WebSectionWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::WebPage)
};

constexpr std::size_t kMostCells = 120000;  ///< a few megabytes with all that is known of them
constexpr std::size_t kMostRayPoints = 60000;
constexpr std::size_t kMostRuns = 2;  ///< beside the section
constexpr double kHundredths = 100.0;

QJsonArray pair(const ValueRange& range) {
  return {rounded(range.min, 6), rounded(range.max, 6)};
}

QJsonObject paletteJson(const ColorPalette& palette) {
  QJsonArray stops;
  for (const GradientColorPoint& stop : palette.color_gradient.points()) {
    stops.append(QJsonArray{rounded(stop.mval, 4), rounded(stop.mr, 4), rounded(stop.mg, 4),
                            rounded(stop.mb, 4)});
  }
  return {{QStringLiteral("name"), QString::fromStdString(palette.name)},
          {QStringLiteral("colors"), std::clamp(palette.n_colors, 2, ColorTable::kMaxColors)},
          {QStringLiteral("stops"), stops}};
}

/// The chosen palette before those that every survey has.
QJsonArray palettesJson(const ColorPalette& chosen) {
  QJsonArray list{paletteJson(chosen)};
  const ColorPaletteList usual;
  for (const ColorPalette& palette : usual.palettes()) {
    if (palette.name != chosen.name) list.append(paletteJson(palette));
  }
  return list;
}

/// A quantity that the page can colour the cells by.
struct Quantity {
  QString key;
  QString name;
  QString unit;
  std::vector<double> values;  ///< of all cells of the grid
  int places = 0;              ///< that make sense
  std::optional<ValueRange> range;
  std::optional<ColorPalette> palette;  ///< none: the chosen one
};

class SectionWriter {
 public:
  SectionWriter(const ReportSource& source, const ReportOptions& options, SectionScene scene)
      : mDocument(source.document), mOptions(options), mScene(std::move(scene)) {
    const SectionMesh& mesh = mScene.mesh;
    for (std::uint32_t row = 0; row < mesh.rows; ++row) {
      const auto begin = mesh.drawn.begin() + static_cast<std::ptrdiff_t>(mesh.cell(row, 0));
      if (std::any_of(begin, begin + mesh.columns, [](std::uint8_t drawn) { return drawn != 0; })) {
        mRows = row + 1;
      }
    }
  }

  std::size_t cells() const { return std::size_t{mRows} * mScene.mesh.columns; }

  QJsonObject write(const std::vector<SectionLine>& layers) const {
    QJsonObject json{{QStringLiteral("rows"), static_cast<int>(mRows)},
                     {QStringLiteral("columns"), static_cast<int>(mScene.mesh.columns)},
                     {QStringLiteral("quantities"), quantities()},
                     {QStringLiteral("palettes"), palettesJson(mOptions.section.palette)},
                     {QStringLiteral("contours"), contoursJson()},
                     {QStringLiteral("surface"), rounded(simplifiedLine(mScene.surface, 0.005), 3)},
                     {QStringLiteral("coverage"), rounded(mScene.coverageLimit, 2)},
                     {QStringLiteral("geophones"), rounded(mScene.geophones, 2)},
                     {QStringLiteral("shots"), rounded(mScene.shots, 2)},
                     {QStringLiteral("layers"), layerJson(layers)},
                     {QStringLiteral("drawn"), drawnJson()},
                     {QStringLiteral("exaggeration"), mOptions.section.verticalExaggeration}};
    addCorners(json);
    return json;
  }

 private:
  void addCorners(QJsonObject& json) const {
    const SectionMesh& mesh = mScene.mesh;
    QJsonArray x;
    for (std::uint32_t i = 0; i <= mesh.columns; ++i) {
      x.append(rounded(shownLength(mesh.corners[mesh.corner(0, i)].x), 3));
    }
    QJsonArray z;
    for (std::uint32_t line = 0; line <= mRows; ++line) {
      for (std::uint32_t i = 0; i <= mesh.columns; ++i) {
        z.append(rounded(kHundredths * shownLength(mesh.corners[mesh.corner(line, i)].z), 0));
      }
    }
    json[QStringLiteral("x")] = x;
    json[QStringLiteral("z")] = z;
  }

  QJsonArray contoursJson() const {
    std::vector<double> levels = mScene.contourLevels;
    for (double& level : levels) level = shownLength(level);
    return rounded(levels, 6);
  }

  QJsonArray quantities() const {
    QJsonArray list;
    Quantity velocity{QStringLiteral("velocity"),
                      FigureWords::quantity(SectionQuantity::kVelocity),
                      QStringLiteral("m/s"),
                      mScene.velocities,
                      0,
                      mScene.range,
                      {}};
    list.append(quantityJson(velocity));
    if (mOptions.sections.density && mDocument.result->has_tomographic_info) {
      addQuantity(SectionQuantity::kInformationDensity, QStringLiteral("density"), 3, list);
    }
    if (mDocument.result->certainty) {
      addQuantity(SectionQuantity::kCertainty, QStringLiteral("certainty"), 1, list);
    }
    for (const KeptRun* run : otherRuns()) addRun(*run, list);
    return list;
  }

  void addQuantity(SectionQuantity quantity, const QString& key, int places,
                   QJsonArray& list) const {
    SectionScene scene;
    const SectionFigureOptions options = report::sectionOptions(mOptions, quantity);
    if (!buildSectionScene(mDocument, options.scene, scene).ok()) return;
    std::optional<ColorPalette> own;
    if (showsSpread(scene)) own = certaintyPalette(mOptions.section.palette.n_colors);
    list.append(quantityJson({key, FigureWords::quantity(quantity),
                              QString::fromStdString(quantityUnit(quantity)), scene.cellValues,
                              places, scene.range, own}));
  }

  /// The latest ones whose cells are those of the section.
  std::vector<const KeptRun*> otherRuns() const {
    std::vector<const KeptRun*> found;
    const auto& runs = *mDocument.runs;
    const std::optional<std::size_t> shown = shownRun(mDocument);
    for (std::size_t i = runs.size(); i-- > 0 && found.size() < kMostRuns;) {
      const KeptRun& run = runs[i];
      if (i == shown || !sameCells(run.size, mDocument.model->grid->geometry().size())) continue;
      if (run.xOffset != mDocument.model->xOffset || changesSince(run, mDocument).ground) continue;
      if (run.slowness.size() == mScene.velocities.size()) found.push_back(&run);
    }
    return found;
  }

  void addRun(const KeptRun& run, QJsonArray& list) const {
    const QString title = FigureWords::message(run.title());
    const QString key = QStringLiteral("run%1").arg(run.number);
    std::vector<double> velocities;
    std::vector<double> percent;
    for (std::size_t cell = 0; cell < run.slowness.size(); ++cell) {
      velocities.push_back(1.0 / run.slowness[cell]);
      percent.push_back(100.0 * (mScene.velocities[cell] * run.slowness[cell] - 1.0));
    }
    list.append(quantityJson({key,
                              WebSectionWords::tr("%1: velocity").arg(title),
                              QStringLiteral("m/s"),
                              velocities,
                              0,
                              mScene.range,
                              {}}));
    list.append(quantityJson(
        {key + QStringLiteral("-difference"), WebSectionWords::tr("Faster than %1 by").arg(title),
         QStringLiteral("%"), percent, 1, differenceRange(percent), differencePalette()}));
  }

  /// Where a cell is not drawn, its value is null.
  QJsonObject quantityJson(const Quantity& quantity) const {
    const ShownUnit unit = shownUnit(quantity.unit.toStdString());
    QJsonArray values;
    for (std::size_t cell = 0; cell < cells(); ++cell) {
      const bool drawn = mScene.mesh.drawn[cell] != 0 && cell < quantity.values.size();
      values.append(drawn ? rounded(unit.shown(quantity.values[cell]), quantity.places + 1)
                          : QJsonValue(QJsonValue::Null));
    }
    QJsonObject json{{QStringLiteral("key"), quantity.key},
                     {QStringLiteral("name"), quantity.name},
                     {QStringLiteral("unit"), QString::fromStdString(unit.name)},
                     {QStringLiteral("places"), quantity.places},
                     {QStringLiteral("values"), values}};
    if (quantity.range) {
      json[QStringLiteral("range")] =
          pair({unit.shown(quantity.range->min), unit.shown(quantity.range->max)});
    }
    if (quantity.palette) json[QStringLiteral("palette")] = paletteJson(*quantity.palette);
    return json;
  }

  static QJsonArray layerJson(const std::vector<SectionLine>& layers) {
    QJsonArray list;
    for (std::size_t i = 0; i < layers.size(); ++i) {
      QJsonArray pieces;
      for (const auto& piece : layers[i].pieces) pieces.append(rounded(piece, 2));
      const QString name = QString::fromStdString(layers[i].name);
      list.append(
          QJsonObject{{QStringLiteral("name"), name.isEmpty() ? FigureWords::refractor(i) : name},
                      {QStringLiteral("pieces"), pieces}});
    }
    return list;
  }

  static QJsonObject lookJson(const QString& kind, const QString& name, std::uint32_t color,
                              double width) {
    return {{QStringLiteral("kind"), kind},
            {QStringLiteral("name"), name},
            {QStringLiteral("color"), QColor(QRgb(color)).name()},
            {QStringLiteral("width"), width}};
  }

  /// Marked isolines, with name and velocity at each piece, for the page has no legend, and what
  /// else the user has drawn.
  QJsonArray drawnJson() const {
    QJsonArray list;
    for (const DrawnIsoline& isoline : mScene.annotations.isolines) {
      const MarkedIsoline& mark = isoline.mark;
      for (const ContourLine& contour : isoline.lines) {
        QJsonObject json = lookJson(QStringLiteral("line"), isolineText(isoline, figureLocale()),
                                    mark.color, mark.width);
        std::vector<Point2D> points = simplifiedLine(contour.points, 0.02);
        if (contour.closed && !points.empty()) points.push_back(points.front());
        json[QStringLiteral("points")] = rounded(points, 2);
        list.append(json);
      }
    }
    const QString kinds[] = {QStringLiteral("text"), QStringLiteral("line"),
                             QStringLiteral("area")};
    for (const Annotation& item : mScene.annotations.items) {
      QString name = QString::fromStdString(item.text);
      if (name.isEmpty() && item.pattern != Lithology::kNone) {
        name = FigureWords::message(nameOf(item.pattern));
      }
      QJsonObject json =
          lookJson(kinds[static_cast<std::size_t>(item.kind)], name, item.color, item.width);
      json[QStringLiteral("points")] = rounded(item.points, 2);
      list.append(json);
    }
    return list;
  }

  const TomoDocument& mDocument;
  const ReportOptions& mOptions;
  const SectionScene mScene;
  std::uint32_t mRows = 0;  ///< down to the deepest cell that is drawn
};

std::vector<Point2D> rayLine(const TomoDocument& document, const std::vector<std::uint32_t>& nodes,
                             double tolerance) {
  const GridGeometry& geometry = document.model->grid->geometry();
  std::vector<Point2D> line;
  for (const std::uint32_t node : nodes) {
    if (node >= geometry.nodeCount()) continue;  // a project may bring rays of another grid
    line.push_back({geometry.nodeX(node) - document.model->xOffset, -geometry.nodeZ(node)});
  }
  return simplifiedLine(line, tolerance);
}

/// Whole hundredths of the unit shown, each point by its distance from the last.
QJsonArray stepsOf(const std::vector<Point2D>& line) {
  QJsonArray steps;
  Point2D last{0.0, 0.0};
  for (const Point2D& point : line) {
    const Point2D now{std::round(kHundredths * shownLength(point.x)),
                      std::round(kHundredths * shownLength(point.z))};
    steps.append(now.x - last.x);
    steps.append(now.z - last.z);
    last = now;
  }
  return steps;
}

}  // namespace

QJsonObject sectionData(const ReportSource& source, const ReportOptions& options) {
  if (source.document.model->grid == nullptr) return {};
  const SectionFigureOptions figure = report::sectionOptions(options, SectionQuantity::kVelocity);
  SectionScene scene;
  if (!buildSectionScene(source.document, figure.scene, scene).ok()) return {};
  std::vector<SectionLine> layers = scene.refractors;
  if (layers.empty() && options.sections.refraction && source.interpretation != nullptr) {
    layers = profileLines(source.document, *source.interpretation);
  }
  const SectionWriter writer(source, options, std::move(scene));
  if (writer.cells() > kMostCells) {
    return {{QStringLiteral("cells"), static_cast<double>(writer.cells())}};
  }
  return writer.write(layers);
}

QJsonArray rayData(const TomoDocument& document) {
  QJsonArray shots;
  if (document.model->grid == nullptr) return shots;
  const std::vector<RayOwner> owners = rayOwners(document);
  if (owners.empty()) return shots;  // rays of other records
  // Each try leaves out what is finer than twice as much as before.
  double tolerance = document.model->grid->aLato() / 20.0;
  std::vector<std::vector<Point2D>> lines(owners.size());
  for (int tries = 0; tries < 6; ++tries, tolerance *= 2.0) {
    std::size_t points = 0;
    for (std::size_t i = 0; i < owners.size(); ++i) {
      const TravelTime& record = document.ttArray[owners[i].record];
      if (!hasPick(record.ttMisurati[owners[i].receiver])) continue;
      lines[i] = rayLine(document, document.result->rays[i], tolerance);
      points += lines[i].size();
    }
    if (points <= kMostRayPoints) break;
  }
  std::vector<QJsonArray> ofShots(document.ttArray.size());
  for (std::size_t i = 0; i < owners.size(); ++i) {
    QJsonArray& rays = ofShots[owners[i].record];
    while (rays.size() < static_cast<int>(owners[i].receiver)) rays.append(QJsonArray());
    rays.append(stepsOf(lines[i]));
  }
  for (const QJsonArray& rays : ofShots) shots.append(rays);
  return shots;
}

}  // namespace talvesk::web
