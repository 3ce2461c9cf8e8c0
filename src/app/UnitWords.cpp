#include "app/UnitWords.h"

#include "app/LengthText.h"
#include "app/dialogs/LengthBox.h"
#include "base/LengthUnit.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTableWidget>

namespace talvesk {
namespace {

template <typename Header>
void showUnitsOf(QTableWidget& table, int count, Header header) {
  for (int i = 0; i < count; ++i) {
    if (QTableWidgetItem* item = (table.*header)(i)) item->setText(inShownUnits(item->text()));
  }
}

void showUnitsOf(QWidget& widget) {
  widget.setToolTip(inShownUnits(widget.toolTip()));
  widget.setAccessibleName(inShownUnits(widget.accessibleName()));
  widget.setAccessibleDescription(inShownUnits(widget.accessibleDescription()));
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    if (!label->text().isEmpty()) label->setText(inShownUnits(label->text()));
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(inShownUnits(button->text()));
  } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
    group->setTitle(inShownUnits(group->title()));
  } else if (auto* table = qobject_cast<QTableWidget*>(&widget)) {
    showUnitsOf(*table, table->columnCount(), &QTableWidget::horizontalHeaderItem);
    showUnitsOf(*table, table->rowCount(), &QTableWidget::verticalHeaderItem);
  } else if (auto* length = dynamic_cast<LengthBox*>(&widget)) {
    length->followUnit();
  } else if (auto* velocity = dynamic_cast<VelocityBox*>(&widget)) {
    velocity->followUnit();
  }
}

}  // namespace

QString inShownUnits(QString text) {
  static const QRegularExpression unit(QStringLiteral("([(\\[])(?:m|ft)((?:/s)?[)\\]])"));
  return text.replace(unit, QStringLiteral("\\1%1\\2").arg(QLatin1String(lengthUnitName())));
}

QString inShownVelocities(QString text) {
  if (lengthUnit() == LengthUnit::kMetre) return text;
  static const QRegularExpression velocity(QStringLiteral("\\b(\\d+) m/s"));
  for (QRegularExpressionMatch match = velocity.match(text); match.hasMatch();
       match = velocity.match(text)) {
    text.replace(match.capturedStart(), match.capturedLength(),
                 velocityWithUnit(match.captured(1).toDouble(), 0));
  }
  return text;
}

void showUnits(QWidget& form) {
  showUnitsOf(form);
  for (QWidget* child : form.findChildren<QWidget*>()) showUnitsOf(*child);
}

}  // namespace talvesk
