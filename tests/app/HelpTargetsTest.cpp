#include "app/HelpTargets.h"

#include <QFileInfo>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

/// The tests stand beside the program, in the build tree.
TEST(UserGuide, opensInTheLanguageOfTheWindow) {
  const std::pair<const char*, const char*> cases[] = {{"en", "en/index.html"},
                                                       {"it", "it/index.html"},
                                                       {"it_CH", "it/index.html"},
                                                       {"xx", "en/index.html"},
                                                       {"", "en/index.html"}};
  for (const auto& [language, page] : cases) {
    SCOPED_TRACE(language);
    const QString path = userGuidePath(QString::fromLatin1(language));
    EXPECT_TRUE(path.endsWith(QStringLiteral("resources/guide/") + QString::fromLatin1(page)))
        << path.toStdString();
    EXPECT_TRUE(QFileInfo(path).isFile());
  }
}

}  // namespace
}  // namespace talvesk
