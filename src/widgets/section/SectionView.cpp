#include "widgets/section/SectionView.h"

#include "widgets/EmptyPage.h"
#include "widgets/section/SectionView_state.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMaxSide = 30000.0;  ///< device pixels of a picture

/// Whether two scenes show the same ground, so that what is seen of one is of interest in the
/// other.
bool sameGround(const SectionScene* a, const SectionScene& b) {
  return a != nullptr && a->mesh.rows == b.mesh.rows && a->mesh.columns == b.mesh.columns &&
         a->mesh.corners == b.mesh.corners && a->surface == b.surface;
}

}  // namespace

SectionOverlay::SectionOverlay(QWidget* parent, const SectionSheet& sheet,
                               const SectionCamera& camera,
                               const std::unique_ptr<SectionTool>& tool)
    : QWidget(parent), mSheet(sheet), mCamera(camera), mTool(tool) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void SectionOverlay::paintEvent(QPaintEvent*) {
  if (mSheet.scene() == nullptr) return;
  QPainter painter(this);
  const SectionPaper paper = mSheet.paper(font());
  paper.paint(painter, size(), mCamera);
  if (!mTool) return;
  const QRect plot = paper.plotRect(size(), mCamera.exaggeration);
  const QTransform map =
      mCamera.toPicture(plot.size()) * QTransform::fromTranslate(plot.left(), plot.top());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(plot);
  mTool->paint(painter, [&map](const Point2D& p) { return map.map(QPointF(p.x, p.z)); });
}

SectionView::SectionView(QWidget* parent) : QWidget(parent), mState(std::make_unique<State>()) {
  layOutControls();
  retranslate();
  showText({});
}

SectionView::~SectionView() {
  mState->paper->removeEventFilter(this);
}

void SectionView::layOutControls() {
  State& s = *mState;
  // First, so that it and no field gets the focus when the section comes into view: a field would
  // take digits and Ctrl+A, which are somebody else's.
  s.paper = new QWidget(this);
  s.controls = new QWidget(this);
  auto* row = new QHBoxLayout(s.controls);
  row->setContentsMargins(6, 2, 6, 2);
  s.exaggerationLabel = new QLabel(s.controls);
  s.exaggeration = new QDoubleSpinBox(s.controls);
  s.exaggeration->setObjectName(QStringLiteral("exaggerationSpin"));
  s.exaggeration->setRange(SectionCamera::kMinExaggeration, SectionCamera::kMaxExaggeration);
  s.exaggeration->setDecimals(2);
  s.exaggeration->setSingleStep(0.5);
  s.exaggeration->setSuffix(QStringLiteral("\u00D7"));
  s.exaggeration->setValue(1.0);
  s.exaggeration->setKeyboardTracking(false);
  s.exaggerationLabel->setBuddy(s.exaggeration);
  row->addWidget(s.exaggerationLabel);
  row->addWidget(s.exaggeration);
  for (const int factor : {1, 2, 5}) {
    auto* button = new QToolButton(s.controls);
    button->setObjectName(QStringLiteral("exaggerate%1").arg(factor));
    button->setText(QStringLiteral("%1\u00D7").arg(factor));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this,
            [this, factor] { setVerticalExaggeration(factor); });
    row->addWidget(button);
  }
  row->addSpacing(16);
  s.turn = new QToolButton(s.controls);
  s.turn->setObjectName(QStringLiteral("turnButton"));
  s.turn->setCheckable(true);
  s.turn->setAutoRaise(true);
  row->addWidget(s.turn);
  s.reset = new QToolButton(s.controls);
  s.reset->setObjectName(QStringLiteral("resetButton"));
  s.reset->setAutoRaise(true);
  row->addWidget(s.reset);
  layOutTools(*row);
  row->addStretch(1);

  s.paper->setObjectName(QStringLiteral("sectionPaper"));
  s.paper->setFocusPolicy(Qt::StrongFocus);
  s.paper->setMouseTracking(true);
  s.paper->setMinimumSize(120, 80);
  s.paper->installEventFilter(this);
  s.overlay = new SectionOverlay(s.paper, s.sheet, s.camera, s.tool);
  s.empty = new EmptyPage(this);
  s.empty->label().setObjectName(QStringLiteral("sectionEmptyLabel"));
  s.empty->label().setTextFormat(Qt::RichText);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(s.controls);
  s.pages = new QStackedLayout;
  layout->addLayout(s.pages, 1);
  s.pages->addWidget(s.empty);
  s.pages->addWidget(s.paper);

  connect(s.exaggeration, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          &SectionView::setVerticalExaggeration);
  connect(s.turn, &QToolButton::toggled, this, &SectionView::setTurning);
  connect(s.reset, &QToolButton::clicked, this, &SectionView::resetView);
}

void SectionView::retranslate() {
  State& s = *mState;
  s.exaggeration->setLocale(QLocale());
  s.exaggerationLabel->setText(tr("Vertical exaggeration:"));
  s.exaggeration->setToolTip(tr("How much larger heights are drawn than distances"));
  s.exaggeration->setAccessibleName(tr("Vertical exaggeration"));
  s.turn->setText(tr("Turn in 3-D"));
  s.turn->setToolTip(tr("Dragging turns the section instead of moving it"));
  s.reset->setText(tr("Reset View"));
  s.reset->setToolTip(tr("Bring the whole section back into view (Home)"));
  s.paper->setAccessibleName(tr("Velocity section"));
  retranslateTools();
}

void SectionView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  if (event->type() == QEvent::FontChange || event->type() == QEvent::LanguageChange) layOut();
  QWidget::changeEvent(event);
}

void SectionView::showText(const QString& text, const QList<QAction*>& commands) {
  State& s = *mState;
  s.sheet.setScene(nullptr, ColorPalette(), s.sheet.settings());
  s.empty->label().setText(text);
  s.empty->setCommands(commands);
  s.pages->setCurrentWidget(s.empty);
  s.controls->hide();
  endTool();
  s.cursor.reset();
  emit cursorLeft();
}

void SectionView::showScene(std::shared_ptr<const SectionScene> scene, const ColorPalette& palette,
                            const SectionViewSettings& settings) {
  State& s = *mState;
  const bool elsewhere = !sameGround(s.sheet.scene(), *scene);
  s.sheet.setScene(std::move(scene), palette, settings);
  if (s.camera.exaggeration != settings.verticalExaggeration) {
    setVerticalExaggeration(settings.verticalExaggeration);
  }
  if (!s.canvas) {
    s.canvas = std::make_unique<SectionCanvas>(s.paper);
    s.canvas->widget()->lower();
    s.canvas->widget()->show();
  }
  s.canvas->setScene(*s.sheet.scene(), s.sheet.colors(), settings.contours.color);
  s.controls->show();
  s.pages->setCurrentWidget(s.paper);
  layOut();
  if (elsewhere) resetView();
  if (s.cursor) readCursor(*s.cursor);  // other values under it
}

bool SectionView::isEmpty() const {
  return mState->sheet.scene() == nullptr;
}

const SectionScene* SectionView::scene() const {
  return mState->sheet.scene();
}

const SectionCamera& SectionView::camera() const {
  return mState->camera;
}

double SectionView::verticalExaggeration() const {
  return mState->camera.exaggeration;
}

QWidget* SectionView::sheet() const {
  return mState->paper;
}

QRect SectionView::plotRect() const {
  if (isEmpty()) return {0, 0, 1, 1};
  return mState->sheetPaper().plotRect(mState->paper->size(), mState->camera.exaggeration);
}

QPointF SectionView::pointOf(const Point2D& position) const {
  const QRect plot = plotRect();
  return plot.topLeft() +
         mState->camera.toPicture(plot.size()).map(QPointF(position.x, position.z));
}

Point2D SectionView::positionOf(const QPointF& point) const {
  const QRect plot = plotRect();
  const QPointF found =
      mState->camera.toPicture(plot.size()).inverted().map(point - plot.topLeft());
  return {found.x(), found.y()};
}

/// Gives overlay and canvas their places on the paper.
void SectionView::layOut() {
  State& s = *mState;
  s.overlay->setGeometry(s.paper->rect());
  if (isEmpty() || !s.canvas) return;
  s.canvas->widget()->setGeometry(plotRect());
  applyCamera();
}

void SectionView::applyCamera(bool moving) {
  State& s = *mState;
  if (isEmpty() || !s.canvas) return;
  if (s.fits) s.sheetPaper().fit(s.camera, plotRect().size());
  s.canvas->setCamera(s.camera, moving);
  s.overlay->update();
  emit viewChanged();
}

void SectionView::resetView() {
  State& s = *mState;
  s.fits = true;
  s.camera.turn = 0.0;
  s.camera.tilt = 0.0;
  layOut();
}

void SectionView::showPart(const Point2D& lowerLeft, const Point2D& upperRight) {
  State& s = *mState;
  s.fits = false;
  s.camera.turn = 0.0;
  s.camera.tilt = 0.0;
  s.camera.fit(lowerLeft, upperRight, plotRect().size(), {});
  layOut();
}

void SectionView::setVerticalExaggeration(double factor) {
  State& s = *mState;
  const double before = s.camera.exaggeration;
  s.camera.setExaggeration(factor);
  {
    // The field rounds, which is not the user's choice.
    const QSignalBlocker quiet(s.exaggeration);
    s.exaggeration->setValue(s.camera.exaggeration);
  }
  if (s.camera.exaggeration == before) return;
  layOut();
  emit exaggerationChanged(s.camera.exaggeration);
}

void SectionView::setTurning(bool turning) {
  State& s = *mState;
  s.turning = turning;
  s.turn->setChecked(turning);
  if (!turning) {
    s.camera.turn = 0.0;
    s.camera.tilt = 0.0;
    applyCamera();
  }
}

QImage SectionView::picture(const QSize& size, Part part, double ratio) const {
  const State& s = *mState;
  if (isEmpty() || size.isEmpty() || !(ratio >= 0.1 && ratio <= 10.0)) return {};
  if (std::max(size.width(), size.height()) * ratio > kMaxSide) return {};
  const SectionPaper paper = s.sheetPaper();
  SectionCamera camera = s.camera;
  const QRect plot = paper.plotRect(size, camera.exaggeration);
  if (part == Part::kWhole) {
    camera.turn = 0.0;
    camera.tilt = 0.0;
    paper.fit(camera, plot.size());
  } else {
    // What fills the plot on the screen fills as much as it can of the other.
    const QSizeF seen = plotRect().size();
    camera.metresPerPixel *= std::max(seen.width() / plot.width(), seen.height() / plot.height());
  }
  const QImage section =
      sectionPicture(*s.sheet.scene(), s.sheet.colors(), s.sheet.settings().contours.color, camera,
                     plot.size(), ratio);
  if (section.isNull()) return {};
  QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.fill(Qt::white);
  image.setDevicePixelRatio(ratio);
  QPainter painter(&image);
  painter.drawImage(QRectF(plot), section);
  paper.paint(painter, size, camera);
  painter.end();
  return image;
}

QSize SectionView::sizeHint() const {
  return {900, 500};
}

QSize SectionView::minimumSizeHint() const {
  return {240, 160};
}

}  // namespace talvesk
