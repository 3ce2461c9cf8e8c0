#include "widgets/section/SectionMoveTool.h"
#include "widgets/section/SectionView_state.h"

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>

// Measuring, and drawing annotations.

namespace talvesk {

void SectionView::layOutTools(QHBoxLayout& row) {
  State& s = *mState;
  row.addSpacing(16);
  s.measure = new QToolButton(s.controls);
  s.measure->setObjectName(QStringLiteral("measureButton"));
  s.measure->setCheckable(true);
  s.measure->setAutoRaise(true);
  connect(s.measure, &QToolButton::clicked, this,
          [this](bool on) { on ? startMeasuring() : endTool(); });
  row.addWidget(s.measure);
  s.draw = new QToolButton(s.controls);
  s.draw->setObjectName(QStringLiteral("drawButton"));
  s.draw->setAutoRaise(true);
  s.draw->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(s.draw);
  s.draw->setMenu(menu);
  for (const AnnotationKind kind : kAnnotationKinds) {
    QAction* action = menu->addAction(QString());
    action->setCheckable(true);
    connect(action, &QAction::triggered, this,
            [this, kind](bool on) { on ? startDrawing(kind) : endTool(); });
    s.drawActions.push_back(action);
  }
  menu->addSeparator();
  QAction* move = menu->addAction(QString());
  move->setObjectName(QStringLiteral("moveAnnotations"));
  move->setCheckable(true);
  connect(move, &QAction::triggered, this, [this](bool on) { on ? startMoving() : endTool(); });
  s.drawActions.push_back(move);
  row.addWidget(s.draw);
}

void SectionView::retranslateTools() {
  State& s = *mState;
  s.measure->setText(tr("Measure"));
  s.measure->setToolTip(
      tr("Drag between two points: distance, horizontal, vertical and slope; Esc "
         "ends"));
  s.draw->setText(tr("Draw"));
  s.draw->setToolTip(
      tr("Click texts, lines and areas of ground into the section, or move them; Esc ends"));
  s.drawActions[0]->setText(tr("Text"));
  s.drawActions[0]->setToolTip(tr("Click where a text is to stand on the section"));
  s.drawActions[1]->setText(tr("Line"));
  s.drawActions[1]->setToolTip(tr("Click the points of a line on the section"));
  s.drawActions[2]->setText(tr("Polygon"));
  s.drawActions[2]->setToolTip(tr("Click the corners of an area of the section"));
  s.drawActions[3]->setText(tr("Move"));
  s.drawActions[3]->setToolTip(tr("Drag what has been drawn, or one of its corners"));
}

void SectionView::startMeasuring() {
  setTool(std::make_unique<SectionMeasureTool>());
  mState->measure->setChecked(hasTool());
}

void SectionView::startDrawing(AnnotationKind kind) {
  // The dialog that asks for more comes when the mouse has been let go of.
  const auto done = [this](AnnotationKind what, const std::vector<Point2D>& points) {
    QMetaObject::invokeMethod(
        this, [this, what, points] { emit annotationDrawn(what, points); }, Qt::QueuedConnection);
  };
  setTool(std::make_unique<SectionDrawTool>(kind, done));
  mState->drawActions[static_cast<std::size_t>(kind)]->setChecked(hasTool());
}

void SectionView::startMoving() {
  const auto items = [this] { return scene() ? &scene()->annotations.items : nullptr; };
  const auto done = [this](std::size_t item, const Annotation& before,
                           const std::vector<Point2D>& points) {
    QMetaObject::invokeMethod(
        this, [this, item, before, points] { emit annotationMoved(item, before, points); },
        Qt::QueuedConnection);
  };
  setTool(std::make_unique<SectionMoveTool>(
      items, [this](const Point2D& at) { return pointOf(at); }, done));
  mState->drawActions.back()->setChecked(hasTool());
}

void SectionView::endTool() {
  setTool(nullptr);
}

bool SectionView::hasTool() const {
  return mState->tool != nullptr;
}

void SectionView::setTool(std::unique_ptr<SectionTool> tool) {
  State& s = *mState;
  s.tool = std::move(tool);
  if (isEmpty()) s.tool.reset();  // there is nothing to measure or draw on
  s.measure->setChecked(false);
  for (QAction* action : s.drawActions) action->setChecked(false);
  if (s.tool) {
    s.paper->setCursor(Qt::CrossCursor);
    s.paper->setFocus();
  } else {
    s.paper->unsetCursor();
  }
  s.overlay->update();
}

/// \return whether the tool has taken it
bool SectionView::toolEvent(QEvent* event) {
  State& s = *mState;
  if (!s.tool) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      const bool moves = event->type() == QEvent::MouseMove;
      if (moves ? (mouse->buttons() & ~Qt::LeftButton) != 0 : mouse->button() != Qt::LeftButton) {
        return false;
      }
      const Point2D at = positionOf(mouse->localPos());
      if (event->type() == QEvent::MouseButtonPress) s.tool->press(at);
      if (moves) s.tool->move(at, (mouse->buttons() & Qt::LeftButton) != 0);
      if (event->type() == QEvent::MouseButtonRelease) s.tool->release(at);
      if (moves) readCursor(mouse->localPos());
      break;
    }
    case QEvent::MouseButtonDblClick:
      s.tool->finish();
      break;
    case QEvent::KeyPress: {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Escape) {
        endTool();
      } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        s.tool->finish();
      } else if (key == Qt::Key_Backspace) {
        s.tool->takeBack();
      } else {
        return false;
      }
      break;
    }
    default:
      return false;
  }
  s.overlay->update();
  return true;
}

}  // namespace talvesk
