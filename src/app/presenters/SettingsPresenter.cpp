#include "app/presenters/SettingsPresenter.h"

#include "app/dialogs/SettingsDialog.h"
#include "base/LengthUnit.h"
#include "base/SampleStore.h"

#include <QApplication>
#include <QEvent>

namespace talvesk {

SettingsPresenter::SettingsPresenter(Desk& desk) : mDesk(desk) {
  const bool known = desk.settings.load();
  changeUnit();
  if (known) {
    changeLanguage(mLanguages.indexOf(QString::fromStdString(desk.settings.language)));
  } else {
    mFirstRun = true;
  }
  boundMemory();
  // English without its file has no plurals: "1 shot file(s)".
  if (mLanguages.current() < 0) {
    desk.settings.language = "en";
    mLanguages.use(mLanguages.indexOf(QStringLiteral("en")), desk.log);
  }
}

void SettingsPresenter::askAtFirstRun() {
  if (!mFirstRun) return;
  mFirstRun = false;
  askFor(-1);
  mDesk.saveSettings();  // after Cancel, too: nobody is asked twice
}

void SettingsPresenter::ask() {
  if (askFor(mLanguages.current())) mDesk.saveSettings();
}

/// \param language to propose, an index in the list; -1 proposes that of the system
bool SettingsPresenter::askFor(int language) {
  SettingsDialog dialog(mLanguages.list(), language, mDesk.settings, &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return false;
  dialog.apply(mDesk.settings);
  boundMemory();
  changeUnit();
  changed();
  if (dialog.languageIndex() != mLanguages.current()) changeLanguage(dialog.languageIndex());
  return true;
}

void SettingsPresenter::boundMemory() {
  mDesk.session.setUndoMemory(static_cast<std::size_t>(mDesk.settings.undoMegabytes) << 20);
  SampleStore::instance().setWhen(static_cast<SamplesOnDisk>(mDesk.settings.samplesOnDisk));
}

/// A text with a unit is as stale as one of another language, and so are the numbers at an axis:
/// all windows are told in the same way.
void SettingsPresenter::changeUnit() {
  const LengthUnit unit = mDesk.settings.feet ? LengthUnit::kFoot : LengthUnit::kMetre;
  if (unit == lengthUnit()) return;
  setLengthUnit(unit);
  QEvent change(QEvent::LanguageChange);
  QApplication::sendEvent(qApp, &change);  // windows get it from the event loop
}

void SettingsPresenter::changeLanguage(int index) {
  if (index < 0) return;
  if (mLanguages.use(index, mDesk.log)) {
    if (languageChanged) languageChanged();
    mDesk.settings.language = mLanguages.list()[static_cast<std::size_t>(index)].code.toStdString();
  }
  mDesk.saveSettings();
}

}  // namespace talvesk
