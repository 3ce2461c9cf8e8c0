#include "app/dialogs/FenceDialog.h"

#include "app/LengthText.h"
#include "app/Messages.h"
#include "app/ToolTips.h"
#include "model/Parameters.h"
#include "ui_FenceDialog.h"
#include "widgets/EmptyPage.h"
#include "widgets/fence/FenceView.h"

#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMostOfScreen = 0.92;

}  // namespace

FenceDialog::FenceDialog(FenceLine own, const ColorPalette& palette, double exaggeration,
                         QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::FenceDialog>()), mPalette(palette) {
  mUi->setupUi(this);
  wrapToolTips(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mView = new FenceView(this);
  mView->setObjectName(QStringLiteral("fenceView"));
  mUi->viewLayout->addWidget(mView);
  mEmpty = new EmptyPage(this);
  mEmpty->setText(
      tr("No line stands in the fence yet.\n\nA line needs a section and a place on the map. Give "
         "this survey its place, or add projects that have theirs."));
  mUi->viewLayout->addWidget(mEmpty);
  setTabOrder(mUi->exaggerationSpin, mView);
  mEmpty->setTabOrderAfter(mView);
  constexpr auto kRange = parameters::kExaggeration.limits;
  mUi->exaggerationSpin->setRange(kRange.least, kRange.most);
  mUi->exaggerationSpin->setValue(exaggeration);
  mView->setExaggeration(exaggeration);
  connect(mUi->exaggerationSpin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), mView,
          &FenceView::setExaggeration);
  connect(mUi->addButton, &QPushButton::clicked, this, [this] {
    if (addWanted) addWanted();
  });
  connect(mUi->removeButton, &QPushButton::clicked, this, &FenceDialog::remove);
  connect(mUi->linesList, &QListWidget::currentRowChanged, this,
          [this](int row) { mUi->removeButton->setEnabled(row > 0); });
  connect(mUi->allButton, &QPushButton::clicked, mView, &FenceView::showAll);
  connect(mUi->saveButton, &QPushButton::clicked, this, [this] {
    if (saveWanted) saveWanted();
  });
  add(std::move(own));
}

FenceDialog::~FenceDialog() = default;

void FenceDialog::offerWhereEmpty(const QList<QAction*>& commands) {
  mEmpty->setCommands(commands);
}

void FenceDialog::add(FenceLine line) {
  const QString name = line.name;
  for (int n = 2; isTaken(line.name); ++n) line.name = QStringLiteral("%1 (%2)").arg(name).arg(n);
  auto* row = new QListWidgetItem(line.name, mUi->linesList);
  row->setToolTip(line.path);
  mLines.push_back(std::move(line));
  mUi->linesList->setCurrentRow(mUi->linesList->count() - 1);
  refresh();
}

bool FenceDialog::isTaken(const QString& name) const {
  return std::any_of(mLines.begin(), mLines.end(),
                     [&name](const FenceLine& line) { return line.name == name; });
}

void FenceDialog::remove() {
  const int row = mUi->linesList->currentRow();
  if (row < 1) return;
  delete mUi->linesList->takeItem(row);
  mLines.erase(mLines.begin() + row);
  refresh();
}

/// Lines whose velocities the scale of colours does not hold, and what they are.
QStringList FenceDialog::beyondColors(const FenceScene& scene) const {
  QStringList lines;
  for (const FencePanel& panel : scene.panels) {
    const ValueRange range = velocityRange(panel);
    if (range.min >= mPalette.min_db && range.max <= mPalette.max_db) continue;
    lines << tr("%1 %2 to %3", "line, velocities")
                 .arg(QString::fromStdString(panel.name), lengthNumber(range.min, 0),
                      velocityWithUnit(range.max, 0));
  }
  return lines;
}

void FenceDialog::refresh() {
  FenceNotes notes;
  FenceScene scene = fenceOf(mLines, notes);
  const bool any = !scene.panels.empty();
  mView->setVisible(any);
  mEmpty->setVisible(!any);
  mUi->allButton->setEnabled(any);
  mUi->saveButton->setEnabled(any);
  QString text = tr("Lines that stand in the fence: %1.").arg(scene.panels.size());
  if (!notes.converted.isEmpty()) {
    text += QLatin1Char('\n') +
            tr("Converted: %1.", "lines").arg(notes.converted.join(QStringLiteral("; ")));
  }
  if (const QStringList beyond = beyondColors(scene); !beyond.isEmpty()) {
    text += QLatin1Char('\n') +
            tr("Beyond the colours: %1.", "lines").arg(beyond.join(QStringLiteral("; ")));
  }
  mUi->messageLabel->setText(text);
  mUi->leftOutLabel->setStyleSheet(warningStyle(*this));
  mUi->leftOutLabel->setText(tr("Left out: %1.").arg(notes.leftOut.join(QStringLiteral("; "))));
  mUi->leftOutLabel->setVisible(!notes.leftOut.isEmpty());
  mView->setScene(std::move(scene), mPalette);
}

QImage FenceDialog::picture() const {
  return mView->grab().toImage();
}

}  // namespace talvesk
