#include "app/Talvesk_MainWindows.h"

#include "app/CommandIcons.h"
#include "app/GuideWindow.h"
#include "app/HelpKey.h"
#include "app/KeypadArrows.h"
#include "app/Messages.h"
#include "app/SettingsDialog.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/SectionView.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/editTravelTimesWidget.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QSettings>

namespace talvesk {
namespace {

/// Share of the width that the traces get; the travel times have the rest.
constexpr double kTracesShare = 0.618;

/// Share of the screen, either way, that a window without a remembered place fills at most.
constexpr double kMostOfScreen = 0.95;

/// A window that was left on a larger screen must not reach beyond this one.
void bringIntoSight(QWidget& window) {
  const QRect room = window.screen()->availableVirtualGeometry();
  if (window.isMaximized() || window.isFullScreen()) return;
  if (window.width() <= room.width() && window.height() <= room.height()) return;
  window.resize(window.size().boundedTo(room.size() * kMostOfScreen));
  window.move(room.center() - window.rect().center());
}

}  // namespace

Talvesk_MainWindows::Talvesk_MainWindows(QWidget* parent)
    : QMainWindow(parent),
      mUi(std::make_unique<Ui::Talvesk_MainWindows>()),
      mFolder(WorkingFolder::ofUser()),
      mSettings(mFolder.settings),
      mFolders(History(mFolder.history)),
      mRecent(windowStateFile()),
      mRecovery(QString::fromStdString(mFolder.path)) {
  mUi->setupUi(this);
  setCommandIcons(*this);
  addShotChooser();
  addMisfitLabel();
  addRecentMenu();
  groupActions();
  addKeys();
  startLog();
  loadSettings();
  connectViews();
  connectPlots();
  connectSection();
  connectCommands();
  prepareAutosave();
  new HelpKey([this](const QString& page) { openUserGuide(page); }, this);
  mUi->showTracesWidget_2->hide();
  mUi->tabWidget->setCurrentIndex(0);
  retranslate();
  restoreWindow();
  mSubscription = mSession.subscribe([this](const SurveyChange& change) { surveyChanged(change); });
  mSession.open({}, true);
}

QString Talvesk_MainWindows::windowStateFile() const {
  return QString::fromStdString(mFolder.path) + QStringLiteral("Talvesk_window.ini");
}

Talvesk_MainWindows::~Talvesk_MainWindows() {
  // The views are children and go last; what they say then finds no window any more.
  for (editTravelTimesWidget* editor : editors()) {
    editor->disconnect(this);
  }
  mUi->vtk_widget->disconnect(this);
}

void Talvesk_MainWindows::startLog() {
  mFolder.create();
  mLog = Log(mFolder.log);
  mLog.write("Application Start", 0);
}

void Talvesk_MainWindows::loadSettings() {
  if (mSettings.load()) {
    changeLanguage(mLanguages.indexOf(QString::fromStdString(mSettings.language)));
  } else {
    mFirstRun = true;
  }
  // English without its file has no plurals: "1 shot file(s)".
  if (mLanguages.current() < 0) {
    mSettings.language = "en";
    mLanguages.use(mLanguages.indexOf(QStringLiteral("en")), mLog);
  }
}

/// \param language to propose, an index in the list; -1 proposes that of the system
bool Talvesk_MainWindows::askForSettings(int language) {
  SettingsDialog dialog(mLanguages.list(), language, mSettings, this);
  if (dialog.exec() != QDialog::Accepted) return false;
  dialog.apply(mSettings);
  refreshTraceOptions();
  if (dialog.languageIndex() != mLanguages.current()) changeLanguage(dialog.languageIndex());
  return true;
}

void Talvesk_MainWindows::changeLanguage(int index) {
  if (index < 0) return;
  if (mLanguages.use(index, mLog)) {
    retranslate();
    mSettings.language = mLanguages.list()[static_cast<std::size_t>(index)].code.toStdString();
  }
  saveSettings();
}

void Talvesk_MainWindows::saveSettings() {
  if (const Status saved = mSettings.save(); !saved.ok()) mLog.write(saved.message(), 1);
}

void Talvesk_MainWindows::connectViews() {
  for (editTravelTimesWidget* editor : editors()) {
    editor->setSession(mSession);
    connect(editor, &editTravelTimesWidget::pick_added, this,
            &Talvesk_MainWindows::enable_draw_travel_times);
    connect(editor, &editTravelTimesWidget::pick_edited, this, &Talvesk_MainWindows::on_pickEdited);
    connect(editor, &editTravelTimesWidget::mouse_moved, this, &Talvesk_MainWindows::on_mousemoved);
    connect(editor, &editTravelTimesWidget::cursorMoved, this,
            [this, editor](const TraceCursor& cursor) {
              if (!editor->isHidden()) showCursor(cursor);
            });
  }
  connect(mUi->showTracesWidget, &editTravelTimesWidget::viewChanged, this,
          &Talvesk_MainWindows::refreshCommands);
  connect(mUi->showTracesWidget, &editTravelTimesWidget::selectionChanged, this,
          &Talvesk_MainWindows::refreshCommands);
  connect(mUi->showTracesWidget, &editTravelTimesWidget::optionsChanged, this,
          &Talvesk_MainWindows::refreshViewActions);
  connect(mUi->showTracesWidget, &editTravelTimesWidget::toolChanged, this,
          &Talvesk_MainWindows::refreshViewActions);
  connect(mUi->showTracesWidget, &editTravelTimesWidget::shotEdited, this,
          &Talvesk_MainWindows::showFile);
  mCursorLabel = new QLabel(this);
  mCursorLabel->setObjectName(QStringLiteral("cursorLabel"));
  mCursorLabel->setMinimumWidth(1);  // a long text must not widen the window
  // What was read in one view says nothing about another.
  connect(mUi->tabWidget, &QTabWidget::currentChanged, mCursorLabel, &QLabel::clear);
  mUi->statusBar->addPermanentWidget(mCursorLabel);
}

void Talvesk_MainWindows::addMisfitLabel() {
  mMisfitLabel = new QLabel(this);
  mMisfitLabel->setObjectName(QStringLiteral("misfitLabel"));
  mMisfitLabel->setMinimumWidth(1);  // a long text must not widen the window
  mUi->statusBar->addPermanentWidget(mMisfitLabel);
}

void Talvesk_MainWindows::connectCommands() {
  mUi->menuView->addSeparator();
  mUi->menuView->addAction(mUi->mainToolBar->toggleViewAction());
  mUi->menuView->addAction(mUi->toolBar->toggleViewAction());
  connect(mUi->showTravelTimeCB, &QCheckBox::clicked, this,
          &Talvesk_MainWindows::update_show_traces);
  connect(mUi->actionApply_Hushel, &QAction::triggered, this,
          &Talvesk_MainWindows::on_actionAuto_improve_triggered);
  connect(mUi->actionOpen_shot_files, &QAction::triggered, this,
          &Talvesk_MainWindows::loadTraces_PWave);
  connect(mShotChooser, QOverload<int>::of(&QComboBox::activated), this,
          &Talvesk_MainWindows::showFile);
}

void Talvesk_MainWindows::addShotChooser() {
  mShotChooser = new QComboBox(this);
  mShotChooser->setObjectName(QStringLiteral("shotCBox"));
  mShotChooser->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  mShotChooser->setMinimumContentsLength(12);
  mUi->toolBar->insertWidget(mUi->actionNext_file, mShotChooser);
}

void Talvesk_MainWindows::groupActions() {
  const std::vector<std::vector<QAction*>> groups = {
      {mUi->actionGrid_view, mUi->actionSmooth_view},
      {mUi->actionSmallGeo, mUi->actionNormalGeo, mUi->actionLargeGeo},
      {mUi->actionTool_pick, mUi->actionTool_zoom, mUi->actionTool_pan, mUi->actionTool_ruler,
       mUi->actionTool_select},
      {mUi->actionSnap_none, mUi->actionSnap_onset, mUi->actionSnap_zero, mUi->actionSnap_peak}};
  for (const std::vector<QAction*>& actions : groups) {
    auto* group = new QActionGroup(this);
    for (QAction* action : actions) group->addAction(action);
  }
}

void Talvesk_MainWindows::addKeys() {
  // The keypad arrows are missing on many keyboards.
  mUi->actionNext_file->setShortcuts(
      {mUi->actionNext_file->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Right)});
  mUi->actionPrev_file->setShortcuts(
      {mUi->actionPrev_file->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Left)});
  new KeypadArrows(*this, *mUi->actionPrev_file, *mUi->actionNext_file);
  mUi->actionExit->setShortcuts({mUi->actionExit->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q)});
}

std::array<editTravelTimesWidget*, 2> Talvesk_MainWindows::editors() const {
  return {mUi->showTracesWidget, mUi->showTracesWidget_2};
}

void Talvesk_MainWindows::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (mLaidOut) return;
  mLaidOut = true;
  layOutSplitter();
}

void Talvesk_MainWindows::layOutSplitter() {
  const int width = mUi->splitter->width();
  const int left = static_cast<int>(kTracesShare * width);
  mUi->splitter->setSizes({left, 0, width - left});
}

void Talvesk_MainWindows::restoreWindow() {
  const QSettings state(windowStateFile(), QSettings::IniFormat);
  if (!restoreGeometry(state.value(QStringLiteral("geometry")).toByteArray())) {
    // A laptop at twice the scale has fewer points than the form; the frame needs some too.
    resize(size().boundedTo(screen()->availableSize() * kMostOfScreen));
  } else {
    bringIntoSight(*this);
  }
  restoreState(state.value(QStringLiteral("toolBars")).toByteArray());
}

void Talvesk_MainWindows::saveWindow() {
  QSettings state(windowStateFile(), QSettings::IniFormat);
  state.setValue(QStringLiteral("geometry"), saveGeometry());
  state.setValue(QStringLiteral("toolBars"), saveState());
}

void Talvesk_MainWindows::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QMainWindow::changeEvent(event);
}

void Talvesk_MainWindows::retranslate() {
  mUi->retranslateUi(this);
  mShotChooser->setAccessibleName(tr("Shot in view"));
  mShotChooser->setToolTip(tr("The shot in view"));
  refreshTitle();
  refreshShotChooser();
  refreshRecentProjects();
  refreshSection();
}

void Talvesk_MainWindows::closeEvent(QCloseEvent* event) {
  if (mInversion != nullptr) {
    event->ignore();
    askToStopAndClose();
    return;
  }
  if (!mayLoseChanges()) {
    event->ignore();
    return;
  }
  forgetRecovery();
  saveWindow();
  if (mGuide != nullptr) mGuide->close();
  event->accept();
}

bool Talvesk_MainWindows::mayLoseChanges() {
  if (!mSession.modified()) return true;
  switch (askToSave(this)) {
    case SaveAnswer::kSave:
      return saveProject();
    case SaveAnswer::kDiscard:
      return true;
    case SaveAnswer::kCancel:
      return false;
  }
  return false;
}

void Talvesk_MainWindows::logSlot(const char* name) {
  mLog.write(std::string("Talvesk_MainWindows::") + name, 0);
}

}  // namespace talvesk
