#include "app/HelpKey.h"
#include "app/HelpTargets.h"
#include "app/SettingsDialog.h"
#include "app/smoothingDialog.h"
#include "base/Settings.h"

#include <QComboBox>
#include <QFileInfo>
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
  const std::pair<QWidget*, const char*> cases[] = {
      {settings.findChild<QComboBox*>(), "settings.html"},
      {&smoothing, "inversion.html"},
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

}  // namespace
}  // namespace talvesk
