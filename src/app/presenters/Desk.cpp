#include "app/presenters/Desk.h"

#include "app/ElidedLabel.h"
#include "app/MessageText.h"
#include "app/Outcomes.h"
#include "app/WaitCursor.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "ui_Talvesk_MainWindows.h"

#include <QLabel>
#include <utility>

namespace talvesk {

Desk::Desk(QMainWindow& mainWindow, Ui::Talvesk_MainWindows& form)
    : window(mainWindow),
      ui(form),
      folder(WorkingFolder::ofUser()),
      settings(folder.settings),
      folders(History(folder.history)),
      cursorLabel(new ElidedLabel(&mainWindow)) {
  folder.create();
  log = Log(folder.log);
  log.write("Application Start", 0);
  cursorLabel->setObjectName(QStringLiteral("cursorLabel"));
  // What was read in one view says nothing about another.
  QObject::connect(ui.tabWidget, &QTabWidget::currentChanged, cursorLabel, &QLabel::clear);
  ui.statusBar->addPermanentWidget(cursorLabel);
}

const refractionDataStructure::Interpretation& Desk::interpretation() const {
  return *survey().interpretation;
}

const ColorPaletteList& Desk::palettes() const {
  return *survey().palettes;
}

const SectionViewSettings& Desk::section() const {
  return survey().section;
}

bool Desk::hasFilteredCopy(int index) const {
  const auto& sets = document().recordings->traceSets;
  return index >= 0 && static_cast<std::size_t>(index) < sets.size() &&
         talvesk::hasFilteredCopy(sets[static_cast<std::size_t>(index)]);
}

bool Desk::edit(Edit kind, const std::function<void(Survey&)>& change, Message text) {
  const auto edit = [&change](Survey& survey) {
    change(survey);
    return Status();
  };
  return tellUnlessDone(session.apply(kind, edit, std::move(text)));
}

bool Desk::tellUnlessDone(const Status& status) {
  if (!status.ok()) tellFailure(tr("The survey was not changed."), status);
  return status.ok();
}

void Desk::tell(const QString& text) {
  ui.statusBar->showMessage(text, kMessageTime);
}

void Desk::tellNotes(const std::vector<Message>& notes) {
  for (const Message& note : notes) log.write(note, 0);
  if (!notes.empty()) tell(linesOf(notes).join(QStringLiteral("; ")));
}

void Desk::tellFailure(const QString& text, const Status& status) {
  talvesk::tellFailure(&window, log, text, status);
}

void Desk::logSlot(const char* name) {
  log.write(std::string("Talvesk_MainWindows::") + name, 0);
}

void Desk::saveSettings() {
  if (const Status saved = settings.save(); !saved.ok()) log.write(saved.message(), 1);
}

std::array<editTravelTimesWidget*, 2> Desk::editors() const {
  return {ui.showTracesWidget, ui.showTracesWidget_2};
}

std::array<TravelTimePlot*, 2> Desk::plots() const {
  return {ui.travelTimePreview, ui.travelTimeCurves};
}

void Desk::showSection() {
  if (ui.tabWidget->currentWidget() == ui.vtk_tab) return;
  // The first picture takes a tenth of a second and more: it is drawn here, under the cursor.
  const WaitCursor waiting;
  ui.tabWidget->setCurrentWidget(ui.vtk_tab);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Desk::showFresh(int index) {
  shot.show(index);
  ui.showTracesWidget->setFocus();
}

QString Desk::windowStateFile() const {
  return QString::fromStdString(folder.path) + QStringLiteral("Talvesk_window.ini");
}

}  // namespace talvesk
