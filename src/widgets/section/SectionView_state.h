#pragma once

#include "figures/SectionCamera.h"
#include "widgets/section/SectionCanvas.h"
#include "widgets/section/SectionSheet.h"
#include "widgets/section/SectionTools.h"
#include "widgets/section/SectionView.h"

#include <QWidget>
#include <optional>

class QAction;
class QDoubleSpinBox;
class QLabel;
class QStackedLayout;
class QToolButton;

namespace talvesk {

class EmptyPage;

/// Paints the paper over the canvas, and the tool at work over that; it lies in front of it and
/// takes no events.
class SectionOverlay : public QWidget {
 public:
  SectionOverlay(QWidget* parent, const SectionSheet& sheet, const SectionCamera& camera,
                 const std::unique_ptr<SectionTool>& tool);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const SectionSheet& mSheet;
  const SectionCamera& mCamera;
  const std::unique_ptr<SectionTool>& mTool;
};

struct SectionView::State {
  SectionPaper sheetPaper() const { return sheet.paper(overlay->font()); }  ///< of a scene

  SectionSheet sheet;
  SectionCamera camera;
  std::unique_ptr<SectionCanvas> canvas;  ///< none before the first section
  bool fits = true;                       ///< nobody has moved the view since it was reset
  bool turning = false;
  std::unique_ptr<SectionTool> tool;  ///< that the left button has; none: it moves the section

  QWidget* controls = nullptr;
  QLabel* exaggerationLabel = nullptr;
  QDoubleSpinBox* exaggeration = nullptr;
  QToolButton* turn = nullptr;
  QToolButton* reset = nullptr;
  QToolButton* measure = nullptr;
  QToolButton* draw = nullptr;
  std::vector<QAction*> drawActions;  ///< as kAnnotationKinds, and to move
  QStackedLayout* pages = nullptr;
  EmptyPage* empty = nullptr;  ///< shown without a scene
  QWidget* paper = nullptr;
  SectionOverlay* overlay = nullptr;

  Qt::MouseButton dragButton = Qt::NoButton;
  QPointF dragPoint;
  std::optional<QPointF> cursor;  ///< where the mouse was last, while it is over the paper
};

}  // namespace talvesk
