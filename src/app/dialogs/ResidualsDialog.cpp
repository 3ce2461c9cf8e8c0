#include "app/dialogs/ResidualsDialog.h"

#include "app/InversionTexts.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/RunTexts.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "model/KeptRuns.h"
#include "model/TomographyOutcome.h"
#include "ui_ResidualsDialog.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QStringList>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;
constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

std::vector<Point2D> medians(const std::vector<ResidualSpread>& spreads) {
  std::vector<Point2D> points;
  for (const ResidualSpread& own : spreads) points.push_back({own.at, own.median});
  return points;
}

}  // namespace

ResidualsDialog::ResidualsDialog(QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::ResidualsDialog>()),
      mSheet(new FigureSheetWidget()) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  setModal(false);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mSheet->setObjectName(QStringLiteral("sheet"));
  mSheet->putInto(*mUi->sheetArea);
  mUi->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  mUi->map->setTexts(
      [this](const MatrixView::Place& place) { return cellText(place.row, place.column); });
  mUi->offsetPlot->setTexts(
      [this](std::size_t pick) { return residualText(mTable, pick, QLocale()); });
  mUi->shotsPlot->setTexts(
      [this](std::size_t i) { return spreadText(tr("Shot %1").arg(mShots[i].at), mShots[i]); });
  mUi->geophonesPlot->setTexts([this](std::size_t i) {
    return spreadText(tr("Geophone at %1").arg(lengthWithUnit(mGeophones[i].at, 1)), mGeophones[i]);
  });
  mUi->shotsPlot->setWholeNumbers();
  connectAll();
  showSurvey({}, {});
}

ResidualsDialog::~ResidualsDialog() = default;

void ResidualsDialog::connectAll() {
  const auto changed = QOverload<int>::of(&QComboBox::currentIndexChanged);
  connect(mUi->unitBox, changed, this, &ResidualsDialog::showViews);
  connect(mUi->shotBox, changed, this, &ResidualsDialog::showViews);
  connect(mUi->viewsTabs, &QTabWidget::currentChanged, this, &ResidualsDialog::showSection);
  connect(mUi->map, &MatrixView::currentChanged, this, [this] {
    const MatrixView::Place place = *mUi->map->currentPlace();
    setCurrent(mTable.pickAt(place.row, place.column));
    mUi->pickLabel->setText(cellText(place.row, place.column));
  });
  connect(mUi->map, &MatrixView::placeChosen, this,
          [this](const MatrixView::Place& place) { goTo(mTable.pickAt(place.row, place.column)); });
  connect(mUi->offsetPlot, &PointPlot::currentChanged, this,
          [this] { setCurrent(*mUi->offsetPlot->current()); });
  connect(mUi->offsetPlot, &PointPlot::pointChosen, this, &ResidualsDialog::goTo);
  for (const bool shots : {true, false}) {
    PointPlot* plot = shots ? mUi->shotsPlot : mUi->geophonesPlot;
    const std::vector<ResidualSpread>* spreads = shots ? &mShots : &mGeophones;
    connect(plot, &PointPlot::currentChanged, this,
            [this, plot, spreads] { setCurrent((*spreads)[*plot->current()].worst); });
    connect(plot, &PointPlot::pointChosen, this,
            [this, spreads](std::size_t i) { goTo((*spreads)[i].worst); });
  }
  connect(mUi->traceButton, &QPushButton::clicked, this, [this] { goTo(mCurrent); });
  connect(mUi->copyButton, &QPushButton::clicked, this, &ResidualsDialog::copyPicture);
  connect(mUi->pictureButton, &QPushButton::clicked, this, &ResidualsDialog::pictureWanted);
  connect(mUi->tableButton, &QPushButton::clicked, this, &ResidualsDialog::tableWanted);
}

ResidualView ResidualsDialog::view() const {
  return static_cast<ResidualView>(std::max(mUi->viewsTabs->currentIndex(), 0));
}

ResidualLook ResidualsDialog::look() const {
  ResidualLook look;
  if (mUi->unitBox->currentIndex() == 1) look.unit = ResidualUnit::kErrors;
  const int shot = mUi->shotBox->currentIndex() - 1;
  if (shot >= 0) look.shot = static_cast<std::size_t>(shot);
  return look;
}

ResidualLook ResidualsDialog::screenLook() const {
  ResidualLook screen = look();
  screen.onDark = MatrixInk::of(palette()).onDark;
  screen.numbers = QLocale();
  return screen;
}

void ResidualsDialog::showSurvey(const TomoDocument& document,
                                 const SectionFigureOptions& section) {
  const bool had = mCurrent != ResidualTable::kNone;
  const PickResidual before = had ? mTable.picks[mCurrent] : PickResidual();
  mDocument = document;
  mSection = section;
  mTable = residualTableOf(mDocument);
  mCurrent = had ? mTable.pickOf(before.record, before.receiver) : ResidualTable::kNone;
  fillShots();
  showHead();
  showViews();
}

void ResidualsDialog::offerWhereEmpty(const QList<QAction*>& commands) {
  for (PlotPage* plot :
       std::initializer_list<PlotPage*>{mUi->offsetPlot, mUi->shotsPlot, mUi->geophonesPlot}) {
    plot->setEmptyCommands(commands);
  }
}

void ResidualsDialog::fillShots() {
  const QSignalBlocker quiet(mUi->shotBox);
  const int before = mUi->shotBox->currentIndex();
  mUi->shotBox->clear();
  mUi->shotBox->addItem(tr("none"));
  for (std::size_t i = 1; i <= mTable.rows.size(); ++i) mUi->shotBox->addItem(QString::number(i));
  mUi->shotBox->setCurrentIndex(before < mUi->shotBox->count() ? std::max(before, 0) : 0);
}

QString ResidualsDialog::emptyText() {
  return tr("There is no section yet whose times could be looked at.");
}

/// Whose residuals these are.
void ResidualsDialog::showHead() {
  QStringList head;
  if (mTable.picks.empty()) {
    head << emptyText();
  } else {
    if (const auto run = shownRun(mDocument)) {
      const KeptRun& shown = mDocument.runs[*run];
      head << tr("Section of \"%1\": %2.").arg(runTitle(shown), runMethod(shown));
    }
    head << sectionMisfitText(mDocument);
    std::size_t suspects = 0;
    for (const PickResidual& pick : mTable.picks) suspects += pick.suspect ? 1 : 0;
    head << tr("Picks: %1, suspect: %2.").arg(mTable.picks.size()).arg(suspects);
    if (mDocument.result->smoothedResult) head << tr("The section was smoothed afterwards.");
    if (mTable.shifted) head << tr("Time shifts of shots that the fit has found are counted.");
    if (mTable.picksChanged) {
      head << tr("Picks have changed since the section was found: it was fitted to others.");
    }
  }
  mUi->headLabel->setText(head.join(QLatin1Char(' ')));
}

void ResidualsDialog::showViews() {
  const ResidualLook look = screenLook();
  mUi->map->setPicture(residualMatrix(mTable, look));
  mUi->offsetPlot->PlotPage::setTexts({}, inShownUnits(tr("Offset [m]")), residualAxis(look.unit));
  mUi->offsetPlot->setEmptyText(emptyText());
  mUi->offsetPlot->setSeries(offsetSeries(mTable, look));
  std::vector<Point2D> points;
  for (const PickResidual& pick : mTable.picks) {
    points.push_back({std::isfinite(pick.offset) ? pick.offset : kNowhere, pick.value(look.unit)});
  }
  mUi->offsetPlot->setPoints(std::move(points));
  showGroups(look);
  showSection();
  for (QPushButton* button : {mUi->copyButton, mUi->pictureButton, mUi->tableButton}) {
    button->setEnabled(!mTable.picks.empty());
  }
  setCurrent(mCurrent);
}

void ResidualsDialog::showGroups(const ResidualLook& look) {
  mShots = spreadOfShots(mTable, look.unit);
  mGeophones = spreadOfGeophones(mTable, look.unit);
  // These are too low for more.
  const QString unit =
      look.unit == ResidualUnit::kErrors ? tr("Median [pick errors]") : tr("Median [ms]");
  mUi->shotsPlot->PlotPage::setTexts({}, tr("Shot"), unit);
  mUi->geophonesPlot->PlotPage::setTexts({}, inShownUnits(tr("Geophone at [m]")), unit);
  for (const bool shots : {true, false}) {
    PointPlot& plot = shots ? *mUi->shotsPlot : *mUi->geophonesPlot;
    const std::vector<ResidualSpread>& spreads = shots ? mShots : mGeophones;
    plot.setEmptyText(emptyText());
    plot.setSeries(spreadSeries(spreads, look));
    plot.setPoints(medians(spreads));
  }
}

/// Tracing every ray through its cells takes a while: only when it is looked at.
void ResidualsDialog::showSection() {
  if (view() != ResidualView::kSection) return;
  if (mTable.picks.empty()) return mSheet->setNothing(emptyText());
  mSheet->setFigure([this](double widthMm, FigureDrawing& drawing) {
    SectionFigureOptions sheet = mSection;
    sheet.widthMm = widthMm;
    sheet.heightMm = 0.0;
    return prepareResidualFigure(mDocument, mTable, ResidualView::kSection, look(), sheet, drawing);
  });
}

void ResidualsDialog::setCurrent(std::size_t pick) {
  mCurrent = pick;
  const bool known = pick != ResidualTable::kNone;
  mUi->traceButton->setEnabled(known);
  if (!known) {
    mUi->offsetPlot->setCurrent(std::nullopt);
    mUi->pickLabel->setText(
        mTable.picks.empty() ? QString() : tr("Click a pick, or walk to it with the arrow keys."));
    return;
  }
  const PickResidual& own = mTable.picks[pick];
  mUi->map->setCurrentPlace(MatrixView::Place{mTable.rowOf(own.record), own.column});
  mUi->offsetPlot->setCurrent(pick);
  mUi->pickLabel->setText(residualText(mTable, pick, QLocale()));
}

void ResidualsDialog::goTo(std::size_t pick) {
  if (pick == ResidualTable::kNone) return;
  setCurrent(pick);
  emit pickWanted(static_cast<int>(mTable.picks[pick].record),
                  static_cast<int>(mTable.picks[pick].receiver));
}

QString ResidualsDialog::cellText(std::size_t row, std::size_t column) const {
  const std::size_t pick = mTable.pickAt(row, column);
  if (pick != ResidualTable::kNone) return residualText(mTable, pick, QLocale());
  return tr("Shot %1, geophone at %2: no pick with a computed time")
      .arg(mTable.rows[row].record + 1)
      .arg(lengthWithUnit(mTable.columns[column].x, 1));
}

QString ResidualsDialog::spreadText(const QString& name, const ResidualSpread& spread) const {
  const bool errors = look().unit == ResidualUnit::kErrors;
  const auto number = [&](double value) {
    const QString text = QLocale().toString(value, 'f', 2);
    return errors ? text : tr("%1 ms").arg(text);
  };
  QString text = tr("%1: picks %2, median %3, two of three from %4 to %5")
                     .arg(name)
                     .arg(spread.count)
                     .arg(number(spread.median), number(spread.low), number(spread.high));
  if (spread.standsOut) text += tr("; stands out");
  return text;
}

void ResidualsDialog::copyPicture() {
  FigureDrawing drawing;
  const Status status = prepareResidualFigure(mDocument, mTable, view(), look(), mSection, drawing);
  QByteArray bytes;
  if (!status.ok() || !paintFigure(FigureFormat::kPng, drawing.sheet, drawing.paint, bytes).ok()) {
    mUi->pickLabel->setText(tr("The picture cannot be made."));
    return;
  }
  QGuiApplication::clipboard()->setImage(QImage::fromData(bytes, "PNG"));
}

void ResidualsDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    mUi->retranslateUi(this);
    showUnits(*this);
  }
  if (event->type() == QEvent::PaletteChange) showViews();
  QDialog::changeEvent(event);
}

}  // namespace talvesk
