#pragma once

#include "app/Languages.h"
#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>

namespace talvesk {

/// What the user has settled for all surveys: language and options.
class SettingsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  /// Reads the settings; without any there is a first run.
  explicit SettingsPresenter(Desk& desk);

  void askAtFirstRun();  ///< once; nothing later
  void ask();            ///< by the dialog

  std::function<void()> changed;          ///< an option
  std::function<void()> languageChanged;  ///< the texts are to be set anew

 private:
  bool askFor(int language);
  void boundMemory();
  void changeUnit();
  void changeLanguage(int index);

  Desk& mDesk;
  Languages mLanguages;
  bool mFirstRun = false;  ///< the user has not been asked for settings yet
};

}  // namespace talvesk
