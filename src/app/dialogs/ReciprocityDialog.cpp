#include "app/dialogs/ReciprocityDialog.h"

#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/UnitWords.h"
#include "app/dialogs/ReciprocityModel.h"
#include "doctor/FindingTexts.h"
#include "model/TomoDocument.h"
#include "ui_ReciprocityDialog.h"
#include "widgets/ReciprocityMatrix.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1e3;
constexpr double kMostOfScreen = 0.92;
constexpr int kRoomInLine = 6;  ///< pixels
constexpr int kMostNamed = 4;   ///< shots above the tables; the list has them all

enum ShotColumn { kShot, kAt, kPairs, kRms, kLateBy, kMend };

QString milliseconds(double seconds) {
  return QLocale().toString(kMilliseconds * seconds, 'f', 2);
}

}  // namespace

ReciprocityDialog::ReciprocityDialog(QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::ReciprocityDialog>()),
      mModel(new ReciprocityModel(this)) {
  mUi->setupUi(this);
  showUnits(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mUi->splitter->setSizes({3 * width() / 5, 2 * width() / 5});
  mUi->tablesSplitter->setStretchFactor(0, 3);
  mUi->tablesSplitter->setStretchFactor(1, 2);
  const int lineHeight = fontMetrics().height() + kRoomInLine;
  mUi->pairsTable->verticalHeader()->setDefaultSectionSize(lineHeight);
  mUi->shotsTable->verticalHeader()->setDefaultSectionSize(lineHeight);
  mUi->pairsTable->setModel(mModel);
  mUi->pairsTable->sortByColumn(ReciprocityModel::kDifference, Qt::DescendingOrder);
  mUi->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  connectAll();
}

ReciprocityDialog::~ReciprocityDialog() = default;

void ReciprocityDialog::connectAll() {
  connect(mUi->pairsTable, &QTableView::clicked, this, [this](const QModelIndex& index) {
    showPick(index.column() >= ReciprocityModel::kSecond &&
             index.column() <= ReciprocityModel::kBack);
  });
  connect(mUi->pairsTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &ReciprocityDialog::followTable);
  connect(mUi->matrix, &ReciprocityMatrix::chosen, this, &ReciprocityDialog::goTo);
  connect(mUi->matrix, &ReciprocityMatrix::currentChanged, this, [this] {
    const std::optional<ReciprocityMatrix::Cell> cell = mUi->matrix->current();
    if (cell) choosePair(cell->from, cell->to);
  });
  connect(mUi->shotsTable, &QTableWidget::currentCellChanged, this,
          &ReciprocityDialog::enableButtons);
  connect(mUi->thereButton, &QPushButton::clicked, this, [this] { showPick(false); });
  connect(mUi->backButton, &QPushButton::clicked, this, [this] { showPick(true); });
  connect(mUi->mendButton, &QPushButton::clicked, this, [this] {
    const int row = mUi->shotsTable->currentRow();
    if (row < 0 || !mLate[static_cast<std::size_t>(row)]) return;
    // What is emitted outlives the list, which is filled anew by what comes of it.
    const doctor::Finding finding = *mLate[static_cast<std::size_t>(row)];
    emit mendWanted(finding);
  });
  connect(mUi->exportButton, &QPushButton::clicked, this, &ReciprocityDialog::saveWanted);
}

const doctor::ReciprocityTable& ReciprocityDialog::table() const {
  return mModel->table();
}

void ReciprocityDialog::offerWhereEmpty(const QList<QAction*>& commands) {
  mUi->emptyPage->setCommands(commands);
}

void ReciprocityDialog::showSurvey(const TomoDocument& document) {
  doctor::ReciprocityTable table = doctor::reciprocityOf(document);
  const QModelIndex current = mUi->pairsTable->currentIndex();
  std::optional<doctor::ReciprocalTimes> chosen;
  if (current.isValid()) chosen = mModel->pairAt(current.row());
  mLate.clear();
  for (std::size_t i = 0; i < table.shots.size(); ++i) {
    mLate.push_back(doctor::lateShot(document, table, i));
  }
  const bool empty = table.pairs.empty();
  mUi->matrix->setTable(table);
  mModel->setTable(std::move(table));
  mUi->pairsTable->resizeColumnsToContents();
  fillShots();
  summarize(document);
  mUi->pages->setCurrentWidget(empty ? static_cast<QWidget*>(mUi->emptyPage) : mUi->pairsPage);
  if (chosen) {
    choosePair(chosen->first, chosen->second);
  } else if (!empty) {
    mUi->pairsTable->setCurrentIndex(mModel->index(0, 0));
  }
  enableButtons();
}

void ReciprocityDialog::summarize(const TomoDocument& document) {
  const doctor::ReciprocityTable& all = table();
  mUi->emptyPage->setText(textOf(doctor::whyNoPairs(document)) + QStringLiteral("\n\n") +
                          tr("Pick the traces of more shots. Where they have picks, see whether "
                             "geophones and shots stand where they stood."));
  QStringList lines;
  if (!all.pairs.empty()) {
    lines << tr("Pairs of shots: %1, RMS of their differences: %2 ms. A wave takes as long on the "
                "way back: what differs is a pick, or a clock.")
                 .arg(all.pairs.size())
                 .arg(milliseconds(all.rms));
  }
  QStringList named;
  for (std::size_t i = 0; i < all.shots.size(); ++i) {
    if (!all.shots[i].standsOut()) continue;
    named << tr("Shot %1: %2.").arg(i + 1).arg(textOf(describe(all.shots[i])));
  }
  if (!named.isEmpty()) lines << shortList(named, kMostNamed);
  mUi->summaryLabel->setText(lines.join(QLatin1Char('\n')));
}

void ReciprocityDialog::fillShots() {
  QTableWidget& shots = *mUi->shotsTable;
  const int before = shots.currentRow();
  const QSignalBlocker quiet(shots);
  shots.clearContents();
  shots.setRowCount(static_cast<int>(table().shots.size()));
  for (int row = 0; row < shots.rowCount(); ++row) fillShot(row);
  shots.resizeColumnsToContents();
  int choose = before;
  for (int row = shots.rowCount() - 1; row >= 0; --row) {
    if (mLate[static_cast<std::size_t>(row)]) choose = row;
  }
  if (choose >= 0 && choose < shots.rowCount()) shots.setCurrentCell(choose, kShot);
}

void ReciprocityDialog::fillShot(int row) {
  const auto number = static_cast<std::size_t>(row);
  const doctor::ShotReciprocity& shot = table().shots[number];
  const auto put = [&](int column, const QString& text, bool isNumber = true) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    if (isNumber) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = item->font();
    font.setBold(shot.standsOut());
    item->setFont(font);
    if (!isNumber) item->setToolTip(text);
    mUi->shotsTable->setItem(row, column, item);
  };
  const QString unknown = tr("–", "not known");
  put(kShot, QString::number(row + 1));
  put(kAt, lengthNumber(shot.x, 2));
  put(kPairs, QString::number(shot.pairs));
  put(kRms, shot.pairs > 0 ? milliseconds(shot.rms) : unknown);
  put(kLateBy, shot.shiftError > 0.0
                   ? tr("%1 ± %2").arg(milliseconds(shot.shift), milliseconds(shot.shiftError))
                   : unknown);
  put(kMend, mendText(number), false);
}

QString ReciprocityDialog::mendText(std::size_t shot) const {
  if (mLate[shot]) return textOf(describe(*mLate[shot]->proposal));
  return table().shots[shot].standsOut() ? tr("none: there is no recording to shift") : QString();
}

void ReciprocityDialog::goTo(std::size_t from, std::size_t to) {
  const int row = mModel->rowOf(from, to);
  if (row < 0) return;
  const doctor::ReciprocalTimes& pair = mModel->pairAt(row);
  const bool back = pair.second == from;
  emit pickWanted(static_cast<int>(from),
                  static_cast<int>(back ? pair.backTrace : pair.thereTrace));
}

void ReciprocityDialog::showPick(bool back) {
  const QModelIndex current = mUi->pairsTable->currentIndex();
  if (!current.isValid()) return;
  const doctor::ReciprocalTimes pair = mModel->pairAt(current.row());
  mUi->matrix->setCurrent(back ? ReciprocityMatrix::Cell{pair.second, pair.first}
                               : ReciprocityMatrix::Cell{pair.first, pair.second});
  back ? goTo(pair.second, pair.first) : goTo(pair.first, pair.second);
}

void ReciprocityDialog::choosePair(std::size_t shot, std::size_t other) {
  const int row = mModel->rowOf(shot, other);
  if (row < 0) return;
  const QSignalBlocker quiet(*mUi->pairsTable->selectionModel());
  mUi->pairsTable->setCurrentIndex(mModel->index(row, 0));
  mUi->pairsTable->viewport()->update();
  mUi->matrix->setCurrent({shot, other});
}

void ReciprocityDialog::followTable() {
  const QModelIndex current = mUi->pairsTable->currentIndex();
  if (!current.isValid()) return;
  const doctor::ReciprocalTimes& pair = mModel->pairAt(current.row());
  mUi->matrix->setCurrent({pair.first, pair.second});
}

void ReciprocityDialog::enableButtons() {
  const int row = mUi->shotsTable->currentRow();
  mUi->mendButton->setEnabled(row >= 0 && mLate[static_cast<std::size_t>(row)].has_value());
}

void ReciprocityDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    mUi->retranslateUi(this);
    showUnits(*this);
  }
  QDialog::changeEvent(event);
}

/// Return shows the pick of the line that the keys are on.
void ReciprocityDialog::keyPressEvent(QKeyEvent* event) {
  const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (confirms && mUi->pairsTable->hasFocus()) {
    const int column = mUi->pairsTable->currentIndex().column();
    return showPick(column >= ReciprocityModel::kSecond && column <= ReciprocityModel::kBack);
  }
  QDialog::keyPressEvent(event);
}

}  // namespace talvesk
