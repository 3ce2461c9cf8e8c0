#include "app/dialogs/AnnotationsDialog.h"

#include "app/CellWalk.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/ColorField.h"
#include "ui_AnnotationsDialog.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

enum Column { kKind, kText, kPattern, kColor, kWidth, kSize };

QDoubleSpinBox* numberField(double least, double most, double value, const QString& name) {
  auto* field = new QDoubleSpinBox;
  field->setRange(least, most);
  field->setDecimals(1);
  field->setSingleStep(0.5);
  field->setValue(value);
  field->setAccessibleName(name);
  return field;
}

QTableWidgetItem* fixedCell(const QString& text) {
  auto* cell = new QTableWidgetItem(text);
  cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
  return cell;
}

/// Metres to the millimetre; nobody draws finer.
QString shownText(double metres) {
  return lengthText(std::round(1000.0 * metres) / 1000.0);
}

/// The usual colour of a lithology's signs.
std::uint32_t colorOf(Lithology pattern) {
  switch (pattern) {
    case Lithology::kSand:
      return 0x8a6a00;
    case Lithology::kGravel:
      return 0x7a4a10;
    case Lithology::kClay:
      return 0x5a6a20;
    case Lithology::kSilt:
      return 0x6a6a50;
    case Lithology::kRock:
      return 0x703030;
    case Lithology::kFill:
      return 0x404040;
    case Lithology::kWater:
      return 0x0060c0;
    case Lithology::kNone:
      break;
  }
  return 0x000000;
}

}  // namespace

AnnotationsDialog::AnnotationsDialog(const std::vector<Annotation>& items, const Point2D& middle,
                                     const Point2D& reach, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::AnnotationsDialog>()),
      mItems(items),
      mBefore(items),
      mMiddle(middle),
      mReach(reach) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  mUi->itemsTable->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  mUi->itemsTable->horizontalHeader()->setSectionResizeMode(kText, QHeaderView::Stretch);
  mUi->pointsTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  connect(mUi->addTextButton, &QPushButton::clicked, this, [this] { add(AnnotationKind::kText); });
  connect(mUi->addLineButton, &QPushButton::clicked, this, [this] { add(AnnotationKind::kLine); });
  connect(mUi->addPolygonButton, &QPushButton::clicked, this,
          [this] { add(AnnotationKind::kPolygon); });
  connect(mUi->removeButton, &QPushButton::clicked, this, &AnnotationsDialog::removeItem);
  connect(mUi->upButton, &QPushButton::clicked, this, &AnnotationsDialog::moveUp);
  connect(mUi->addPointButton, &QPushButton::clicked, this, &AnnotationsDialog::addPoint);
  connect(mUi->removePointButton, &QPushButton::clicked, this, &AnnotationsDialog::removePoint);
  connect(mUi->itemsTable, &QTableWidget::cellChanged, this, &AnnotationsDialog::takeText);
  connect(mUi->itemsTable, &QTableWidget::currentCellChanged, this, [this] {
    if (!mShowing) showPoints();
  });
  connect(mUi->pointsTable, &QTableWidget::cellChanged, this, &AnnotationsDialog::takePoint);
  showItems();
  mUi->itemsTable->setCurrentCell(0, kText);
  mUi->itemsTable->setFocus();
}

AnnotationsDialog::~AnnotationsDialog() = default;

int AnnotationsDialog::current() const {
  return mUi->itemsTable->currentRow();
}

Annotation* AnnotationsDialog::currentItem() {
  const int row = current();
  const bool there = row >= 0 && row < static_cast<int>(mItems.size());
  return there ? &mItems[static_cast<std::size_t>(row)] : nullptr;
}

void AnnotationsDialog::showItems() {
  {
    const QScopedValueRollback<bool> showing(mShowing, true);
    const int row = current();
    mUi->itemsTable->setRowCount(0);
    mUi->itemsTable->setRowCount(static_cast<int>(mItems.size()));
    for (int i = 0; i < static_cast<int>(mItems.size()); ++i) showItem(i);
    walkCells(*mUi->itemsTable);
    mUi->itemsTable->setCurrentCell(std::min(std::max(row, 0), mUi->itemsTable->rowCount() - 1),
                                    kText);
  }
  showPoints();
}

void AnnotationsDialog::showItem(int row) {
  QTableWidget& table = *mUi->itemsTable;
  const Annotation& item = mItems[static_cast<std::size_t>(row)];
  const auto at = [this, row]() -> Annotation& { return mItems[static_cast<std::size_t>(row)]; };
  table.setItem(row, kKind, fixedCell(textOf(nameOf(item.kind))));
  table.setItem(row, kText, new QTableWidgetItem(QString::fromStdString(item.text)));
  auto* color = new ColorField(item.color);
  connect(color, &ColorField::changed, this, [this, at, color] {
    at().color = color->color();
    changed();
  });
  table.setCellWidget(row, kColor, color);
  if (item.kind == AnnotationKind::kPolygon) {
    auto* pattern = new QComboBox;
    pattern->setAccessibleName(tr("Pattern"));
    for (const Lithology each : kLithologies) pattern->addItem(textOf(nameOf(each)));
    pattern->setCurrentIndex(static_cast<int>(item.pattern));
    connect(pattern, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, at, color](int index) {
              // Who has chosen a colour keeps it.
              const bool usual = at().color == colorOf(at().pattern);
              at().pattern = kLithologies[static_cast<std::size_t>(index)];
              if (usual) at().color = colorOf(at().pattern);
              color->setColor(at().color);
              changed();
            });
    table.setCellWidget(row, kPattern, pattern);
  } else {
    table.setItem(row, kPattern, fixedCell({}));
  }
  const auto number = [this, at](QDoubleSpinBox* field, double Annotation::*what) {
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, at, what](double value) {
              at().*what = value;
              changed();
            });
    return field;
  };
  if (item.kind == AnnotationKind::kText) {
    table.setItem(row, kWidth, fixedCell({}));
  } else {
    table.setCellWidget(
        row, kWidth,
        number(numberField(Annotations::kThinnest, Annotations::kThickest, item.width, tr("Width")),
               &Annotation::width));
  }
  table.setCellWidget(row, kSize,
                      number(numberField(Annotations::kSmallestText, Annotations::kLargestText,
                                         item.textSize, tr("Text size")),
                             &Annotation::textSize));
}

void AnnotationsDialog::showPoints() {
  {
    const QScopedValueRollback<bool> showing(mShowing, true);
    QTableWidget& table = *mUi->pointsTable;
    const int row = table.currentRow();
    const Annotation* item = currentItem();
    const int count = item == nullptr ? 0 : static_cast<int>(item->points.size());
    table.setRowCount(count);
    for (int i = 0; i < count; ++i) {
      const Point2D& p = item->points[static_cast<std::size_t>(i)];
      table.setItem(i, 0, new QTableWidgetItem(shownText(p.x)));
      table.setItem(i, 1, new QTableWidgetItem(shownText(p.z)));
    }
    if (count > 0) table.setCurrentCell(std::min(std::max(row, 0), count - 1), 0);
  }
  changed();
}

void AnnotationsDialog::takeText(int row, int column) {
  if (mShowing || column != kText) return;
  mItems[static_cast<std::size_t>(row)].text =
      mUi->itemsTable->item(row, column)->text().trimmed().toStdString();
  changed();
}

void AnnotationsDialog::takePoint(int row, int column) {
  Annotation* item = currentItem();
  if (mShowing || item == nullptr) return;
  Point2D& p = item->points[static_cast<std::size_t>(row)];
  double& coordinate = column == 0 ? p.x : p.z;
  const QString text = mUi->pointsTable->item(row, column)->text();
  const std::optional<double> typed = lengthFrom(text);
  if (typed && text != shownText(coordinate)) coordinate = *typed;
  // What is no number goes back to what was there.
  const QScopedValueRollback<bool> showing(mShowing, true);
  mUi->pointsTable->item(row, column)->setText(shownText(coordinate));
  changed();
}

void AnnotationsDialog::begin(const Annotation& item) {
  mItems.push_back(item);
  showItems();
  const int last = static_cast<int>(mItems.size()) - 1;
  mUi->itemsTable->setCurrentCell(last, kText);
  mUi->itemsTable->editItem(mUi->itemsTable->item(last, kText));
}

void AnnotationsDialog::add(AnnotationKind kind) {
  Annotation item;
  item.kind = kind;
  item.points = {mMiddle};
  if (kind == AnnotationKind::kLine) {
    item.points = {{mMiddle.x - mReach.x, mMiddle.z}, {mMiddle.x + mReach.x, mMiddle.z}};
  } else if (kind == AnnotationKind::kPolygon) {
    item.pattern = Lithology::kSand;
    item.color = colorOf(item.pattern);
    item.points = {{mMiddle.x - mReach.x, mMiddle.z + mReach.z},
                   {mMiddle.x + mReach.x, mMiddle.z + mReach.z},
                   {mMiddle.x + mReach.x, mMiddle.z - mReach.z},
                   {mMiddle.x - mReach.x, mMiddle.z - mReach.z}};
  }
  begin(item);
}

void AnnotationsDialog::removeItem() {
  if (currentItem() == nullptr) return;
  mItems.erase(mItems.begin() + current());
  showItems();
}

void AnnotationsDialog::moveUp() {
  const int row = current();
  if (row < 1) return;
  std::swap(mItems[static_cast<std::size_t>(row)], mItems[static_cast<std::size_t>(row - 1)]);
  mUi->itemsTable->setCurrentCell(row - 1, kText);
  showItems();
}

void AnnotationsDialog::addPoint() {
  Annotation* item = currentItem();
  if (item == nullptr || item->points.empty()) return;
  const auto row = static_cast<std::size_t>(std::max(mUi->pointsTable->currentRow(), 0));
  const Point2D& here = item->points[row];
  const Point2D& next = item->points[(row + 1) % item->points.size()];
  const Point2D between{0.5 * (here.x + next.x), 0.5 * (here.z + next.z)};
  item->points.insert(item->points.begin() + static_cast<std::ptrdiff_t>(row) + 1, between);
  showPoints();
  mUi->pointsTable->setCurrentCell(static_cast<int>(row) + 1, 0);
}

void AnnotationsDialog::removePoint() {
  Annotation* item = currentItem();
  const int row = mUi->pointsTable->currentRow();
  if (item == nullptr || row < 0) return;
  item->points.erase(item->points.begin() + row);
  showPoints();
}

/// Says what cannot be yet, and what can be done.
void AnnotationsDialog::changed() {
  Annotations all;
  all.items = mItems;
  const Message fault = faultOf(all);
  mUi->messageLabel->setStyleSheet(fault.empty() ? QString() : warningStyle(*this));
  mUi->messageLabel->setText(fault.empty() ? tr("Annotations: %1.").arg(mItems.size())
                                           : textOf(fault));
  const Annotation* item = currentItem();
  const bool hasPoints = item != nullptr && item->kind != AnnotationKind::kText;
  mUi->removeButton->setEnabled(item != nullptr);
  mUi->upButton->setEnabled(current() > 0);
  mUi->addPointButton->setEnabled(hasPoints);
  mUi->removePointButton->setEnabled(hasPoints && item->points.size() > fewestPoints(item->kind));
}

void AnnotationsDialog::accept() {
  for (std::size_t i = 0; i < mItems.size(); ++i) {
    if (faultOf(mItems[i]).empty()) continue;
    mUi->itemsTable->setCurrentCell(static_cast<int>(i), kText);
    mUi->itemsTable->setFocus();
    return;
  }
  Annotations all;
  all.items = mItems;
  if (faultOf(all).empty()) QDialog::accept();
}

void AnnotationsDialog::reject() {
  if (mItems != mBefore) {
    const auto answer = QMessageBox::question(this, windowTitle(), tr("Discard what was changed?"),
                                              QMessageBox::Discard | QMessageBox::Cancel);
    if (answer != QMessageBox::Discard) return;
  }
  QDialog::reject();
}

}  // namespace talvesk
