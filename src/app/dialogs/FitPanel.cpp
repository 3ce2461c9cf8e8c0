#include "app/dialogs/FitPanel.h"

#include "app/InversionTexts.h"
#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/ParameterField.h"
#include "model/ChiSquare.h"
#include "model/KnownGround.h"
#include "model/Residuals.h"
#include "tomo/fitted/SurveyFit.h"
#include "ui_FitPanel.h"
#include "widgets/SeriesPlot.h"

#include <QEvent>
#include <QHeaderView>
#include <QLocale>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace talvesk {

/// A line of the table of models.
struct FitPanel::Row {
  QString name;
  QString chi2;
  QString description;
  std::string key;  ///< empty: cannot be chosen
};

namespace {

constexpr int kTyping = 350;  // milliseconds that somebody may take for the next digit
constexpr double kMilliseconds = 1000.0;
constexpr int kSliderSteps = 100;
constexpr double kSliderLeast = 0.05;  // ms
constexpr double kSliderMost = 20.0;
constexpr int kMostFitIterations = 1000;
constexpr int kPointAlpha = 110;

enum Column { kName, kChi2, kDescription };

// By equal factors, as errors are thought of.
double errorOfSlider(int step) {
  return kSliderLeast * std::pow(kSliderMost / kSliderLeast, step / double{kSliderSteps});
}

int sliderOf(double error) {
  const double share = std::log(error / kSliderLeast) / std::log(kSliderMost / kSliderLeast);
  return static_cast<int>(std::lround(kSliderSteps * std::clamp(share, 0.0, 1.0)));
}

QString threeDigits(double value) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return value < 1000.0 ? locale.toString(value, 'g', 3)
                        : locale.toString(std::round(value), 'f', 0);
}

/// Times over offset of all picks. \param times seconds, in the order of the picks
std::vector<Point2D> overOffset(const FitData& data, const std::vector<double>& times) {
  std::vector<Point2D> points;
  for (const FitShot& shot : data.shots) {
    for (std::size_t k = 0; k < shot.receivers.size(); ++k) {
      const std::size_t i = shot.firstPick + k;
      if (i >= times.size()) return points;
      points.push_back({std::fabs(shot.receivers[k] - shot.source), kMilliseconds * times[i]});
    }
  }
  return points;
}

std::vector<double> measuredTimes(const FitData& data) {
  std::vector<double> times;
  for (const FitPick& pick : data.picks) times.push_back(pick.time);
  return times;
}

/// One series of single points: gaps keep them from being joined.
std::vector<Point2D> apart(const std::vector<Point2D>& points) {
  std::vector<Point2D> result;
  for (const Point2D& point : points) {
    result.push_back(point);
    result.push_back({std::nan(""), std::nan("")});
  }
  return result;
}

QColor colorOf(ReferenceKind kind) {
  switch (kind) {
    case ReferenceKind::kGradient:
      return {0x1f, 0x77, 0xb4};
    case ReferenceKind::kTwoLayers:
      return {0xd6, 0x45, 0x2b};
    case ReferenceKind::kThreeLayers:
      return {0x2c, 0x9a, 0x4b};
    case ReferenceKind::kOverburdenGradient:
      return {0x94, 0x67, 0xbd};
    default:
      return {0xc0, 0x80, 0x10};
  }
}

}  // namespace

FitPanel::FitPanel(QWidget* parent) : QWidget(parent), mUi(std::make_unique<Ui::FitPanel>()) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  setUpFields();
  mUi->referencesTable->verticalHeader()->hide();
  mUi->referencesTable->horizontalHeader()->setStretchLastSection(true);
  mUi->modelsPlot->setTexts({}, inShownUnits(tr("Distance from the shot (m)")), tr("Time (ms)"));
  mWait.setSingleShot(true);
  mWait.setInterval(kTyping);
  connectAll();
  fillTable();
}

FitPanel::~FitPanel() = default;

void FitPanel::setUpFields() {
  setUpField(*mUi->floorEdit, parameters::kErrorFloor);
  setUpField(*mUi->shareEdit, parameters::kErrorShare);
  mUi->floorSlider->setRange(0, kSliderSteps);
  mUi->floorSlider->setValue(sliderOf(mUi->floorEdit->value()));
  const FittedOptions usual;
  setUpField(*mUi->fitMinVelEdit, parameters::kMinVelocity);
  setUpField(*mUi->fitMaxVelEdit, parameters::kMaxVelocity);
  mUi->fitMinVelEdit->setVelocity(usual.minVelocity);
  mUi->fitMaxVelEdit->setVelocity(usual.maxVelocity);
  mUi->fitIterationsEdit->setRange(1, kMostFitIterations);
  mUi->fitIterationsEdit->setValue(usual.mostIterations);
  mUi->triggerEdit->setRange(0.1, kMilliseconds);
  mUi->triggerEdit->setValue(kMilliseconds * usual.triggerError);
  mUi->triggerEdit->setEnabled(false);
}

void FitPanel::connectAll() {
  connect(mUi->floorSlider, &QSlider::valueChanged, this,
          [this](int step) { mUi->floorEdit->setValue(errorOfSlider(step)); });
  const auto changesErrors = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
  connect(mUi->floorEdit, changesErrors, this, [this](double value) {
    // Several steps of the slider are one number of the field: it stays where it was put.
    const double rounding = 0.51 * std::pow(10.0, -mUi->floorEdit->decimals());
    if (std::fabs(errorOfSlider(mUi->floorSlider->value()) - value) <= rounding) return;
    const QSignalBlocker quiet(mUi->floorSlider);
    mUi->floorSlider->setValue(sliderOf(value));
  });
  for (QDoubleSpinBox* box : {mUi->floorEdit, mUi->shareEdit}) {
    connect(box, changesErrors, this, [this] {
      showErrors();
      makeModelsSoon();
    });
  }
  for (VelocityBox* box : {mUi->fitMinVelEdit, mUi->fitMaxVelEdit}) {
    connect(box, &VelocityBox::velocityChanged, this, [this] {
      makeModelsSoon();
      emit changed();
    });
  }
  connect(mUi->staticsBox, &QCheckBox::toggled, mUi->triggerEdit, &QWidget::setEnabled);
  connect(mUi->referencesTable, &QTableWidget::itemSelectionChanged, this,
          [this] { drawCurves(); });
  connect(&mWait, &QTimer::timeout, this, [this] { makeModels(); });
  connect(&mMaker, &BackgroundReferences::finished, this, [this] { takeModels(); });
}

void FitPanel::setDocument(const TomoDocument& document, std::vector<GivenModel> given) {
  mDocument = document;
  mGiven = std::move(given);
  const bool known = !document.known->empty();
  mUi->knownBox->setEnabled(known);
  mUi->knownBox->setChecked(known);
  mReferences = {};
  mBegun = false;
  showErrors();
}

FittedSettings FitPanel::settings() const {
  FittedSettings settings;
  settings.errors.floor = mUi->floorEdit->value() / kMilliseconds;
  settings.errors.share = mUi->shareEdit->value() / 100.0;
  settings.fit.minVelocity = mUi->fitMinVelEdit->velocity();
  settings.fit.maxVelocity = mUi->fitMaxVelEdit->velocity();
  settings.fit.mostIterations = mUi->fitIterationsEdit->value();
  settings.fit.robust = mUi->robustBox->isChecked();
  settings.fit.blocky = mUi->blockyBox->isChecked();
  settings.fit.statics = mUi->staticsBox->isChecked();
  settings.fit.triggerError = mUi->triggerEdit->value() / kMilliseconds;
  settings.holdKnown = mUi->knownBox->isChecked();
  settings.singleThread = mUi->fitSingleThreadBox->isChecked();
  settings.reference = chosen();
  settings.given = mGiven;
  return settings;
}

bool FitPanel::limitsCross() const {
  return mUi->fitMinVelEdit->velocity() >= mUi->fitMaxVelEdit->velocity();
}

bool FitPanel::modelsKnown() const {
  return mBegun && !mWait.isActive() && !mMaker.running() && !mReferences.models.empty();
}

/// What the errors mean: how many picks they are for, and how the section that there is fits by
/// them.
void FitPanel::showErrors() {
  std::size_t own = 0;
  std::size_t picks = 0;
  for (const TravelTime& record : mDocument.ttArray) {
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      if (!hasPick(record.ttMisurati[i])) continue;
      ++picks;
      if (record.errorOf(i) > 0.0) ++own;
    }
  }
  QString text = tr("%1 of %2 picks state an error of their own.").arg(own).arg(picks);
  const ChiSquare fit = chiSquareOf(mDocument, sectionResidualsOf(mDocument), settings().errors);
  if (fit.count > 0) {
    text += QLatin1Char(' ') + tr("By these errors the present section has chi-square %1, with %2 "
                                  "suspect picks left out.")
                                   .arg(threeDigits(fit.chi2))
                                   .arg(fit.suspects.size());
  }
  mUi->errorsMeanLabel->setText(text);
}

void FitPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!mBegun) makeModels();
}

void FitPanel::makeModelsSoon() {
  if (!mBegun) return;
  mUi->busyLabel->setText(tr("The models are being made and traced..."));
  mWait.start();
}

void FitPanel::makeModels() {
  mBegun = true;
  mWait.stop();
  mMaker.stop();
  if (limitsCross()) {
    mUi->busyLabel->clear();
    return;
  }
  mUi->busyLabel->setText(tr("The models are being made and traced..."));
  mMaker.start(mDocument, settings());
}

void FitPanel::takeModels() {
  mReferences = mMaker.references().value_or(References());
  mUi->busyLabel->setText(mMaker.status().ok() ? QString() : textOf(mMaker.status().text()));
  fillTable();
  emit modelsMade();
}

std::vector<FitPanel::Row> FitPanel::rows() const {
  Row best{referenceText(kBestReference), {}, {}, kBestReference};
  if (!mReferences.models.empty()) {
    best.description = textOf(talvesk::find(mReferences, kBestReference)->name);
  }
  std::vector<Row> rows = {best};
  for (const ReferenceModel& model : mReferences.models) {
    rows.push_back({textOf(model.name), threeDigits(model.fit.chi2), textOf(model.description),
                    keyOf(model.kind)});
  }
  for (const Message& refused : mReferences.refused) {
    rows.push_back({tr("Not supported"), {}, textOf(refused), {}});
  }
  return rows;
}

/// What was chosen stays chosen as long as it is there.
void FitPanel::fillTable() {
  const std::string before = chosen();
  const std::vector<Row> all = rows();
  QTableWidget& table = *mUi->referencesTable;
  const QSignalBlocker quiet(&table);
  table.setRowCount(static_cast<int>(all.size()));
  int current = 0;
  for (int row = 0; row < table.rowCount(); ++row) {
    const Row& each = all[static_cast<std::size_t>(row)];
    const std::array<QString, 3> texts = {each.name, each.chi2, each.description};
    for (int column = kName; column <= kDescription; ++column) {
      auto* item = new QTableWidgetItem(texts[static_cast<std::size_t>(column)]);
      item->setToolTip(item->text());
      if (column == kChi2) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      if (each.key.empty()) item->setFlags(Qt::NoItemFlags);
      table.setItem(row, column, item);
    }
    table.item(row, kName)->setData(Qt::UserRole, QString::fromStdString(each.key));
    if (!each.key.empty() && each.key == before) current = row;
  }
  table.selectRow(current);
  table.resizeColumnToContents(kName);
  table.resizeColumnToContents(kChi2);
  table.resizeRowsToContents();
  drawCurves();
}

std::string FitPanel::chosen() const {
  const auto selected = mUi->referencesTable->selectionModel()->selectedRows(kName);
  const QString key =
      selected.isEmpty() ? QString() : selected.front().data(Qt::UserRole).toString();
  return key.isEmpty() ? kBestReference : key.toStdString();
}

/// The key of the model that is chosen, with the best by its name.
std::string FitPanel::drawn() const {
  const ReferenceModel* model = talvesk::find(mReferences, chosen());
  return model == nullptr ? std::string() : keyOf(model->kind);
}

void FitPanel::drawCurves() {
  if (mReferences.models.empty()) {
    mUi->modelsPlot->setSeries({});
    return;
  }
  const FitData picks = picksToFit(mDocument, settings().errors);
  QColor ink = palette().color(QPalette::Text);
  ink.setAlpha(kPointAlpha);
  std::vector<PlotSeries> series = {
      {tr("Picks"), apart(overOffset(picks, measuredTimes(picks))), ink, 0.0, false, true}};
  const std::string key = drawn();
  for (const ReferenceModel& model : mReferences.models) {
    const bool taken = key == keyOf(model.kind);
    PlotSeries curve{textOf(model.name), {}, colorOf(model.kind), taken ? 3.0 : 1.2, !taken, false};
    for (std::size_t i = 0; i < model.curve.offsets.size(); ++i) {
      curve.points.push_back({model.curve.offsets[i], kMilliseconds * model.curve.times[i]});
    }
    if (curve.points.empty()) {  // its ground has no curve of its own: what rays through it take
      if (!taken) continue;
      curve.points = apart(overOffset(picks, model.fit.times));
      curve.symbols = true;
      curve.width = 0.0;
    }
    series.push_back(std::move(curve));
  }
  mUi->modelsPlot->setSeries(std::move(series));
}

void FitPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) drawCurves();
}

}  // namespace talvesk
