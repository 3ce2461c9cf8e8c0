#include "app/dialogs/MarkedIsolinesDialog.h"

#include "app/CellWalk.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/ColorField.h"
#include "app/dialogs/LengthBox.h"
#include "base/LengthUnit.h"
#include "ui_MarkedIsolinesDialog.h"

#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>

namespace talvesk {
namespace {

enum Column { kName, kVelocity, kColor, kWidth };

/// Colours for one new line after the other, each far from those of the palettes.
constexpr std::uint32_t kColors[] = {0x004fc0, 0xb00060, 0x007040, 0x804000, 0x5000a0};

}  // namespace

MarkedIsolinesDialog::MarkedIsolinesDialog(const std::vector<MarkedIsoline>& isolines,
                                           QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::MarkedIsolinesDialog>()) {
  mUi->setupUi(this);
  showUnits(*this);
  if (lengthUnit() == LengthUnit::kFoot) {
    mUi->explainLabel->setText(mUi->explainLabel->text().replace(
        QStringLiteral("1500 m/s"), velocityWithUnit(1500.0, 0)));  // the same in every language
  }
  wrapToolTips(*this);
  mUi->isolinesTable->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
  mUi->isolinesTable->setColumnWidth(
      kVelocity, std::max(140, mUi->isolinesTable->horizontalHeader()->sectionSizeHint(kVelocity)));
  for (const MarkedIsoline& isoline : isolines) addRow(isoline);
  connect(mUi->addButton, &QPushButton::clicked, this, &MarkedIsolinesDialog::addNew);
  connect(mUi->removeButton, &QPushButton::clicked, this, &MarkedIsolinesDialog::removeRow);
  connect(mUi->isolinesTable, &QTableWidget::itemChanged, this, &MarkedIsolinesDialog::refresh);
  if (isolines.empty()) addNew();
  mUi->isolinesTable->setCurrentCell(0, kName);
  mUi->isolinesTable->setFocus();
  refresh();
}

MarkedIsolinesDialog::~MarkedIsolinesDialog() = default;

void MarkedIsolinesDialog::addRow(const MarkedIsoline& isoline) {
  QTableWidget& table = *mUi->isolinesTable;
  const QSignalBlocker quiet(table);  // a row is read when all of it is there
  const int row = table.rowCount();
  table.insertRow(row);
  table.setItem(row, kName, new QTableWidgetItem(QString::fromStdString(isoline.name)));
  auto* velocity = new LengthBox;
  velocity->setDecimals(1);
  velocity->setRange(1.0, 20000.0);
  velocity->setSingleStep(50.0);
  velocity->setValue(isoline.velocity);
  velocity->setAccessibleName(inShownUnits(tr("Velocity [m/s]")));
  auto* width = new QDoubleSpinBox;
  width->setRange(Annotations::kThinnest, Annotations::kThickest);
  width->setDecimals(1);
  width->setSingleStep(0.5);
  width->setValue(isoline.width);
  width->setAccessibleName(tr("Width"));
  table.setCellWidget(row, kVelocity, velocity);
  table.setCellWidget(row, kColor, new ColorField(isoline.color));
  table.setCellWidget(row, kWidth, width);
  walkCells(table);
}

void MarkedIsolinesDialog::addNew() {
  MarkedIsoline fresh;
  const int rows = mUi->isolinesTable->rowCount();
  if (rows == 0) fresh.name = tr("water table").toStdString();
  fresh.color = kColors[static_cast<std::size_t>(rows) % std::size(kColors)];
  addRow(fresh);
  mUi->isolinesTable->setCurrentCell(rows, kName);
  refresh();
}

void MarkedIsolinesDialog::removeRow() {
  mUi->isolinesTable->removeRow(mUi->isolinesTable->currentRow());
  refresh();
}

void MarkedIsolinesDialog::refresh() {
  const auto rows = static_cast<std::size_t>(mUi->isolinesTable->rowCount());
  mUi->addButton->setEnabled(rows < Annotations::kMostIsolines);
  mUi->removeButton->setEnabled(rows > 0);
  Annotations all;
  all.isolines = isolines();
  const Message fault = faultOf(all);
  mUi->messageLabel->setStyleSheet(warningStyle(*this));
  mUi->messageLabel->setText(fault.empty() ? QString() : textOf(fault));
}

std::vector<MarkedIsoline> MarkedIsolinesDialog::isolines() const {
  const QTableWidget& table = *mUi->isolinesTable;
  std::vector<MarkedIsoline> isolines;
  for (int row = 0; row < table.rowCount(); ++row) {
    MarkedIsoline& isoline = isolines.emplace_back();
    if (const auto* name = table.item(row, kName))
      isoline.name = name->text().trimmed().toStdString();
    const auto number = [&](Column column) {
      return qobject_cast<QDoubleSpinBox*>(table.cellWidget(row, column))->value();
    };
    isoline.velocity = number(kVelocity);
    isoline.width = number(kWidth);
    isoline.color = qobject_cast<ColorField*>(table.cellWidget(row, kColor))->color();
  }
  return isolines;
}

void MarkedIsolinesDialog::accept() {
  refresh();
  if (mUi->messageLabel->text().isEmpty()) QDialog::accept();
}

}  // namespace talvesk
