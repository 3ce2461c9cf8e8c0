#include "app/dialogs/LayerMethodsDialog.h"

#include "app/BackgroundMethods.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "app/dialogs/ParameterField.h"
#include "export/LayerMethodsText.h"
#include "figures/LayerMethodsFigure.h"
#include "figures/report/LayerMethodTexts.h"
#include "ui_LayerMethodsDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLocale>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace talvesk {
namespace {

using refractionDataStructure::kLastLayer;

constexpr double kMostOfScreen = 0.92;
constexpr double kDotsPerInch = 96.0;
constexpr double kLeastFigureMm = 70.0;
constexpr double kMostHeight = 0.5;  ///< of the width of the figure

void put(QTableWidget& table, int row, int column, const QString& text, bool number) {
  auto* cell = new QTableWidgetItem(text);
  if (number) cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  table.setItem(row, column, cell);
}

void fill(QTableWidget& table, const ReportTable& content) {
  table.setColumnCount(static_cast<int>(content.columns.size()));
  table.setRowCount(static_cast<int>(content.rows.size()));
  for (int column = 0; column < table.columnCount(); ++column) {
    const auto c = static_cast<std::size_t>(column);
    // A method above its unit: names of columns are wider than their numbers.
    QString title = content.columns[c].title;
    title.replace(QStringLiteral(": "), QStringLiteral(":\n"));
    table.setHorizontalHeaderItem(column, new QTableWidgetItem(title));
    for (std::size_t row = 0; row < content.rows.size(); ++row) {
      put(table, static_cast<int>(row), column, content.rows[row][column],
          content.columns[c].number);
    }
  }
  table.resizeColumnsToContents();
}

/// "5.2 ± 0.3" of a length or a velocity in the unit shown; a dash where nothing is known.
QString withError(double value, double error, int places) {
  if (!std::isfinite(value)) return QStringLiteral("\u2013");
  const QString text = lengthNumber(value, places);
  if (!std::isfinite(error)) return text;
  return QStringLiteral("%1 \u00b1 %2").arg(text, lengthNumber(error, places));
}

}  // namespace

LayerMethodsDialog::LayerMethodsDialog(LayerPicks picks, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::LayerMethodsDialog>()),
      mPicks(std::move(picks)),
      mRun(new BackgroundMethods(this)),
      mSheet(new FigureSheetWidget) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  mSheet->setObjectName(QStringLiteral("sheet"));
  mSheet->putInto(*mUi->sheetArea);
  mUi->splitter->setSizes({325, 285});
  setUpField(*mUi->boundsEdit, parameters::kBounds);
  for (QTableWidget* table : {mUi->summaryTable, mUi->layer2Table, mUi->layer3Table}) {
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  }
  connect(mUi->startButton, &QPushButton::clicked, this,
          [this] { start(mUi->boundsEdit->value()); });
  connect(mUi->stopButton, &QPushButton::clicked, mRun, &BackgroundMethods::requestStop);
  connect(mRun, &BackgroundMethods::advanced, this, &LayerMethodsDialog::showProgress,
          Qt::QueuedConnection);
  connect(mRun, &BackgroundMethods::finished, this, &LayerMethodsDialog::end);
  connect(mUi->pictureButton, &QPushButton::clicked, this, [this] {
    if (pictureWanted) pictureWanted(mComparison);
  });
  connect(mUi->tableButton, &QPushButton::clicked, this, [this] {
    if (tableWanted) tableWanted(mComparison);
  });
  connect(mUi->copyButton, &QPushButton::clicked, this, &LayerMethodsDialog::copyTable);
  mUi->summaryTable->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  mSheet->setNothing(tr("Layers are being interpreted..."));
  start(0);
}

LayerMethodsDialog::~LayerMethodsDialog() = default;

void LayerMethodsDialog::start(int members) {
  mMembers = members;
  BoundsOptions bounds;
  bounds.members = members;
  mUi->progressBar->setRange(0, members);  // 0 to 0: nobody knows how long
  mUi->progressBar->setValue(0);
  mUi->progressLabel->clear();
  mRun->start(mPicks, bounds);
  enable();
}

void LayerMethodsDialog::showProgress() {
  if (mRun->runs()) mUi->progressBar->setValue(static_cast<int>(mRun->done()));
}

/// What the picks tell is shown before the error bands are begun. Stopped bands are none.
void LayerMethodsDialog::end() {
  const bool atOnce = mMembers == 0;
  mUi->progressBar->setRange(0, 1);
  mUi->progressBar->setValue(0);
  if (!mRun->status().ok()) {
    mUi->progressLabel->setText(textOf(mRun->status().text()));
  } else if (mRun->wasStopped()) {
    mUi->progressLabel->setText(tr("Stopped: no error bands."));
  } else {
    mComparison = mRun->comparison();
    showAll();
  }
  enable();
  if (atOnce && mRun->status().ok()) start(mUi->boundsEdit->value());
}

void LayerMethodsDialog::enable() {
  const bool runs = mRun->runs();
  mUi->boundsEdit->setEnabled(!runs);
  mUi->startButton->setEnabled(!runs);
  mUi->stopButton->setEnabled(runs && mMembers > 0);
  mUi->progressBar->setVisible(runs);
  const bool any = std::any_of(mComparison.results.begin(), mComparison.results.end(),
                               [](const MethodResult& r) { return !r.layers.empty(); });
  for (QPushButton* button : {mUi->pictureButton, mUi->tableButton, mUi->copyButton}) {
    button->setEnabled(any);
  }
}

void LayerMethodsDialog::showAll() {
  showFigure();
  showSummary();
  showLayers();
}

void LayerMethodsDialog::showFigure() {
  mSheet->setFigure([this](double widthMm, FigureDrawing& drawing) {
    const double room = mUi->sheetArea->viewport()->height() * kMmPerInch / kDotsPerInch;
    const double heightMm =
        std::clamp(room, kLeastFigureMm, std::max(kLeastFigureMm, kMostHeight * widthMm));
    return prepareLayerMethodsFigure(mComparison, {widthMm, heightMm}, drawing);
  });
}

void LayerMethodsDialog::showSummary() {
  QTableWidget& table = *mUi->summaryTable;
  table.setRowCount(0);
  QStringList notes;
  for (std::uint32_t layer = 2; layer <= kLastLayer; ++layer) {
    for (const MethodResult& result : mComparison.results) {
      const MethodLayer* found = result.layer(layer);
      if (found == nullptr) continue;
      const MethodFigures figures = figuresOf(*found);
      const int row = table.rowCount();
      table.insertRow(row);
      put(table, row, 0, QString::number(layer), true);
      put(table, row, 1, layerMethodName(result.method), false);
      put(table, row, 2, withError(figures.velocity, figures.velocityError, 0), true);
      put(table, row, 3, withError(figures.depth, figures.depthError, 2), true);
      put(table, row, 4, tr("%1 of %2").arg(figures.known).arg(figures.receivers), true);
      put(table, row, 5, QString::number(figures.carried), true);
    }
    notes += linesOf(comparisonDifferences(mComparison, layer));
  }
  for (const MethodResult& result : mComparison.results) {
    QStringList remarks = linesOf(result.remarks);
    if (result.layers.empty() && remarks.isEmpty()) {
      remarks << tr("no pick is assigned to a refractor.");
    }
    for (const QString& remark : remarks) {
      notes << layerMethodName(result.method) + QStringLiteral(": ") + remark;
    }
  }
  table.resizeColumnsToContents();
  mUi->notesText->setPlainText(notes.join(QStringLiteral("\n\n")));
}

void LayerMethodsDialog::showLayers() {
  QTableWidget* tables[] = {mUi->layer2Table, mUi->layer3Table};
  QLabel* notes[] = {mUi->layer2Notes, mUi->layer3Notes};
  QWidget* pages[] = {mUi->layer2Tab, mUi->layer3Tab};
  for (std::uint32_t layer = 2; layer <= kLastLayer; ++layer) {
    const std::size_t i = layer - 2;
    const bool any =
        std::any_of(mComparison.results.begin(), mComparison.results.end(),
                    [layer](const MethodResult& r) { return r.layer(layer) != nullptr; });
    mUi->tabs->setTabVisible(mUi->tabs->indexOf(pages[i]), any);
    if (!any) continue;
    fill(*tables[i], layerMethodTable(mComparison, layer, QLocale()));
    notes[i]->setText(layerMethodNotes(mComparison).join(QLatin1Char(' ')));
  }
}

/// All layers as the file has them, for a spreadsheet.
void LayerMethodsDialog::copyTable() {
  std::ostringstream text;
  tellLayerMethods(text, mComparison, '\t');
  QGuiApplication::clipboard()->setText(QString::fromStdString(text.str()));
}

}  // namespace talvesk
