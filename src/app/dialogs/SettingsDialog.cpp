#include "app/dialogs/SettingsDialog.h"

#include "base/Settings.h"
#include "ui_SettingsDialog.h"

#include <QLayout>
#include <QLocale>
#include <QScreen>
#include <algorithm>

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

/// The language of the system, or English where the program does not speak it.
int languageOfSystem(const std::vector<Language>& languages) {
  for (const QString& wanted : {QLocale::system().name(), QStringLiteral("en")}) {
    for (std::size_t i = 0; i < languages.size(); ++i) {
      if (wanted.startsWith(languages[i].code)) return static_cast<int>(i);
    }
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
  mUi->undoMegabytes->setRange(Settings::kLeastUndo, Settings::kMostUndo);
  mUi->undoMegabytes->setValue(settings.undoMegabytes);
  mUi->samplesOnDisk->setCurrentIndex(settings.samplesOnDisk);
  mUi->lengthUnit->setCurrentIndex(settings.feet ? 1 : 0);
  fitToScreen();
}

SettingsDialog::~SettingsDialog() = default;

// A wrapped hint asks for less height than it needs, and languages differ in length. On a screen
// that is shorter than all of it the choices scroll, and the buttons stay in sight.
void SettingsDialog::fitToScreen() {
  const QMargins margins = layout()->contentsMargins();
  const int wide = width() - margins.left() - margins.right();
  const int choices = mUi->choices->layout()->totalHeightForWidth(wide);
  const int others = layout()->sizeHint().height() - mUi->choicesArea->sizeHint().height();
  const int slack = 2 * fontMetrics().height();  // the style adds its own margins when shown
  const int available = screen()->availableGeometry().height() * 9 / 10;
  setMinimumWidth(width());
  resize(width(), std::min(others + choices + slack, available));
}

int SettingsDialog::languageIndex() const {
  return mUi->languageCBox->currentIndex();
}

void SettingsDialog::apply(Settings& settings) const {
  forEachOption(*mUi, settings, [](const QCheckBox& box, bool& value) { value = box.isChecked(); });
  settings.undoMegabytes = mUi->undoMegabytes->value();
  settings.samplesOnDisk = mUi->samplesOnDisk->currentIndex();
  settings.feet = mUi->lengthUnit->currentIndex() == 1;
}

}  // namespace talvesk
