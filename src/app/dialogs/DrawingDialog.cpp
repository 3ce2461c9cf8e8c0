#include "app/dialogs/DrawingDialog.h"

#include "app/LengthText.h"
#include "base/LengthUnit.h"
#include "ui_DrawingDialog.h"

#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

namespace talvesk {
namespace {

QStringList fieldsOf(const QString& text) {
  static const QRegularExpression kBetween(QStringLiteral("[\\s;]+"));
  return text.split(kBetween, Qt::SkipEmptyParts);
}

}  // namespace

DrawingDialog::DrawingDialog(const Start& start, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::DrawingDialog>()) {
  mUi->setupUi(this);
  mUi->isovaluesUnit->setText(QLatin1String(velocityUnitName()));
  mProposed = start.isovalues;
  QStringList values;
  for (const double value : start.isovalues) values += lengthText(value);
  mUi->isovaluesEdit->setText(values.join(QLatin1Char(' ')));
  mUi->isovaluesEdit->setCursorPosition(0);
  mUi->isovaluesEdit->setEnabled(start.section);
  mUi->sectionButton->setVisible(start.asksPlace);
  mUi->mapButton->setVisible(start.asksPlace);
  mUi->mapButton->setEnabled(start.onMap);
  mUi->mapButton->setChecked(!start.asksPlace);
  QStringList notes;
  if (!start.section) notes += tr("There is no section yet, and so there are no isolines.");
  if (!start.onMap) {
    notes +=
        tr("The line has no place on the map. Set it with Project > Set geographic "
           "coordinates ...");
  }
  if (!start.note.isEmpty()) notes += start.note;
  mUi->noteLabel->setText(notes.join(QLatin1Char('\n')));
  mUi->noteLabel->setVisible(!notes.isEmpty());
  connect(mUi->isovaluesEdit, &QLineEdit::textChanged, this, [this] { check(); });
  check();
}

DrawingDialog::~DrawingDialog() = default;

std::vector<double> DrawingDialog::isovalues() const {
  std::vector<double> values;
  for (const QString& field : fieldsOf(mUi->isovaluesEdit->text())) {
    if (const std::optional<double> value = valueOf(field)) values.push_back(*value);
  }
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  return values;
}

/// One that was proposed comes back to the bit.
std::optional<double> DrawingDialog::valueOf(const QString& field) const {
  for (const double proposed : mProposed) {
    if (field == lengthText(proposed)) return proposed;
  }
  return lengthFrom(field);
}

DrawingPlace DrawingDialog::place() const {
  return mUi->mapButton->isChecked() ? DrawingPlace::kMap : DrawingPlace::kSection;
}

QString DrawingDialog::problem() const {
  for (const QString& field : fieldsOf(mUi->isovaluesEdit->text())) {
    const std::optional<double> value = valueOf(field);
    if (!value || !(*value > 0.0)) return tr("\"%1\" is not a velocity.").arg(field);
  }
  constexpr auto kMost = static_cast<int>(SectionSceneOptions::kMaxContours);
  const auto count = static_cast<int>(isovalues().size());
  return count > kMost ? tr("A section has %1 isovalues at most.").arg(kMost) : QString();
}

void DrawingDialog::check() {
  const QString found = problem();
  mUi->problemLabel->setText(found);
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(found.isEmpty());
}

}  // namespace talvesk
