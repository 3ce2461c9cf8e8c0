#include "app/dialogs/ImagesDialog.h"

#include "app/MessageText.h"
#include "figures/FigureOutput.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "ui_ImagesDialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kMostPixels = 60000.0;
const QString kGroup = QStringLiteral("images");

/// A box for something that is not there is off and cannot be put on.
void offer(QCheckBox* box, bool possible) {
  box->setEnabled(possible);
  if (!possible) box->setChecked(false);
}

}  // namespace

ImagesDialog::ImagesDialog(const TomoDocument& document,
                           const refractionDataStructure::Interpretation& interpretation,
                           const ImageSetOptions& look, int shot, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::ImagesDialog>()),
      mDocument(document),
      mInterpretation(interpretation),
      mLook(look),
      mShot(shot) {
  mUi->setupUi(this);
  resize(width(), std::min(height(), screen()->availableGeometry().height() * 9 / 10));
  offerWhatThereIs();
  for (QCheckBox* box : findChildren<QCheckBox*>()) {
    connect(box, &QCheckBox::toggled, this, &ImagesDialog::refresh);
  }
  for (QDoubleSpinBox* edit : {mUi->widthEdit, mUi->heightEdit, mUi->dpiEdit}) {
    connect(edit, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ImagesDialog::refresh);
  }
  for (QLineEdit* edit : {mUi->folderEdit, mUi->nameEdit}) {
    connect(edit, &QLineEdit::textChanged, this, &ImagesDialog::refresh);
  }
  connect(mUi->formatCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &ImagesDialog::refresh);
  connect(mUi->unitCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &ImagesDialog::changeUnit);
  connect(mUi->browseButton, &QPushButton::clicked, this, &ImagesDialog::browse);
  connect(mUi->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
  refresh();
}

ImagesDialog::~ImagesDialog() = default;

void ImagesDialog::offerWhatThereIs() {
  const auto& sets = mDocument.recordings->traceSets;
  const bool section = mDocument.model->grid != nullptr;
  offer(mUi->currentGatherBox, mShot >= 0 && static_cast<std::size_t>(mShot) < sets.size());
  offer(mUi->allGathersBox, !sets.empty());
  offer(mUi->filteredBox, std::any_of(sets.begin(), sets.end(), hasFilteredCopy));
  offer(mUi->mannerBox, !sets.empty() && !mLook.gatherManner.plain());
  mUi->mannerBox->setChecked(mUi->mannerBox->isEnabled());
  offer(mUi->velocityBox, section);
  for (QCheckBox* box : {mUi->gradientBox, mUi->laplacianBox, mUi->cellsBox, mUi->smoothBox}) {
    offer(box, section);
  }
  offer(mUi->densityBox, section && mDocument.result->has_tomographic_info);
  offer(mUi->residualsBox, sectionMisfitOf(mDocument).count > 0);
  offer(mUi->refractionBox, !mInterpretation.refractData.cData.empty());
  mUi->smoothBox->setChecked(section && mLook.view.smooth);
  mUi->cellsBox->setChecked(section && !mLook.view.smooth);
}

void ImagesDialog::setFolder(const QString& folder) {
  mUi->folderEdit->setText(folder);
}

QString ImagesDialog::folder() const {
  return mUi->folderEdit->text();
}

void ImagesDialog::setBaseName(const QString& name) {
  mUi->nameEdit->setText(name);
}

double ImagesDialog::millimetres(double value) const {
  return mInPixels ? value / mUi->dpiEdit->value() * kMmPerInch : value;
}

ImageSetOptions ImagesDialog::options() const {
  ImageSetOptions options = mLook;
  options.gathers = mUi->currentGatherBox->isChecked() || mUi->allGathersBox->isChecked();
  if (!mUi->allGathersBox->isChecked() && mShot >= 0) {
    options.shot = static_cast<std::size_t>(mShot);
  }
  options.filtered = mUi->filteredBox->isChecked();
  if (!mUi->mannerBox->isChecked()) options.gatherManner = {};
  options.travelTimes = mUi->travelTimesBox->isChecked();
  const std::pair<const QCheckBox*, SectionQuantity> quantities[] = {
      {mUi->velocityBox, SectionQuantity::kVelocity},
      {mUi->gradientBox, SectionQuantity::kVerticalGradient},
      {mUi->laplacianBox, SectionQuantity::kLaplacian},
      {mUi->densityBox, SectionQuantity::kInformationDensity}};
  for (const auto& [box, quantity] : quantities) {
    if (box->isChecked()) options.quantities.push_back(quantity);
  }
  options.section = !options.quantities.empty();
  options.cells = mUi->cellsBox->isChecked();
  options.smooth = mUi->smoothBox->isChecked();
  options.residuals = mUi->residualsBox->isChecked();
  options.refraction = mUi->refractionBox->isChecked();
  constexpr FigureFormat kFormats[] = {FigureFormat::kPng, FigureFormat::kSvg, FigureFormat::kPdf};
  options.format = kFormats[std::max(mUi->formatCBox->currentIndex(), 0)];
  options.widthMm = millimetres(mUi->widthEdit->value());
  options.heightMm = mUi->ownHeightBox->isChecked() ? 0.0 : millimetres(mUi->heightEdit->value());
  options.dpi = mUi->dpiEdit->value();
  options.folder = mUi->folderEdit->text().toStdString();
  options.baseName = mUi->nameEdit->text().trimmed().toStdString();
  return options;
}

std::vector<PlannedImage> ImagesDialog::images() const {
  return planImages(mDocument, &mInterpretation, options());
}

void ImagesDialog::changeUnit() {
  const bool pixels = mUi->unitCBox->currentIndex() == 1;
  if (pixels == mInPixels) return;
  const double perMm = mUi->dpiEdit->value() / kMmPerInch;
  const double factor = pixels ? perMm : 1.0 / perMm;
  mInPixels = pixels;
  for (QDoubleSpinBox* edit : {mUi->widthEdit, mUi->heightEdit}) {
    const double value = edit->value() * factor;
    edit->setRange(FigureSheet::kMinMm, pixels ? kMostPixels : FigureSheet::kMaxMm);
    edit->setValue(value);
  }
  refresh();
}

void ImagesDialog::browse() {
  const QString chosen =
      QFileDialog::getExistingDirectory(this, tr("Folder of the pictures"), folder());
  if (!chosen.isEmpty()) setFolder(chosen);
}

QString ImagesDialog::problemWith(const std::vector<PlannedImage>& images) const {
  if (images.empty()) return tr("Nothing to write is chosen.");
  const QFileInfo place(folder());
  if (folder().isEmpty() || !place.isDir()) return tr("There is no such folder.");
  if (!place.isWritable()) return tr("The folder is not writable.");
  if (mUi->nameEdit->text().contains(QLatin1Char('/'))) {
    return tr("A name cannot hold a slash.");
  }
  const ImageSetOptions chosen = options();
  FigureSheet sheet;
  sheet.widthMm = chosen.widthMm;
  sheet.heightMm = chosen.heightMm > 0.0 ? chosen.heightMm : FigureSheet::kMinMm;
  sheet.dpi = chosen.dpi;
  return textOf(sheet.check(chosen.format).text());
}

void ImagesDialog::refresh() {
  mUi->heightEdit->setEnabled(!mUi->ownHeightBox->isChecked());
  const std::vector<PlannedImage> planned = images();
  mUi->filesList->clear();
  for (const PlannedImage& image : planned) {
    const QFileInfo file(QString::fromStdString(image.path));
    mUi->filesList->addItem(file.exists() ? tr("%1 (exists)").arg(file.fileName())
                                          : file.fileName());
  }
  const QString problem = problemWith(planned);
  mUi->problemLabel->setText(problem);
  mUi->buttonBox->button(QDialogButtonBox::Save)->setEnabled(problem.isEmpty());
}

void ImagesDialog::remember(QSettings& settings) const {
  settings.beginGroup(kGroup);
  settings.setValue(QStringLiteral("format"), mUi->formatCBox->currentIndex());
  settings.setValue(QStringLiteral("pixels"), mInPixels);
  settings.setValue(QStringLiteral("dpi"), mUi->dpiEdit->value());
  settings.setValue(QStringLiteral("width"), mUi->widthEdit->value());
  settings.setValue(QStringLiteral("height"), mUi->heightEdit->value());
  settings.setValue(QStringLiteral("ownHeight"), mUi->ownHeightBox->isChecked());
  settings.endGroup();
}

void ImagesDialog::recall(const QSettings& settings) {
  const auto value = [&settings](const char* name, const QVariant& fallback) {
    return settings.value(kGroup + QLatin1Char('/') + QLatin1String(name), fallback);
  };
  mUi->dpiEdit->setValue(value("dpi", mUi->dpiEdit->value()).toDouble());
  mUi->unitCBox->setCurrentIndex(value("pixels", false).toBool() ? 1 : 0);
  mUi->formatCBox->setCurrentIndex(std::clamp(value("format", 0).toInt(), 0, 2));
  mUi->widthEdit->setValue(value("width", mUi->widthEdit->value()).toDouble());
  mUi->heightEdit->setValue(value("height", mUi->heightEdit->value()).toDouble());
  mUi->ownHeightBox->setChecked(value("ownHeight", true).toBool());
}

}  // namespace talvesk
