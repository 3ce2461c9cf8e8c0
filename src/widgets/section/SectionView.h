#pragma once

#include "model/Annotations.h"
#include "view/SectionProbe.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <QImage>
#include <QPointF>
#include <QWidget>
#include <memory>
#include <vector>

class QHBoxLayout;

class QAction;

namespace talvesk {

class SectionTool;
struct SectionCamera;

/// The section as the user sees it: the picture with axes, colour bar and legend, and a row of
/// controls above. Without a section, a text that says what to do next.
///
/// Wheel: zoom at the cursor. Drag: pan, or turn while "Turn in 3-D" is on; the middle button
/// always pans. Double click: everything. Keys: arrows pan or turn, + and - zoom, Home resets.
/// While it is measured or drawn, the left button does that; Esc ends it.
class SectionView : public QWidget {
  Q_OBJECT

 public:
  explicit SectionView(QWidget* parent = nullptr);
  ~SectionView() override;

  /// Shows a scene with these colours and settings. The part that is seen stays, unless another
  /// stretch of ground is shown than before.
  void showScene(std::shared_ptr<const SectionScene> scene, const ColorPalette& palette,
                 const SectionViewSettings& settings);
  /// Shows a text instead, which may be rich, and offers commands below it.
  void showText(const QString& text, const QList<QAction*>& commands = {});
  bool isEmpty() const;  ///< a text is shown
  const SectionScene* scene() const;

  const SectionCamera& camera() const;
  double verticalExaggeration() const;
  QRect plotRect() const;                          ///< of the section, in the picture
  QWidget* sheet() const;                          ///< the picture, which takes mouse and keys
  QPointF pointOf(const Point2D& position) const;  ///< survey position to a point of the picture
  Point2D positionOf(const QPointF& point) const;

  /// The picture of another size, for files: everything in view, as after "Reset View", or the part
  /// that is seen. Null when empty, when the size is, or when there is no OpenGL.
  /// \param size logical pixels \param ratio device pixels per logical one, 0.1 to 10
  enum class Part { kWhole, kSeen };
  QImage picture(const QSize& size, Part part = Part::kSeen, double ratio = 1.0) const;

  bool hasTool() const;  ///< the left button measures, draws or moves

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  void resetView();
  /// Zooms to a rectangle, seen from the front. \param lowerLeft, upperRight survey positions
  void showPart(const Point2D& lowerLeft, const Point2D& upperRight);
  void zoomIn();
  void zoomOut();
  void setVerticalExaggeration(double factor);  ///< bounded, and told by exaggerationChanged()
  void setTurning(bool turning);                ///< false: back to the front, too
  void startMeasuring();
  void startDrawing(AnnotationKind kind);  ///< one after the other, each told by annotationDrawn()
  void startMoving();                      ///< of annotations, each told by annotationMoved()
  void endTool();

 signals:
  void cursorMoved(const SectionReading& reading);
  void cursorLeft();
  void exaggerationChanged(double factor);
  void viewChanged();
  /// \param points survey positions, as many as the kind needs
  void annotationDrawn(AnnotationKind kind, const std::vector<Point2D>& points);
  /// \param item of the scene's annotations, as it was \param points all of it, survey positions
  void annotationMoved(std::size_t item, const Annotation& before,
                       const std::vector<Point2D>& points);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct State;
  void layOutControls();
  void layOutTools(QHBoxLayout& row);
  void retranslate();
  void retranslateTools();
  void setTool(std::unique_ptr<SectionTool> tool);
  bool toolEvent(QEvent* event);
  void layOut();
  void applyCamera(bool moving = false);
  bool sheetEvent(QEvent* event);
  void zoomBy(double factor, const QPointF& point);
  void drag(const QPointF& to);
  bool key(int key);
  void readCursor(const QPointF& point);

  std::unique_ptr<State> mState;
};

}  // namespace talvesk

Q_DECLARE_METATYPE(talvesk::SectionReading)
