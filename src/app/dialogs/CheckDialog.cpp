#include "app/dialogs/CheckDialog.h"

#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/UnitWords.h"
#include "app/dialogs/GeometryTexts.h"
#include "base/LengthUnit.h"
#include "doctor/FindingTexts.h"
#include "model/Parameters.h"
#include "model/SurveyGeometry.h"
#include "ui_CheckDialog.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

namespace talvesk {

using doctor::Finding;
using doctor::Proposal;

/// A line of the list. Who alters a proposal alters that of the finding.
struct CheckDialog::Row {
  Finding finding;
  bool taken = false;
};

namespace {

constexpr double kMilliseconds = 1e3;
constexpr double kMostOfScreen = 0.92;
constexpr double kFarthest = 1e6;   ///< metres
constexpr int kWidestColumn = 240;  ///< pixels, at first

enum Column { kTake, kShot, kFile, kTraces, kDoubtful, kSure, kProposal };

/// The figure of a proposal that users may alter: as it is kept, and what it is shown as.
struct Figure {
  double* value;
  double factor;
  QString label;
  QString unit;
  double least;
  double most;
  bool length = false;  ///< metres, shown in the unit of lengths
};

/// Milliseconds of the longest record of a shot.
double longestOf(const TomoDocument& document, std::size_t shot) {
  double longest = 0.0;
  const TraceSet* traces = document.tracesOf(document.ttArray[shot]);
  if (traces == nullptr) return longest;
  for (const Trace& trace : *traces) {
    longest = std::max(longest, trace.sampleInterval * static_cast<double>(trace.samples.size()));
  }
  return kMilliseconds * longest;
}

std::optional<Figure> figureOf(Finding& finding, const TomoDocument& document) {
  if (!finding.proposal || !finding.shot) return std::nullopt;
  Proposal& proposal = *finding.proposal;
  const double longest = longestOf(document, *finding.shot);
  switch (proposal.kind) {
    case Proposal::Kind::kTimeShift:
      return Figure{
          &proposal.seconds,      kMilliseconds, CheckDialog::tr("The record was &late by:"),
          CheckDialog::tr(" ms"), -longest,      longest};
    case Proposal::Kind::kMuteTraces:
      return Figure{&proposal.seconds,      kMilliseconds, CheckDialog::tr("&Muted before:"),
                    CheckDialog::tr(" ms"), 0.0,           longest};
    case Proposal::Kind::kMoveShot:
      if (proposal.points.empty()) return std::nullopt;
      return Figure{&proposal.points.front().x,
                    shownLength(1.0),
                    CheckDialog::tr("The shot is &at:"),
                    QLatin1Char(' ') + QLatin1String(lengthUnitName()),
                    -shownLength(kFarthest),
                    shownLength(kFarthest),
                    true};
    default:
      return std::nullopt;
  }
}

/// Whether a check has found again what another one had found.
bool isSame(const Finding& a, const Finding& b) {
  if (!a.proposal || !b.proposal) return false;
  return a.kind == b.kind && a.shot == b.shot && a.traces == b.traces &&
         a.proposal->kind == b.proposal->kind;
}

/// The name of a file, and of the record in it where it holds more than one.
QString fileOf(const TomoDocument& document, std::size_t shot) {
  const QString name = QFileInfo(QString::fromStdString(shotFile(document, shot))).fileName();
  const std::string record = shotRecord(document, shot);
  return record.empty() ? name
                        : QStringLiteral("%1 (%2)").arg(name, QString::fromStdString(record));
}

QString sureText(const Finding& finding) {
  return CheckDialog::tr("%1 %", "share")
      .arg(QLocale().toString(100.0 * finding.confidence, 'f', 0));
}

PlotSeries evidence(const QString& name, const std::vector<Point2D>& points, const QColor& color) {
  PlotSeries series;
  series.name = name;
  series.color = color;
  series.symbols = true;
  for (const Point2D& point : points) series.points.push_back({point.x, kMilliseconds * point.z});
  return series;
}

}  // namespace

CheckDialog::CheckDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::CheckDialog>()), mCarryOut(nullptr) {
  mUi->setupUi(this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mCarryOut = mUi->buttonBox->addButton(tr("Carry &out"), QDialogButtonBox::ActionRole);
  mCarryOut->setObjectName(QStringLiteral("carryOutButton"));
  mCarryOut->setDefault(true);
  mUi->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  mUi->evidencePlot->setTexts({}, inShownUnits(tr("Distance (m)")), tr("Time, ms"));
  mUi->evidencePlot->setEmptyText(tr("There are no times to draw."));
  connectAll();
}

CheckDialog::~CheckDialog() = default;

void CheckDialog::connectAll() {
  QTableWidget* table = mUi->findingsTable;
  connect(&mCheck, &BackgroundCheck::finished, this, &CheckDialog::listFindings);
  connect(mUi->stopButton, &QPushButton::clicked, this, [this] {
    mUi->stopButton->setEnabled(false);
    mCheck.requestStop();
  });
  connect(mCarryOut, &QPushButton::clicked, this, &CheckDialog::carryOutWanted);
  connect(table, &QTableWidget::currentCellChanged, this, &CheckDialog::showFinding);
  connect(table, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
    if (item->column() != kTake) return;
    mRows[static_cast<std::size_t>(item->row())].taken = item->checkState() == Qt::Checked;
    summarize();
  });
  const auto showTraces = [this] {
    const Row* row = current();
    if (row != nullptr && row->finding.shot) emit shotWanted(static_cast<int>(*row->finding.shot));
  };
  connect(table, &QTableWidget::cellDoubleClicked, this, showTraces);
  connect(mUi->tracesButton, &QPushButton::clicked, this, showTraces);
  connect(mUi->figureEdit, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          &CheckDialog::alterFigure);
  auto* space = new QShortcut(Qt::Key_Space, table);
  space->setContext(Qt::WidgetShortcut);
  connect(space, &QShortcut::activated, this, &CheckDialog::toggleSelected);
}

void CheckDialog::check(const TomoDocument& document, const QString& outcome) {
  mOutcome = outcome;
  mUi->pages->setCurrentWidget(mUi->busyPage);
  mUi->stopButton->setEnabled(true);
  mCarryOut->setEnabled(false);
  mUi->outcomeLabel->setText(outcome);
  mCheck.start(document);
}

void CheckDialog::listFindings() {
  takeOver(mCheck.findings());
  fillTable();
  const bool whole = mCheck.status().ok() && !mCheck.wasStopped();
  mUi->emptyPage->setText(whole ? tr("Nothing is doubtful.") : tr("Nothing was found so far."));
  mUi->pages->setCurrentWidget(mRows.empty() ? static_cast<QWidget*>(mUi->emptyPage)
                                             : mUi->findingsPage);
  summarize();
  if (!mRows.empty()) mUi->findingsTable->setFocus();
}

/// By shot, those of the survey first.
void CheckDialog::takeOver(std::vector<Finding> findings) {
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.shot < b.shot; });
  const std::vector<Row> before = std::exchange(mRows, {});
  for (Finding& finding : findings) {
    const bool left = std::any_of(before.begin(), before.end(), [&](const Row& row) {
      return !row.taken && isSame(row.finding, finding);
    });
    const bool taken = doctor::isSure(finding, parameters::kSureMend.initial) && !left;
    mRows.push_back({std::move(finding), taken});
  }
}

void CheckDialog::fillTable() {
  QTableWidget& table = *mUi->findingsTable;
  const QSignalBlocker quiet(table);
  table.clearContents();
  table.setRowCount(static_cast<int>(mRows.size()));
  for (int row = 0; row < table.rowCount(); ++row) fillRow(row);
  table.resizeRowsToContents();
  table.resizeColumnsToContents();
  for (int column = kTake; column < kProposal; ++column) {
    table.setColumnWidth(column, std::min(table.columnWidth(column), kWidestColumn));
  }
  if (!mRows.empty()) table.setCurrentCell(0, kTake);
  showFinding();
}

void CheckDialog::fillRow(int row) {
  const Row& line = mRows[static_cast<std::size_t>(row)];
  const Finding& finding = line.finding;
  const auto put = [&](int column, const QString& text, const QString& toolTip = {}) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setToolTip(
        QStringLiteral("<qt>%1</qt>").arg((toolTip.isEmpty() ? text : toolTip).toHtmlEscaped()));
    mUi->findingsTable->setItem(row, column, item);
    return item;
  };
  QTableWidgetItem* take =
      put(kTake, {}, tr("Carried out when it is ticked; the space bar does it, too"));
  if (finding.proposal) {
    take->setFlags(take->flags() | Qt::ItemIsUserCheckable);
    take->setCheckState(line.taken ? Qt::Checked : Qt::Unchecked);
  }
  put(kShot, finding.shot ? QString::number(*finding.shot + 1) : tr("all", "shots"));
  put(kFile, finding.shot ? fileOf(mCheck.document(), *finding.shot) : QString());
  const QString whole = finding.shot ? tr("all", "traces") : QString();
  put(kTraces, finding.traces.empty() ? whole : numberRanges(finding.traces));
  put(kDoubtful, textOf(nameOf(finding.kind)), textOf(finding.text));
  put(kSure, sureText(finding))->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  put(kProposal, finding.proposal ? textOf(describe(*finding.proposal)) : tr("none"));
}

CheckDialog::Row* CheckDialog::current() {
  const int row = mUi->findingsTable->currentRow();
  return row < 0 || static_cast<std::size_t>(row) >= mRows.size()
             ? nullptr
             : &mRows[static_cast<std::size_t>(row)];
}

void CheckDialog::showFinding() {
  const Row* row = current();
  if (row == nullptr) return;
  const Finding& finding = row->finding;
  QString text = textOf(finding.text);
  text.replace(0, 1, text.left(1).toUpper());
  mUi->findingText->setPlainText(text);
  mUi->tracesButton->setEnabled(finding.shot.has_value());
  PlotSeries measured = evidence(tr("Measured"), finding.measured, palette().color(QPalette::Text));
  measured.width = 0.0;
  PlotSeries expected =
      evidence(tr("Expected"), finding.expected, palette().color(QPalette::Highlight));
  expected.dashed = true;
  std::vector<PlotSeries> series;
  for (PlotSeries* each : {&expected, &measured}) {
    if (!each->points.empty()) series.push_back(std::move(*each));
  }
  mUi->evidencePlot->setSeries(std::move(series));
  showFigure();
}

void CheckDialog::showFigure() {
  Row* row = current();
  const auto figure = row == nullptr ? std::nullopt : figureOf(row->finding, mCheck.document());
  mUi->figureLabel->setVisible(figure.has_value());
  mUi->figureEdit->setVisible(figure.has_value());
  if (!figure) return;
  const QSignalBlocker quiet(*mUi->figureEdit);
  mUi->figureLabel->setText(figure->label);
  mUi->figureEdit->setSuffix(figure->unit);
  mUi->figureEdit->setRange(figure->least, figure->most);
  mUi->figureEdit->setValue(figure->factor * *figure->value);
}

/// Who alters a proposal wants it.
void CheckDialog::alterFigure(double value) {
  Row* row = current();
  const auto figure = row == nullptr ? std::nullopt : figureOf(row->finding, mCheck.document());
  if (!figure) return;
  *figure->value = figure->length ? metresTyped(value) : value / figure->factor;
  const int line = mUi->findingsTable->currentRow();
  mUi->findingsTable->item(line, kProposal)->setText(textOf(describe(*row->finding.proposal)));
  mUi->findingsTable->item(line, kTake)->setCheckState(Qt::Checked);
}

/// All lines that are selected become what the current one becomes.
void CheckDialog::toggleSelected() {
  const Row* row = current();
  if (row == nullptr) return;
  const Qt::CheckState state = row->taken ? Qt::Unchecked : Qt::Checked;
  for (const QModelIndex& index : mUi->findingsTable->selectionModel()->selectedRows(kTake)) {
    if (mRows[static_cast<std::size_t>(index.row())].finding.proposal) {
      mUi->findingsTable->item(index.row(), kTake)->setCheckState(state);
    }
  }
}

void CheckDialog::summarize() {
  const auto proposed = std::count_if(
      mRows.begin(), mRows.end(), [](const Row& row) { return row.finding.proposal.has_value(); });
  const auto taken =
      std::count_if(mRows.begin(), mRows.end(), [](const Row& row) { return row.taken; });
  mCarryOut->setEnabled(taken > 0);
  QStringList lines;
  if (!mOutcome.isEmpty()) lines << mOutcome;
  if (!mCheck.status().ok()) lines << textOf(mCheck.status().text());
  if (mCheck.wasStopped()) lines << tr("The check was stopped: not all shots were looked at.");
  if (!mRows.empty()) {
    lines
        << tr("Findings: %1, with a proposal: %2, ticked to be carried out: %3. What was recorded "
              "is kept, and Undo takes everything back.")
               .arg(mRows.size())
               .arg(proposed)
               .arg(taken);
  }
  mUi->outcomeLabel->setText(lines.join(QLatin1Char('\n')));
}

std::vector<TakenProposal> CheckDialog::taken() const {
  std::vector<TakenProposal> taken;
  for (const Row& row : mRows) {
    if (row.taken) taken.push_back({row.finding, *row.finding.proposal});
  }
  return taken;
}

/// A figure that was typed is confirmed by the key that would carry everything out.
void CheckDialog::keyPressEvent(QKeyEvent* event) {
  const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (confirms && mUi->figureEdit->hasFocus()) {
    mUi->findingsTable->setFocus();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace talvesk
