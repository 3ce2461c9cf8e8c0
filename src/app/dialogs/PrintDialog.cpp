#include "app/dialogs/PrintDialog.h"

#include "app/MessageText.h"
#include "app/NumberText.h"
#include "app/ToolTips.h"
#include "app/WaitCursor.h"
#include "base/LengthUnit.h"
#include "ui_PrintDialog.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kScales[] = {100.0, 200.0, 250.0, 500.0, 1000.0, 2000.0, 5000.0, 10000.0};
const char kFirstPaper[] = "A3";
constexpr int kSoon = 150;  ///< milliseconds without a change
constexpr int kFit = 0;     ///< of the scales
const QString kGroup = QStringLiteral("print");

QString scaleText(double scale) {
  return QStringLiteral("1:") + numberText(scale);
}

QString link(const QString& target, const QString& text) {
  return QStringLiteral("<a href=\"%1\">%2</a>").arg(target, text.toHtmlEscaped());
}

QString millimetres(double width, double height) {
  const QLocale locale;
  return PrintDialog::tr("%1 × %2 mm")
      .arg(locale.toString(std::round(width), 'f', 0), locale.toString(std::round(height), 'f', 0));
}

void showRow(QWidget& label, QWidget& field, bool shown) {
  label.setVisible(shown);
  field.setVisible(shown);
}

}  // namespace

PrintDialog::PrintDialog(std::vector<PrintChoice> choices, std::size_t first, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::PrintDialog>()), mChoices(std::move(choices)) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  mUi->placeEdit->setSuffix(QLatin1Char(' ') + QLatin1String(lengthUnitName()));
  for (const Paper& paper : papers()) mUi->paperCombo->addItem(QString::fromStdString(paper.name));
  mUi->paperCombo->setCurrentText(QLatin1String(kFirstPaper));
  // Return ends a scale that is typed, not the dialog.
  mUi->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  fillScales();
  fillFigures(first);
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &PrintDialog::refresh);
  const auto changed = QOverload<int>::of(&QComboBox::currentIndexChanged);
  connect(mUi->figureCombo, changed, this, &PrintDialog::chooseFigure);
  for (QComboBox* combo : {mUi->paperCombo, mUi->orientationCombo}) {
    connect(combo, changed, this, &PrintDialog::wait);
  }
  connect(mUi->scaleCombo, &QComboBox::editTextChanged, this, [this] {
    mProposes = false;
    wait();
  });
  connect(mUi->scaleCombo->lineEdit(), &QLineEdit::returnPressed, this, &PrintDialog::refresh);
  connect(mUi->scaleCombo, QOverload<int>::of(&QComboBox::activated), this,
          [this] { mProposes = false; });
  connect(mUi->titleEdit, &QLineEdit::textChanged, this, &PrintDialog::wait);
  connect(mUi->tilesBox, &QCheckBox::toggled, this, &PrintDialog::wait);
  const auto set = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
  connect(mUi->placeEdit, set, this, &PrintDialog::chooseFigure);
  connect(mUi->exaggerationEdit, set, this, &PrintDialog::wait);
  connect(mUi->timesEdit, set, this, &PrintDialog::wait);
  connect(mUi->fitLabel, &QLabel::linkActivated, this, &PrintDialog::follow);
  connect(mUi->smallerButton, &QToolButton::clicked, this, [this] { mUi->preview->zoomBy(-1); });
  connect(mUi->largerButton, &QToolButton::clicked, this, [this] { mUi->preview->zoomBy(1); });
  connect(mUi->wholeButton, &QToolButton::clicked, this, [this] { mUi->preview->showWhole(); });
  connect(mUi->printButton, &QPushButton::clicked, this, [this] { printWanted(mPages); });
  connect(mUi->pdfButton, &QPushButton::clicked, this, [this] { pdfWanted(mPages); });
  chooseFigure();
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::fillFigures(std::size_t first) {
  const QSignalBlocker quiet(mUi->figureCombo);
  auto* rows = qobject_cast<QStandardItemModel*>(mUi->figureCombo->model());
  int chosen = -1;
  for (std::size_t i = 0; i < mChoices.size(); ++i) {
    const PrintChoice& choice = mChoices[i];
    const bool can = choice.whyNot.isEmpty();
    const int row = static_cast<int>(i);
    mUi->figureCombo->addItem(can ? choice.name
                                  : tr("%1 – %2", "a figure and why it cannot be printed")
                                        .arg(choice.name, choice.whyNot));
    rows->item(row)->setEnabled(can);
    if (can && (chosen < 0 || i == first)) chosen = row;
  }
  mUi->figureCombo->setCurrentIndex(chosen);
  // The reasons are longer than the field.
  mUi->figureCombo->view()->setMinimumWidth(mUi->figureCombo->view()->sizeHintForColumn(0) + 30);
}

void PrintDialog::fillScales() {
  const QSignalBlocker quiet(mUi->scaleCombo);
  mUi->scaleCombo->setCompleter(nullptr);
  mUi->scaleCombo->addItem(tr("Fit to the page"));
  for (const double scale : kScales) mUi->scaleCombo->addItem(scaleText(scale));
  mUi->scaleCombo->setEditText(scaleText(PrintSheet::kFirstScale));
}

void PrintDialog::setPrinters(bool any) {
  mPrinters = any;
  mUi->printerLabel->setText(any ? QString()
                                 : tr("No printer is installed. A PDF can be printed elsewhere."));
  mUi->printButton->setEnabled(mReady && mPrinters);
}

void PrintDialog::chooseFigure() {
  mFigure.reset();
  const int row = mUi->figureCombo->currentIndex();
  const PrintChoice* choice = row >= 0 ? &mChoices[static_cast<std::size_t>(row)] : nullptr;
  const bool atPlace = choice != nullptr && choice->places;
  if (atPlace && sender() != mUi->placeEdit) {
    const QSignalBlocker quiet(mUi->placeEdit);
    const PrintChoice::Places& places = *choice->places;
    mUi->placeEdit->setRange(shownLength(places.from), shownLength(places.to));
    mUi->placeEdit->setSingleStep(std::max(0.01 * shownLength(places.to - places.from), 0.01));
    mUi->placeEdit->setValue(shownLength(places.at));
  }
  showRow(*mUi->placeLabel, *mUi->placeEdit, atPlace);
  wait();
}

void PrintDialog::wait() {
  mReady = false;
  mUi->printButton->setEnabled(false);
  mUi->pdfButton->setEnabled(false);
  mUi->preview->setWaiting();
  mSoon.start();
}

/// None for a text that is no scale.
std::optional<double> PrintDialog::scale() const {
  QString text = mUi->scaleCombo->currentText().simplified();
  if (text.compare(mUi->scaleCombo->itemText(kFit), Qt::CaseInsensitive) == 0) {
    return PrintSheet::kToFit;
  }
  if (text.startsWith(QLatin1String("1:")) || text.startsWith(QLatin1String("1 :"))) {
    text = text.mid(text.indexOf(QLatin1Char(':')) + 1).trimmed();
  }
  const std::optional<double> number = numberFrom(text);
  return number && *number > 0.0 ? number : std::nullopt;
}

PrintSettings PrintDialog::settings() const {
  PrintSettings chosen;
  const auto paper = static_cast<std::size_t>(std::max(mUi->paperCombo->currentIndex(), 0));
  chosen.sheet = PrintSheet::on(papers()[paper], mUi->orientationCombo->currentIndex() == 0,
                                scale().value_or(PrintSheet::kFirstScale));
  chosen.exaggeration = mUi->exaggerationEdit->value();
  chosen.msPerCm = mUi->timesEdit->value();
  chosen.title = mUi->titleEdit->text().trimmed().toStdString();
  chosen.tiles = mUi->tilesBox->isChecked();
  return chosen;
}

void PrintDialog::refresh() {
  mSoon.stop();
  const int row = mUi->figureCombo->currentIndex();
  if (row < 0) {
    mUi->fitLabel->clear();
    return mUi->preview->setNothing(tr("There is nothing to print yet."));
  }
  PrintFit fit;
  const Status status = whileWaiting([&] {
    if (!mFigure) {
      mFigure = mChoices[static_cast<std::size_t>(row)].make(metresOf(mUi->placeEdit->value()));
    }
    if (mProposes && mFigure->alongLine) propose();
    if (mFigure->alongLine && !scale()) {
      return Status::failure(Message::tr("Choose a scale, or type one such as 1:750."));
    }
    return preparePrint(*mFigure, settings(), mPages, &fit);
  });
  using Upright = PrintFigure::Upright;
  showRow(*mUi->scaleLabel, *mUi->scaleCombo, mFigure->alongLine);
  showRow(*mUi->exaggerationLabel, *mUi->exaggerationEdit, mFigure->upright == Upright::kElevation);
  showRow(*mUi->timesLabel, *mUi->timesEdit, mFigure->upright == Upright::kTime);
  mUi->tilesBox->setVisible(mFigure->alongLine);
  mUi->titleEdit->setPlaceholderText(QString::fromStdString(mFigure->title));
  mReady = status.ok();
  mUi->pdfButton->setEnabled(mReady);
  mUi->printButton->setEnabled(mReady && mPrinters);
  show(fit, status);
  if (status.ok()) {
    mUi->preview->setPages(mPages);
  } else {
    mUi->preview->setNothing(fit.figureWidthMm > 0.0
                                 ? tr("The figure does not fit the sheet at this scale.")
                                 : textOf(status.text()));
  }
}

/// A scale at which the figure fits one sheet, as long as nobody has chosen another.
void PrintDialog::propose() {
  const QSignalBlocker quiet(mUi->scaleCombo);
  mUi->scaleCombo->setEditText(scaleText(proposedScale(*mFigure, settings())));
}

/// How large the figure is; else what would fit, to be clicked on.
void PrintDialog::show(const PrintFit& fit, const Status& status) {
  mUi->sheetsLabel->setText(
      status.ok() ? tr("%n sheet(s)", nullptr, static_cast<int>(mPages.count())) : QString());
  if (status.ok()) {
    const QString size = millimetres(mPages.figureWidthMm, mPages.figureHeightMm);
    QString text = mPages.scale > 0.0
                       ? tr("At %1 the figure takes %2.").arg(scaleText(mPages.scale), size)
                       : tr("The figure takes %1.").arg(size);
    if (mProposes && mPages.scale > PrintSheet::kFirstScale) {
      text += QLatin1Char(' ') +
              tr("This is the first usual scale from %1 on at which it fits one sheet.")
                  .arg(scaleText(PrintSheet::kFirstScale));
    }
    mUi->fitLabel->setText(text);
    return;
  }
  if (fit.figureWidthMm <= 0.0) {
    mUi->fitLabel->setText(textOf(status.text()).toHtmlEscaped());
    return;
  }
  QStringList ways;
  if (fit.scale > 0.0) {
    ways += link(QStringLiteral("scale:%1").arg(fit.scale, 0, 'g', 12), scaleText(fit.scale));
  }
  if (!fit.paper.empty()) {
    const QString paper = QString::fromStdString(fit.paper);
    ways += link(QStringLiteral("paper:%1:%2").arg(paper).arg(fit.landscape ? 0 : 1),
                 QStringLiteral("%1, %2").arg(
                     paper, mUi->orientationCombo->itemText(fit.landscape ? 0 : 1)));
  }
  if (fit.columns * fit.rows > 1) {
    ways += link(QStringLiteral("tiles"),
                 tr("%n sheet(s)", nullptr, static_cast<int>(fit.columns * fit.rows)));
  }
  QString text =
      QStringLiteral("<p>%1</p>")
          .arg(tr("At %1 the figure takes %2, and the sheet has room for %3.")
                   .arg(scaleText(std::max(settings().sheet.scale, PrintSheet::kLeastScale)),
                        millimetres(fit.figureWidthMm, fit.figureHeightMm),
                        millimetres(std::floor(fit.roomWidthMm), std::floor(fit.roomHeightMm))));
  if (fit.byTimes) {
    text += QStringLiteral("<p>%1</p>")
                .arg(tr("With more milliseconds to a centimetre it is less high."));
  }
  text += ways.isEmpty()
              ? tr("Choose a larger sheet.")
              : tr("What would fit:") + QStringLiteral("<ul><li>") +
                    ways.join(QStringLiteral("</li><li>")) + QStringLiteral("</li></ul>");
  mUi->fitLabel->setText(text);
}

void PrintDialog::follow(const QString& link) {
  const QStringList parts = link.split(QLatin1Char(':'));
  if (parts.front() == QLatin1String("tiles")) {
    mUi->tilesBox->setChecked(true);
  } else if (parts.front() == QLatin1String("scale") && parts.size() == 2) {
    mUi->scaleCombo->setEditText(scaleText(parts[1].toDouble()));
  } else if (parts.size() == 3) {
    mUi->paperCombo->setCurrentText(parts[1]);
    mUi->orientationCombo->setCurrentIndex(parts[2].toInt());
  }
}

void PrintDialog::setScale(double scale) {
  mProposes = false;
  mUi->scaleCombo->setEditText(scale == PrintSheet::kToFit ? mUi->scaleCombo->itemText(kFit)
                                                           : scaleText(scale));
}

std::optional<double> PrintDialog::chosenScale() const {
  return mProposes ? std::nullopt : scale();
}

void PrintDialog::remember(QSettings& settings) const {
  settings.beginGroup(kGroup);
  settings.setValue(QStringLiteral("exaggeration"), mUi->exaggerationEdit->value());
  settings.setValue(QStringLiteral("msPerCm"), mUi->timesEdit->value());
  settings.setValue(QStringLiteral("paper"), mUi->paperCombo->currentText());
  settings.setValue(QStringLiteral("orientation"), mUi->orientationCombo->currentIndex());
  settings.setValue(QStringLiteral("tiles"), mUi->tilesBox->isChecked());
  settings.endGroup();
}

void PrintDialog::recall(const QSettings& settings) {
  const auto value = [&settings](const char* name, const QVariant& fallback) {
    return settings.value(kGroup + QLatin1Char('/') + QLatin1String(name), fallback);
  };
  mUi->exaggerationEdit->setValue(value("exaggeration", 0.0).toDouble());
  mUi->timesEdit->setValue(value("msPerCm", 0.0).toDouble());
  mUi->paperCombo->setCurrentText(value("paper", QLatin1String(kFirstPaper)).toString());
  mUi->orientationCombo->setCurrentIndex(std::clamp(value("orientation", 0).toInt(), 0, 1));
  mUi->tilesBox->setChecked(value("tiles", false).toBool());
}

}  // namespace talvesk
