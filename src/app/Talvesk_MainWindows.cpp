#include "app/Talvesk_MainWindows.h"

#include "app/CommandIcons.h"
#include "app/CommandIndex.h"
#include "app/DialogRoom.h"
#include "app/KeypadArrows.h"
#include "app/UnitWords.h"
#include "app/WindowPlace.h"
#include "app/presenters/CommandTable.h"
#include "app/presenters/Presenters.h"
#include "io/FileFormats.h"
#include "io/Survey.h"
#include "io/TravelTimeFile.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

namespace talvesk {
namespace {

/// Share of the width that the traces get; the travel times have the rest.
constexpr double kTracesShare = 0.618;

}  // namespace

Talvesk_MainWindows::Talvesk_MainWindows(QWidget* parent)
    : QMainWindow(parent), mUi(std::make_unique<Ui::Talvesk_MainWindows>()) {
  mUi->setupUi(this);
  setCommandIcons(*this);
  rememberEnglishTexts(*this);
  mDesk = std::make_unique<Desk>(*this, *mUi);
  mPresenters = std::make_unique<Presenters>(*mDesk);
  mCommands = std::make_unique<CommandTable>(*mDesk, commandRows(*mDesk, *mPresenters));
  new DialogRoom(this);
  addKeys();
  connectCommands();
  connectViews();
  connectPresenters();
  mUi->menuView->addSeparator();
  mUi->menuView->addAction(mUi->mainToolBar->toggleViewAction());
  mUi->menuView->addAction(mUi->toolBar->toggleViewAction());
  mUi->menuView->addAction(mPresenters->guidance.toggleAction());
  mUi->showTracesWidget_2->hide();
  mUi->tabWidget->setCurrentIndex(0);
  retranslate();
  restorePlace(*this, mDesk->windowStateFile());
  session().open({}, true);
}

Talvesk_MainWindows::~Talvesk_MainWindows() {
  // The views are children and go last; what they say then finds no window any more.
  for (editTravelTimesWidget* editor : mDesk->editors()) editor->disconnect(this);
}

// --- The window from outside

void Talvesk_MainWindows::start(const QStringList& files) {
  mPresenters->settings.askAtFirstRun();
  mPresenters->recovery.offer();
  openFiles(files);
}

void Talvesk_MainWindows::autosave() {
  mPresenters->recovery.autosave();
}

void Talvesk_MainWindows::leaveRecoveryCopy() {
  mPresenters->recovery.leaveCopy();
}

bool Talvesk_MainWindows::askGeometry() {
  return mPresenters->geometry.ask();
}

const TomoDocument& Talvesk_MainWindows::document() const {
  return mDesk->document();
}

Session& Talvesk_MainWindows::session() {
  return mDesk->session;
}

const Settings& Talvesk_MainWindows::settings() const {
  return mDesk->settings;
}

int Talvesk_MainWindows::currentFile() const {
  return mDesk->shot.index();
}

void Talvesk_MainWindows::showFile(int index) {
  mDesk->shot.show(index);
}

void Talvesk_MainWindows::openFiles(const QStringList& files) {
  if (files.isEmpty() || mDesk->inversionRuns) return;  // it may have begun since the drop
  mDesk->logSlot(__func__);
  mDesk->folders.opened(files.front());
  QStringList shots;
  QStringList travelTimes;
  QStringList projects;
  for (const QString& file : files) {
    QStringList& kind =
        hasSuffixOf(projectFormat(), file.toStdString()) ? projects
        : looksLikeTravelTimes(file.toStdString()) || holdsTravelTimes(file.toStdString())
            ? travelTimes
            : shots;
    kind << QFileInfo(file).absoluteFilePath();
  }
  // Each would take the place of the one before.
  if (!projects.isEmpty()) mPresenters->projects.open(projects.front());
  if (!shots.isEmpty()) mPresenters->shotFiles.load(shots);
  for (const QString& file : travelTimes) mPresenters->travelTimes.importFile(file);
}

// --- Menus and connections

void Talvesk_MainWindows::addKeys() {
  // The keypad arrows are missing on many keyboards.
  mUi->actionNext_file->setShortcuts(
      {mUi->actionNext_file->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Right)});
  mUi->actionPrev_file->setShortcuts(
      {mUi->actionPrev_file->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Left)});
  new KeypadArrows(*this, *mUi->actionPrev_file, *mUi->actionNext_file);
  mUi->actionExit->setShortcuts({mUi->actionExit->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q)});
}

/// Commands follow the survey, the shot in view, and what the view of its traces tells.
void Talvesk_MainWindows::connectCommands() {
  connect(mUi->showTravelTimeCB, &QCheckBox::clicked, this,
          &Talvesk_MainWindows::update_show_traces);
  connect(mUi->actionApply_Hushel, &QAction::triggered, this,
          &Talvesk_MainWindows::on_actionAuto_improve_triggered);
  connect(mUi->actionOpen_shot_files, &QAction::triggered, this,
          &Talvesk_MainWindows::loadTraces_PWave);

  const auto refresh = [this] { mCommands->refresh(); };
  mSubscription = session().subscribe([refresh](const SurveyChange&) { refresh(); });
  connect(&mDesk->shot, &ShotInView::changed, this, refresh);
  const editTravelTimesWidget* traces = mUi->showTracesWidget;
  connect(traces, &editTravelTimesWidget::viewChanged, this, refresh);
  connect(traces, &editTravelTimesWidget::selectionChanged, this, refresh);
  connect(traces, &editTravelTimesWidget::optionsChanged, this, refresh);
  connect(traces, &editTravelTimesWidget::toolChanged, this, refresh);
}

void Talvesk_MainWindows::connectViews() {
  for (editTravelTimesWidget* editor : mDesk->editors()) {
    connect(editor, &editTravelTimesWidget::pick_added, this,
            &Talvesk_MainWindows::enable_draw_travel_times);
    connect(editor, &editTravelTimesWidget::pick_edited, this, &Talvesk_MainWindows::on_pickEdited);
    connect(editor, &editTravelTimesWidget::mouse_moved, this, &Talvesk_MainWindows::on_mousemoved);
  }
}

void Talvesk_MainWindows::connectPresenters() {
  mPresenters->recovery.due = [this] { autosave(); };
  mPresenters->settings.languageChanged = [this] { retranslate(); };
  mPresenters->palettes.maximumTried = [this](int value) { update_palette_max(value); };
  mPresenters->palettes.minimumTried = [this](int value) { update_palette_min(value); };
  mPresenters->palettes.palettesTried = [this] { on_vtk_palette_changed(); };
  mPresenters->search.rowOf = [this](const QAction& action) { return mCommands->rowOf(action); };
  mPresenters->inversion.stopWanted = [this] { on_tomo_stopped(); };
}

void Talvesk_MainWindows::run(const char* slot) {
  mCommands->run(slot);
}

void Talvesk_MainWindows::enable_draw_travel_times() {
  mCommands->refresh();
}

void Talvesk_MainWindows::on_pickEdited() {
  mPresenters->curves.refresh();
}

void Talvesk_MainWindows::on_mousemoved(int trace) {
  mUi->travelTimePreview->setHighlightedTrace(trace);
}

void Talvesk_MainWindows::update_palette_max(int value) {
  mPresenters->palettes.tryMaximum(value);
}

void Talvesk_MainWindows::update_palette_min(int value) {
  mPresenters->palettes.tryMinimum(value);
}

void Talvesk_MainWindows::on_vtk_palette_changed() {
  mPresenters->palettes.tryPalettes();
}

void Talvesk_MainWindows::on_tomo_stopped() {
  mPresenters->inversion.stop();
}

// --- Events

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

void Talvesk_MainWindows::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QMainWindow::changeEvent(event);
}

void Talvesk_MainWindows::retranslate() {
  mUi->retranslateUi(this);
  QAction& marked = *mUi->actionMarked_isolines;
  marked.setToolTip(inShownVelocities(marked.toolTip()));
  mPresenters->retranslate();
}

void Talvesk_MainWindows::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (mDesk->inversionRuns) return mPresenters->inversion.askToStopAndClose();
  if (!mPresenters->projects.mayLoseChanges()) return;
  mPresenters->recovery.forget();
  savePlace(*this, mDesk->windowStateFile());
  mPresenters->help.closeGuide();
  event->accept();
}

void Talvesk_MainWindows::dragEnterEvent(QDragEnterEvent* event) {
  if (mDesk->inversionRuns) return;
  const QList<QUrl> urls = event->mimeData()->urls();
  if (std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) {
    event->acceptProposedAction();
  }
}

void Talvesk_MainWindows::dropEvent(QDropEvent* event) {
  QStringList files;
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) files << url.toLocalFile();
  }
  event->acceptProposedAction();
  // The program that the files come from waits for the end of the drop, and loading may ask.
  QMetaObject::invokeMethod(
      this, [this, files] { openFiles(files); }, Qt::QueuedConnection);
}

}  // namespace talvesk
