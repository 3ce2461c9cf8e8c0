#include "app/dialogs/PaletteDialog.h"

#include "app/FileFolders.h"
#include "app/LengthText.h"
#include "app/LineIcon.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/ParameterField.h"
#include "base/LengthUnit.h"
#include "figures/ToldLength.h"
#include "io/PaletteFile.h"
#include "ui_PaletteDialog.h"
#include "view/PaletteRepair.h"
#include "view/SectionScene.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr QSize kIconSize{96, 14};

QString paletteFilter() {
  return PaletteDialog::tr("Talvesk Palette (*.xml)");
}

/// The colours as the section shows them, in their steps.
QIcon iconOf(const ColorPalette& palette, qreal scale) {
  const ColorTable table(palette);
  QPixmap pixmap(kIconSize * scale);
  QPainter painter(&pixmap);
  const int width = pixmap.width();
  for (int x = 0; x < width; ++x) {
    const RgbColor& color = table[static_cast<int>((x + 0.5) / width * table.size())];
    painter.fillRect(x, 0, 1, pixmap.height(), QColor::fromRgbF(color.r, color.g, color.b));
  }
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, width - 1, pixmap.height() - 1);
  painter.end();
  pixmap.setDevicePixelRatio(scale);
  return QIcon(pixmap);
}

std::string freeName(const ColorPaletteList& palettes, const std::string& wanted) {
  std::string name = wanted;
  for (int number = 2; palettes.find(name) != nullptr; ++number) {
    name = wanted + " (" + std::to_string(number) + ")";
  }
  return name;
}

}  // namespace

PaletteDialog::PaletteDialog(ColorPaletteList& palettes, bool lockRange,
                             std::optional<ValueRange> dataRange, FileFolders& folders,
                             QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::PaletteDialog>()),
      mPalettes(palettes),
      mBefore(palettes),
      mLockedBefore(lockRange),
      mFolders(folders),
      mDataRange(dataRange) {
  mUi->setupUi(this);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  mUi->loadButton->setIcon(lineIcon(QStringLiteral(":/icons/open-folder-with-document.png")));
  mUi->saveButton->setIcon(lineIcon(QStringLiteral(":/icons/save-file-option.png")));
  mUi->paletteCBox->setIconSize(kIconSize);
  setUpField(*mUi->colorsSpinBox, parameters::kColors);
  mUi->colorsSpinBox->setKeyboardTracking(false);
  mUi->lockRangeCB->setChecked(lockRange);
  mUi->dataRangeButton->setEnabled(dataRange.has_value());
  connectControls();
  refreshChooser();
}

PaletteDialog::~PaletteDialog() = default;

void PaletteDialog::connectControls() {
  const std::pair<QAbstractButton*, void (PaletteDialog::*)()> commands[] = {
      {mUi->loadButton, &PaletteDialog::load_palette},
      {mUi->saveButton, &PaletteDialog::save_palette},
      {mUi->editButton, &PaletteDialog::edit_palette},
      {mUi->createButton, &PaletteDialog::create_palette},
      {mUi->renameButton, &PaletteDialog::rename_palette},
      {mUi->deleteButton, &PaletteDialog::delete_palette},
      {mUi->dataRangeButton, &PaletteDialog::takeDataRange}};
  for (const auto& [button, command] : commands) {
    connect(button, &QAbstractButton::clicked, this, command);
  }
  connect(mUi->paletteCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &PaletteDialog::updatePaletteInfoFromSelection);
  connect(mUi->colorsSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
          &PaletteDialog::changeColors);
  ColorPaletteWidget* editor = mUi->paletteEditor;
  connect(editor, &ColorPaletteWidget::modified, this, &PaletteDialog::update_modified_palette);
  connect(editor, &ColorPaletteWidget::changed_min_value, this, [this](int value) {
    mPalettes.current().min_db = metresTyped(value);
    refreshInformation();
    emit changed_min_value(qRound(mPalettes.current().min_db));
  });
  connect(editor, &ColorPaletteWidget::changed_max_value, this, [this](int value) {
    mPalettes.current().max_db = metresTyped(value);
    refreshInformation();
    emit changed_max_value(qRound(mPalettes.current().max_db));
  });
}

bool PaletteDialog::lockRange() const {
  return mUi->lockRangeCB->isChecked();
}

bool PaletteDialog::hasChanges() const {
  return lockRange() != mLockedBefore || !(mPalettes == mBefore);
}

void PaletteDialog::refreshChooser() {
  const QSignalBlocker quiet(mUi->paletteCBox);
  mUi->paletteCBox->clear();
  for (const ColorPalette& palette : mPalettes.palettes()) {
    mUi->paletteCBox->addItem(iconOf(palette, devicePixelRatioF()),
                              QString::fromStdString(palette.name));
  }
  mUi->paletteCBox->setCurrentIndex(static_cast<int>(mPalettes.currentIndex()));
  refreshCurrent();
}

void PaletteDialog::refreshCurrent() {
  const ColorPalette& palette = mPalettes.current();
  ColorPalette shown = palette;
  // Of feet the editor would cut what is behind the point.
  shown.min_db = toldVelocity(palette.min_db);
  shown.max_db = toldVelocity(palette.max_db);
  mUi->paletteEditor->setColorPalette(shown);
  const QSignalBlocker quiet(mUi->colorsSpinBox);
  mUi->colorsSpinBox->setValue(palette.n_colors);
  mUi->renameButton->setEnabled(palette.is_editable);
  mUi->deleteButton->setEnabled(palette.is_editable);
  refreshInformation();
}

void PaletteDialog::refreshInformation() {
  const ColorPalette& palette = mPalettes.current();
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  mUi->infoLabel->setText(tr("MIN: %1, MAX: %2")
                              .arg(locale.toString(toldVelocity(palette.min_db), 'g', 10),
                                   locale.toString(toldVelocity(palette.max_db), 'g', 10)));
}

void PaletteDialog::refreshIcon() {
  mUi->paletteCBox->setItemIcon(static_cast<int>(mPalettes.currentIndex()),
                                iconOf(mPalettes.current(), devicePixelRatioF()));
}

void PaletteDialog::updatePaletteInfoFromSelection(int index) {
  const ValueRange before{mPalettes.current().min_db, mPalettes.current().max_db};
  if (index < 0 || !mPalettes.select(static_cast<std::size_t>(index))) return;
  if (lockRange()) {
    mPalettes.current().min_db = before.min;
    mPalettes.current().max_db = before.max;
  }
  refreshCurrent();
  emit modified();
}

void PaletteDialog::update_modified_palette() {
  mPalettes.current().color_gradient = mUi->paletteEditor->gradient();
  refreshIcon();
  emit modified();
}

void PaletteDialog::changeColors(int count) {
  mPalettes.current().n_colors = count;
  refreshIcon();
  emit modified();
}

void PaletteDialog::takeDataRange() {
  if (!mDataRange) return;
  const ValueRange range = niceRange({shownLength(mDataRange->min), shownLength(mDataRange->max)});
  const auto whole = [](double value) {
    return static_cast<int>(std::clamp(value, -kLargestPaletteValue, kLargestPaletteValue));
  };
  const int low = whole(std::floor(range.min));
  mUi->paletteEditor->setScale(low, std::max(whole(std::ceil(range.max)), low + 1));
}

void PaletteDialog::add(ColorPalette palette) {
  palette.name = freeName(mPalettes, palette.name);
  palette.is_editable = true;
  mPalettes.select(mPalettes.add(std::move(palette)));
  refreshChooser();
  emit modified();
}

void PaletteDialog::create_palette() {
  constexpr int kBlackToWhite = 0;
  ColorPalette palette = mPalettes.current();
  palette.name = tr("New palette").toStdString();
  palette.color_gradient.clear();
  buildGradient(palette.color_gradient, kBlackToWhite);
  add(std::move(palette));
}

void PaletteDialog::edit_palette() {
  if (!mPalettes.current().is_editable) {
    ColorPalette copy = mPalettes.current();
    copy.name = tr("%1 - copy").arg(QString::fromStdString(copy.name)).toStdString();
    add(std::move(copy));
  }
  mUi->paletteEditor->handleTrack()->setFocus();
}

void PaletteDialog::rename_palette() {
  const ColorPalette& palette = mPalettes.current();
  bool accepted = false;
  const QString name =
      QInputDialog::getText(this, tr("Rename Palette"), tr("Save new palette as : "),
                            QLineEdit::Normal, QString::fromStdString(palette.name), &accepted)
          .trimmed();
  if (!accepted || name.isEmpty() || name.toStdString() == palette.name) return;
  if (mPalettes.find(name.toStdString()) != nullptr) {
    return showError(this, tr("Rename Palette"), tr("There is a palette of this name already."),
                     name);
  }
  if (name.toStdString().size() > kMostPaletteNameBytes) {
    return showError(this, tr("Rename Palette"), tr("This name is too long."));
  }
  mPalettes.rename(mPalettes.currentIndex(), name.toStdString());
  refreshChooser();
}

void PaletteDialog::delete_palette() {
  if (!mPalettes.remove(mPalettes.currentIndex())) return;
  refreshChooser();
  emit modified();
}

void PaletteDialog::save_palette() {
  QString file =
      QFileDialog::getSaveFileName(this, tr("Save Palette"), mFolders.toSave(), paletteFilter());
  if (file.isEmpty()) return;
  mFolders.saved(file);
  if (!file.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
    file += QLatin1String(".xml");
    // The file dialog has asked about the name as it was typed.
    if (QFileInfo::exists(file) &&
        !askYesNo(this, tr("Save Palette"), tr("Replace the file?"), file, false)) {
      return;
    }
  }
  const Status saved = savePalette(file.toStdString(), mPalettes.current());
  if (!saved.ok()) {
    showError(this, tr("Save Palette"), tr("Error while saving palette."), textOf(saved.text()));
  }
}

void PaletteDialog::load_palette() {
  const QStringList files =
      QFileDialog::getOpenFileNames(this, tr("Open Palette"), mFolders.toOpen(), paletteFilter());
  if (!files.isEmpty()) mFolders.opened(files.front());
  QStringList failures;
  for (const QString& file : files) {
    ColorPalette palette;
    const Status loaded = loadPalette(file.toStdString(), palette);
    if (loaded.ok()) {
      add(std::move(palette));
    } else {
      failures << textOf(loaded.text());
    }
  }
  if (!failures.isEmpty()) {
    showError(this, tr("Open Palette"), tr("Error while loading palette."), shortList(failures));
  }
}

void PaletteDialog::reject() {
  mPalettes = mBefore;
  emit modified();
  QDialog::reject();
}

}  // namespace talvesk
