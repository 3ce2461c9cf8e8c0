#include "widgets/section/SectionActors.h"

#include "figures/SectionCamera.h"
#include "view/SectionScene.h"
#include "view/SimplifiedLine.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <vtkActor.h>
#include <vtkCamera.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkFloatArray.h>
#include <vtkLookupTable.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>

namespace talvesk {
namespace {

using Lines = std::vector<std::vector<Point2D>>;

/// One layer of the picture. Layers lie in front of each other by a hair, as seen from the front.
struct Layer {
  explicit Layer(int order) : height(order) {
    mapper->SetInputData(data);
    actor->SetMapper(mapper);
    actor->GetProperty()->LightingOff();
    actor->PickableOff();
  }

  int height;
  vtkNew<vtkPolyData> data;
  vtkNew<vtkPolyDataMapper> mapper;
  vtkNew<vtkActor> actor;
};

/// Fills a layer; positions are relative to an origin near them, for the graphics card counts in
/// single precision.
class Builder {
 public:
  explicit Builder(const Point2D& origin) : mOrigin(origin) { mPoints->SetDataTypeToFloat(); }

  vtkIdType addPoint(const Point2D& p) {
    return mPoints->InsertNextPoint(p.x - mOrigin.x, p.z - mOrigin.z, 0.0);
  }
  void addPoints(const std::vector<Point2D>& points) {
    for (const Point2D& p : points) addPoint(p);
  }
  vtkCellArray& cells() { return *mCells; }
  /// A new cell of points that follow each other in the arrays.
  void addRun(vtkIdType first, std::size_t count, bool closed) {
    mCells->InsertNextCell(static_cast<int>(count + (closed ? 1 : 0)));
    for (std::size_t i = 0; i < count; ++i) {
      mCells->InsertCellPoint(first + static_cast<vtkIdType>(i));
    }
    if (closed) mCells->InsertCellPoint(first);
  }
  void addLine(const std::vector<Point2D>& points, bool closed) {
    const vtkIdType first = mPoints->GetNumberOfPoints();
    addPoints(points);
    addRun(first, points.size(), closed);
  }
  void store(Layer& layer, bool lines) {
    layer.data->Initialize();
    layer.data->SetPoints(mPoints);
    if (lines) {
      layer.data->SetLines(mCells);
    } else {
      layer.data->SetPolys(mCells);
    }
    layer.data->Modified();
  }

 private:
  Point2D mOrigin;
  vtkNew<vtkPoints> mPoints;
  vtkNew<vtkCellArray> mCells;
};

constexpr double kRayAccuracy = 0.05;            ///< cells; far below what can be seen
constexpr std::size_t kMovingRayPoints = 40000;  ///< that a processor draws without a stutter

/// What the geometry of the fill was made from.
struct FillSource {
  SectionFill fill = SectionFill::kNone;
  std::vector<Point2D> corners;
  std::vector<std::uint8_t> drawn;
  std::vector<double> values;  ///< of cells, or of corners in the smooth view
  std::vector<double> levels;

  explicit FillSource(const SectionScene& scene) : fill(scene.fill) {
    if (fill == SectionFill::kNone) return;
    corners = scene.mesh.corners;
    drawn = scene.mesh.drawn;
    values = fill == SectionFill::kCells ? scene.cellValues : scene.cornerValues;
    if (fill == SectionFill::kBands) levels = scene.bandLevels();
  }
  FillSource() = default;

  bool hasGeometryOf(const FillSource& other) const {
    return fill == other.fill && fill != SectionFill::kBands && drawn == other.drawn &&
           corners == other.corners;
  }
  bool operator==(const FillSource& other) const {
    // Undrawn cells may be no numbers, which equal nothing: compare as bytes would.
    const auto same = [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); };
    return fill == other.fill && drawn == other.drawn && corners == other.corners &&
           levels == other.levels &&
           std::equal(values.begin(), values.end(), other.values.begin(), other.values.end(), same);
  }
};

void addQuad(Builder& builder, const SectionMesh& mesh, std::uint32_t row, std::uint32_t column) {
  builder.cells().InsertNextCell(4);
  for (const std::size_t corner :
       {mesh.corner(row, column), mesh.corner(row, column + 1), mesh.corner(row + 1, column + 1),
        mesh.corner(row + 1, column)}) {
    builder.cells().InsertCellPoint(static_cast<vtkIdType>(corner));
  }
}

template <typename Add>
void forEachDrawn(const SectionMesh& mesh, Add add) {
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      if (mesh.isDrawn(row, column)) add(row, column);
    }
  }
}

/// Quads over the mesh's corners, and for bands the pieces of the cut cells.
void buildFill(Layer& layer, const SectionScene& scene, const Point2D& origin) {
  Builder builder(origin);
  builder.addPoints(scene.mesh.corners);
  const bool bands = scene.fill == SectionFill::kBands;
  forEachDrawn(scene.mesh, [&](std::uint32_t row, std::uint32_t column) {
    if (bands && scene.bands.cellBand[scene.mesh.cell(row, column)] < 0) return;
    addQuad(builder, scene.mesh, row, column);
  });
  for (const ContourBands::Piece& piece : scene.bands.pieces) {
    vtkIdType first = 0;
    for (std::size_t i = 0; i < piece.pointCount; ++i) {
      const vtkIdType id = builder.addPoint(scene.bands.points[piece.firstPoint + i]);
      if (i == 0) first = id;
    }
    builder.addRun(first, piece.pointCount, false);
  }
  builder.store(layer, false);
}

vtkSmartPointer<vtkFloatArray> cellScalars(const SectionScene& scene) {
  auto scalars = vtkSmartPointer<vtkFloatArray>::New();
  if (scene.fill == SectionFill::kBands) {
    forEachDrawn(scene.mesh, [&](std::uint32_t row, std::uint32_t column) {
      const int band = scene.bands.cellBand[scene.mesh.cell(row, column)];
      if (band >= 0) scalars->InsertNextValue(static_cast<float>(band));
    });
    for (const ContourBands::Piece& piece : scene.bands.pieces) {
      scalars->InsertNextValue(static_cast<float>(piece.band));
    }
    return scalars;
  }
  forEachDrawn(scene.mesh, [&](std::uint32_t row, std::uint32_t column) {
    scalars->InsertNextValue(static_cast<float>(scene.cellValues[scene.mesh.cell(row, column)]));
  });
  return scalars;
}

vtkSmartPointer<vtkFloatArray> cornerScalars(const SectionScene& scene) {
  auto scalars = vtkSmartPointer<vtkFloatArray>::New();
  scalars->SetNumberOfValues(static_cast<vtkIdType>(scene.cornerValues.size()));
  for (std::size_t i = 0; i < scene.cornerValues.size(); ++i) {
    const double value = scene.cornerValues[i];
    scalars->SetValue(static_cast<vtkIdType>(i),
                      static_cast<float>(std::isfinite(value) ? value : scene.range.min));
  }
  return scalars;
}

}  // namespace

struct SectionActors::Parts {
  vtkNew<vtkRenderer> renderer;
  Layer fill{0};
  Layer rays{1};
  Layer someRays{1};  ///< for a moving picture
  Layer contours{2};
  vtkNew<vtkLookupTable> colors;
  FillSource fillSource;
  Lines rayLines;
  std::vector<ContourLine> contourLines;
  Point2D origin;
  bool moving = false;
  double extent = 1.0;  ///< metres, a little more than the section's larger side

  Parts();
  bool setFill(const SectionScene& scene);
  bool setRays(const SectionScene& scene);
  void showRays();
  bool setContours(const SectionScene& scene);
  bool moveOrigin(const SectionScene& scene);
  void forget();
};

SectionActors::Parts::Parts() {
  renderer->SetBackground(1.0, 1.0, 1.0);
  renderer->SetUseFXAA(false);
  renderer->GetActiveCamera()->ParallelProjectionOn();
  for (Layer* layer : {&fill, &rays, &someRays, &contours}) renderer->AddActor(layer->actor);
  forget();
  fill.mapper->SetLookupTable(colors);
  fill.mapper->UseLookupTableScalarRangeOn();
  for (Layer* layer : {&rays, &someRays}) {
    layer->actor->GetProperty()->SetColor(0.0, 0.0, 0.0);
    // VTK would draw what is translucent in a pass of its own, without smooth edges. Lines of one
    // colour blend as well in the opaque one, whatever their order.
    layer->actor->ForceOpaqueOn();
  }
}

bool SectionActors::Parts::moveOrigin(const SectionScene& scene) {
  const Point2D low = scene.lowerLeft();
  const Point2D high = scene.upperRight();
  if (!std::isfinite(low.x) || !std::isfinite(low.z) || !std::isfinite(high.x) ||
      !std::isfinite(high.z)) {
    return false;
  }
  extent = 1.5 * std::max({high.x - low.x, high.z - low.z, 1e-3});
  const Point2D middle{0.5 * (low.x + high.x), 0.5 * (low.z + high.z)};
  if (std::hypot(middle.x - origin.x, middle.z - origin.z) < extent) return false;
  origin = middle;
  return true;
}

void SectionActors::Parts::forget() {
  fillSource = {};
  rayLines.clear();
  contourLines.clear();
  for (Layer* layer : {&fill, &rays, &someRays, &contours}) layer->actor->VisibilityOff();
}

bool SectionActors::Parts::setFill(const SectionScene& scene) {
  FillSource source(scene);
  if (source == fillSource) return false;
  fill.actor->SetVisibility(scene.fill != SectionFill::kNone);
  if (scene.fill != SectionFill::kNone) {
    if (!source.hasGeometryOf(fillSource)) buildFill(fill, scene, origin);
    if (scene.fill == SectionFill::kSmooth) {
      fill.data->GetPointData()->SetScalars(cornerScalars(scene));
      fill.mapper->SetScalarModeToUsePointData();
      fill.mapper->InterpolateScalarsBeforeMappingOn();
    } else {
      fill.data->GetCellData()->SetScalars(cellScalars(scene));
      fill.mapper->SetScalarModeToUseCellData();
      fill.mapper->InterpolateScalarsBeforeMappingOff();
    }
  }
  fillSource = std::move(source);
  return true;
}

bool SectionActors::Parts::setRays(const SectionScene& scene) {
  if (scene.rays == rayLines) return false;
  rayLines = scene.rays;
  const SectionMesh& mesh = scene.mesh;
  const double cell = mesh.columns > 0 ? mesh.corners[1].x - mesh.corners[0].x : 0.0;
  Lines lines;
  std::size_t points = 0;
  for (const auto& ray : rayLines) {
    lines.push_back(simplifiedLine(ray, kRayAccuracy * cell));
    points += lines.back().size();
  }
  const std::size_t step = 1 + points / kMovingRayPoints;
  Builder all(origin);
  Builder some(origin);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    all.addLine(lines[i], false);
    if (i % step == 0) some.addLine(lines[i], false);
  }
  all.store(rays, true);
  some.store(someRays, true);
  rays.actor->GetProperty()->SetOpacity(rayOpacity(lines.size()));
  someRays.actor->GetProperty()->SetOpacity(rayOpacity(lines.size() / step));
  showRays();
  return true;
}

void SectionActors::Parts::showRays() {
  rays.actor->SetVisibility(!moving && !rayLines.empty());
  someRays.actor->SetVisibility(moving && !rayLines.empty());
}

bool SectionActors::Parts::setContours(const SectionScene& scene) {
  const auto same = [](const ContourLine& a, const ContourLine& b) {
    return a.value == b.value && a.closed == b.closed && a.points == b.points;
  };
  if (std::equal(scene.contours.begin(), scene.contours.end(), contourLines.begin(),
                 contourLines.end(), same)) {
    return false;
  }
  contourLines = scene.contours;
  Builder builder(origin);
  for (const ContourLine& line : contourLines) builder.addLine(line.points, line.closed);
  builder.store(contours, true);
  contours.actor->SetVisibility(!contourLines.empty());
  return true;
}

SectionActors::SectionActors() : mParts(std::make_unique<Parts>()) {}

SectionActors::~SectionActors() = default;

vtkRenderer* SectionActors::renderer() const {
  return mParts->renderer;
}

bool SectionActors::setScene(const SectionScene& scene) {
  if (mParts->moveOrigin(scene)) {
    mParts->forget();
  }
  const bool fill = mParts->setFill(scene);
  const bool rays = mParts->setRays(scene);
  const bool contours = mParts->setContours(scene);
  return fill || rays || contours;
}

void SectionActors::setMoving(bool moving) {
  mParts->moving = moving;
  mParts->showRays();
}

void SectionActors::setColors(const ColorTable& table) {
  vtkLookupTable& colors = *mParts->colors;
  colors.SetNumberOfTableValues(table.size());
  for (int i = 0; i < table.size(); ++i)
    colors.SetTableValue(i, table[i].r, table[i].g, table[i].b);
  // Bands are coloured by their number.
  if (mParts->fillSource.fill == SectionFill::kBands) {
    colors.SetTableRange(-0.5, table.size() - 0.5);
  } else {
    colors.SetTableRange(table.range().min, table.range().max);
  }
  colors.Modified();
}

void SectionActors::setContourStyle(const RgbColor& color, double width) {
  vtkProperty& property = *mParts->contours.actor->GetProperty();
  property.SetColor(color.r, color.g, color.b);
  property.SetLineWidth(static_cast<float>(width));
}

void SectionActors::setCamera(const SectionCamera& view, const QSizeF& size) {
  constexpr double kRadians = 3.14159265358979323846 / 180.0;
  const double extent = mParts->extent * std::max(view.exaggeration, 1.0);
  for (Layer* layer : {&mParts->fill, &mParts->rays, &mParts->someRays, &mParts->contours}) {
    layer->actor->SetScale(1.0, view.exaggeration, 1.0);
    layer->actor->SetPosition(0.0, 0.0, 1e-4 * extent * layer->height);
  }
  const double turn = view.turn * kRadians;
  const double tilt = view.tilt * kRadians;
  const double x = view.centre.x - mParts->origin.x;
  const double y = (view.centre.z - mParts->origin.z) * view.exaggeration;
  const double distance = 2.0 * extent + std::hypot(x, y);
  vtkCamera& camera = *mParts->renderer->GetActiveCamera();
  camera.SetFocalPoint(x, y, 0.0);
  camera.SetPosition(x + distance * std::sin(turn) * std::cos(tilt), y + distance * std::sin(tilt),
                     distance * std::cos(turn) * std::cos(tilt));
  camera.SetViewUp(0.0, 1.0, 0.0);
  camera.SetParallelScale(0.5 * size.height() * view.metresPerPixel);
  camera.SetClippingRange(0.01 * distance, 2.0 * distance);
}

}  // namespace talvesk
