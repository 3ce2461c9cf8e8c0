#pragma once

#include "app/Languages.h"

#include <QDialog>
#include <memory>

namespace talvesk {

class Settings;

namespace Ui {
class SettingsDialog;
}

/// Asks for the language and for everything else that the settings hold.
class SettingsDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param currentLanguage index in the list; -1, as at the first run, proposes the language of
  /// the system
  SettingsDialog(const std::vector<Language>& languages, int currentLanguage,
                 const Settings& settings, QWidget* parent = nullptr);
  ~SettingsDialog() override;

  int languageIndex() const;  ///< -1 when there is no language to choose
  /// Puts all but the language into the settings.
  void apply(Settings& settings) const;

 private:
  void fitToScreen();

  std::unique_ptr<Ui::SettingsDialog> mUi;
};

}  // namespace talvesk
