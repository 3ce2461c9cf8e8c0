#include "app/dialogs/ElasticDialog.h"

#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/WaitCursor.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "app/dialogs/ParameterField.h"
#include "base/LengthUnit.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/elastic/ElasticSurveys.h"
#include "refraction/elastic/MatchWaves.h"
#include "ui_ElasticDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QProgressDialog>
#include <QScreen>
#include <QSignalBlocker>
#include <QStringList>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;

/// Entries of their choices, in their order.
enum RolesEntry { kOwnIsP, kOwnIsS };
enum DensityEntry { kOfEachLayer, kGardner };

/// Columns of the table before the quantities.
enum Column { kLayer, kDistance, kTopP, kTopS, kFirstQuantity };

/// Without separated thousands, which no spreadsheet takes for a number.
QString number(double value, int decimals) {
  if (!std::isfinite(value)) return QStringLiteral("-");
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'f', decimals);
}

QString text(const Estimate& own, const ElasticColumn& column, bool withError) {
  const bool velocity =
      column.quantity == ElasticQuantity::kVp || column.quantity == ElasticQuantity::kVs;
  const double factor = velocity ? shownLength(column.factor) : column.factor;
  QString shown = number(factor * own.value, column.decimals);
  if (withError && std::isfinite(own.sigma)) {
    shown += QStringLiteral(" \u00b1 ") + number(factor * own.sigma, column.decimals);
  }
  return shown;
}

}  // namespace

ElasticDialog::ElasticDialog(ElasticSurvey own, ElasticSurvey other, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::ElasticDialog>()), mSheet(new FigureSheetWidget) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mSheet->setObjectName(QStringLiteral("sheet"));
  mSheet->putInto(*mUi->sheetArea);
  mUi->shownSplitter->setSizes({width() * 11 / 20, width() * 9 / 20});
  setUpField(*mUi->shiftEdit, parameters::kShiftOfS);
  setUpField(*mUi->toleranceEdit, parameters::kTopTolerance);
  for (QDoubleSpinBox* field : {mUi->density1Edit, mUi->density2Edit, mUi->density3Edit}) {
    setUpField(*field, parameters::kDensity);
  }
  mOwn.survey = std::move(own);
  connectAll();
  setOther(std::move(other));
}

ElasticDialog::~ElasticDialog() = default;

void ElasticDialog::connectAll() {
  const auto chosen = QOverload<int>::of(&QComboBox::currentIndexChanged);
  const auto typed = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
  connect(mUi->rolesCombo, chosen, this, &ElasticDialog::match);
  connect(mUi->densityCombo, chosen, this, &ElasticDialog::match);
  connect(mUi->layerCombo, chosen, this, &ElasticDialog::show);
  for (QDoubleSpinBox* field :
       std::initializer_list<QDoubleSpinBox*>{mUi->shiftEdit, mUi->toleranceEdit, mUi->density1Edit,
                                              mUi->density2Edit, mUi->density3Edit}) {
    connect(field, typed, this, &ElasticDialog::match);
  }
  connect(mUi->errorsCheck, &QCheckBox::toggled, this, [this] {
    readBoth();
    match();
  });
  connect(mUi->otherButton, &QPushButton::clicked, this, [this] { otherWanted(); });
  connect(mUi->copyButton, &QPushButton::clicked, this, &ElasticDialog::copyTable);
  connect(mUi->tableButton, &QPushButton::clicked, this, [this] { tableWanted(mLine); });
  connect(mUi->pictureButton, &QPushButton::clicked, this,
          [this] { pictureWanted(mLine, picture()); });
  connect(mUi->printButton, &QPushButton::clicked, this, [this] { printWanted(mLine, picture()); });
}

void ElasticDialog::setOther(ElasticSurvey other) {
  mOther.survey = std::move(other);
  readBoth();
  guessRoles();
  match();
}

/// Errors come of hundreds of interpretations; who stops them has none.
void ElasticDialog::readBoth() {
  QProgressDialog progress(tr("Interpreting moved picks ..."), tr("Stop"), 0, 0, this);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(500);
  progress.setWindowTitle(windowTitle());
  const WaitCursor waiting;
  const auto goOn = [&progress] {
    progress.setValue(0);
    return !progress.wasCanceled();
  };
  for (Side* side : {&mOwn, &mOther}) read(*side, goOn);
  const bool stopped = progress.wasCanceled();
  progress.reset();
  if (!stopped) return;
  const QSignalBlocker quiet(mUi->errorsCheck);
  mUi->errorsCheck->setChecked(false);
  for (Side* side : {&mOwn, &mOther}) read(*side, {});
}

void ElasticDialog::read(Side& side, const std::function<bool()>& goOn) const {
  const ElasticSurvey& survey = side.survey;
  const auto& results = survey.interpretation.refractData;
  side.picksChanged = picksChangedSince(survey.document, results);
  BoundsOptions bounds;
  bounds.members = parameters::kBounds.initial;
  side.layers = mUi->errorsCheck->isChecked()
                    ? layeredWave(survey.document, survey.interpretation, bounds, goOn)
                    : layeredWave(results);
}

void ElasticDialog::guessRoles() {
  const QSignalBlocker quiet(mUi->rolesCombo);
  const QString& own = mOwn.survey.name;
  const QString& other = mOther.survey.name;
  mUi->rolesCombo->clear();
  mUi->rolesCombo->addItem(tr("P: %1, S: %2").arg(own, other));
  mUi->rolesCombo->addItem(tr("P: %1, S: %2").arg(other, own));
  const bool exchanged =
      seemExchanged(mOwn.survey.document, mOwn.layers, mOther.survey.document, mOther.layers);
  mUi->rolesCombo->setCurrentIndex(exchanged ? kOwnIsS : kOwnIsP);
}

const ElasticDialog::Side& ElasticDialog::p() const {
  return mUi->rolesCombo->currentIndex() == kOwnIsS ? mOther : mOwn;
}

const ElasticDialog::Side& ElasticDialog::s() const {
  return mUi->rolesCombo->currentIndex() == kOwnIsS ? mOwn : mOther;
}

ElasticOptions ElasticDialog::options() const {
  ElasticOptions options;
  options.density.gardner = mUi->densityCombo->currentIndex() == kGardner;
  options.density.layers = {mUi->density1Edit->value(), mUi->density2Edit->value(),
                            mUi->density3Edit->value()};
  options.shift = mUi->shiftEdit->value();
  options.topTolerance = mUi->toleranceEdit->value();
  return options;
}

void ElasticDialog::match() {
  mLine = {};
  const Status status = matchWaves(p().layers, s().layers, options(), mLine);
  const bool constants = mUi->densityCombo->currentIndex() == kOfEachLayer;
  QDoubleSpinBox* const densities[] = {mUi->density1Edit, mUi->density2Edit, mUi->density3Edit};
  for (std::size_t i = 0; i < std::size(densities); ++i) {
    densities[i]->setEnabled(constants && (!status.ok() || i < mLine.layers.size()));
  }
  for (QPushButton* button :
       {mUi->copyButton, mUi->tableButton, mUi->pictureButton, mUi->printButton}) {
    button->setEnabled(status.ok());
  }
  mUi->notesLabel->setText(notes(status));
  fillLayers();
  show();
  if (!status.ok()) mSheet->setNothing(textOf(status.text()));
}

void ElasticDialog::fillLayers() {
  const QSignalBlocker quiet(mUi->layerCombo);
  const QVariant before = mUi->layerCombo->currentData();
  mUi->layerCombo->clear();
  mUi->layerCombo->addItem(tr("All"), 0U);
  for (const ElasticLayer& layer : mLine.layers) {
    mUi->layerCombo->addItem(tr("Layer %1").arg(layer.layer), layer.layer);
  }
  mUi->layerCombo->setCurrentIndex(std::max(mUi->layerCombo->findData(before), 0));
}

/// What the figures are, and what does not go together.
QString ElasticDialog::notes(const Status& status) const {
  QStringList lines;
  if (!status.ok()) lines << textOf(status.text());
  for (const Side* side : {&p(), &s()}) {
    if (!side->picksChanged) continue;
    lines << tr("Picks of %1 have changed since its layers were built.").arg(side->survey.name);
    if (mUi->errorsCheck->isChecked()) lines.last() += QLatin1Char(' ') + tr("It has no errors.");
  }
  lines << linesOf(compareSurveys(p().survey.document, s().survey.document, options()));
  lines << linesOf(mLine.remarks) << linesOf(elasticSummary(mLine));
  return lines.join(QLatin1Char('\n'));
}

ElasticFigureOptions ElasticDialog::picture() const {
  ElasticFigureOptions options;
  options.title = p().survey.document.title;
  options.layer = mUi->layerCombo->currentData().toUInt();
  return options;
}

void ElasticDialog::show() {
  showTable();
  mSheet->setFigure([this](double widthMm, FigureDrawing& drawing) {
    ElasticFigureOptions options = picture();
    options.widthMm = widthMm;
    return prepareElasticFigure(mLine, options, drawing);
  });
}

void ElasticDialog::showTable() {
  const std::uint32_t only = mUi->layerCombo->currentData().toUInt();
  QStringList heads = {tr("Layer"), inShownUnits(tr("Distance [m]")),
                       inShownUnits(tr("Depth by P [m]")), inShownUnits(tr("Depth by S [m]"))};
  for (const ElasticColumn& column : kElasticColumns) {
    heads << inShownUnits(elasticTitle(column.quantity));
  }
  mUi->table->setRowCount(0);
  mUi->table->setColumnCount(heads.size());
  mUi->table->setHorizontalHeaderLabels(heads);
  for (const ElasticLayer& layer : mLine.layers) {
    if (only != 0 && layer.layer != only) continue;
    for (const ElasticPoint& point : layer.points) {
      QStringList cells = {QString::number(layer.layer), number(shownLength(point.x), 2),
                           number(shownLength(point.topP.value), 2),
                           number(shownLength(point.topS.value), 2)};
      for (const ElasticColumn& column : kElasticColumns) {
        cells << text(point.state[column.quantity], column, mLine.hasErrors);
      }
      const int row = mUi->table->rowCount();
      mUi->table->insertRow(row);
      for (int column = 0; column < cells.size(); ++column) {
        auto* cell = new QTableWidgetItem(cells[column]);
        cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        const bool apart = point.topsDiffer && (column == kTopP || column == kTopS);
        if (apart) cell->setToolTip(tr("Depths by P and S differ: it may be different ground."));
        QFont font = cell->font();
        font.setBold(apart);
        cell->setFont(font);
        mUi->table->setItem(row, column, cell);
      }
    }
  }
  mUi->table->resizeColumnsToContents();
}

void ElasticDialog::copyTable() const {
  QStringList lines;
  QStringList cells;
  const QTableWidget& table = *mUi->table;
  for (int column = 0; column < table.columnCount(); ++column) {
    cells << table.horizontalHeaderItem(column)->text();
  }
  lines << cells.join(QLatin1Char('\t'));
  for (int row = 0; row < table.rowCount(); ++row) {
    cells.clear();
    for (int column = 0; column < table.columnCount(); ++column) {
      cells << table.item(row, column)->text();
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

}  // namespace talvesk
