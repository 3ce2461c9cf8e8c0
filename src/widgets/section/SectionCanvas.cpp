#include "widgets/section/SectionCanvas.h"

#include "view/SectionScene.h"
#include "widgets/section/SectionActors.h"
#include "widgets/section/SectionSurface.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include <QVTKInteractor.h>
#include <QVTKOpenGLNativeWidget.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkNew.h>
#include <vtkRenderer.h>
#include <vtkUnsignedCharArray.h>

namespace talvesk {
namespace {

constexpr int kSamples = 4;      ///< per pixel, against jagged lines
constexpr int kRest = 250;       ///< milliseconds after which a picture no longer moves
constexpr int kTileSize = 2048;  ///< device pixels; every OpenGL draws that much at once

/// The OpenGL of a picture that no screen shows. Goes in the order that VTK needs: the window lets
/// go of what it has in the context before that goes.
class OffscreenWindow {
 public:
  OffscreenWindow() {
    mContext.setFormat(sectionSurfaceFormat());
    mSurface.setFormat(sectionSurfaceFormat());
    mSurface.create();
    mReady = mSurface.isValid() && mContext.create() && mContext.makeCurrent(&mSurface);
    if (!mReady) return;
    mWindow->SetMultiSamples(kSamples);
    mWindow->SetOffScreenRendering(1);
    mWindow->SetReadyForRendering(true);
    mWindow->SetIsCurrent(true);
    mWindow->OpenGLInit();
  }
  ~OffscreenWindow() {
    if (!mReady) return;
    mContext.makeCurrent(&mSurface);
    mWindow->Finalize();
    mContext.doneCurrent();
  }
  OffscreenWindow(const OffscreenWindow&) = delete;
  OffscreenWindow& operator=(const OffscreenWindow&) = delete;

  bool isReady() const { return mReady; }
  vtkGenericOpenGLRenderWindow& window() { return *mWindow; }

  QImage render(const QSize& size) {
    mWindow->SetSize(size.width(), size.height());
    mWindow->Render();
    vtkNew<vtkUnsignedCharArray> pixels;
    mWindow->GetRGBACharPixelData(0, 0, size.width() - 1, size.height() - 1, 0, pixels);
    const QImage image(pixels->GetPointer(0), size.width(), size.height(), 4 * size.width(),
                       QImage::Format_RGBX8888);
    return image.mirrored();  // a copy, too
  }

 private:
  QOffscreenSurface mSurface;
  QOpenGLContext mContext;
  vtkNew<vtkGenericOpenGLRenderWindow> mWindow;
  bool mReady = false;
};

/// VTK draws when it is told to; here that is once per frame, however much has changed since the
/// last.
class CanvasWidget : public QVTKOpenGLNativeWidget {
 public:
  using QVTKOpenGLNativeWidget::QVTKOpenGLNativeWidget;

  void sceneChanged() {
    mStale = true;
    update();
  }

 protected:
  void paintGL() override {
    if (mStale) {
      mStale = false;
      RenderWindow->SetReadyForRendering(true);
      RenderWindow->Render();
    }
    QVTKOpenGLNativeWidget::paintGL();
  }

 private:
  bool mStale = true;
};

}  // namespace

struct SectionCanvas::Parts {
  explicit Parts(QWidget* parent) : widget(new CanvasWidget(parent)) {
    window->SetMultiSamples(kSamples);
    widget->setRenderWindow(window);
    window->AddRenderer(actors.renderer());
    window->GetInteractor()->SetInteractorStyle(nullptr);
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setFocusPolicy(Qt::NoFocus);
    rest.setSingleShot(true);
    rest.setInterval(kRest);
    QObject::connect(&rest, &QTimer::timeout, widget, [this] { setMoving(false); });
  }

  void startMoving() {
    if (!rest.isActive()) setMoving(true);
    rest.start();
  }

  void setMoving(bool moving) {
    actors.setMoving(moving);
    window->SetMultiSamples(moving ? 0 : kSamples);
    widget->sceneChanged();
  }

  vtkNew<vtkGenericOpenGLRenderWindow> window;
  SectionActors actors;
  QTimer rest;           ///< runs while the picture moves
  CanvasWidget* widget;  ///< a child of its parent, deleted here before the actors go
};

SectionCanvas::SectionCanvas(QWidget* parent) : mParts(std::make_unique<Parts>(parent)) {}

SectionCanvas::~SectionCanvas() {
  delete mParts->widget;
}

QWidget* SectionCanvas::widget() const {
  return mParts->widget;
}

void SectionCanvas::setScene(const SectionScene& scene, const ColorTable& colors,
                             const RgbColor& contourColor) {
  // Other colours alone are one of many while a user drags a handle of a palette.
  if (!mParts->actors.setScene(scene)) mParts->startMoving();
  mParts->actors.setColors(colors);
  mParts->actors.setContourStyle(contourColor, kContourWidth * mParts->widget->devicePixelRatioF());
  mParts->widget->sceneChanged();
}

void SectionCanvas::setCamera(const SectionCamera& camera, bool moving) {
  mParts->actors.setCamera(camera, mParts->widget->size());
  if (moving) mParts->startMoving();
  mParts->widget->sceneChanged();
}

QImage sectionPicture(const SectionScene& scene, const ColorTable& colors,
                      const RgbColor& contourColor, const SectionCamera& camera, const QSize& size,
                      double ratio) {
  OffscreenWindow offscreen;
  if (!offscreen.isReady()) return {};
  SectionActors actors;
  actors.setScene(scene);
  actors.setColors(colors);
  actors.setContourStyle(contourColor, kContourWidth * ratio);
  offscreen.window().AddRenderer(actors.renderer());

  const QSize whole(static_cast<int>(std::lround(size.width() * ratio)),
                    static_cast<int>(std::lround(size.height() * ratio)));
  QImage image(whole, QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.fill(Qt::white);
  QPainter painter(&image);
  const QTransform toSection = camera.toPicture(size).inverted();
  for (int top = 0; top < whole.height(); top += kTileSize) {
    for (int left = 0; left < whole.width(); left += kTileSize) {
      const QSize tile(std::min(kTileSize, whole.width() - left),
                       std::min(kTileSize, whole.height() - top));
      SectionCamera part = camera;
      const QPointF middle =
          toSection.map(QPointF(left + 0.5 * tile.width(), top + 0.5 * tile.height()) / ratio);
      part.centre = {middle.x(), middle.y()};
      actors.setCamera(part, QSizeF(tile) / ratio);
      painter.drawImage(left, top, offscreen.render(tile));
    }
  }
  offscreen.window().RemoveRenderer(actors.renderer());
  return image;
}

QSurfaceFormat sectionSurfaceFormat() {
  return QVTKOpenGLNativeWidget::defaultFormat();
}

}  // namespace talvesk
