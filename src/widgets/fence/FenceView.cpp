#include "widgets/fence/FenceView.h"

#include "figures/FigureWords.h"
#include "view/FenceFrame.h"
#include "widgets/fence/FenceLabels.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <utility>

#include <QVTKInteractor.h>
#include <QVTKOpenGLNativeWidget.h>
#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkCamera.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkFloatArray.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkLookupTable.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>

namespace talvesk {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr double kTurnPerPixel = 0.4;  ///< degrees
constexpr double kTurnPerKey = 5.0;    ///< degrees
constexpr double kZoomStep = 1.25;

/// VTK draws once per frame, when the widget does.
class FenceCanvas : public QVTKOpenGLNativeWidget {
 public:
  using QVTKOpenGLNativeWidget::QVTKOpenGLNativeWidget;

 protected:
  void paintGL() override {
    RenderWindow->SetReadyForRendering(true);
    RenderWindow->Render();
    QVTKOpenGLNativeWidget::paintGL();
  }
};

/// One section, as quadrilaterals around an origin near them, for the graphics card counts in
/// single precision. North is VTK's y, and up its z.
void buildPanel(const FencePanel& panel, const FencePoint& origin, vtkPolyData& data) {
  vtkNew<vtkPoints> points;
  for (const FencePoint& p : panel.corners) {
    points->InsertNextPoint(p.east - origin.east, p.north - origin.north, p.z - origin.z);
  }
  vtkNew<vtkCellArray> cells;
  vtkNew<vtkFloatArray> values;
  const SectionMesh& mesh = panel.mesh;
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      if (!mesh.isDrawn(row, column)) continue;
      cells->InsertNextCell(4);
      for (const std::size_t corner :
           {mesh.corner(row, column), mesh.corner(row, column + 1),
            mesh.corner(row + 1, column + 1), mesh.corner(row + 1, column)}) {
        cells->InsertCellPoint(static_cast<vtkIdType>(corner));
      }
      values->InsertNextValue(static_cast<float>(panel.velocities[mesh.cell(row, column)]));
    }
  }
  data.SetPoints(points);
  data.SetPolys(cells);
  data.GetCellData()->SetScalars(values);
}

void buildFrame(const FenceFrame& frame, const FencePoint& origin, vtkPolyData& data) {
  vtkNew<vtkPoints> points;
  vtkNew<vtkCellArray> cells;
  for (const FenceFrame::Line& line : frame.lines) {
    cells->InsertNextCell(2);
    for (const FencePoint& p : {line.from, line.to}) {
      cells->InsertCellPoint(
          points->InsertNextPoint(p.east - origin.east, p.north - origin.north, p.z - origin.z));
    }
  }
  data.SetPoints(points);
  data.SetLines(cells);
}

}  // namespace

struct FenceView::Parts {
  FenceScene scene;
  FenceCamera camera;
  FencePoint origin;
  ColorTable colors{ColorPalette()};
  bool fits = true;  ///< nobody has moved the view yet
  QPointF mouse;
  vtkNew<vtkGenericOpenGLRenderWindow> window;
  vtkNew<vtkRenderer> renderer;
  vtkNew<vtkLookupTable> table;
  FenceFrame axes;  ///< another whenever the view turns
  vtkNew<vtkPolyData> frame;
  QWidget* overlay = nullptr;
  FenceCanvas* canvas = nullptr;

  QPointF toPicture(const FencePoint& p) const {
    const FenceCamera::Offset offset = camera.project(p);
    return {0.5 * canvas->width() + offset.right, 0.5 * canvas->height() - offset.up};
  }
  void paintWords(QPainter& painter) const;
  void paintNames(QPainter& painter) const;
};

namespace {

/// What lies in front of the picture; it takes no events.
class FenceOverlay : public QWidget {
 public:
  FenceOverlay(QWidget* parent, std::function<void(QPainter&)> paint)
      : QWidget(parent), mPaint(std::move(paint)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    mPaint(painter);
  }

 private:
  std::function<void(QPainter&)> mPaint;
};

}  // namespace

void FenceView::Parts::paintWords(QPainter& painter) const {
  if (scene.panels.empty()) return;
  paintFenceNorth(painter, camera);
  paintFenceAxes(painter, axes, [this](const FencePoint& p) { return toPicture(p); });
  paintNames(painter);
  if (camera.exaggeration != 1.0) {
    const QString note = FigureWords::exaggeration(camera.exaggeration, QLocale());
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(note);
    paintFenceName(painter, note, {14.0 + 0.5 * width, canvas->height() - 16.0});
  }
  paintFenceBar(painter, colors, canvas->size());
}

void FenceView::Parts::paintNames(QPainter& painter) const {
  for (const FencePanel& panel : scene.panels) {
    QPolygonF edge;
    for (const FencePoint& p : panel.surface) edge << toPicture(p);
    painter.setPen(QPen(Qt::black, 1.4));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(edge);
    // At the end that stands higher in the picture, where less lies behind it.
    const QPointF end = edge.front().y() < edge.back().y() ? edge.front() : edge.back();
    paintFenceName(painter, QString::fromStdString(panel.name), end - QPointF(0.0, 16.0));
  }
}

FenceView::FenceView(QWidget* parent) : QWidget(parent), mParts(std::make_unique<Parts>()) {
  Parts& parts = *mParts;
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(320, 240);
  setAccessibleName(tr("Sections at their places on the map"));
  parts.canvas = new FenceCanvas(this);
  parts.canvas->setRenderWindow(parts.window);
  parts.canvas->setAttribute(Qt::WA_TransparentForMouseEvents);
  parts.canvas->setFocusPolicy(Qt::NoFocus);
  parts.window->SetMultiSamples(4);
  parts.window->AddRenderer(parts.renderer);
  parts.window->GetInteractor()->SetInteractorStyle(nullptr);
  parts.renderer->SetBackground(1.0, 1.0, 1.0);
  parts.renderer->GetActiveCamera()->ParallelProjectionOn();
  parts.overlay =
      new FenceOverlay(this, [this](QPainter& painter) { mParts->paintWords(painter); });
}

FenceView::~FenceView() {
  delete mParts->canvas;
}

const FenceScene& FenceView::scene() const {
  return mParts->scene;
}

const FenceCamera& FenceView::camera() const {
  return mParts->camera;
}

QSize FenceView::sizeHint() const {
  return {760, 480};
}

void FenceView::setScene(FenceScene scene, const ColorPalette& palette) {
  Parts& parts = *mParts;
  parts.scene = std::move(scene);
  parts.colors = ColorTable(palette);
  parts.table->SetNumberOfTableValues(parts.colors.size());
  for (int i = 0; i < parts.colors.size(); ++i) {
    const RgbColor& c = parts.colors[i];
    parts.table->SetTableValue(i, c.r, c.g, c.b);
  }
  parts.table->SetTableRange(parts.colors.range().min, parts.colors.range().max);
  const FencePoint low = parts.scene.low();
  const FencePoint high = parts.scene.high();
  parts.origin = {0.5 * (low.east + high.east), 0.5 * (low.north + high.north),
                  0.5 * (low.z + high.z)};
  parts.renderer->RemoveAllViewProps();
  for (const FencePanel& panel : parts.scene.panels) {
    vtkNew<vtkPolyData> sheet;
    buildPanel(panel, parts.origin, *sheet);
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputData(sheet);
    mapper->SetLookupTable(parts.table);
    mapper->UseLookupTableScalarRangeOn();
    vtkNew<vtkActor> actor;
    actor->SetMapper(mapper);
    actor->GetProperty()->LightingOff();
    parts.renderer->AddActor(actor);
  }
  vtkNew<vtkPolyDataMapper> frameMapper;
  frameMapper->SetInputData(parts.frame);
  vtkNew<vtkActor> frame;
  frame->SetMapper(frameMapper);
  frame->GetProperty()->SetColor(0.72, 0.72, 0.72);
  frame->GetProperty()->LightingOff();
  parts.renderer->AddActor(frame);
  if (parts.fits) parts.camera.fit(parts.scene, width(), height());
  look();
}

void FenceView::setExaggeration(double factor) {
  mParts->camera.exaggeration = factor;
  if (mParts->fits) mParts->camera.fit(mParts->scene, width(), height());
  look();
}

void FenceView::showAll() {
  mParts->fits = true;
  mParts->camera.fit(mParts->scene, width(), height());
  look();
}

/// The same projection for VTK as for the words.
void FenceView::look() {
  Parts& parts = *mParts;
  const FenceCamera& view = parts.camera;
  parts.axes = fenceFrame(parts.scene, view);
  buildFrame(parts.axes, parts.origin, *parts.frame);
  vtkActorCollection& actors = *parts.renderer->GetActors();
  actors.InitTraversal();
  while (vtkActor* actor = actors.GetNextActor()) actor->SetScale(1.0, 1.0, view.exaggeration);
  const double x = view.centre.east - parts.origin.east;
  const double y = view.centre.north - parts.origin.north;
  const double z = view.exaggeration * (view.centre.z - parts.origin.z);
  const FencePoint low = parts.scene.low();
  const FencePoint high = parts.scene.high();
  const double reach = std::hypot(high.east - low.east, high.north - low.north,
                                  view.exaggeration * (high.z - low.z)) +
                       std::hypot(x, y, z) + 1.0;
  const double flat = std::cos(view.tilt * kDegree);
  const double sine = std::sin(view.azimuth * kDegree);
  const double cosine = std::cos(view.azimuth * kDegree);
  vtkCamera& camera = *parts.renderer->GetActiveCamera();
  camera.SetFocalPoint(x, y, z);
  camera.SetPosition(x - reach * flat * sine, y - reach * flat * cosine,
                     z + reach * std::sin(view.tilt * kDegree));
  // From straight above, up in the picture is the way that is looked.
  const double fall = std::sin(view.tilt * kDegree);
  camera.SetViewUp(fall * sine, fall * cosine, flat);
  camera.SetParallelScale(0.5 * height() * view.metresPerPixel);
  camera.SetClippingRange(0.001 * reach, 2.5 * reach);
  parts.canvas->update();
  parts.overlay->update();
}

/// Who has not chosen a part of the fence goes on seeing all of it.
void FenceView::turn(double turned, double tilted) {
  mParts->camera.turnBy(turned, tilted);
  if (mParts->fits) mParts->camera.fit(mParts->scene, width(), height());
  look();
}

void FenceView::zoom(double factor) {
  FenceCamera whole = mParts->camera;
  whole.fit(mParts->scene, width(), height());
  mParts->camera.metresPerPixel =
      std::clamp(mParts->camera.metresPerPixel / factor, 1e-4 * whole.metresPerPixel,
                 20.0 * whole.metresPerPixel);
  mParts->fits = false;
  look();
}

void FenceView::resizeEvent(QResizeEvent*) {
  mParts->canvas->setGeometry(rect());
  mParts->overlay->setGeometry(rect());
  if (mParts->fits) mParts->camera.fit(mParts->scene, width(), height());
  look();
}

void FenceView::mousePressEvent(QMouseEvent* event) {
  mParts->mouse = event->localPos();
}

void FenceView::mouseMoveEvent(QMouseEvent* event) {
  const QPointF by = event->localPos() - mParts->mouse;
  mParts->mouse = event->localPos();
  const bool moves =
      (event->buttons() & Qt::MiddleButton) != 0 || (event->modifiers() & Qt::ShiftModifier) != 0;
  if (moves) {
    mParts->camera.panBy(by.x(), -by.y());
    mParts->fits = false;
  } else {
    return turn(-kTurnPerPixel * by.x(), kTurnPerPixel * by.y());
  }
  look();
}

void FenceView::wheelEvent(QWheelEvent* event) {
  zoom(std::pow(kZoomStep, event->angleDelta().y() / 120.0));
}

void FenceView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return turn(-kTurnPerKey, 0.0);
    case Qt::Key_Right:
      return turn(kTurnPerKey, 0.0);
    case Qt::Key_Up:
      return turn(0.0, kTurnPerKey);
    case Qt::Key_Down:
      return turn(0.0, -kTurnPerKey);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return zoom(kZoomStep);
    case Qt::Key_Minus:
      return zoom(1.0 / kZoomStep);
    case Qt::Key_Home:
      return showAll();
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace talvesk
