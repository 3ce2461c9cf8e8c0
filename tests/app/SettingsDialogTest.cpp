#include "app/Languages.h"
#include "app/dialogs/SettingsDialog.h"
#include "base/Settings.h"

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

}  // namespace
}  // namespace talvesk
