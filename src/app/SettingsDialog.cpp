#include "app/SettingsDialog.h"

#include "base/Settings.h"
#include "ui_SettingsDialog.h"

#include <QLayout>
#include <QLocale>

namespace talvesk {
namespace {

/// The boxes of the dialog beside the settings that they show.
template <typename Form, typename SettingsType, typename Visit>
void forEachOption(Form& form, SettingsType& settings, Visit visit) {
  visit(*form.fillWiggle, settings.fillWiggle);
  visit(*form.zoomIn, settings.zoomIn);
  visit(*form.cutHorizontal, settings.cutHorizontal);
  visit(*form.showFiltered, settings.showFiltered);
  visit(*form.showAllTraces, settings.showAllTraces);
  visit(*form.twoColors, settings.twoColors);
  visit(*form.savePngHColorbar, settings.savePngHColorbar);
}

int languageOfSystem(const std::vector<Language>& languages) {
  const QString wanted = QLocale::system().name();
  for (std::size_t i = 0; i < languages.size(); ++i) {
    if (wanted.startsWith(languages[i].code)) return static_cast<int>(i);
  }
  return 0;
}

}  // namespace

SettingsDialog::SettingsDialog(const std::vector<Language>& languages, int currentLanguage,
                               const Settings& settings, QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::SettingsDialog>()) {
  mUi->setupUi(this);
  for (const Language& language : languages) mUi->languageCBox->addItem(language.name());
  mUi->languageCBox->setCurrentIndex(currentLanguage >= 0 ? currentLanguage
                                                          : languageOfSystem(languages));
  forEachOption(*mUi, settings, [](QCheckBox& box, bool value) { box.setChecked(value); });
  // A wrapped hint asks for less height than it needs, and languages differ in length.
  setMinimumSize(width(), layout()->totalHeightForWidth(width()));
}

SettingsDialog::~SettingsDialog() = default;

int SettingsDialog::languageIndex() const {
  return mUi->languageCBox->currentIndex();
}

void SettingsDialog::apply(Settings& settings) const {
  forEachOption(*mUi, settings, [](const QCheckBox& box, bool& value) { value = box.isChecked(); });
}

}  // namespace talvesk
