#include "app/dialogs/ResolutionDialog.h"

#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "app/dialogs/ParameterField.h"
#include "figures/ShownLength.h"
#include "model/GroundModel.h"
#include "model/SurveyFacts.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/CertaintyRun.h"
#include "tomo/fitted/SurveyFit.h"
#include "ui_ResolutionDialog.h"

#include <QLocale>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;
constexpr std::size_t kMostDepthsTold = 8;

Status canBeTested(const TomoDocument& document) {
  if (!hasPicks(document)) {
    return Status::failure(
        Message::tr("There are no picks yet: a resolution test takes their positions and errors."));
  }
  return checkTraceable(document);
}

}  // namespace

ResolutionDialog::ResolutionDialog(const TomoDocument& document, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::ResolutionDialog>()),
      mDocument(document),
      mSheet(new FigureSheetWidget()),
      mReady(canBeTested(document)) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  setUpField(*mUi->sizeField, parameters::kPatternSize);
  setUpField(*mUi->strengthField, parameters::kPatternStrength);
  mUi->patternBox->addItems({tr("Checkerboard"), tr("Spikes"), tr("Layers")});
  mUi->groundBox->addItems({tr("the section"), tr("its mean at each depth")});
  mSheet->setObjectName(QStringLiteral("sheet"));
  mSheet->putInto(*mUi->sheetArea);
  if (mReady.ok()) {
    proposeSize();
    mSheet->setNothing(tr("Start shows here what was put in, what came back and how they agree."));
  } else {
    mSheet->setNothing(textOf(mReady.text()));
  }
  connect(mUi->startButton, &QPushButton::clicked, this, &ResolutionDialog::start);
  connect(mUi->stopButton, &QPushButton::clicked, &mRun, &BackgroundResolution::requestStop);
  connect(mUi->severalBox, &QCheckBox::toggled, this, [this] { enable(mRun.runs()); });
  connect(mUi->shownBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &ResolutionDialog::showTest);
  connect(mUi->tableButton, &QPushButton::clicked, this, [this] {
    if (saveTable) saveTable(mRun.report());
  });
  connect(&mRun, &BackgroundResolution::advanced, this, &ResolutionDialog::showProgress,
          Qt::QueuedConnection);
  connect(&mRun, &BackgroundResolution::finished, this, &ResolutionDialog::end);
  connect(mUi->pictureButton, &QPushButton::clicked, this, [this] {
    const auto& tests = mRun.report().tests;
    const auto shown = static_cast<std::size_t>(mUi->shownBox->currentIndex());
    if (savePicture && shown < tests.size()) {
      savePicture(panelsOf(mDocument, tests[shown], kResolved));
    };
  });
  enable(false);
}

ResolutionDialog::~ResolutionDialog() = default;

/// The middle of the sizes that are worth trying.
void ResolutionDialog::proposeSize() {
  const Grid& grid = *mDocument.model->grid;
  const FitData picks = picksToFit(mDocument, certaintySettings(mDocument).errors);
  const std::vector<double> sizes = sizesToTry(grid.geometry().size(), picks);
  mUi->sizeField->setValue(sizes.empty() ? 4.0 * grid.aLato() : sizes[sizes.size() / 2]);
}

ResolutionRequest ResolutionDialog::request() const {
  const CertaintySettings usual = certaintySettings(mDocument);
  ResolutionRequest request;
  request.errors = usual.errors;
  request.test.fit = usual.ensemble.fit;
  request.test.fit.statics = false;
  request.test.pattern = static_cast<ResolutionPattern>(mUi->patternBox->currentIndex());
  request.test.size = mUi->sizeField->value();
  request.test.strength = mUi->strengthField->value() / 100.0;
  request.trySizes = mUi->severalBox->isChecked();
  request.background = static_cast<ResolutionBackground>(mUi->groundBox->currentIndex());
  return request;
}

void ResolutionDialog::start() {
  mUi->shownBox->clear();
  mUi->smallestLabel->clear();
  mSheet->setNothing(tr("The test is under way."));
  mUi->progressBar->setRange(0, 0);
  mUi->progressLabel->setText(tr("Times are computed through the pattern."));
  mRun.start(mDocument, request());
  enable(true);
}

void ResolutionDialog::showProgress() {
  if (!mRun.runs()) return;
  mUi->progressLabel->setText(
      tr("Size %1: iteration %2.").arg(mRun.tests() + 1).arg(mRun.iterations()));
}

void ResolutionDialog::end() {
  const ResolutionReport& report = mRun.report();
  mUi->progressBar->setRange(0, 1);
  mUi->progressLabel->setText(
      !report.stopped ? QString()
      : report.tests.empty()
          ? tr("Stopped before the first test was completed.")
          : tr("Stopped: %n test(s) completed.", nullptr, static_cast<int>(report.tests.size())));
  mSheet->setNothing(tr("No test was completed."));
  for (const ResolutionResult& test : report.tests) {
    mUi->shownBox->addItem(withLengthUnit(lengthDigits(test.settings.size, 6)));
  }
  mUi->smallestLabel->setText(smallestSizes());
  enable(false);
  if (mClosing) {
    QDialog::reject();
  } else if (!report.status.ok()) {
    showErrors(this, windowTitle(), tr("The resolution test could not be completed."),
               {textOf(report.status.text())});
  }
}

void ResolutionDialog::showTest() {
  const auto shown = static_cast<std::size_t>(mUi->shownBox->currentIndex());
  if (mRun.runs() || shown >= mRun.report().tests.size()) return;
  mSheet->setFigure([this, shown](double widthMm, FigureDrawing& drawing) {
    return prepareResolutionFigure(panelsOf(mDocument, mRun.report().tests[shown], kResolved),
                                   widthMm, drawing);
  });
}

/// "Smallest size resolved: 1 m deep 4 m; 3 m deep 6 m", for as many depths as there is room for.
QString ResolutionDialog::smallestSizes() const {
  const ResolutionReport& report = mRun.report();
  if (report.tests.empty()) return {};
  std::size_t rows = 0;
  for (std::size_t row = 0; row < report.smallest.size(); ++row) {
    for (const ResolutionResult& test : report.tests) {
      if (!std::isnan(test.byDepth[row].correlation)) rows = row + 1;
    }
  }
  QStringList words;
  const std::size_t step = std::max<std::size_t>(1, (rows + kMostDepthsTold - 1) / kMostDepthsTold);
  for (std::size_t row = 0; row < rows; row += step) {
    const QString depth = withLengthUnit(lengthDigits(report.smallest[row].depth, 3));
    const double size = report.smallest[row].size;
    words += std::isnan(size)
                 ? tr("at %1 none").arg(depth)
                 : tr("at %1 depth %2").arg(depth, withLengthUnit(lengthDigits(size, 3)));
  }
  return tr("Smallest size that is resolved (correlation from %1 on): %2.")
      .arg(QLocale().toString(kResolved), words.join(QStringLiteral("; ")));
}

void ResolutionDialog::enable(bool running) {
  const bool ready = mReady.ok() && !running;
  for (QWidget* field :
       {static_cast<QWidget*>(mUi->patternBox), static_cast<QWidget*>(mUi->severalBox),
        static_cast<QWidget*>(mUi->strengthField), static_cast<QWidget*>(mUi->groundBox),
        static_cast<QWidget*>(mUi->startButton)}) {
    field->setEnabled(ready);
  }
  mUi->sizeField->setEnabled(ready && !mUi->severalBox->isChecked());
  mUi->stopButton->setEnabled(running);
  const bool shows = !running && mUi->shownBox->count() > 0;
  mUi->shownBox->setEnabled(shows);
  mUi->pictureButton->setEnabled(shows);
  mUi->tableButton->setEnabled(shows);
}

void ResolutionDialog::reject() {
  if (!mRun.runs()) {
    QDialog::reject();
    return;
  }
  mClosing = true;
  mRun.requestStop();
}

}  // namespace talvesk
