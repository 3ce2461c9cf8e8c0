#include "widgets/ColorPaletteWidget.h"

#include "base/Console.h"
#include "view/PaletteRepair.h"
#include "widgets/HandleTrack.h"

#include <QColorDialog>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kMostValue = static_cast<int>(kLargestPaletteValue);

QColor colorOf(const GradientColorPoint& point) {
  return QColor::fromRgbF(point.mr, point.mg, point.mb);
}

QString previewStyle(const ColorGradient& gradient) {
  QString style = QStringLiteral(
      "border: 1px solid grey; font-size: 11px; "
      "background-color: qlineargradient( x1: 0, y1: 0, x2: 1, y2: 0,");
  QString between;
  for (const GradientColorPoint& point : gradient.points()) {
    style += between + QStringLiteral("stop: %1 %2").arg(point.mval).arg(colorOf(point).name());
    between = QStringLiteral(", ");
  }
  return style + QLatin1Char(')');
}

QSpinBox* spinBox(const char* name, int minimum, int maximum) {
  auto* box = new QSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setRange(minimum, maximum);
  // What is typed counts when it is complete: the section is drawn anew for each value.
  box->setKeyboardTracking(false);
  box->setGroupSeparatorShown(true);
  return box;
}

QLabel* labelOf(QSpinBox* box, const QString& text) {
  auto* label = new QLabel(text);
  label->setBuddy(box);
  return label;
}

QPushButton* button(const char* name, const QString& text, const QString& toolTip) {
  auto* made = new QPushButton(text);
  made->setObjectName(QLatin1String(name));
  made->setToolTip(toolTip);
  made->setAutoDefault(false);
  return made;
}

}  // namespace

ColorPaletteWidget::ColorPaletteWidget(QWidget* parent)
    : QWidget(parent), mHandles(ColorPaletteList().current()) {
  buildEditor();
  connect(mTrack, &HandleTrack::selected, this,
          [this](int index) { selectHandle(static_cast<std::size_t>(index)); });
  connect(mTrack, &HandleTrack::dragged, this,
          [this](int index, int value) { moveHandle(static_cast<std::size_t>(index), value); });
  connect(mTrack, &HandleTrack::colorWanted, this, &ColorPaletteWidget::updateHandleColor);
  connect(mTrack, &HandleTrack::additionWanted, this, &ColorPaletteWidget::addHandle);
  connect(mTrack, &HandleTrack::removalWanted, this, &ColorPaletteWidget::deleteHandle);
  connect(mAdd, &QPushButton::clicked, this, &ColorPaletteWidget::addHandle);
  connect(mColor, &QPushButton::clicked, this, &ColorPaletteWidget::updateHandleColor);
  connect(mDelete, &QPushButton::clicked, this, &ColorPaletteWidget::deleteHandle);
  connect(mSelectedBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
          [this](int number) { selectHandle(static_cast<std::size_t>(number - 1)); });
  connect(mValueBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
          &ColorPaletteWidget::moveSelectedTo);
  connect(mMinimumBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
          &ColorPaletteWidget::updateMinValue);
  connect(mMaximumBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
          &ColorPaletteWidget::updateMaxValue);
  refresh();
}

ColorPaletteWidget::~ColorPaletteWidget() = default;

void ColorPaletteWidget::buildEditor() {
  mPreview = new QFrame;
  mPreview->setObjectName(QStringLiteral("preview"));
  mPreview->setMinimumHeight(28);
  mTrack = new HandleTrack;
  mTrack->setObjectName(QStringLiteral("handleTrack"));
  mTrack->setAccessibleName(tr("Handles of the gradient"));
  mTrack->setToolTip(
      tr("Drag a handle; double-click it for its colour.\nKeys: Left and Right move "
         "the selected handle (with Ctrl by one), Up and Down select another, "
         "Space asks for its colour, Insert adds and Delete removes one."));
  mSelectedBox = spinBox("selectedHandle", 1, 2);
  mSelectedBox->setToolTip(
      tr("Number of the handle that the value, the colour and Delete are for"));
  mValueBox = spinBox("handleValue", -kMostValue, kMostValue);
  mValueBox->setToolTip(tr("Where on the scale the selected handle stands"));
  mMinimumBox = spinBox("minimum", -kMostValue, kMostValue - 1);
  mMinimumBox->setToolTip(tr("Value shown in the first colour, and below it"));
  mMaximumBox = spinBox("maximum", -kMostValue + 1, kMostValue);
  mMaximumBox->setToolTip(tr("Value shown in the last colour, and above it"));
  mAdd = button("addSlider", tr("Add Slider"),
                tr("Add a handle between the selected one and the "
                   "next, in the colour of that place"));
  mColor = button("setColor", tr("Set Selected Slider Color"), tr("Choose the handle's colour"));
  mDelete = button("deleteSlider", tr("Delete Selected Slider"),
                   tr("Remove the selected handle; the first and the last stay"));
  mMessage = new QLabel;
  mMessage->setObjectName(QStringLiteral("message"));
  mMessage->setWordWrap(true);
  mMessage->setMinimumHeight(mMessage->fontMetrics().height());

  auto* preview = new QHBoxLayout;
  preview->setContentsMargins(HandleTrack::margin(), 0, HandleTrack::margin(), 0);
  preview->addWidget(mPreview);
  auto* handle = new QHBoxLayout;
  handle->addWidget(labelOf(mSelectedBox, tr("Selected Handle")));
  handle->addWidget(mSelectedBox);
  handle->addSpacing(12);
  handle->addWidget(labelOf(mValueBox, tr("Value: ")));
  handle->addWidget(mValueBox);
  handle->addStretch();
  auto* buttons = new QHBoxLayout;
  for (QPushButton* each : {mAdd, mColor, mDelete}) buttons->addWidget(each);
  buttons->addStretch();
  auto* scale = new QHBoxLayout;
  scale->addWidget(labelOf(mMinimumBox, tr("Minimum")));
  scale->addWidget(mMinimumBox);
  scale->addSpacing(12);
  scale->addWidget(labelOf(mMaximumBox, tr("Maximum")));
  scale->addWidget(mMaximumBox);
  scale->addStretch();

  auto* editor = new QVBoxLayout;
  editor->setContentsMargins(10, 10, 10, 10);
  editor->addLayout(preview);
  editor->addWidget(mTrack);
  for (QHBoxLayout* row : {handle, buttons, scale}) editor->addLayout(row);
  editor->addWidget(mMessage);
  // A frame around the editor and not the parent of its parts, which would all get its border.
  auto* frame = new QFrame;
  frame->setObjectName(QStringLiteral("editorFrame"));
  frame->setStyleSheet(QStringLiteral("border: 1px solid grey;"));
  auto* both = new QGridLayout(this);
  both->setContentsMargins(0, 0, 0, 0);
  both->addWidget(frame, 0, 0);
  both->addLayout(editor, 0, 0);
}

void ColorPaletteWidget::setColorPalette(const ColorPalette& palette) {
  ColorPalette fit = palette;
  if (!repairPalette(fit).ok()) fit.color_gradient = ColorPaletteList().current().color_gradient;
  mHandles = GradientHandles(fit);
  mEditable = palette.is_editable;
  mSelected = 0;
  for (std::size_t i = 0; i < mHandles.count(); ++i) tellCreated(i);
  tell(mEditable
           ? QString()
           : tr("The colours of a built-in palette stay as they are; Edit Palette makes a copy."));
  refresh();
}

QWidget* ColorPaletteWidget::handleTrack() const {
  return mTrack;
}

QPoint ColorPaletteWidget::handlePosition(std::size_t index) const {
  return mTrack->handlePosition(index);
}

void ColorPaletteWidget::selectHandle(std::size_t index) {
  if (!mEditable || index >= mHandles.count() || index == mSelected) return;
  mSelected = index;
  tell(QString());
  refresh();
}

void ColorPaletteWidget::moveSelectedTo(int wanted) {
  moveHandle(mSelected, wanted);
}

void ColorPaletteWidget::moveHandle(std::size_t index, int wanted) {
  if (!mEditable || index >= mHandles.count()) return;
  if (mHandles.isEnd(index)) {
    const bool first = index == 0;
    console::out() << (first ? "Cannot move handle at mimimum value."
                             : "Cannot move handle at maximum value.")
                   << std::endl;
    tell(first ? tr("Cannot move handle at mimimum value.")
               : tr("Cannot move handle at maximum value."));
    refresh();
    return;
  }
  console::out() << "new value: " << mHandles.move(index, wanted) << std::endl;
  tell(QString());
  refresh();
  emit modified();
}

void ColorPaletteWidget::addHandle() {
  if (!mEditable) return;
  const auto added = mHandles.insertBeside(mSelected);
  if (!added) return tell(tr("There is no room for another handle here."));
  mSelected = *added;
  tellCreated(mSelected);
  tell(QString());
  refresh();
  emit modified();
}

void ColorPaletteWidget::deleteHandle() {
  if (!mEditable) return;
  if (!mHandles.remove(mSelected)) return tell(tr("The first and the last handle stay."));
  mSelected = mSelected - 1;
  tell(QString());
  refresh();
  emit modified();
}

void ColorPaletteWidget::updateHandleColor() {
  if (!mEditable) return;
  const QColor chosen = QColorDialog::getColor(colorOf(gradient().points()[mSelected]), this,
                                               tr("Colour of the selected handle"));
  if (!chosen.isValid()) return;
  mHandles.setColor(mSelected, {chosen.redF(), chosen.greenF(), chosen.blueF()});
  refresh();
  emit modified();
}

// An end that meets the other pushes it along, so that both can be typed in any order.
void ColorPaletteWidget::updateMinValue(int value) {
  const int low = std::clamp(value, -kMostValue, kMostValue - 1);
  setScale(low, std::max(low + 1, maximum()));
}

void ColorPaletteWidget::updateMaxValue(int value) {
  const int high = std::clamp(value, -kMostValue + 1, kMostValue);
  setScale(std::min(minimum(), high - 1), high);
}

void ColorPaletteWidget::setScale(int low, int high) {
  const int lowBefore = minimum();
  const int highBefore = maximum();
  if (!mHandles.setScale(low, high)) return;
  refresh();
  // Who follows both never has them the wrong way round.
  const bool upward = low > lowBefore;
  if (upward && high != highBefore) emit changed_max_value(high);
  if (low != lowBefore) emit changed_min_value(low);
  if (!upward && high != highBefore) emit changed_max_value(high);
}

void ColorPaletteWidget::refresh() {
  std::vector<HandleTrack::Handle> handles;
  for (std::size_t i = 0; i < mHandles.count(); ++i) {
    handles.push_back({mHandles.value(i), colorOf(gradient().points()[i])});
  }
  const std::size_t none = handles.size();
  mTrack->setHandles(handles, minimum(), maximum(), mEditable ? mSelected : none);
  mPreview->setStyleSheet(previewStyle(gradient()));
  const QSignalBlocker selected(mSelectedBox);
  const QSignalBlocker value(mValueBox);
  mSelectedBox->setMaximum(static_cast<int>(mHandles.count()));
  mSelectedBox->setSuffix(tr(" of %1").arg(mHandles.count()));
  mSelectedBox->setValue(static_cast<int>(mSelected) + 1);
  mValueBox->setValue(mHandles.value(mSelected));
  const bool inner = mEditable && !mHandles.isEnd(mSelected);
  mValueBox->setEnabled(inner);
  mDelete->setEnabled(inner);
  for (QWidget* each : {static_cast<QWidget*>(mTrack), static_cast<QWidget*>(mSelectedBox),
                        static_cast<QWidget*>(mAdd), static_cast<QWidget*>(mColor)}) {
    each->setEnabled(mEditable);
  }
  refreshScale();
}

void ColorPaletteWidget::refreshScale() {
  const QSignalBlocker low(mMinimumBox);
  const QSignalBlocker high(mMaximumBox);
  mMinimumBox->setValue(minimum());
  mMaximumBox->setValue(maximum());
}

void ColorPaletteWidget::tellCreated(std::size_t index) const {
  console::out() << "creating handle value : " << mHandles.value(index) << std::endl;
}

void ColorPaletteWidget::tell(const QString& message) {
  mMessage->setText(message);
}

}  // namespace talvesk
