#include "app/dialogs/CompareLayersDialog.h"

#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/WaitCursor.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "figures/SectionFigure.h"
#include "model/Parameters.h"
#include "ui_CompareLayersDialog.h"
#include "view/ComparisonLines.h"

#include <QHeaderView>
#include <QScreen>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;

/// Entries of the choice of signs, in its order.
enum SignEntry { kVelocity, kGradient };

QString length(const std::optional<double>& value, const QString& unknown) {
  return value ? lengthNumber(*value, 2) : unknown;
}

}  // namespace

CompareLayersDialog::CompareLayersDialog(const TomoDocument& document,
                                         const refractionDataStructure::processingData& results,
                                         const SectionFigureOptions& look, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::CompareLayersDialog>()),
      mDocument(document),
      mResults(results),
      mLook(look),
      mSheet(new FigureSheetWidget) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mUi->table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  mSheet->setObjectName(QStringLiteral("sheet"));
  mSheet->putInto(*mUi->sheetArea);
  mUi->velocityEdit->setRange(static_cast<int>(parameters::kLayerVelocity.limits.least),
                              static_cast<int>(parameters::kLayerVelocity.limits.most));
  const Status status = LayeredProfile::read(mResults, mProfile);
  for (std::size_t i = 0; status.ok() && i < mProfile.refractors(); ++i) {
    mUi->refractorCombo->addItem(tr("Layer %1").arg(i + 2));
  }
  connect(mUi->refractorCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &CompareLayersDialog::chooseRefractor);
  connect(mUi->signCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &CompareLayersDialog::show);
  connect(mUi->velocityEdit, &VelocityBox::velocityChanged, this, &CompareLayersDialog::show);
  connect(mUi->pictureButton, &QPushButton::clicked, this, [this] { pictureWanted(picture()); });
  connect(mUi->tableButton, &QPushButton::clicked, this, [this] { tableWanted(mComparison); });
  chooseRefractor();
}

CompareLayersDialog::~CompareLayersDialog() = default;

/// Begins with the velocity between the layers above and below.
void CompareLayersDialog::chooseRefractor() {
  const int refractor = mUi->refractorCombo->currentIndex();
  if (refractor >= 0) {
    const QSignalBlocker quiet(mUi->velocityEdit);
    mUi->velocityEdit->setVelocity(mProfile.middleVelocity(static_cast<std::size_t>(refractor)));
  }
  show();
}

void CompareLayersDialog::show() {
  RefractorSign sign;
  const bool byVelocity = mUi->signCombo->currentIndex() == kVelocity;
  if (byVelocity) sign.velocity = mUi->velocityEdit->velocity();
  mUi->velocityEdit->setEnabled(byVelocity);
  const auto refractor = static_cast<std::size_t>(std::max(mUi->refractorCombo->currentIndex(), 0));
  mComparison = {};
  const Status status = whileWaiting(
      [&] { return compareRefractor(mDocument, mResults, refractor, sign, mComparison); });
  mUi->pictureButton->setEnabled(status.ok());
  mUi->tableButton->setEnabled(status.ok());
  showTable();
  if (!status.ok()) {
    mUi->figuresLabel->setText(textOf(status.text()));
    return mSheet->setNothing(textOf(status.text()));
  }
  mUi->figuresLabel->setText(figures());
  mSheet->setFigure([this](double widthMm, FigureDrawing& drawing) {
    SectionFigureOptions shown = picture();
    shown.widthMm = widthMm;
    return prepareSectionFigure(mDocument, shown, drawing);
  });
}

SectionFigureOptions CompareLayersDialog::picture() const {
  SectionFigureOptions shown = mLook;
  shown.scene.refractors =
      comparisonLines(mComparison, textOf(layersLineName(mComparison)).toStdString(),
                      textOf(sectionLineName(mComparison)).toStdString());
  return shown;
}

void CompareLayersDialog::showTable() {
  const QString unknown = tr("not known");
  mUi->table->setRowCount(static_cast<int>(mComparison.points.size()));
  for (std::size_t i = 0; i < mComparison.points.size(); ++i) {
    const ComparedDepth& point = mComparison.points[i];
    const QStringList cells = {length(point.x, unknown), length(point.layers, unknown),
                               length(point.section, unknown),
                               length(point.difference(), QString())};
    for (int column = 0; column < cells.size(); ++column) {
      auto* cell = new QTableWidgetItem(cells[column]);
      cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      mUi->table->setItem(static_cast<int>(i), column, cell);
    }
  }
  mUi->table->resizeColumnsToContents();
}

QString CompareLayersDialog::figures() const {
  if (mComparison.count == 0) {
    return tr("No geophone has both depths. Another velocity may be reached below the line.");
  }
  QString text = tr("Section less layers: %1 on average, RMS %2, at %3 of %4 geophones.")
                     .arg(lengthWithUnit(mComparison.mean, 2), lengthWithUnit(mComparison.rms, 2))
                     .arg(mComparison.count)
                     .arg(mComparison.points.size());
  if (mComparison.count < mComparison.points.size()) {
    text += QLatin1Char(' ') + tr("The others lack a depth.");
  }
  return text;
}

}  // namespace talvesk
