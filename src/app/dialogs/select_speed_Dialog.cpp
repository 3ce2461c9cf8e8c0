#include "app/dialogs/select_speed_Dialog.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/WaitCursor.h"
#include "app/dialogs/ParameterField.h"
#include "app/dialogs/setVelocityWidget.h"
#include "base/Console.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/GridSetup.h"
#include "tomo/StartingModel.h"
#include "ui_select_speed_Dialog.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

/// Entries of the choice, in its order.
enum FillEntry { kSpline, kSharp, kGraded };

constexpr int kProblemLines = 2;  // that the place for the problem holds without moving the buttons

}  // namespace

select_speed_Dialog::select_speed_Dialog(TomoDocument& document, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::select_speed_Dialog>()), mDocument(document) {
  mUi->setupUi(this);
  showUnits(*this);
  setUpField(*mUi->thicknessEdit, parameters::kGrading);
  mUi->thicknessEdit->setToolTip(mUi->thicknessEdit->toolTip() + QStringLiteral(": ") +
                                 limitsOf(*mUi->thicknessEdit));
  wrapToolTips(*this);
  mUi->problemLabel->setStyleSheet(warningStyle(*this));
  mUi->problemLabel->setMinimumHeight(kProblemLines * fontMetrics().lineSpacing());
  connect(mUi->addButton, &QPushButton::clicked, this, [this] { addLayer(); });
  connect(mUi->removeButton, &QPushButton::clicked, this, [this] { removeLayers(); });
  connect(mUi->listWidget, &QListWidget::itemSelectionChanged, this, [this] { showRemovable(); });
  connectFill();
  setDocument();
}

select_speed_Dialog::~select_speed_Dialog() = default;

void select_speed_Dialog::connectFill() {
  mUi->thicknessEdit->setEnabled(false);
  connect(mUi->fillCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this](int entry) {
            mUi->thicknessEdit->setEnabled(entry == kGraded);
            showModel(layers());
          });
  connect(mUi->thicknessEdit, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          [this] { showModel(layers()); });
  connect(mUi->sharpButton, &QPushButton::clicked, this,
          [this] { mUi->fillCombo->setCurrentIndex(kSharp); });
}

LayerFill select_speed_Dialog::fill() const {
  const int entry = mUi->fillCombo->currentIndex();
  return {entry == kSpline, entry == kGraded ? mUi->thicknessEdit->value() : 0.0};
}

double select_speed_Dialog::gridDepth() const {
  return mDocument.model->grid ? mDocument.model->grid->righe() * mDocument.model->grid->aLato()
                               : 0.0;
}

void select_speed_Dialog::setDocument() {
  mUi->widget->setGridDepth(gridDepth());
  for (const VelocityLayer& layer : mDocument.model->layers) addRow(layer);
  if (mDocument.model->layers.empty()) addRow(defaultLayer(gridDepth()));
  mAtFirst = layers();
  // What the grid has of layers that it has is the choice that stands.
  if (mDocument.model->grid && !mDocument.model->layers.empty() && !check(mAtFirst).ok() &&
      followsSharpLayers(*mDocument.model->grid, mAtFirst)) {
    const QSignalBlocker quiet(mUi->fillCombo);
    mUi->fillCombo->setCurrentIndex(kSharp);
  }
  mFillAtFirst = fill();
  showModel(mAtFirst);
  row(0)->focusFirstField();
}

setVelocityWidget* select_speed_Dialog::row(int index) const {
  return qobject_cast<setVelocityWidget*>(
      mUi->listWidget->itemWidget(mUi->listWidget->item(index)));
}

void select_speed_Dialog::addRow(const VelocityLayer& layer) {
  auto* fields = new setVelocityWidget(layer, mUi->listWidget);
  connect(fields, &setVelocityWidget::lineEditModified, this, &select_speed_Dialog::onLineeditmod);
  connect(fields, &setVelocityWidget::markChanged, this, [this] { showRemovable(); });
  auto* item = new QListWidgetItem(mUi->listWidget);
  item->setSizeHint(fields->sizeHint().expandedTo(fields->minimumSize()));
  mUi->listWidget->setItemWidget(item, fields);
  // Words of other languages are longer; a row is seen whole, beside a scroll bar.
  const int beside = 2 * mUi->listWidget->frameWidth() +
                     style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, mUi->listWidget);
  mUi->listWidget->setMinimumWidth(
      std::max(mUi->listWidget->minimumWidth(), item->sizeHint().width() + beside));
  orderTabs();
  showRemovable();
}

/// Rows are made after the buttons, but the Tab key takes them first.
void select_speed_Dialog::orderTabs() {
  QWidget* previous = mUi->listWidget;
  for (int i = 0; i < mUi->listWidget->count(); ++i) previous = row(i)->followInTabOrder(previous);
  setTabOrder(previous, mUi->addButton);
}

std::vector<VelocityLayer> select_speed_Dialog::layers() const {
  std::vector<VelocityLayer> rows;
  for (int i = 0; i < mUi->listWidget->count(); ++i) rows.push_back(row(i)->layer());
  return acceptedLayers(rows);
}

std::vector<VelocityLayer> select_speed_Dialog::takeLayers() const {
  std::vector<VelocityLayer> taken = layers();
  for (std::size_t i = 0; i < taken.size(); ++i) {
    console::out() << "[LOG] accepted - speedlayer for loop " << std::endl;
  }
  return taken;
}

void select_speed_Dialog::onLineeditmod() {
  showModel(takeLayers());
}

/// Whether the layers make a model for the grid.
Status select_speed_Dialog::check(const std::vector<VelocityLayer>& layers) const {
  if (!fill().spline) return checkSharpLayers(layers);
  return mDocument.model->grid ? checkLayers(mDocument.model->grid->geometry().size(), layers)
                               : Status();
}

/// Whether what keeps the layers from the grid is their spline alone.
bool select_speed_Dialog::sharpWouldDo(const std::vector<VelocityLayer>& layers) const {
  return fill().spline && !check(layers).ok() && checkSharpLayers(layers).ok();
}

void select_speed_Dialog::showModel(const std::vector<VelocityLayer>& layers) {
  mUi->widget->setLayers(layers, fill());
  mUi->sharpButton->setVisible(sharpWouldDo(layers));
  const Status status = check(layers);
  QString text = textOf(status.text());
  if (status.ok() && mDocument.result->has_tomographic_info) {
    text = tr("The results of the last inversion will be removed (Undo brings them back).");
  }
  mUi->problemLabel->setText(text);
}

void select_speed_Dialog::addLayer() {
  const int count = mUi->listWidget->count();
  if (count == 0) {
    addRow(defaultLayer(gridDepth()));
  } else {
    std::vector<VelocityLayer> halves = {row(count - 1)->layer()};
    splitLastLayer(halves);
    const QSignalBlocker quiet(row(count - 1));  // one new model, not one per field
    row(count - 1)->setLayer(halves.front());
    addRow(halves.back());
  }
  mUi->listWidget->scrollToBottom();
  onLineeditmod();
}

bool select_speed_Dialog::isMarked(int index) const {
  return row(index)->isMarked() || mUi->listWidget->item(index)->isSelected();
}

void select_speed_Dialog::removeLayers() {
  for (int i = mUi->listWidget->count() - 1; i >= 0; --i) {
    if (isMarked(i)) delete mUi->listWidget->takeItem(i);
  }
  showRemovable();
  onLineeditmod();
}

void select_speed_Dialog::showRemovable() {
  bool any = false;
  for (int i = 0; i < mUi->listWidget->count() && !any; ++i) any = row(i) != nullptr && isMarked(i);
  mUi->removeButton->setEnabled(any);
}

bool select_speed_Dialog::isAsItWas() const {
  const std::vector<VelocityLayer> now = layers();
  const LayerFill filled = fill();
  return filled.spline == mFillAtFirst.spline && filled.thickness == mFillAtFirst.thickness &&
         std::equal(now.begin(), now.end(), mAtFirst.begin(), mAtFirst.end(),
                    [](const VelocityLayer& a, const VelocityLayer& b) {
                      return a.initialDepth == b.initialDepth && a.finalDepth == b.finalDepth &&
                             a.initialVelocity == b.initialVelocity &&
                             a.finalVelocity == b.finalVelocity;
                    });
}

bool select_speed_Dialog::wantsLayersAgain() {
  if (startingModelOf(mDocument) == StartingModel::kLayered) return false;
  const QString question = tr("Do you want to put them into the grid all the same?");
  const QString lost =
      tr("The results of the last inversion will be removed (Undo brings them back).");
  return askYesNo(
      this, tr("Define model velocity"), tr("You have not changed the layers."),
      mDocument.result->has_tomographic_info ? question + QLatin1Char('\n') + lost : question,
      false);
}

Status select_speed_Dialog::apply() {
  return whileWaiting([this] { return applyLayers(mDocument, takeLayers(), fill()); });
}

void select_speed_Dialog::accept() {
  if (isAsItWas() && check(mAtFirst).ok() && !wantsLayersAgain()) return reject();
  Status status = apply();
  if (!status.ok() && sharpWouldDo(layers())) {
    const QString question = tr("Do you want sharp layers instead? They need no spline.");
    if (!askYesNo(this, tr("Define model velocity"), tr("The layers make no velocity model."),
                  textOf(status.text()) + QLatin1Char('\n') + question, true)) {
      return;
    }
    mUi->fillCombo->setCurrentIndex(kSharp);
    status = apply();
  }
  if (status.ok()) {
    QDialog::accept();
    return;
  }
  showError(this, tr("Define model velocity"), tr("The layers make no velocity model."),
            textOf(status.text()));
}

}  // namespace talvesk
