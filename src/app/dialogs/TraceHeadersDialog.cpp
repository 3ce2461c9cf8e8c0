#include "app/dialogs/TraceHeadersDialog.h"

#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/dialogs/TraceHeadersModel.h"
#include "ui_TraceHeadersDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;
constexpr int kRoomInLine = 6;      ///< pixels
constexpr int kRowsMeasured = 200;  ///< from the first one in view, for the width of columns
constexpr int kMostOfWidth = 3;     ///< a column takes a third of the table at most

}  // namespace

TraceHeadersDialog::TraceHeadersDialog(QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::TraceHeadersDialog>()),
      mModel(new TraceHeadersModel(this)) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  QTableView& table = *mUi->headersTable;
  table.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRoomInLine);
  table.horizontalHeader()->setResizeContentsPrecision(kRowsMeasured);
  table.setModel(mModel);
  table.sortByColumn(0, Qt::AscendingOrder);
  connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& current) {
            if (mQuiet || !current.isValid() || !traceWanted) return;
            const std::size_t record = mModel->recordAt(current.row());
            traceWanted(headers().setOf(record), headers().traceOf(record));
          });
  connect(mUi->fieldsBox, &QCheckBox::toggled, this, [this] {
    if (fieldsWanted) fieldsWanted();
  });
  connect(mUi->copyButton, &QPushButton::clicked, this, &TraceHeadersDialog::copy);
  connect(mUi->saveButton, &QPushButton::clicked, this, [this] {
    if (saveWanted) saveWanted();
  });
  mUi->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
}

TraceHeadersDialog::~TraceHeadersDialog() = default;

const TraceHeaders& TraceHeadersDialog::headers() const {
  return mModel->headers();
}

bool TraceHeadersDialog::wantsFields() const {
  return mUi->fieldsBox->isChecked();
}

void TraceHeadersDialog::showHeaders(TraceHeaders all) {
  const QModelIndex current = mUi->headersTable->currentIndex();
  std::size_t set = 0;
  std::size_t trace = 0;
  if (current.isValid()) {
    const std::size_t record = mModel->recordAt(current.row());
    set = headers().setOf(record);
    trace = headers().traceOf(record);
  }
  const bool otherColumns = all.columns().size() != headers().columns().size();
  const bool first = headers().rows() == 0;
  mQuiet = true;
  mModel->setHeaders(std::move(all));
  mQuiet = false;
  if (first || otherColumns) fitColumns();
  if (current.isValid()) goTo(set, trace);
  const bool any = headers().rows() > 0;
  mUi->copyButton->setEnabled(any);
  mUi->saveButton->setEnabled(any);
  tell({});
}

void TraceHeadersDialog::fitColumns() {
  QTableView& table = *mUi->headersTable;
  table.resizeColumnsToContents();
  const int most = width() / kMostOfWidth;
  for (int column = 0; column < mModel->columnCount(); ++column) {
    if (table.columnWidth(column) > most) table.setColumnWidth(column, most);
  }
}

void TraceHeadersDialog::goTo(std::size_t set, std::size_t trace) {
  const int row = mModel->rowOf(set, trace);
  if (row < 0) return;
  const int column = std::max(mUi->headersTable->currentIndex().column(), 0);
  mQuiet = true;
  mUi->headersTable->setCurrentIndex(mModel->index(row, column));
  mQuiet = false;
}

void TraceHeadersDialog::tell(const QString& text) {
  QStringList lines = {tr("Traces: %1").arg(QLocale().toString(mModel->rowCount()))};
  const Message& leftOut = headers().fieldsLeftOut();
  if (!leftOut.empty()) lines << tr("Not in the table: %1").arg(textOf(leftOut));
  if (!text.isEmpty()) lines << text;
  mUi->statusLabel->setText(lines.join(QLatin1Char('\n')));
}

/// The selected rows, or all of them.
void TraceHeadersDialog::copy() {
  std::vector<int> rows;
  const QModelIndexList selected = mUi->headersTable->selectionModel()->selectedRows();
  for (const QModelIndex& index : selected) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  for (int row = 0; selected.isEmpty() && row < mModel->rowCount(); ++row) rows.push_back(row);
  QGuiApplication::clipboard()->setText(mModel->textOfRows(rows));
  tell(tr("Rows copied: %1").arg(QLocale().toString(static_cast<int>(rows.size()))));
}

void TraceHeadersDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) mUi->retranslateUi(this);
  QDialog::changeEvent(event);
}

void TraceHeadersDialog::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copy();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // No button answers for the table: it would be that of the guide.
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget())) button->click();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace talvesk
