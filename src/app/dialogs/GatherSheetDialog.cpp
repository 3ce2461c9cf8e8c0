#include "app/dialogs/GatherSheetDialog.h"

#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/WaitCursor.h"
#include "app/dialogs/PrintPreview.h"
#include "model/Recordings.h"
#include "ui_GatherSheetDialog.h"

#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <utility>

namespace talvesk {
namespace {

constexpr int kSoon = 120;  // milliseconds: who holds a key of a field waits for the last value

const QString kGroup = QStringLiteral("gatherSheet");

struct SheetSize {
  const char* name;
  double widthMm;
  double heightMm;
};

constexpr std::array<SheetSize, 6> kSheets = {{
    {QT_TRANSLATE_NOOP("talvesk::GatherSheetDialog", "A4 landscape"), 297.0, 210.0},
    {QT_TRANSLATE_NOOP("talvesk::GatherSheetDialog", "A4 portrait"), 210.0, 297.0},
    {QT_TRANSLATE_NOOP("talvesk::GatherSheetDialog", "A3 landscape"), 420.0, 297.0},
    {QT_TRANSLATE_NOOP("talvesk::GatherSheetDialog", "A3 portrait"), 297.0, 420.0},
    {QT_TRANSLATE_NOOP("talvesk::GatherSheetDialog", "A2 landscape"), 594.0, 420.0},
    {QT_TRANSLATE_NOOP("talvesk::GatherSheetDialog", "A2 portrait"), 420.0, 594.0},
}};

bool hasFilteredCopies(const TomoDocument& document) {
  for (const TraceSet& set : document.recordings->traceSets) {
    for (const Trace& trace : set) {
      if (!trace.filtered.empty()) return true;
    }
  }
  return false;
}

}  // namespace

GatherSheetDialog::GatherSheetDialog(TomoDocument document, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::GatherSheetDialog>()),
      mDocument(std::move(document)) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  fillPapers();
  const int shots = std::max(static_cast<int>(mDocument.recordings->traceSets.size()), 1);
  mUi->firstSpin->setRange(1, shots);
  mUi->lastSpin->setRange(1, shots);
  mUi->lastSpin->setValue(shots);
  mUi->buttonBox->button(QDialogButtonBox::Save)->setText(tr("&Save sheets ..."));
  mUi->filteredBox->setEnabled(hasFilteredCopies(mDocument));
  const auto spins = {mUi->rowsSpin, mUi->columnsSpin, mUi->firstSpin,
                      mUi->lastSpin, mUi->endSpin,     mUi->sheetSpin};
  for (QSpinBox* spin : spins) {
    connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, &GatherSheetDialog::refresh);
  }
  for (QCheckBox* box : {mUi->filteredBox, mUi->picksBox, mUi->amplitudesBox, mUi->channelsBox}) {
    connect(box, &QCheckBox::toggled, this, &GatherSheetDialog::refresh);
  }
  connect(mUi->gainSpin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          &GatherSheetDialog::refresh);
  connect(mUi->paperCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &GatherSheetDialog::refresh);
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &GatherSheetDialog::draw);
  refresh();
}

GatherSheetDialog::~GatherSheetDialog() = default;

void GatherSheetDialog::setManner(const GatherManner& manner) {
  mManner = manner;
  // They stand by offset, then, and are no channels.
  mUi->channelsBox->setEnabled(manner.byOffset == OffsetOrder::kNone);
  refresh();
}

void GatherSheetDialog::showShot(int shot) {
  const GatherSheetOptions now = options();
  const int each = static_cast<int>(now.rows * now.columns);
  refresh();
  if (shot >= 0) mUi->sheetSpin->setValue(shot / each + 1);
}

void GatherSheetDialog::fillPapers() {
  const QSignalBlocker quiet(mUi->paperCBox);
  for (const SheetSize& sheet : kSheets) mUi->paperCBox->addItem(tr(sheet.name));
}

GatherSheetOptions GatherSheetDialog::options() const {
  GatherSheetOptions options;
  const SheetSize& paper = kSheets[static_cast<std::size_t>(
      std::clamp(mUi->paperCBox->currentIndex(), 0, static_cast<int>(kSheets.size()) - 1))];
  options.widthMm = paper.widthMm;
  options.heightMm = paper.heightMm;
  options.rows = static_cast<std::size_t>(mUi->rowsSpin->value());
  options.columns = static_cast<std::size_t>(mUi->columnsSpin->value());
  const int last = std::max(mUi->firstSpin->value(), mUi->lastSpin->value());
  for (int shot = mUi->firstSpin->value(); shot <= last; ++shot) {
    options.shots.push_back(static_cast<std::size_t>(shot - 1));
  }
  options.gather.filtered = mUi->filteredBox->isChecked();
  options.gather.picks = mUi->picksBox->isChecked();
  options.gather.byChannel = mUi->channelsBox->isChecked();
  options.gather.gain = mUi->gainSpin->value();
  options.gather.manner = mManner;
  if (mUi->amplitudesBox->isChecked()) options.gather.scaling = GatherScaling::kWholeShot;
  if (mUi->endSpin->value() > 0) {
    options.gather.window = TimeWindow{0.0, static_cast<double>(mUi->endSpin->value())};
  }
  return options;
}

void GatherSheetDialog::refresh() {
  const GatherSheetOptions now = options();
  const auto sheets = static_cast<int>(gatherSheets(mDocument, now));
  {
    const QSignalBlocker quiet(mUi->sheetSpin);
    mUi->sheetSpin->setRange(1, std::max(sheets, 1));
  }
  mUi->sheetSpin->setEnabled(sheets > 1);
  mUi->sheetsLabel->setText(tr("of %1", "sheets").arg(QLocale().toString(sheets)));
  mUi->preview->setWaiting();
  mSoon.start();
}

void GatherSheetDialog::draw() {
  mSoon.stop();
  const WaitCursor waiting;
  GatherSheetOptions shown = options();
  shown.locale = QLocale();
  const auto sheet = static_cast<std::size_t>(mUi->sheetSpin->value() - 1);
  FigureDrawing full;
  const Status status = prepareGatherSheet(mDocument, shown, sheet, full);
  if (!status.ok()) return mUi->preview->setNothing(textOf(status.text()));
  PrintPages pages;
  pages.sheet = full.sheet;
  pages.paint = [paint = full.paint](std::size_t, QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, Qt::white);
    paint(painter, rect);
  };
  mUi->preview->setPages(pages);
}

void GatherSheetDialog::remember(QSettings& settings) const {
  settings.beginGroup(kGroup);
  settings.setValue(QStringLiteral("rows"), mUi->rowsSpin->value());
  settings.setValue(QStringLiteral("columns"), mUi->columnsSpin->value());
  settings.setValue(QStringLiteral("paper"), mUi->paperCBox->currentIndex());
  settings.setValue(QStringLiteral("gain"), mUi->gainSpin->value());
  settings.setValue(QStringLiteral("picks"), mUi->picksBox->isChecked());
  settings.setValue(QStringLiteral("amplitudes"), mUi->amplitudesBox->isChecked());
  settings.endGroup();
}

void GatherSheetDialog::recall(const QSettings& settings) {
  const auto value = [&settings](const char* name, const QVariant& fallback) {
    return settings.value(kGroup + QLatin1Char('/') + QLatin1String(name), fallback);
  };
  mUi->rowsSpin->setValue(value("rows", mUi->rowsSpin->value()).toInt());
  mUi->columnsSpin->setValue(value("columns", mUi->columnsSpin->value()).toInt());
  const int papers = static_cast<int>(kSheets.size());
  mUi->paperCBox->setCurrentIndex(std::clamp(value("paper", 0).toInt(), 0, papers - 1));
  mUi->gainSpin->setValue(value("gain", mUi->gainSpin->value()).toDouble());
  mUi->picksBox->setChecked(value("picks", true).toBool());
  mUi->amplitudesBox->setChecked(value("amplitudes", false).toBool());
}

}  // namespace talvesk
