#include "app/dialogs/DialogSetGeometry.h"

#include "app/LengthText.h"
#include "app/LossQuestion.h"
#include "app/Messages.h"
#include "app/UnitWords.h"
#include "app/dialogs/GeometrySession.h"
#include "app/dialogs/GeometryTables.h"
#include "app/dialogs/GeometryTexts.h"
#include "base/LengthUnit.h"
#include "model/SurveyFacts.h"
#include "ui_DialogSetGeometry.h"

#include <QHeaderView>
#include <QMenu>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// Share of the screen that the dialog fills at most; its frame needs some too.
constexpr double kMostOfScreen = 0.92;

constexpr const char* kMetres = "metres";  ///< property of a field: the length that it shows

void showLength(QLineEdit& edit, double metres) {
  edit.setText(geometryLength(metres));
  edit.setProperty(kMetres, metres);
}

/// What was typed, or what is shown still.
bool readLength(const QLineEdit& edit, double& metres) {
  double typed = 0.0;
  if (!readGeometryNumber(edit.text(), typed)) return false;
  const QVariant shown = edit.property(kMetres);
  metres =
      metresTyped(typed, shown.isValid() ? std::make_optional(shown.toDouble()) : std::nullopt);
  return true;
}

}  // namespace

DialogSetGeometry::DialogSetGeometry(const TomoDocument& document, SegyState& state,
                                     FileFolders& folders, Context context, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::DialogSetGeometry>()),
      mDocument(document),
      mState(state),
      mFolders(folders),
      mContext(context),
      mSession(new GeometrySession(geometryOf(document), this)),
      mGeophones(new GeophoneTable(*mSession, this)),
      mShots(new ShotTable(*mSession, this)) {
  mUi->setupUi(this);
  showUnits(*this);
  for (QLineEdit* edit : {mUi->firstEdit, mUi->spacingEdit}) {
    showLength(*edit, edit->text().toDouble());  // those of the form are metres
  }
  resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  mUi->splitter->setStretchFactor(0, 2);
  mUi->splitter->setStretchFactor(1, 3);
  setUpTables();
  connectCommands();
  connectPlan();
  connect(mSession, &GeometrySession::changed, this, &DialogSetGeometry::refresh);
  refresh();
  mUi->pages->setCurrentIndex(0);
  mUi->geophonesTable->setFocus();
}

DialogSetGeometry::~DialogSetGeometry() = default;

const SurveyGeometry& DialogSetGeometry::geometry() const {
  return mSession->geometry();
}

void DialogSetGeometry::setUpTables() {
  mGeophones->follow();
  mShots->follow();
  mUi->geophonesTable->setModel(mGeophones);
  mUi->geophonesTable->setRowsEditable(true);
  mUi->geophonesTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  mUi->shotsTable->setModel(mShots);
  mUi->shotsTable->setItemDelegateForColumn(ShotTable::kString,
                                            new StringDelegate(*mSession, this));
  QHeaderView& columns = *mUi->shotsTable->horizontalHeader();
  columns.setSectionResizeMode(QHeaderView::ResizeToContents);
  columns.setStretchLastSection(true);
  const auto connectTable = [this](SpreadsheetView& view, GeometryTable& table) {
    connect(&view, &SpreadsheetView::pasteRequested, &table, &GeometryTable::paste);
    connect(&view, &SpreadsheetView::clearRequested, &table, &GeometryTable::clear);
    connect(&table, &GeometryTable::refused, this,
            [this](const QString& why) { notice(why, true); });
    connect(&table, &GeometryTable::told, this, [this](const QString& what) { notice(what); });
    // The plan frames the row that is edited.
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
      refreshPlan();
      refreshShots();
    });
  };
  connectTable(*mUi->geophonesTable, *mGeophones);
  connectTable(*mUi->shotsTable, *mShots);
  connect(mUi->geophonesTable, &SpreadsheetView::insertRequested, mGeophones,
          &GeophoneTable::insertGeophone);
  connect(mUi->geophonesTable, &SpreadsheetView::removeRequested, mGeophones,
          &GeophoneTable::removeGeophones);
}

void DialogSetGeometry::connectCommands() {
  using Self = DialogSetGeometry;
  const std::pair<QAbstractButton*, void (Self::*)()> commands[] = {
      {mUi->addStringButton, &Self::addString},
      {mUi->removeStringButton, &Self::removeCurrentString},
      {mUi->autofillButton, &Self::autofillString},
      {mUi->interpolateButton, &Self::interpolateGeophones},
      {mUi->loadGeophonesButton, &Self::loadGeophones},
      {mUi->saveGeophonesButton, &Self::saveGeophones},
      {mUi->shotsInterpolateButton, &Self::interpolateShots},
      {mUi->loadShotsButton, &Self::loadShots},
      {mUi->saveShotsButton, &Self::saveShots},
      {mUi->pairOfShotButton, &Self::choosePairOfShot},
      {mUi->addPairsButton, &Self::addPairs},
  };
  for (const auto& [button, command] : commands) {
    connect(button, &QAbstractButton::clicked, this, command);
  }
  connect(mUi->undoButton, &QAbstractButton::clicked, mSession, &GeometrySession::undo);
  connect(mUi->redoButton, &QAbstractButton::clicked, mSession, &GeometrySession::redo);
  auto* copies = new QMenu(this);
  mUi->copyStringButton->setMenu(copies);
  connect(copies, &QMenu::aboutToShow, this, &Self::fillCopyMenu);
  using Course = ElevationProfile::Course;
  auto* elevations = new QMenu(this);
  mUi->elevationsButton->setMenu(elevations);
  elevations->addAction(tr("&Straight from point to point ..."), this,
                        [this] { loadElevations(Course::kStraight); });
  elevations->addAction(tr("Along a s&mooth curve ..."), this,
                        [this] { loadElevations(Course::kSmooth); });
  connect(mUi->stringCBox, QOverload<int>::of(&QComboBox::activated), mSession,
          &GeometrySession::setCurrentString);
  for (QLineEdit* edit : {mUi->firstEdit, mUi->spacingEdit}) {
    connect(edit, &QLineEdit::returnPressed, this, &Self::autofillString);
  }
}

void DialogSetGeometry::connectPlan() {
  connect(mUi->plan, &LinePlan::geophoneClicked, this, &DialogSetGeometry::showGeophone);
  connect(mUi->plan, &LinePlan::shotClicked, this, &DialogSetGeometry::showShot);
  connect(mUi->pages, &QTabWidget::currentChanged, this, &DialogSetGeometry::refreshPlan);
  connect(mUi->mistakesList, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    const auto row = static_cast<std::size_t>(mUi->mistakesList->row(item));
    if (row < mMistakeTargets.size()) mMistakeTargets[row]();
  });
}

void DialogSetGeometry::refresh() {
  notice(QString());
  refreshStrings();
  refreshShots();
  refreshMistakes();
  refreshPlan();
  mUi->undoButton->setEnabled(mSession->canUndo());
  mUi->redoButton->setEnabled(mSession->canRedo());
}

void DialogSetGeometry::refreshStrings() {
  const SurveyGeometry& now = geometry();
  QComboBox& box = *mUi->stringCBox;
  box.clear();
  for (std::size_t i = 0; i < now.strings.size(); ++i) {
    box.addItem(
        tr("%1: %n geophone(s)", nullptr, static_cast<int>(now.strings[i].size())).arg(i + 1));
  }
  box.setCurrentIndex(mSession->currentString());
  const bool any = !now.strings.empty();
  QWidget* const forString[] = {mUi->stringCBox,          mUi->geophonesTable,
                                mUi->interpolateButton,   mUi->loadGeophonesButton,
                                mUi->saveGeophonesButton, mUi->removeStringButton};
  for (QWidget* widget : forString) {
    widget->setEnabled(any);
  }
  mUi->copyStringButton->setEnabled(now.strings.size() > 1);
  if (mProposedFor != mSession->currentString()) proposeAutofill();
}

/// What would fill the string as it is, or one for the traces of its shots.
void DialogSetGeometry::proposeAutofill() {
  mProposedFor = mSession->currentString();
  const GeophoneString& string = mSession->string();
  std::size_t count = string.size();
  for (const GeometryShot& shot : geometry().shots) {
    const bool uses = shot.string == mProposedFor || string.empty();
    if (uses) count = std::max(count, shot.traces);
  }
  if (count > 0) mUi->countSpin->setValue(static_cast<int>(std::min(count, kMostGeophones)));
  if (string.size() < 2 || !isUsable(string[0]) || !isUsable(string[1])) return;
  showLength(*mUi->firstEdit, string[0].x);
  if (string[1].x != string[0].x) {
    showLength(*mUi->spacingEdit, string[1].x - string[0].x);
  }
}

void DialogSetGeometry::refreshShots() {
  const SurveyGeometry& now = geometry();
  const bool any = !now.shots.empty();
  mUi->emptyLabel->setVisible(!any);
  QWidget* const forShots[] = {mUi->shotsTable, mUi->shotsInterpolateButton, mUi->loadShotsButton,
                               mUi->saveShotsButton};
  for (QWidget* widget : forShots) {
    widget->setEnabled(any);
  }
  const bool pairs = std::any_of(now.shots.begin(), now.shots.end(),
                                 [](const GeometryShot& shot) { return shot.isPair(); });
  const bool files = !pairs || std::any_of(now.shots.begin(), now.shots.end(),
                                           [](const GeometryShot& s) { return !s.isPair(); });
  mUi->shotsTable->setColumnHidden(ShotTable::kFile, !files);
  mUi->shotsTable->setColumnHidden(ShotTable::kFileDX, !pairs);
  mUi->shotsTable->setColumnHidden(ShotTable::kFileSX, !pairs);
  mUi->addPairsButton->setEnabled(takesPairs());
  mUi->pairOfShotButton->setEnabled(takesPairs() && currentShot() >= 0);
  mUi->shotLabel->setText(currentShot() < 0
                              ? QString()
                              : shotDescription(now, static_cast<std::size_t>(currentShot())));
}

int DialogSetGeometry::currentShot() const {
  const int row = mUi->shotsTable->currentIndex().row();
  if (row >= 0 && row < static_cast<int>(geometry().shots.size())) return row;
  return geometry().shots.empty() ? -1 : 0;
}

void DialogSetGeometry::refreshPlan() {
  const SurveyGeometry& now = geometry();
  LinePlanScene scene;
  for (const GeophoneString& string : now.strings) {
    auto& points = scene.strings.emplace_back();
    for (const GeometryPlace& place : string) points.push_back(place.point());
  }
  for (const GeometryShot& shot : now.shots) scene.shots.push_back(shot.place.point());
  scene.currentString = mSession->currentString();
  for (const GeometryMistake& mistake : mSession->mistakes()) {
    for (const std::size_t i : mistake.geophones) {
      scene.mistakes.push_back(scene.strings[static_cast<std::size_t>(mistake.string)][i]);
    }
    // A count that differs is not about where the shots are.
    if (mistake.fault == GeometryFault::CountDiffers) continue;
    for (const std::size_t i : mistake.shots) scene.mistakes.push_back(scene.shots[i]);
  }
  if (mUi->pages->currentWidget() == mUi->shotsPage) {
    const int shot = currentShot();
    if (shot >= 0) scene.current = scene.shots[static_cast<std::size_t>(shot)];
  } else {
    const int row = mUi->geophonesTable->currentIndex().row();
    const GeophoneString& string = mSession->string();
    if (row >= 0 && static_cast<std::size_t>(row) < string.size()) {
      scene.current = string[static_cast<std::size_t>(row)].point();
    }
  }
  mUi->plan->setScene(std::move(scene));
}

void DialogSetGeometry::refreshMistakes() {
  mUi->mistakesList->clear();
  mMistakeTargets.clear();
  for (const GeometryMistake& mistake : mSession->mistakes()) {
    auto* item = new QListWidgetItem(mistakeText(mistake, geometry()), mUi->mistakesList);
    item->setIcon(style()->standardIcon(mistake.blocks() ? QStyle::SP_MessageBoxCritical
                                                         : QStyle::SP_MessageBoxWarning));
    mMistakeTargets.emplace_back([this, mistake] { show(mistake); });
  }
  const bool any = !mSession->mistakes().empty();
  mUi->mistakesList->setVisible(any);
  mUi->mistakesLabel->setVisible(any);
}

void DialogSetGeometry::notice(const QString& text, bool refused) {
  mUi->noticeLabel->setText(text);
  mUi->noticeLabel->setStyleSheet(refused ? warningStyle(*this) : QString());
}

void DialogSetGeometry::show(const GeometryMistake& mistake) {
  if (!mistake.shots.empty()) {
    showShot(static_cast<int>(mistake.shots.front()));
  } else {
    showGeophone(mistake.string,
                 mistake.geophones.empty() ? 0 : static_cast<int>(mistake.geophones.front()));
  }
}

void DialogSetGeometry::showGeophone(int string, int geophone) {
  mSession->setCurrentString(string);
  mUi->pages->setCurrentWidget(mUi->geophonesPage);
  mUi->geophonesTable->setCurrentIndex(mGeophones->index(geophone, GeophoneTable::kX));
  mUi->geophonesTable->setFocus();
}

void DialogSetGeometry::showShot(int shot) {
  mUi->pages->setCurrentWidget(mUi->shotsPage);
  mUi->shotsTable->setCurrentIndex(mShots->index(shot, ShotTable::kX));
  mUi->shotsTable->setFocus();
}

void DialogSetGeometry::autofillString() {
  double first = 0.0;
  double spacing = 0.0;
  for (const auto& [edit, value] :
       {std::pair(mUi->firstEdit, &first), std::pair(mUi->spacingEdit, &spacing)}) {
    if (readLength(*edit, *value) && std::fabs(*value) <= kFarthestPosition) continue;
    notice(tr("\"%1\" is not a length in %2.").arg(edit->text(), QLatin1String(lengthUnitName())),
           true);
    edit->setFocus();
    edit->selectAll();
    return;
  }
  const auto count = static_cast<std::size_t>(mUi->countSpin->value());
  const int current = std::max(0, mSession->currentString());
  mSession->edit([&](SurveyGeometry& next) {
    if (next.strings.empty()) next.strings.emplace_back();
    autofill(next.strings[static_cast<std::size_t>(current)], first, spacing, count);
  });
}

void DialogSetGeometry::addString() {
  mSession->edit([](SurveyGeometry& next) { next.strings.emplace_back(); });
  mSession->setCurrentString(static_cast<int>(geometry().strings.size()) - 1);
}

void DialogSetGeometry::removeCurrentString() {
  const int string = mSession->currentString();
  if (string < 0) return;
  const std::vector<std::size_t> users =
      shotsOfString(geometry(), static_cast<std::size_t>(string));
  // The one before it takes over, or the one after the first.
  const int heir = geometry().strings.size() == 1 ? -1 : std::max(0, string - 1);
  if (!users.empty()) {
    const QString question =
        heir < 0 ? tr("They have no geophones then, until another string is added.")
                 : tr("They will use string %1, as it is numbered then.").arg(heir + 1);
    if (!askYesNo(this, windowTitle(),
                  tr("String %1 is used by shot(s) %2. Remove it?", nullptr,
                     static_cast<int>(users.size()))
                      .arg(string + 1)
                      .arg(numberRanges(users)),
                  question, false)) {
      return;
    }
  }
  mSession->edit(
      [&](SurveyGeometry& next) { removeString(next, static_cast<std::size_t>(string), heir); });
}

void DialogSetGeometry::fillCopyMenu() {
  QMenu& menu = *mUi->copyStringButton->menu();
  menu.clear();
  for (int i = 0; i < mUi->stringCBox->count(); ++i) {
    if (i == mSession->currentString()) continue;
    menu.addAction(mUi->stringCBox->itemText(i), this, [this, i] {
      mSession->edit([&](SurveyGeometry& next) {
        next.strings[static_cast<std::size_t>(mSession->currentString())] =
            next.strings[static_cast<std::size_t>(i)];
      });
    });
  }
}

void DialogSetGeometry::interpolateGeophones() {
  GeophoneString string = mSession->string();
  const std::size_t filled = interpolateElevations(string);
  if (filled == 0) {
    const bool typed = std::any_of(string.begin(), string.end(),
                                   [](const GeometryPlace& place) { return place.typed; });
    notice(typed ? tr("All elevations were typed. Empty those that shall be interpolated.")
                 : tr("Type the elevation of one geophone at least."),
           true);
    return;
  }
  mSession->edit([&](SurveyGeometry& next) {
    next.strings[static_cast<std::size_t>(mSession->currentString())] = string;
  });
  notice(tr("%n elevation(s) interpolated.", nullptr, static_cast<int>(filled)));
}

void DialogSetGeometry::interpolateShots() {
  SurveyGeometry next = geometry();
  const std::size_t filled = interpolateShotElevations(next);
  if (filled == 0) {
    notice(tr("All elevations were typed. Empty those that shall be interpolated."), true);
    return;
  }
  mSession->edit([&](SurveyGeometry& now) { now = std::move(next); });
  notice(tr("%n elevation(s) interpolated.", nullptr, static_cast<int>(filled)));
}

bool DialogSetGeometry::mayLoseResults() {
  Losses losses;
  losses.model = ModelLoss::kGrid;
  losses.interpretation = mContext.interpreted;
  std::vector<std::size_t> picked;
  for (std::size_t i = 0; i < mDocument.ttArray.size(); ++i) {
    if (geometry().shots[i].pair && hasPicks(mDocument.ttArray[i])) picked.push_back(i);
  }
  if (!picked.empty()) {
    losses.others << tr("the picks of shot(s) %1", nullptr, static_cast<int>(picked.size()))
                         .arg(numberRanges(picked));
  }
  return mayLose(this, mDocument, losses);
}

void DialogSetGeometry::accept() {
  QStringList blocking;
  for (const GeometryMistake& mistake : mSession->mistakes()) {
    if (mistake.blocks()) blocking << mistakeText(mistake, geometry());
  }
  if (!blocking.isEmpty()) {
    showError(this, tr("Warning"), tr("The geometry is not complete."), shortList(blocking));
    show(mSession->mistakes().front());
    return;
  }
  if (geometryDiffers(geometry(), mDocument) && !mayLoseResults()) return;
  QDialog::accept();
}

void DialogSetGeometry::reject() {
  if (geometryDiffers(geometry(), mDocument) &&
      !askYesNo(this, windowTitle(), tr("The geometry has been edited."),
                tr("Do you want to leave it as it was before?"), false)) {
    return;
  }
  QDialog::reject();
}

}  // namespace talvesk
