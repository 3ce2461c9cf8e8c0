#include "app/Languages.h"
#include "app/dialogs/SettingsDialog.h"
#include "base/SampleStore.h"
#include "base/Settings.h"

#include <QComboBox>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(SettingsDialog, offersEnglishToASystemWhoseLanguageTheProgramDoesNotSpeak) {
  // No system is set to either language beside English.
  const std::vector<Language> languages = {
      {"xx", "talvesk_xx.qm"}, {"en", "talvesk_en.qm"}, {"zz", "talvesk_zz.qm"}};
  const SettingsDialog fresh(languages, -1, Settings(std::string()));
  EXPECT_EQ(fresh.languageIndex(), 1);
  const SettingsDialog chosen(languages, 2, Settings(std::string()));
  EXPECT_EQ(chosen.languageIndex(), 2);
}

TEST(SettingsDialog, asksWhereSamplesAreKept) {
  Settings settings{std::string()};
  settings.samplesOnDisk = static_cast<int>(SamplesOnDisk::kNever);
  const SettingsDialog dialog({}, 0, settings);
  auto& box = *dialog.findChild<QComboBox*>(QStringLiteral("samplesOnDisk"));
  EXPECT_EQ(box.currentText(), QStringLiteral("Never"));
  box.setCurrentText(QStringLiteral("Always"));
  dialog.apply(settings);
  EXPECT_EQ(settings.samplesOnDisk, static_cast<int>(SamplesOnDisk::kAlways));
}

TEST(SettingsDialog, asksForTheUnitOfLengths) {
  Settings settings{std::string()};
  for (const bool feet : {true, false}) {
    const SettingsDialog dialog({}, 0, settings);
    auto& box = *dialog.findChild<QComboBox*>(QStringLiteral("lengthUnit"));
    EXPECT_EQ(box.currentText(),
              feet ? QStringLiteral("metres") : QStringLiteral("feet (0.3048 m)"));
    box.setCurrentIndex(feet ? 1 : 0);
    dialog.apply(settings);
    EXPECT_EQ(settings.feet, feet);
  }
}

}  // namespace
}  // namespace talvesk
