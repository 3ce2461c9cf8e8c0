#include "widgets/HandleTrack.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>

namespace talvesk {

/// A slider that shows one handle and leaves the mouse to the track.
class HandleSlider : public QSlider {
 public:
  explicit HandleSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setEnabled(false);
  }

  QRect handleRect() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
  }

  void dress(const QColor& color, bool selected) {
    const QString style = handleStyle(color.name(), selected) + kNothingElse;
    if (style != styleSheet()) setStyleSheet(style);
    setEnabled(selected);
  }

 private:
  static constexpr QLatin1String kNothingElse{
      "QSlider {background: transparent;} QSlider::groove:horizontal {height: 18px; background: "
      "transparent; border: none;}"};

  static QString handleStyle(const QString& color, bool selected) {
    if (selected) {
      return QStringLiteral(
                 "QSlider::handle:horizontal {                         border: 8px solid ") +
             color +
             QStringLiteral(
                 ";                         border-radius: 5px;                         }"
                 // Without a width the handle has none to be found by.
                 "QSlider::handle:horizontal {width: 0px;}");
    }
    return QStringLiteral("QSlider::handle:horizontal {background-color:") + color +
           QStringLiteral(
               "; border: 1px solid grey; border-radius: 3px; width: 12px; margin: 0px 1px;}");
  }
};

namespace {

constexpr int kSliderHeight = 26;
/// Half a handle, which is as wide selected as not.
constexpr int kHalfHandle = 8;
constexpr int kOutline = 3;  ///< room for the outline of a selected handle at an end
constexpr int kReach = 6;    ///< pixels beside a handle that still take hold of it

}  // namespace

HandleTrack::HandleTrack(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

HandleTrack::~HandleTrack() = default;

int HandleTrack::margin() {
  return kHalfHandle + kOutline;
}

void HandleTrack::setHandles(const std::vector<Handle>& handles, int minimum, int maximum,
                             std::size_t selected) {
  while (mSliders.size() > handles.size()) {
    delete mSliders.back();
    delete mLabels.back();
    mSliders.pop_back();
    mLabels.pop_back();
  }
  while (mSliders.size() < handles.size()) {
    mSliders.push_back(new HandleSlider(this));
    mSliders.back()->setObjectName(QStringLiteral("handle%1").arg(mSliders.size()));
    mSliders.back()->setAccessibleName(tr("Handle %1").arg(mSliders.size()));
    mLabels.push_back(new QLabel(this));
    mLabels.back()->setAttribute(Qt::WA_TransparentForMouseEvents);
    mLabels.back()->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    mSliders.back()->show();
  }
  mSelected = selected;
  for (std::size_t i = 0; i < handles.size(); ++i) {
    mSliders[i]->setRange(minimum, maximum);
    mSliders[i]->setValue(handles[i].value);
    mSliders[i]->dress(handles[i].color, i == selected);
    mLabels[i]->setText(QLocale().toString(handles[i].value));
  }
  layOut();
}

QPoint HandleTrack::handlePosition(std::size_t index) const {
  const HandleSlider& slider = *mSliders[index];
  return slider.handleRect().center() + slider.pos();
}

QSize HandleTrack::sizeHint() const {
  return {420, kSliderHeight + fontMetrics().height() + 6};
}

QSize HandleTrack::minimumSizeHint() const {
  return {200, sizeHint().height()};
}

void HandleTrack::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOut();
}

void HandleTrack::layOut() {
  for (HandleSlider* slider : mSliders)
    slider->setGeometry(kOutline, 2, width() - 2 * kOutline, kSliderHeight);
  if (mSelected < mSliders.size()) mSliders[mSelected]->raise();
  layOutLabels();
  update();
}

// Values that would be printed over others stay away; the selected handle shows its own first, then
// the ends.
void HandleTrack::layOutLabels() {
  std::vector<std::size_t> order;
  if (mSelected < mLabels.size()) order.push_back(mSelected);
  if (!mLabels.empty()) order.push_back(mLabels.size() - 1);
  for (std::size_t i = 0; i < mLabels.size(); ++i) order.push_back(i);
  constexpr int kBetween = 6;
  std::vector<QRect> taken;
  std::vector<bool> placed(mLabels.size(), false);
  for (const std::size_t i : order) {
    if (placed[i]) continue;
    placed[i] = true;
    QFont labelFont = font();
    labelFont.setBold(i == mSelected);
    mLabels[i]->setFont(labelFont);
    const QSize size = mLabels[i]->sizeHint();
    const int left = std::clamp(handlePosition(i).x() - size.width() / 2, 0,
                                std::max(0, width() - size.width()));
    const QRect place(QPoint(left, kSliderHeight + 4), size);
    const bool free = std::none_of(taken.begin(), taken.end(), [&](const QRect& other) {
      return other.intersects(place.adjusted(-kBetween, 0, kBetween, 0));
    });
    mLabels[i]->setVisible(free);
    mLabels[i]->setGeometry(place);
    if (free) taken.push_back(place);
  }
}

// The handle itself has the colour of its stop alone, which may be that of what lies behind it.
void HandleTrack::paintEvent(QPaintEvent*) {
  if (mSelected >= mSliders.size()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF handle = mSliders[mSelected]->handleRect().translated(mSliders[mSelected]->pos());
  const QColor color = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                       hasFocus() ? QPalette::Highlight : QPalette::WindowText);
  painter.setPen(QPen(color, 2.0));
  painter.drawRoundedRect(handle.adjusted(-2.0, -2.0, 2.0, 2.0), 5.0, 5.0);
}

void HandleTrack::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void HandleTrack::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

int HandleTrack::handleAt(int x) const {
  int best = -1;
  int distance = kHalfHandle + kReach + 1;
  for (std::size_t i = 0; i < mSliders.size(); ++i) {
    const int away = std::abs(handlePosition(i).x() - x);
    // Of handles in one place take the selected one, which lies on top.
    if (away < distance || (away == distance && i == mSelected)) {
      best = static_cast<int>(i);
      distance = away;
    }
  }
  return best;
}

void HandleTrack::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  mPressedX = event->x();
  mPressedHandle = handleAt(event->x());
  mDragging = false;
  if (mPressedHandle >= 0) emit selected(mPressedHandle);
}

void HandleTrack::mouseMoveEvent(QMouseEvent* event) {
  if (mPressedHandle < 0 || !(event->buttons() & Qt::LeftButton)) return;
  const bool far = std::abs(event->x() - mPressedX) >= QApplication::startDragDistance();
  if (!mDragging && !far) return;
  mDragging = true;
  const HandleSlider& slider = *mSliders[static_cast<std::size_t>(mPressedHandle)];
  emit dragged(mPressedHandle, QStyle::sliderValueFromPosition(slider.minimum(), slider.maximum(),
                                                               event->x() - slider.x(),
                                                               std::max(slider.width(), 1)));
}

void HandleTrack::mouseReleaseEvent(QMouseEvent*) {
  mPressedHandle = -1;
  mDragging = false;
}

void HandleTrack::mouseDoubleClickEvent(QMouseEvent* event) {
  mPressedHandle = -1;
  const int handle = handleAt(event->x());
  if (handle < 0 || event->button() != Qt::LeftButton) return;
  emit selected(handle);
  emit colorWanted();
}

/// By how much an arrow or page key moves the selected handle; 0 for any other key.
int HandleTrack::stepOf(const QKeyEvent& event) const {
  const int fine = event.modifiers() & Qt::ControlModifier ? 1 : 10;
  switch (event.key()) {
    case Qt::Key_Left:
      return -fine;
    case Qt::Key_Right:
      return fine;
    case Qt::Key_PageDown:
      return -100;
    case Qt::Key_PageUp:
      return 100;
    default:
      return 0;
  }
}

void HandleTrack::keyPressEvent(QKeyEvent* event) {
  if (mSelected >= mSliders.size()) return QWidget::keyPressEvent(event);
  const int handle = static_cast<int>(mSelected);
  const int last = static_cast<int>(mSliders.size()) - 1;
  if (const int step = stepOf(*event); step != 0) {
    emit dragged(handle, mSliders[mSelected]->value() + step);
  } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
    emit selected(std::clamp(handle + (event->key() == Qt::Key_Up ? 1 : -1), 0, last));
  } else if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End) {
    emit selected(event->key() == Qt::Key_Home ? 0 : last);
  } else if (event->key() == Qt::Key_Space) {
    emit colorWanted();
  } else if (event->key() == Qt::Key_Insert) {
    emit additionWanted();
  } else if (event->key() == Qt::Key_Delete) {
    emit removalWanted();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace talvesk
