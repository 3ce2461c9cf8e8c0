#include "app/HelpKey.h"
#include "app/HelpTargets.h"
#include "app/dialogs/SettingsDialog.h"
#include "app/dialogs/smoothingDialog.h"
#include "base/Settings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

/// The tests stand beside the program, in the build tree.
TEST(UserGuide, opensInTheLanguageOfTheWindow) {
  const std::pair<const char*, const char*> cases[] = {
      {"en", "en/index.html"}, {"it", "it/index.html"}, {"it_CH", "it/index.html"},
      {"de", "de/index.html"}, {"fr", "fr/index.html"}, {"es_MX", "es/index.html"},
      {"xx", "en/index.html"}, {"", "en/index.html"}};
  for (const auto& [language, page] : cases) {
    SCOPED_TRACE(language);
    const QString path = userGuidePath(QString::fromLatin1(language));
    EXPECT_TRUE(path.endsWith(QStringLiteral("resources/guide/") + QString::fromLatin1(page)))
        << path.toStdString();
    EXPECT_TRUE(QFileInfo(path).isFile());
  }
}

TEST(UserGuide, hasAPageForEveryDialogThatF1IsPressedIn) {
  QString opened;
  const HelpKey key([&opened](const QString& page) { opened = page; });
  SettingsDialog settings({}, 0, Settings(std::string()));
  smoothingDialog smoothing(SmoothingType::kUniform, &settings);
  QDialog other;
  QMessageBox message;
  QMessageBox question(&smoothing);
  const std::pair<QWidget*, const char*> cases[] = {
      {settings.findChild<QComboBox*>(), "settings.html"},
      {&smoothing, "inversion.html"},
      {&question, "inversion.html"},
      {&message, "troubleshooting.html"},
      {&other, ""}};
  for (const auto& [widget, page] : cases) {
    SCOPED_TRACE(page);
    opened.clear();
    QTest::keyClick(widget, Qt::Key_F1);
    EXPECT_EQ(opened.toStdString(), page);
    if (opened.isEmpty()) continue;
    EXPECT_TRUE(
        userGuidePath(QStringLiteral("it"), opened).endsWith(QLatin1String("it/") + opened));
  }
  EXPECT_TRUE(userGuidePath(QStringLiteral("en"), QStringLiteral("no.html"))
                  .endsWith(QStringLiteral("en/index.html")));
}

TEST(UserGuide, isOpenedByAButtonOfEveryDialog) {
  QString opened;
  const HelpKey key([&opened](const QString& page) { opened = page; });
  SettingsDialog settings({}, 0, Settings(std::string()));
  smoothingDialog smoothing(SmoothingType::kUniform);
  const std::pair<QDialog*, const char*> cases[] = {{&settings, "settings.html"},
                                                    {&smoothing, "inversion.html"}};
  for (const auto& [dialog, page] : cases) {
    for (const bool again : {false, true}) {
      SCOPED_TRACE(again ? "shown again" : page);
      opened.clear();
      dialog->show();
      auto* buttons = dialog->findChild<QDialogButtonBox*>();
      ASSERT_NE(buttons->button(QDialogButtonBox::Help), nullptr);
      buttons->button(QDialogButtonBox::Help)->click();
      EXPECT_EQ(opened.toStdString(), page);
      EXPECT_TRUE(dialog->isVisible());
      dialog->hide();
    }
  }
}

}  // namespace
}  // namespace talvesk
