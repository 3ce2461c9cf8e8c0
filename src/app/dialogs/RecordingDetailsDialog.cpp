#include "app/dialogs/RecordingDetailsDialog.h"

#include "app/MessageText.h"
#include "app/UnitWords.h"
#include "base/LengthUnit.h"
#include "base/SampleStore.h"
#include "figures/FigureWords.h"
#include "io/ReadShotFile.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/TomoDocument.h"
#include "ui_RecordingDetailsDialog.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QScreen>
#include <algorithm>

namespace talvesk {
namespace {

/// Share of the screen, either way, that the dialog fills at most.
constexpr double kMostOfScreen = 0.92;

/// Seven digits are what the formats hold; more would show how numbers are stored.
QString number(double value) {
  return QLocale().toString(value, 'g');
}

/// The value of all traces, or its range.
template <typename Value>
QString rangeOf(const TraceSet& traces, Value value, const QString& unit) {
  if (traces.empty()) return QStringLiteral("-");
  double low = value(traces.front());
  double high = low;
  for (const Trace& trace : traces) {
    low = std::min(low, value(trace));
    high = std::max(high, value(trace));
  }
  const QString text =
      low == high ? number(low) : number(low) + QStringLiteral(" ... ") + number(high);
  return unit.isEmpty() ? text : text + QLatin1Char(' ') + unit;
}

/// Of the file of a set, or of both files of an S-wave pair.
QString pathsOf(const TomoDocument& document, std::size_t set) {
  QString paths = QString::fromStdString(shotFile(document, set));
  const bool pair = set < document.recordings->filenames_SX.size() &&
                    !document.recordings->filenames_SX[set].empty();
  if (pair)
    paths += QLatin1Char('\n') + QString::fromStdString(document.recordings->filenames_SX[set]);
  return paths.isEmpty() ? QStringLiteral("-") : paths;
}

/// The times of a trace set; none where it has no record.
TravelTime timesOf(const TomoDocument& document, int set) {
  const std::vector<TravelTime>& records = document.ttArray;
  const auto found = std::find_if(records.begin(), records.end(), [set](const TravelTime& record) {
    return record.traceSetID == set;
  });
  return found == records.end() ? TravelTime() : *found;
}

QString pickText(const TravelTime& record, std::size_t trace) {
  const bool picked = trace < record.ttMisurati.size() && hasPick(record.ttMisurati[trace]);
  return picked ? QLocale().toString(1e3 * record.ttMisurati[trace], 'f', 2)
                : QString(QChar(0x2013));
}

QString formatName(const QString& id) {
  const std::string name = shotFormatName(id.toStdString());
  return name.empty() ? QStringLiteral("-") : QString::fromStdString(name);
}

}  // namespace

/// By which reader, and which record of its file a set is.
QString RecordingDetailsDialog::readerOf(std::size_t set) const {
  const std::vector<RecordingNote>& notes = mDocument.recordings->notes;
  if (set >= notes.size() || notes[set].reader == ShotReader::kRules) {
    return tr("the program's rules");
  }
  const RecordingNote& note = notes[set];
  if (note.nameInFile.empty()) return tr("the standard of its format");
  return tr("the standard of its format; record %1 of the file, %2")
      .arg(note.recordInFile + 1)
      .arg(QString::fromStdString(note.nameInFile));
}

/// Where the samples of a set are, and why not where they were meant to be.
QString RecordingDetailsDialog::placeOf(std::size_t set) const {
  bool memory = false;
  bool disk = false;
  for (const Trace& trace : mDocument.recordings->traceSets[set]) {
    for (const Samples* samples :
         {&trace.samples, &trace.samplesDX, &trace.samplesSX, &trace.filtered}) {
      if (!samples->empty()) (samples->onDisk() ? disk : memory) = true;
    }
  }
  if (disk) return memory ? tr("in memory and on the disk") : tr("on the disk");
  const Message failure = SampleStore::instance().failure();
  if (!memory || failure.empty()) return memory ? tr("in memory") : QString();
  return tr("in memory, for %1").arg(textOf(failure));
}

RecordingDetailsDialog::RecordingDetailsDialog(const TomoDocument& document,
                                               std::vector<RecordingInfo> files, int current,
                                               QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::RecordingDetailsDialog>()),
      mDocument(document),
      mFiles(std::move(files)) {
  mUi->setupUi(this);
  showUnits(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  for (std::size_t i = 0; i < mDocument.recordings->traceSets.size(); ++i) {
    const QString path = QString::fromStdString(shotFile(mDocument, i));
    mUi->fileCBox->addItem(
        tr("%1: %2", "shot number, file name").arg(i + 1).arg(QFileInfo(path).fileName()));
    mUi->fileCBox->setItemData(static_cast<int>(i),
                               QStringLiteral("<qt>%1</qt>").arg(path.toHtmlEscaped()),
                               Qt::ToolTipRole);
  }
  QHeaderView& columns = *mUi->tracesTable->horizontalHeader();
  columns.setSectionResizeMode(QHeaderView::ResizeToContents);
  columns.setStretchLastSection(true);
  QHeaderView& rows = *mUi->tracesTable->verticalHeader();
  rows.setSectionResizeMode(QHeaderView::Fixed);
  rows.setDefaultSectionSize(fontMetrics().height() + 8);
  connect(mUi->fileCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &RecordingDetailsDialog::showSet);
  mUi->fileCBox->setCurrentIndex(std::max(0, current));
  showSet(mUi->fileCBox->currentIndex());
}

RecordingDetailsDialog::~RecordingDetailsDialog() = default;

void RecordingDetailsDialog::showSet(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= mDocument.recordings->traceSets.size())
    return;
  const auto set = static_cast<std::size_t>(index);
  const TraceSet& traces = mDocument.recordings->traceSets[set];
  const RecordingInfo info = set < mFiles.size() ? mFiles[set] : RecordingInfo();
  mUi->pathValue->setText(pathsOf(mDocument, set));
  mUi->formatValue->setText(formatName(info.format));
  mUi->readerValue->setText(readerOf(set));
  mUi->tracesValue->setText(QLocale().toString(static_cast<qulonglong>(traces.size())));
  mUi->samplesValue->setText(rangeOf(
      traces, [](const Trace& t) { return static_cast<double>(t.samples.size()); }, QString()));
  mUi->placeValue->setText(placeOf(set));
  mUi->intervalValue->setText(rangeOf(
      traces, [](const Trace& t) { return 1000.0 * t.sampleInterval; }, tr("ms")));
  mUi->lengthValue->setText(rangeOf(
      traces,
      [](const Trace& t) {
        return 1000.0 * t.sampleInterval * static_cast<double>(t.samples.size());
      },
      tr("ms")));
  mUi->delayValue->setText(rangeOf(
      traces, [](const Trace& t) { return 1000.0 * t.delay; }, tr("ms")));
  mUi->droppedValue->setText(rangeOf(
      traces, [](const Trace& t) { return static_cast<double>(t.droppedSamples); }, QString()));
  const QStringList mends = linesOf(describeMends(mDocument, set));
  mUi->mendsValue->setText(mends.isEmpty() ? tr("None") : mends.join(QLatin1Char('\n')));
  QStringList filters;
  for (const FilterStep& step : filtersOf(*mDocument.recordings, set)) {
    filters << textOf(describe(step));
  }
  mUi->filtersValue->setText(filters.isEmpty() ? tr("None") : filters.join(QLatin1Char('\n')));
  mUi->warningsText->setPlainText(info.warnings.isEmpty() ? tr("None")
                                                          : info.warnings.join(QLatin1Char('\n')));
  fillTable(index);
}

void RecordingDetailsDialog::fillTable(int index) {
  const TraceSet& traces = mDocument.recordings->traceSets[static_cast<std::size_t>(index)];
  const TravelTime record = timesOf(mDocument, index);
  QTableWidget& table = *mUi->tracesTable;
  table.setRowCount(static_cast<int>(traces.size()));
  for (std::size_t row = 0; row < traces.size(); ++row) {
    const Trace& trace = traces[row];
    const QString values[] = {QString::number(row + 1),
                              number(shownLength(trace.receiverPosition.x)),
                              number(shownLength(trace.receiverPosition.z)),
                              number(shownLength(trace.sourcePosition.x)),
                              number(shownLength(trace.sourcePosition.z)),
                              QLocale().toString(static_cast<qulonglong>(trace.samples.size())),
                              number(1000.0 * trace.sampleInterval),
                              number(1000.0 * trace.delay),
                              pickText(record, row),
                              FigureWords::pickError(record.errorOf(row), QLocale())};
    int column = 0;
    for (const QString& value : values) {
      auto* item = new QTableWidgetItem(value);
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      table.setItem(static_cast<int>(row), column++, item);
    }
  }
}

}  // namespace talvesk
