#include "app/dialogs/MendDialog.h"

#include "model/MendedTraces.h"
#include "model/Mending.h"
#include "model/SurveyGeometry.h"
#include "ui_MendDialog.h"

#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QScreen>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1e3;
constexpr double kMostOfScreen = 0.92;

enum Column { kKilled, kReversed, kMutedBefore, kGain };

QTableWidgetItem* checkItem() {
  auto* item = new QTableWidgetItem();
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  item->setCheckState(Qt::Unchecked);
  return item;
}

/// Milliseconds of the longest record, and of a sample; 0 where nothing is known.
struct TimesOfRecord {
  double longest = 0.0;
  double sample = 0.0;
};

/// Times before which traces are muted: seconds in the table, milliseconds for who looks at it or
/// edits one. A time that nobody changes stays the very number that it was.
class MuteDelegate : public QStyledItemDelegate {
 public:
  MuteDelegate(TimesOfRecord times, QObject* parent) : QStyledItemDelegate(parent), mTimes(times) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& /*index*/) const override {
    auto* field = new QDoubleSpinBox(parent);
    field->setDecimals(3);
    field->setRange(0.0, mTimes.longest);
    field->setSingleStep(mTimes.sample);
    field->setSuffix(MendDialog::tr(" ms"));
    field->setFrame(false);
    return field;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    qobject_cast<QDoubleSpinBox*>(editor)->setValue(kMilliseconds *
                                                    index.data(Qt::EditRole).toDouble());
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    constexpr double kHalfOfLastPlace = 0.501e-3;
    const double ms = qobject_cast<QDoubleSpinBox*>(editor)->value();
    const double before = kMilliseconds * index.data(Qt::EditRole).toDouble();
    if (std::fabs(ms - before) > kHalfOfLastPlace) model->setData(index, ms / kMilliseconds);
  }
  QString displayText(const QVariant& value, const QLocale& locale) const override {
    const double ms = kMilliseconds * value.toDouble();
    return ms > 0.0 ? locale.toString(ms, 'g', 7) + MendDialog::tr(" ms") : QString();
  }

 private:
  TimesOfRecord mTimes;
};

/// Gains by which samples are multiplied; one of 1 is left blank.
class GainDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& /*index*/) const override {
    auto* field = new QDoubleSpinBox(parent);
    field->setDecimals(4);
    field->setRange(TraceMend::kLeastGain, TraceMend::kMostGain);
    field->setSingleStep(0.5);
    field->setFrame(false);
    return field;
  }
  QString displayText(const QVariant& value, const QLocale& locale) const override {
    const double gain = value.toDouble();
    return gain == 1.0 ? QString() : locale.toString(gain, 'g', 4);
  }
};

TimesOfRecord timesOf(const TraceSet& traces) {
  TimesOfRecord times;
  for (const Trace& trace : traces) {
    if (!(trace.sampleInterval > 0.0) || trace.sampleInterval > 1e3) continue;
    const double sample = kMilliseconds * trace.sampleInterval;
    if (times.sample == 0.0) times.sample = sample;
    times.longest = std::max(times.longest, sample * static_cast<double>(trace.samples.size()));
  }
  return times;
}

}  // namespace

MendDialog::MendDialog(const TomoDocument& document, std::size_t set, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::MendDialog>()), mDocument(document), mSet(set) {
  mUi->setupUi(this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  setWindowTitle(tr("Mend recording of shot %1").arg(set + 1));
  const ShotMends& mends = mendsOf(*document.recordings, set);
  const TimesOfRecord times = timesOf(recordedTraces(*document.recordings, set));
  mUi->shiftEdit->setRange(-times.longest, times.longest);
  mUi->shiftEdit->setSingleStep(times.sample);
  mUi->shiftEdit->setEnabled(times.longest > 0.0);
  mUi->shiftEdit->setValue(kMilliseconds * mends.timeShift);
  mUi->disabledBox->setChecked(mends.disabled);
  mUi->orderBox->setChecked(mends.orderReversed);
  listPartners();
  fillTraces();
  connect(mUi->orderBox, &QCheckBox::toggled, this, &MendDialog::turnTraces);
}

MendDialog::~MendDialog() = default;

void MendDialog::listPartners() {
  const std::vector<std::int32_t>& stack = mendsOf(*mDocument.recordings, mSet).stackedWith;
  for (std::size_t other = 0; other < mDocument.recordings->traceSets.size(); ++other) {
    const bool stacked =
        std::find(stack.begin(), stack.end(), static_cast<std::int32_t>(other)) != stack.end();
    if (!stacked && (other == mSet || !canBeStacked(mDocument, mSet, other))) continue;
    const QString file = QFileInfo(QString::fromStdString(shotFile(mDocument, other))).fileName();
    auto* item = new QListWidgetItem(
        tr("%1: %2", "shot number, file name").arg(other + 1).arg(file), mUi->stackList);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(stacked ? Qt::Checked : Qt::Unchecked);
    item->setData(Qt::UserRole, static_cast<int>(other));
  }
  const bool any = mUi->stackList->count() > 0;
  mUi->stackList->setVisible(any);
  mUi->disableOthersBox->setVisible(any);
  mUi->noPartnersLabel->setVisible(!any);
}

void MendDialog::fillTraces() {
  const TraceSet& traces = mDocument.recordings->traceSets[mSet];
  const ShotMends& mends = mendsOf(*mDocument.recordings, mSet);
  const TimesOfRecord times = timesOf(traces);
  QTableWidget& table = *mUi->tracesTable;
  table.setItemDelegateForColumn(kMutedBefore, new MuteDelegate(times, &table));
  table.setItemDelegateForColumn(kGain, new GainDelegate(&table));
  table.setRowCount(static_cast<int>(traces.size()));
  for (int row = 0; row < table.rowCount(); ++row) {
    table.setItem(row, kKilled, checkItem());
    table.setItem(row, kReversed, checkItem());
    table.setItem(row, kMutedBefore, new QTableWidgetItem());
    table.setItem(row, kGain, new QTableWidgetItem());
    showRow(row, mendOf(mends, static_cast<std::size_t>(row)));
  }
  QHeaderView& columns = *table.horizontalHeader();
  columns.setSectionResizeMode(QHeaderView::ResizeToContents);
  columns.setStretchLastSection(true);
}

void MendDialog::showRow(int row, const TraceMend& mend) {
  const auto check = [&](int column, bool on) {
    mUi->tracesTable->item(row, column)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
  };
  check(kKilled, mend.killed);
  check(kReversed, mend.reversed);
  mUi->tracesTable->item(row, kMutedBefore)->setData(Qt::EditRole, mend.mutedBefore);
  mUi->tracesTable->item(row, kGain)->setData(Qt::EditRole, mend.gain);
}

TraceMend MendDialog::rowMend(int row) const {
  const QTableWidget& table = *mUi->tracesTable;
  TraceMend mend;
  mend.killed = table.item(row, kKilled)->checkState() == Qt::Checked;
  mend.reversed = table.item(row, kReversed)->checkState() == Qt::Checked;
  mend.mutedBefore = table.item(row, kMutedBefore)->data(Qt::EditRole).toDouble();
  mend.gain = table.item(row, kGain)->data(Qt::EditRole).toDouble();
  return mend;
}

void MendDialog::turnTraces() {
  std::vector<TraceMend> rows;
  for (int row = 0; row < mUi->tracesTable->rowCount(); ++row) rows.push_back(rowMend(row));
  std::reverse(rows.begin(), rows.end());
  for (std::size_t row = 0; row < rows.size(); ++row) showRow(static_cast<int>(row), rows[row]);
}

ShotMends MendDialog::mends() const {
  ShotMends mends;
  mends.timeShift = mUi->shiftEdit->value() / kMilliseconds;
  mends.disabled = mUi->disabledBox->isChecked();
  mends.orderReversed = mUi->orderBox->isChecked();
  for (int i = 0; i < mUi->stackList->count(); ++i) {
    const QListWidgetItem* item = mUi->stackList->item(i);
    if (item->checkState() != Qt::Checked) continue;
    mends.stackedWith.push_back(item->data(Qt::UserRole).toInt());
  }
  for (int row = 0; row < mUi->tracesTable->rowCount(); ++row) mends.traces.push_back(rowMend(row));
  return mends;
}

Status MendDialog::apply(TomoDocument& document, std::vector<Message>& notes) const {
  const ShotMends wanted = mends();
  Status status = setMends(mSet, wanted, document, &notes);
  if (!mUi->disableOthersBox->isChecked()) return status;
  for (const std::int32_t other : wanted.stackedWith) {
    if (!status.ok()) break;
    const auto partner = static_cast<std::size_t>(other);
    ShotMends theirs = mendsOf(*document.recordings, partner);
    theirs.disabled = true;
    status = setMends(partner, theirs, document, &notes);
  }
  return status;
}

}  // namespace talvesk
