#include "app/dialogs/RefractionProcessingDialog.h"

#include "app/BackgroundFit.h"
#include "app/LengthText.h"
#include "app/LineIcon.h"
#include "app/Messages.h"
#include "app/UnitWords.h"
#include "app/dialogs/MisfitTable.h"
#include "figures/RefractionItems.h"
#include "model/TomoDocument.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/PlausibleResults.h"
#include "ui_RefractionProcessingDialog.h"

#include <QAction>
#include <QHeaderView>
#include <QIcon>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStringList>
#include <QUndoCommand>
#include <QUndoStack>
#include <algorithm>
#include <functional>
#include <utility>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using refractionDataStructure::kLastLayer;

constexpr double kMostOfScreen = 0.92;

class MarksCommand : public QUndoCommand {
 public:
  using Apply = std::function<void(const MarksChange&, bool redo)>;
  MarksCommand(const QString& text, MarksChange change, Apply apply)
      : QUndoCommand(text), mChange(std::move(change)), mApply(std::move(apply)) {}

  void redo() override { mApply(mChange, true); }
  void undo() override { mApply(mChange, false); }

 private:
  MarksChange mChange;
  Apply mApply;
};

QIcon dotOf(std::uint32_t layer) {
  QPixmap dot(14, 14);
  dot.fill(Qt::transparent);
  QPainter painter(&dot);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(layerColor(layer));
  painter.drawEllipse(QRectF(2, 2, 10, 10));
  return QIcon(dot);
}

}  // namespace

RefractionProcessingDialog::RefractionProcessingDialog(const TomoDocument& document,
                                                       const Interpretation& interpretation,
                                                       QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::RefractionProcessingDialog>()),
      mDocument(document),
      mWork(interpretation),
      mShots(shotArrivals(document)),
      mFitting(new BackgroundFit(this)),
      mUndo(new QUndoStack(this)) {
  fitToSurvey(document, mWork);
  mUi->setupUi(this);
  showUnits(*this);
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  mUi->phantomSplitter->setSizes({620, 440});
  mUi->shiftTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  mUi->criteriaSplitter->setSizes({760, 300});
  mUi->profileSplitter->setSizes({260, 340});
  mUi->resultSplitter->setSizes({720, 400});
  for (QTableWidget* table : {mUi->misfitTable, mUi->profileTable}) {
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  }
  nameThings();
  fillChoosers();
  connectCurves();
  mUi->curvesPlot->setSurvey(mShots);
  marksChanged();
  mStale = false;
  chooseFitted(mWork.refractData.isFitted());
  showResults();
  findFit();
  mUi->curvesPlot->setFocus();
}

RefractionProcessingDialog::~RefractionProcessingDialog() = default;

void RefractionProcessingDialog::nameThings() {
  const QString x = inShownUnits(tr("X (m)"));
  mUi->curvesPlot->setTexts({}, x, tr("time (ms)"));
  mUi->curvesPlot->setAccessibleName(tr("T-x curves"));
  mUi->curvesPlot->setEmptyText(
      tr("There are no picks to assign to layers: pick first breaks, or import travel times."));
  mUi->phantomPlot->setTexts(tr("Phantom travel times"), x, tr("time (ms)"));
  mUi->tvPlot->setTexts(tr("tV, velocity analysis"), x, tr("time (ms)"));
  mUi->tgPlot->setTexts(tr("tG, time depth"), x, tr("time (ms)"));
  mUi->velocityPlot->setTexts(tr("Velocity"), x, inShownUnits(tr("Velocity (m/s)")));
  mUi->profilePlot->setTexts(tr("Refraction Profile"), x, inShownUnits(tr("Z (m)")));
  showEmptyTexts();
  mUi->profilePlot->setEmptyText(
      tr("There is no depth to show. Layer 1 needs a branch with two picks, and each refractor has "
         "to be faster than the layer above."));
  // The keys of undo and redo work from everywhere in the dialog.
  QAction* undo = mUndo->createUndoAction(this);
  QAction* redo = mUndo->createRedoAction(this);
  undo->setShortcut(QKeySequence::Undo);
  redo->setShortcut(QKeySequence::Redo);
  undo->setIcon(lineIcon(QStringLiteral(":/icons/undo.png")));
  redo->setIcon(lineIcon(QStringLiteral(":/icons/redo.png")));
  addActions({undo, redo});
  mUi->undoButton->setDefaultAction(undo);
  mUi->redoButton->setDefaultAction(redo);
}

void RefractionProcessingDialog::fillChoosers() {
  for (std::uint32_t layer = 0; layer <= kLastLayer; ++layer) {
    mUi->selectLayerCombo->setItemIcon(static_cast<int>(layer), dotOf(layer));
    mUi->showLayerCombo->setItemIcon(static_cast<int>(layer) + 1, dotOf(layer));
  }
  mUi->selectLayerCombo->setCurrentIndex(1);
  mUi->shotCombo->addItem(tr("All shots"));
  for (std::size_t i = 0; i < mShots.size(); ++i) {
    mUi->shotCombo->addItem(
        tr("%1: at %2", "shot number, place").arg(i + 1).arg(lengthWithUnit(mShots[i].shot.x, 1)));
  }
}

void RefractionProcessingDialog::connectCurves() {
  connect(mUi->buttonBox, &QDialogButtonBox::rejected, this, [this] { QDialog::reject(); });
  LayerCurvesPlot* curves = mUi->curvesPlot;
  const auto chosen = qOverload<int>(&QComboBox::currentIndexChanged);
  connect(mUi->selectLayerCombo, chosen, curves, &LayerCurvesPlot::setLayer);
  connect(curves, &LayerCurvesPlot::layerChosen, mUi->selectLayerCombo,
          &QComboBox::setCurrentIndex);
  connect(mUi->showLayerCombo, chosen, curves,
          [curves](int index) { curves->setShownLayer(index - 1); });
  connect(mUi->editableCheck, &QCheckBox::toggled, curves, &LayerCurvesPlot::setEditable);
  connect(mUi->computedCheck, &QCheckBox::toggled, curves, &LayerCurvesPlot::setComputedShown);
  connect(mUi->shotCombo, chosen, this, [this](int index) { chooseShot(index - 1); });
  connect(curves, &LayerCurvesPlot::shotChosen, this, [this](int shot) { chooseShot(shot); });
  connect(curves, &LayerCurvesPlot::marked, this, &RefractionProcessingDialog::mark);
  connect(mUi->errorBands, &ErrorBands::changed, this, &RefractionProcessingDialog::showProfile);
  connect(mFitting, &BackgroundFit::found, this, [this](const LayeredFit& fit) {
    mFit = fit;
    showFit();
  });
  connect(mUi->xyCriteria, &XYCriteria::xyWanted, this, &RefractionProcessingDialog::takeXY,
          Qt::QueuedConnection);  // the plot that asks is filled anew
  connect(curves, &LayerCurvesPlot::branchRead, this, &RefractionProcessingDialog::showReading);
}

bool RefractionProcessingDialog::hasChanges() const {
  return mBuilt || mPhantomed || !mUndo->isClean();
}

void RefractionProcessingDialog::reject() {
  if (!isEnabled()) return;  // at work
  if (!hasChanges() || askYesNo(this, tr("Refraction processing"),
                                tr("Close without keeping the changes?"), {}, false)) {
    QDialog::reject();
  }
}

void RefractionProcessingDialog::chooseShot(int shot) {
  mUi->shotCombo->setCurrentIndex(shot + 1);
  mUi->curvesPlot->setCurrentShot(shot);
  refreshShot();
}

void RefractionProcessingDialog::refreshShot() {
  const int shot = mUi->shotCombo->currentIndex() - 1;
  mUi->enabledCheck->setEnabled(shot >= 0);
  mUi->enabledCheck->setChecked(shot < 0 || mWork.ttLayer[static_cast<std::size_t>(shot)].enabled);
}

void RefractionProcessingDialog::mark(const std::vector<TraceRef>& picks, int layer) {
  Marks after = mWork.ttLayer;
  assignLayer(mShots, picks, static_cast<std::uint32_t>(layer), after);
  changeMarks(layer == 0 ? tr("take %n pick(s) out", nullptr, static_cast<int>(picks.size()))
                         : tr("mark %n pick(s)", nullptr, static_cast<int>(picks.size())),
              after);
}

void RefractionProcessingDialog::changeMarks(const QString& text, const Marks& after) {
  MarksChange change(mWork.ttLayer, after);
  if (change.isEmpty()) return;
  mUndo->push(new MarksCommand(text, std::move(change), [this](const MarksChange& step, bool redo) {
    redo ? step.redo(mWork.ttLayer) : step.undo(mWork.ttLayer);
    mStale = true;
    marksChanged();
  }));
}

void RefractionProcessingDialog::marksChanged() {
  mUi->curvesPlot->setMarks(mWork.ttLayer);
  mUi->clearButton->setEnabled(hasMarks(mWork.ttLayer));
  mUi->methodsButton->setEnabled(hasMarks(mWork.ttLayer));
  showStale();
  followErrors();
  showProposal();
  refreshShot();
}

void RefractionProcessingDialog::showReading(const BranchReading* reading) {
  if (reading == nullptr) {
    mUi->velocityLabel->setText(
        mUi->editableCheck->isChecked()
            ? tr("Click a pick, or drag around several, to assign them. Keys 1, 2, 3 and 0: layer")
            : QString());
    return;
  }
  const QString place = reading->side == Side::kRight
                            ? tr("right of shot %1").arg(reading->shot + 1)
                            : tr("left of shot %1").arg(reading->shot + 1);
  const QString velocity = reading->velocity && isPlausibleVelocity(*reading->velocity)
                               ? velocityWithUnit(*reading->velocity, 0)
                               : tr("no velocity");
  QString text = tr("Layer %1, %2: %3 (%4 picks)")
                     .arg(reading->layer)
                     .arg(place, velocity)
                     .arg(reading->picks);
  // The misfit is that of the marks that the profiles were built of.
  const QString misfit = mStale ? QString() : misfitText(mFit, reading->shot, reading->layer);
  if (!misfit.isEmpty()) text += tr("; misfit of the shot %1").arg(misfit);
  mUi->velocityLabel->setText(text);
}

void RefractionProcessingDialog::on_clearButton_clicked() {
  Marks after = mWork.ttLayer;
  for (auto& own : after) std::fill(own.layer.begin(), own.layer.end(), 0U);
  changeMarks(tr("clear marks"), after);
}

void RefractionProcessingDialog::on_enabledCheck_clicked(bool checked) {
  const int shot = mUi->shotCombo->currentIndex() - 1;
  if (shot < 0) return;
  Marks after = mWork.ttLayer;
  after[static_cast<std::size_t>(shot)].enabled = checked;
  changeMarks(
      checked ? tr("let shot %1 take part").arg(shot + 1) : tr("leave shot %1 out").arg(shot + 1),
      after);
}

}  // namespace talvesk
