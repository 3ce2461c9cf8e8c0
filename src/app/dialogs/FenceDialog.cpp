#include "app/dialogs/FenceDialog.h"

#include "app/Messages.h"
#include "app/ToolTips.h"
#include "model/Parameters.h"
#include "ui_FenceDialog.h"
#include "widgets/EmptyPage.h"
#include "widgets/fence/FenceView.h"

#include <QImage>
#include <QPixmap>
#include <QScreen>
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
  mUi->linesList->addItem(line.name);
  mLines.push_back(std::move(line));
  mUi->linesList->setCurrentRow(mUi->linesList->count() - 1);
  refresh();
}

void FenceDialog::remove() {
  const int row = mUi->linesList->currentRow();
  if (row < 1) return;
  delete mUi->linesList->takeItem(row);
  mLines.erase(mLines.begin() + row);
  refresh();
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
  const bool complete = notes.leftOut.isEmpty();
  if (!notes.converted.isEmpty()) {
    text += QLatin1Char('\n') +
            tr("Converted: %1.", "lines").arg(notes.converted.join(QStringLiteral("; ")));
  }
  if (!complete) {
    text += QLatin1Char('\n') + tr("Left out: %1.").arg(notes.leftOut.join(QStringLiteral("; ")));
  }
  mUi->messageLabel->setStyleSheet(complete ? QString() : warningStyle(*this));
  mUi->messageLabel->setText(text);
  mView->setScene(std::move(scene), mPalette);
}

QImage FenceDialog::picture() const {
  return mView->grab().toImage();
}

}  // namespace talvesk
