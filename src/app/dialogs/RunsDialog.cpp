#include "app/dialogs/RunsDialog.h"

#include "app/RunTexts.h"
#include "figures/RunThumbnail.h"
#include "model/KeptRuns.h"
#include "ui_RunsDialog.h"
#include "widgets/EmptyPage.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;
constexpr int kNumber = Qt::UserRole;

enum Column {
  kRun,
  kMethod,
  kChi2,
  kErrors,
  kTrusted,
  kRms,
  kRelative,
  kIterations,
  kSeconds,
  kWhen,
  kRemarks
};

/// A picture of the size of an icon, whole and without blending its cells.
QIcon iconOf(const QImage& cells, const QSize& size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  if (!cells.isNull()) {
    const QImage scaled = cells.scaled(size, Qt::KeepAspectRatio);
    QPainter(&pixmap).drawImage((size.width() - scaled.width()) / 2,
                                (size.height() - scaled.height()) / 2, scaled);
  }
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);  // no shade over the colours
  return icon;
}

QTableWidgetItem* fixedItem(const QString& text, bool number) {
  auto* item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  if (number) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return item;
}

}  // namespace

RunsDialog::RunsDialog(QWidget* parent) : QDialog(parent), mUi(std::make_unique<Ui::RunsDialog>()) {
  mUi->setupUi(this);
  mWays = new CommandButtons(this);
  mWays->setTabOrderAfter(mUi->runsTable);
  mUi->emptyLayout->insertStretch(0, 1);
  mUi->emptyLayout->addWidget(mWays);
  mUi->emptyLayout->addStretch(1);
  QTableWidget& table = *mUi->runsTable;
  int heads = 4 * style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
  for (int i = 0; i < table.columnCount(); ++i) {
    heads += table.horizontalHeader()->sectionSizeHint(i);
  }
  resize(size().expandedTo({heads, 0}).boundedTo(screen()->availableSize() * kMostOfScreen));
  table.verticalHeader()->setDefaultSectionSize(table.iconSize().height() + 8);
  table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table.horizontalHeader()->setStretchLastSection(true);
  connect(&table, &QTableWidget::itemSelectionChanged, this, &RunsDialog::showSelection);
  connect(&table, &QTableWidget::itemChanged, this, &RunsDialog::takeName);
  connect(mUi->useButton, &QPushButton::clicked, this, &RunsDialog::use);
  connect(mUi->renameButton, &QPushButton::clicked, this, &RunsDialog::rename);
  connect(mUi->deleteButton, &QPushButton::clicked, this, &RunsDialog::remove);
  connect(mUi->compareButton, &QPushButton::clicked, this, &RunsDialog::compare);
}

RunsDialog::~RunsDialog() = default;

void RunsDialog::offerWhereEmpty(QAction& command) {
  mWays->setCommands({&command});
}

void RunsDialog::setRuns(const TomoDocument& document, const ColorPalette& palette) {
  const std::vector<unsigned> before = selected();
  mDocument = document;
  mPalette = palette;
  const auto shown = shownRun(document);
  mShown = shown ? document.runs[*shown].number : 0;
  mFilling = true;
  const std::size_t count = document.runs.size();
  mUi->runsTable->setRowCount(static_cast<int>(count));
  for (std::size_t i = 0; i < count; ++i) fillRow(static_cast<int>(count - 1 - i), i);
  mFilling = false;
  mUi->pages->setCurrentWidget(count > 0 ? mUi->listPage : mUi->emptyPage);
  selectNumbers(before);
  if (count > 0 && selected().empty()) mUi->runsTable->selectRow(0);
  if (count > 0) mUi->runsTable->setFocus();
  showSelection();
}

void RunsDialog::fillRow(int row, std::size_t run) {
  QTableWidget& table = *mUi->runsTable;
  const KeptRun& each = mDocument.runs[run];
  const bool inUse = each.number == mShown;
  auto* name =
      new QTableWidgetItem(iconOf(runThumbnail(each, mPalette), table.iconSize()), runTitle(each));
  name->setData(kNumber, each.number);
  QFont font = table.font();
  font.setBold(inUse);
  name->setFont(font);
  table.setItem(row, kRun, name);
  const SectionMisfit misfit = each.misfit();
  const bool known = misfit.count > 0;
  const auto put = [&](Column column, const QString& text, bool number = true) {
    table.setItem(row, column, fixedItem(text, number));
  };
  put(kMethod, runMethod(each), false);
  put(kChi2, runFigure(each.chi2, each.chi2 >= 0.0));
  table.item(row, kChi2)->setToolTip(runSettings(each));
  put(kErrors, each.chi2 >= 0.0 ? runErrors(each) : QString(), false);
  put(kTrusted, runFigure(each.trustedRms * 1000.0, each.trustedRms >= 0.0));
  put(kRms, runFigure(misfit.rmse * 1000.0, known));
  put(kRelative, runFigure(misfit.relativeRms * 100.0, known));
  put(kIterations, QLocale().toString(static_cast<qulonglong>(each.iterations())));
  put(kSeconds, runFigure(each.record.computingSeconds, each.record.computingSeconds > 0.0));
  put(kWhen, runTime(each), false);
  QStringList remarks;
  if (inUse) remarks += tr("in use");
  const QString changes = runRemarks(each, mDocument);
  if (!changes.isEmpty()) remarks += changes;
  put(kRemarks, remarks.join(QStringLiteral("; ")), false);
  table.item(row, kRemarks)->setToolTip(changes);
}

std::vector<unsigned> RunsDialog::selected() const {
  std::vector<unsigned> numbers;
  const QTableWidget& table = *mUi->runsTable;
  for (int row = 0; row < table.rowCount(); ++row) {
    const QTableWidgetItem* item = table.item(row, kRun);
    if (item != nullptr && item->isSelected()) numbers.push_back(item->data(kNumber).toUInt());
  }
  return numbers;
}

void RunsDialog::selectNumbers(const std::vector<unsigned>& numbers) {
  QTableWidget& table = *mUi->runsTable;
  table.clearSelection();
  for (int row = 0; row < table.rowCount(); ++row) {
    const unsigned number = table.item(row, kRun)->data(kNumber).toUInt();
    if (std::find(numbers.begin(), numbers.end(), number) == numbers.end()) continue;
    if (table.selectedItems().isEmpty()) table.setCurrentCell(row, kRun);
    for (int column = 0; column < table.columnCount(); ++column) {
      table.item(row, column)->setSelected(true);
    }
  }
}

void RunsDialog::showSelection() {
  if (mFilling) return;
  const std::vector<unsigned> numbers = selected();
  const bool one = numbers.size() == 1;
  mUi->useButton->setEnabled(one && numbers.front() != mShown);
  mUi->renameButton->setEnabled(one);
  mUi->deleteButton->setEnabled(!numbers.empty());
  mUi->compareButton->setEnabled(!numbers.empty() && numbers.size() <= 2 &&
                                 mDocument.runs.size() > 1);
  mUi->settingsLabel->clear();
  for (const KeptRun& run : mDocument.runs) {
    if (one && run.number == numbers.front()) mUi->settingsLabel->setText(runSettings(run));
  }
}

void RunsDialog::use() {
  const std::vector<unsigned> numbers = selected();
  if (numbers.size() == 1 && numbers.front() != mShown) emit useWanted(numbers.front());
}

void RunsDialog::rename() {
  QTableWidget& table = *mUi->runsTable;
  const std::vector<unsigned> numbers = selected();
  for (int row = 0; numbers.size() == 1 && row < table.rowCount(); ++row) {
    if (table.item(row, kRun)->data(kNumber).toUInt() != numbers.front()) continue;
    table.setCurrentCell(row, kRun);
    table.editItem(table.item(row, kRun));
  }
}

void RunsDialog::remove() {
  const std::vector<unsigned> numbers = selected();
  if (!numbers.empty()) emit deleteWanted(numbers);
}

/// The upper one of two is the later one: it goes to the right.
void RunsDialog::compare() {
  const std::vector<unsigned> numbers = selected();
  if (numbers.empty() || mDocument.runs.size() < 2) return;
  unsigned right = numbers.front();
  unsigned left = numbers.back();
  if (left == right) left = mShown;
  if (left == right || left == 0) {  // the run in use beside the one before it, or after
    const auto& runs = mDocument.runs;
    const std::size_t last = runs.size() - 1;
    left = runs[last].number == right ? runs[last - 1].number : runs[last].number;
  }
  if (left > right) std::swap(left, right);
  emit comparisonWanted(left, right);
}

void RunsDialog::takeName(QTableWidgetItem* item) {
  if (mFilling || item->column() != kRun) return;
  const unsigned number = item->data(kNumber).toUInt();
  for (const KeptRun& run : mDocument.runs) {
    if (run.number != number || runTitle(run) == item->text()) continue;
    emit nameWanted(number, item->text().simplified());
    return;
  }
}

void RunsDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) return remove();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return use();
  QDialog::keyPressEvent(event);
}

}  // namespace talvesk
