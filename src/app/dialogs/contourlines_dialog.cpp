#include "app/dialogs/contourlines_dialog.h"

#include "app/FileFolders.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/NumberText.h"
#include "app/TableTexts.h"
#include "app/dialogs/ParameterField.h"
#include "app/dialogs/SelectCSVDelimiterDialog.h"
#include "io/GeometryFile.h"
#include "io/IsovalueFile.h"
#include "ui_contourlines_dialog.h"
#include "view/ContourLines.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <optional>

namespace talvesk {
namespace {

constexpr const char* kValue = "isovalue";  ///< property of a field: the value that it shows

/// Digits of a value in feet, which has as many as one likes.
constexpr int kDigits = 7;

QString isovalueFilter() {
  return contourlines_dialog::tr("Isolines (*.csv)");
}

}  // namespace

contourlines_dialog::contourlines_dialog(const ContourSettings& settings, SectionQuantity shown,
                                         ValueRange range, FileFolders& folders, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::contourlines_dialog>()),
      mList(contourList(shown)),
      mQuantity(contouredQuantity(shown)),
      mUnit(shownUnit(quantityUnit(mQuantity))),
      mRange(range),
      mFolders(folders),
      mAtFirst(settings) {
  mUi->setupUi(this);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  showRange(shown);
  // The look of a fault must be legible on light and on dark windows.
  mUi->faultLabel->setStyleSheet(warningStyle(*this));
  mUi->rowsLayout->setAlignment(Qt::AlignTop);
  setUpField(*mUi->spinBox, parameters::kContours);
  setUpField(*mUi->every_N_contour_lines_spinBox, parameters::kLabelEvery);
  setUpField(*mUi->fontSize, parameters::kLabelSize);
  connectControls();
  fillIn(settings);
  mAtFirst = this->settings();
}

contourlines_dialog::~contourlines_dialog() = default;

void contourlines_dialog::connectControls() {
  connect(mUi->equallySpacedCB, &QCheckBox::clicked, this,
          &contourlines_dialog::enable_add_number_of_values);
  connect(mUi->customizedCB, &QCheckBox::clicked, this,
          &contourlines_dialog::enable_add_more_values);
  connect(mUi->filledContours, &QCheckBox::clicked, this,
          &contourlines_dialog::enable_filled_contours);
  connect(mUi->add_button, &QPushButton::clicked, this, &contourlines_dialog::add_value);
  connect(mUi->save_button, &QPushButton::clicked, this, &contourlines_dialog::saveIsovalues);
  connect(mUi->load_button, &QPushButton::clicked, this, &contourlines_dialog::loadIsovalues);
  connect(mUi->remove_all_button, &QPushButton::clicked, this, &contourlines_dialog::removeAll);
  connect(mUi->round_button, &QPushButton::clicked, this, [this] {
    removeAll();
    for (const double value :
         shownRoundValues(mRange, kMostRoundContours, quantityUnit(mQuantity))) {
      addRow(value);
    }
    check();
  });
  for (QCheckBox* each : {mUi->profileContours, mUi->filledContours, mUi->gradientContours,
                          mUi->laplacianGradientContours}) {
    connect(each, &QCheckBox::toggled, this, &contourlines_dialog::showWhetherAny);
  }
  connect(mUi->toolColorButton, &QToolButton::clicked, this, &contourlines_dialog::chooseColor);
}

void contourlines_dialog::showRange(SectionQuantity shown) {
  const QString text = shown == mQuantity
                           ? tr("The section shows values from %1 to %2 %3")
                           : tr("What the section shows has no contours. Those of the velocity "
                                "lie between %1 and %2 %3");
  mUi->rangeLabel->setText(
      text.arg(limitText(mRange.min), limitText(mRange.max), QString::fromStdString(mUnit.name)));
  const QString inFile =
      tr("; the file has them in %1").arg(QString::fromStdString(quantityUnit(mQuantity)));
  for (QPushButton* button : {mUi->load_button, mUi->save_button}) {
    button->setToolTip(button->toolTip() + inFile);
  }
}

void contourlines_dialog::fillIn(const ContourSettings& settings) {
  mUi->spinBox->setValue(settings.numberOfValues);
  mUi->every_N_contour_lines_spinBox->setValue(settings.labelEvery);
  mUi->fontSize->setValue(settings.labelSize);
  mUi->profileContours->setChecked(settings.onProfile);
  mUi->filledContours->setChecked(settings.filled);
  mUi->laplacianGradientContours->setChecked(settings.onLaplacian);
  mUi->gradientContours->setChecked(settings.onVerticalGradient);
  mColor = QColor::fromRgbF(settings.color.r, settings.color.g, settings.color.b);
  showColor();
  for (const double value : settings.*mList) addRow(value);
  enable_filled_contours();
  showWhetherAny();
  chooseCustomized(settings.customized);
}

ContourSettings contourlines_dialog::settings() const {
  ContourSettings chosen = mAtFirst;
  chosen.customized = mUi->customizedCB->isChecked();
  chosen.numberOfValues = mUi->spinBox->value();
  // A list that is not in use stays whole: the range may be another one when it is.
  chosen.*mList = chosen.customized ? values() : sortedNumbers();
  chosen.labelEvery = mUi->every_N_contour_lines_spinBox->value();
  chosen.labelSize = mUi->fontSize->value();
  chosen.color = {mColor.redF(), mColor.greenF(), mColor.blueF()};
  chosen.onProfile = mUi->profileContours->isChecked();
  chosen.filled = mUi->filledContours->isChecked();
  chosen.onLaplacian = mUi->laplacianGradientContours->isChecked();
  chosen.onVerticalGradient = mUi->gradientContours->isChecked();
  return chosen;
}

// One of the two is always on: to switch one off is to switch the other on.
void contourlines_dialog::enable_add_number_of_values(bool enabled) {
  chooseCustomized(!enabled);
}

void contourlines_dialog::enable_add_more_values(bool enabled) {
  chooseCustomized(enabled);
}

void contourlines_dialog::chooseCustomized(bool customized) {
  mUi->equallySpacedCB->setChecked(!customized);
  mUi->customizedCB->setChecked(customized);
  mUi->spinBox->setEnabled(!customized);
  mUi->spinBoxLabel->setEnabled(!customized);
  for (QWidget* each :
       {static_cast<QWidget*>(mUi->scrollArea), static_cast<QWidget*>(mUi->add_button),
        static_cast<QWidget*>(mUi->round_button), static_cast<QWidget*>(mUi->load_button)}) {
    each->setEnabled(customized);
  }
  check();
}

// Filled contours fill the velocity section: its values are none of the other two quantities'.
void contourlines_dialog::enable_filled_contours() {
  const bool filled = mUi->filledContours->isChecked();
  for (QCheckBox* other : {mUi->laplacianGradientContours, mUi->gradientContours}) {
    if (filled) other->setChecked(false);
    other->setEnabled(!filled);
  }
}

void contourlines_dialog::showWhetherAny() {
  mUi->noneLabel->setText(showsAnyContours(settings())
                              ? QString()
                              : tr("None of these is checked: no contours will be drawn."));
}

void contourlines_dialog::add_value() {
  addRow(std::nullopt);
  check();
  editors().back()->setFocus();
}

/// With an exponent where the value is very large or small.
QString contourlines_dialog::shownText(double value) const {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  if (mUnit.factor != 1.0) return locale.toString(mUnit.shown(value), 'g', kDigits);
  return locale.toString(value, 'g', QLocale::FloatingPointShortest);
}

QString contourlines_dialog::limitText(double value) const {
  return QLocale().toString(mUnit.shown(value), 'g', 6);
}

/// The value of a number in the unit shown; a limit that is typed as it is told is the limit.
double contourlines_dialog::valueOf(double shown) const {
  if (mUnit.factor == 1.0) return shown;
  for (const double limit : {mRange.min, mRange.max}) {
    if (QLocale().toDouble(limitText(limit)) == shown) return limit;
  }
  return QString::number(shown / mUnit.factor, 'g', 15).toDouble();
}

/// What a field has: as it was given, or what was typed.
std::optional<double> contourlines_dialog::valueOf(const QLineEdit& edit) const {
  const QVariant given = edit.property(kValue);
  if (given.isValid() && edit.text() == shownText(given.toDouble())) return given.toDouble();
  const std::optional<double> typed = numberFrom(edit.text());
  return typed ? std::make_optional(valueOf(*typed)) : std::nullopt;
}

void contourlines_dialog::addRow(std::optional<double> value) {
  auto* row = new QWidget;
  auto* edit = new QLineEdit(value ? shownText(*value) : QString());
  if (value) edit->setProperty(kValue, *value);
  auto* label = new QLabel(tr("Value : "));
  label->setBuddy(edit);
  auto* remove = new QToolButton;
  remove->setText(QStringLiteral("\u00D7"));
  remove->setToolTip(tr("Remove this value"));
  remove->setAccessibleName(remove->toolTip());
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(label);
  line->addWidget(edit, 1);
  line->addWidget(remove);
  mUi->rowsLayout->addWidget(row);
  connect(edit, &QLineEdit::textChanged, this, &contourlines_dialog::check);
  connect(remove, &QToolButton::clicked, this, [this, row] { removeRow(row); });
}

void contourlines_dialog::removeRow(QWidget* row) {
  mUi->rowsLayout->removeWidget(row);
  row->hide();
  row->deleteLater();  // its own button calls
  check();
}

void contourlines_dialog::removeAll() {
  while (QLayoutItem* item = mUi->rowsLayout->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  check();
}

std::vector<QLineEdit*> contourlines_dialog::editors() const {
  std::vector<QLineEdit*> found;
  for (int i = 0; i < mUi->rowsLayout->count(); ++i) {
    found.push_back(mUi->rowsLayout->itemAt(i)->widget()->findChild<QLineEdit*>());
  }
  return found;
}

bool contourlines_dialog::isInRange(const QLineEdit& edit) const {
  const std::optional<double> value = valueOf(edit);
  return value && mRange.contains(*value);
}

std::vector<double> contourlines_dialog::sortedNumbers() const {
  std::vector<double> found;
  for (const QLineEdit* edit : editors()) {
    if (const auto value = valueOf(*edit)) found.push_back(*value);
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

std::vector<double> contourlines_dialog::values() const {
  std::vector<double> found = sortedNumbers();
  found.erase(std::remove_if(found.begin(), found.end(),
                             [this](double value) { return !mRange.contains(value); }),
              found.end());
  return found;
}

/// Marks what cannot be used; empty lines are no values and do no harm.
void contourlines_dialog::check() {
  int wrong = 0;
  for (QLineEdit* edit : editors()) {
    const bool fine = edit->text().trimmed().isEmpty() || isInRange(*edit);
    const QString style = fine ? QString() : warningStyle(*this);
    if (edit->styleSheet() != style) edit->setStyleSheet(style);
    wrong += fine ? 0 : 1;
  }
  const bool customized = mUi->customizedCB->isChecked();
  mUi->faultLabel->setText(
      !customized || wrong == 0
          ? QString()
          : tr("%n value(s) of the list are no numbers from %1 to %2.", nullptr, wrong)
                .arg(limitText(mRange.min), limitText(mRange.max)));
  mUi->save_button->setEnabled(customized && wrong == 0 && !values().empty());
  mUi->remove_all_button->setEnabled(customized && mUi->rowsLayout->count() > 0);
  mUi->add_button->setEnabled(customized &&
                              mUi->rowsLayout->count() < static_cast<int>(kMostIsovalues));
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!customized || wrong == 0);
}

void contourlines_dialog::saveIsovalues() {
  const QString typed =
      QFileDialog::getSaveFileName(this, tr("Save Isovalues"), mFolders.toSave(), isovalueFilter());
  if (typed.isEmpty()) return;
  mFolders.saved(typed);
  const QString file = QString::fromStdString(withIsovalueSuffix(typed.toStdString()));
  // The file dialog has asked about the name as it was typed.
  if (file != typed && QFileInfo::exists(file) &&
      !askYesNo(this, tr("Save Isovalues"), tr("Replace the file?"), file, false)) {
    return;
  }
  const auto separator = SelectCSVDelimiterDialog::ask(this);
  if (!separator) return;
  const Status saved = writeIsovalues(file.toStdString(), *separator, values());
  if (!saved.ok()) {
    showError(this, tr("Error"), tr("Cannot save file ") + file, textOf(saved.text()));
  }
}

void contourlines_dialog::loadIsovalues() {
  const QString typed =
      QFileDialog::getOpenFileName(this, tr("Save Isovalues"), mFolders.toOpen(), isovalueFilter());
  if (typed.isEmpty()) return;
  mFolders.opened(typed);
  const std::string file = withIsovalueSuffix(typed.toStdString());
  std::string text;
  if (const Status opened = readIsovalueText(file, text); !opened.ok()) {
    return showError(this, tr("Error"), tr("Cannot open file ") + QString::fromStdString(file),
                     textOf(opened.text()));
  }
  const auto separator = SelectCSVDelimiterDialog::ask(this, lookAtGeometryFile(file).separator);
  if (!separator) return;
  const IsovalueRead read = parseIsovalues(text, file, *separator);
  if (read.invalidLine > 0) {
    showError(this, tr("Error"),
              tr("Invalid value at line ") + QString::number(read.invalidLine) + QLatin1Char('\n') +
                  tr("Or wrong CVS separator."));
  } else if (!read.status.ok()) {
    showError(this, tr("Error"), textOf(read.status.text()));
  }
  // A file that gave nothing, as with the wrong separator, does not cost the list.
  if (!read.status.ok() && read.values.empty()) return;
  if (read.remarks.skippedHeading) {
    showNote(this, tr("Load Isovalues"), headingText(read.remarks));
  }
  takeLoaded(read.values);
}

void contourlines_dialog::takeLoaded(const std::vector<double>& loaded) {
  removeAll();
  bool outside = false;
  for (const double value : loaded) {
    if (mRange.contains(value)) {
      addRow(value);
    } else {
      outside = true;
    }
  }
  check();
  if (outside) {
    showWarning(this, tr("Warning"), tr("Some loaded isovalues were out of range. Ignored."));
  }
}

void contourlines_dialog::chooseColor() {
  const QColor chosen = QColorDialog::getColor(mColor, this, tr("Select background color"));
  if (!chosen.isValid()) return;
  mColor = chosen;
  showColor();
}

void contourlines_dialog::showColor() {
  QPixmap patch(48, 16);
  patch.fill(mColor);
  mUi->toolColorButton->setIconSize(patch.size());
  mUi->toolColorButton->setIcon(patch);
}

}  // namespace talvesk
