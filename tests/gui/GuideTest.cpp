#include "gui/WindowTest.h"

#include <QDesktopServices>
#include <QUrl>

namespace talvesk::testing {
namespace {

/// Stands in for the program that the desktop would show the guide with.
class Viewer : public QObject {
  Q_OBJECT
 public:
  Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "show"); }
  ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  QStringList shown;
 public slots:
  void show(const QUrl& address) { shown << address.toLocalFile(); }
};

class Guide : public WindowTest {};

TEST_F(Guide, opensInTheLanguageOfTheWindow) {
  Viewer viewer;
  for (const char* language : {"en", "it"}) {
    writeSettings(language);
    open();
    action("actionUser_guide").trigger();
    ASSERT_FALSE(viewer.shown.isEmpty());
    EXPECT_TRUE(viewer.shown.last().endsWith(QLatin1String(language) + "/index.html"))
        << viewer.shown.last().toStdString();
  }
}

}  // namespace
}  // namespace talvesk::testing

#include "GuideTest.moc"
