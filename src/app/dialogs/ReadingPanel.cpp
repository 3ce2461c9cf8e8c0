#include "app/dialogs/ReadingPanel.h"

#include "app/MessageText.h"
#include "base/LengthUnit.h"
#include "io/ReadingComparison.h"
#include "ui_ReadingPanel.h"

#include <QLocale>

namespace talvesk {
namespace {

QString spanText(const ReadingSummary::Span& span, double factor, const QString& unit) {
  const QLocale locale;
  QString text = locale.toString(factor * span.least, 'g', 7);
  if (span.most != span.least) {
    text += QStringLiteral(" ... ") + locale.toString(factor * span.most, 'g', 7);
  }
  return unit.isEmpty() ? text : text + QLatin1Char(' ') + unit;
}

}  // namespace

ReadingPanel::ReadingPanel(QWidget* parent)
    : QGroupBox(parent), mUi(std::make_unique<Ui::ReadingPanel>()) {
  mUi->setupUi(this);
  connect(mUi->shotCBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int i) {
    if (mFile == nullptr || i < 0 || static_cast<std::size_t>(i) >= mFile->shots.size()) return;
    const StandardReading::Shot& shot = mFile->shots[static_cast<std::size_t>(i)];
    if (shot.data.traces.empty()) return mUi->gather->setNothing(tr("No trace"));
    const std::string& path = mFile->outcome.path;
    mUi->gather->setShot(shot.data,
                         shot.name.empty() ? path.substr(path.find_last_of('/') + 1) : shot.name);
  });
}

ReadingPanel::~ReadingPanel() = default;

void ReadingPanel::setReading(const ReadShotFile& file) {
  mFile = &file;
  showFigures();
  showShots();
  QStringList texts = linesOf(file.outcome.warnings);
  if (!file.outcome.status.ok()) texts.prepend(textOf(file.outcome.status.text()));
  mUi->warningsText->setPlainText(texts.isEmpty() ? tr("No warnings")
                                                  : texts.join(QLatin1Char('\n')));
}

void ReadingPanel::showFigures() {
  constexpr double kMsPerSecond = 1000.0;
  const ReadingSummary summary = summaryOf(*mFile);
  const auto count = [](std::size_t number) {
    return QLocale().toString(static_cast<qulonglong>(number));
  };
  const bool read = mFile->outcome.status.ok();
  const bool any = summary.traces > 0;
  const QString none = QStringLiteral("-");
  const QString lengthUnit = QLatin1String(lengthUnitName());
  mUi->formatValue->setText(read ? QString::fromStdString(shotFormatName(mFile->outcome.format))
                                 : tr("not read"));
  mUi->shotsValue->setText(count(summary.shots));
  mUi->tracesValue->setText(count(summary.traces));
  mUi->samplesValue->setText(any ? spanText(summary.samples, 1.0, QString()) : none);
  mUi->intervalValue->setText(any ? spanText(summary.sampleInterval, kMsPerSecond, tr("ms"))
                                  : none);
  mUi->delayValue->setText(any ? spanText(summary.delay, kMsPerSecond, tr("ms")) : none);
  mUi->sourceValue->setText(any ? spanText(summary.sourceX, shownLength(1.0), lengthUnit) : none);
  mUi->receiversValue->setText(any ? spanText(summary.receiverX, shownLength(1.0), lengthUnit)
                                   : none);
}

void ReadingPanel::showShots() {
  mUi->shotCBox->clear();
  for (std::size_t i = 0; i < mFile->shots.size(); ++i) {
    const std::string& name = mFile->shots[i].name;
    mUi->shotCBox->addItem(name.empty() ? QString::number(i + 1) : QString::fromStdString(name));
  }
  mUi->shotCBox->setEnabled(mFile->shots.size() > 1);
  if (mFile->shots.empty()) mUi->gather->setNothing(tr("Nothing was read."));
}

}  // namespace talvesk
