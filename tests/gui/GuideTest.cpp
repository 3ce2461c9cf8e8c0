#include "app/GuideBrowser.h"
#include "app/GuideWindow.h"
#include "gui/WindowTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QUrl>
#include <QWindow>

namespace talvesk::testing {
namespace {

/// Stands in for the browser that the desktop would show the guide with.
class Browser : public QObject {
  Q_OBJECT
 public:
  Browser() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "show"); }
  ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  QStringList shown;
 public slots:
  void show(const QUrl& address) { shown << address.toLocalFile(); }
};

class Guide : public WindowTest {
 protected:
  /// Null while there is none to be seen.
  static GuideWindow* guide() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* found = qobject_cast<GuideWindow*>(widget);
      if (found != nullptr && found->isVisible()) return found;
    }
    return nullptr;
  }
  /// "en/index.html"
  static std::string page() {
    const QString path = guide()->findChild<GuideBrowser*>()->page();
    return path.section(QLatin1Char('/'), -2).toStdString();
  }
  static void trigger(const char* command) {
    guide()->findChild<QAction*>(QLatin1String(command))->trigger();
  }
  static void search(const QString& text) {
    QTest::keyClick(guide(), Qt::Key_F, Qt::ControlModifier);
    guide()->findChild<QLineEdit*>("searchEdit")->setText(text);
  }
};

TEST_F(Guide, opensInTheLanguageOfTheWindow) {
  Browser browser;
  for (const char* language : {"en", "it"}) {
    writeSettings(language);
    open();
    action("actionUser_guide").trigger();
    ASSERT_NE(guide(), nullptr);
    EXPECT_EQ(page(), std::string(language) + "/index.html");
  }
  EXPECT_TRUE(browser.shown.isEmpty());
  trigger("actionBrowser");
  ASSERT_EQ(browser.shown.size(), 1);
  EXPECT_TRUE(browser.shown[0].endsWith("it/index.html"));
  window->close();
  EXPECT_EQ(guide(), nullptr) << "the program would not end";
}

TEST_F(Guide, isReadBesideTheDialogThatAsksForIt) {
  open();
  dialogs.expect([](QWidget& dialog) {
    QTest::keyClick(&dialog, Qt::Key_F1);
    ASSERT_NE(guide(), nullptr);
    EXPECT_EQ(page(), "en/settings.html");
    // By way of the window system, which knows whom the dialog keeps the user from.
    auto* bar = guide()->findChild<QToolBar*>();
    QWidget* contents = bar->widgetForAction(guide()->findChild<QAction*>("actionContents"));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(guide()));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return guide()->windowHandle()->transientParent() == dialog.windowHandle(); }));
    QTest::mouseClick(guide()->windowHandle(), Qt::LeftButton, {},
                      contents->mapTo(guide(), contents->rect().center()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return page() == "en/index.html"; }));
    dialog.close();
  });
  action("actionSettings").trigger();
  ASSERT_NE(guide(), nullptr) << "it outlives the dialog";
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return guide()->windowHandle()->transientParent() == nullptr; }));
  QTest::keyClick(guide(), Qt::Key_Escape);
  EXPECT_EQ(guide(), nullptr);
}

TEST_F(Guide, followsTheLanguageWhileItIsOpen) {
  open();
  action("actionUser_guide").trigger();
  dialogs.expect([](QWidget& dialog) {
    auto* box = dialog.findChild<QComboBox*>("languageCBox");
    box->setCurrentIndex(box->findText("Italiano"));
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  action("actionSettings").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return page() == "it/index.html"; }));
}

TEST_F(Guide, goesBackAndForwardBetweenPages) {
  open();
  action("actionUser_guide").trigger();
  auto* browser = guide()->findChild<GuideBrowser*>();
  EXPECT_FALSE(guide()->findChild<QAction*>("actionBack")->isEnabled());
  browser->setSource(QUrl("filter.html#agc"));
  EXPECT_EQ(page(), "en/filter.html");
  trigger("actionBack");
  EXPECT_EQ(page(), "en/index.html");
  trigger("actionForward");
  EXPECT_EQ(page(), "en/filter.html");
}

TEST_F(Guide, findsATextOnThePageAndOnAllOthers) {
  open();
  action("actionUser_guide").trigger();
  auto* hits = guide()->findChild<QListWidget*>("hitsList");
  auto* count = guide()->findChild<QLabel*>("countLabel");
  EXPECT_FALSE(hits->isVisible());
  search("hushel");
  EXPECT_TRUE(QTest::qWaitFor([&] { return hits->isVisible(); }));
  ASSERT_GT(hits->count(), 1);
  EXPECT_TRUE(hits->item(0)->text().startsWith("Filter traces ("));
  hits->setCurrentRow(0);
  EXPECT_EQ(page(), "en/filter.html");
  EXPECT_TRUE(count->text().startsWith("1 of ")) << count->text().toStdString();
  trigger("actionFind_next");
  EXPECT_TRUE(count->text().startsWith("2 of ")) << count->text().toStdString();

  search("no such word");
  EXPECT_TRUE(QTest::qWaitFor([&] { return hits->count() == 1; }));
  EXPECT_EQ(hits->item(0)->text(), "Nothing found");
  EXPECT_EQ(count->text(), "0");
  search({});
  EXPECT_TRUE(QTest::qWaitFor([&] { return !hits->isVisible(); }));
}

TEST_F(Guide, remembersItsSizeAndThatOfItsText) {
  open();
  action("actionUser_guide").trigger();
  const double before = guide()->findChild<GuideBrowser*>()->font().pointSizeF();
  guide()->resize(640, 500);
  trigger("actionLarger");
  trigger("actionLarger");
  open();
  EXPECT_EQ(guide(), nullptr);
  action("actionUser_guide").trigger();
  EXPECT_EQ(guide()->size(), QSize(640, 500));
  EXPECT_EQ(guide()->findChild<GuideBrowser*>()->font().pointSizeF(), before + 2);
}

}  // namespace
}  // namespace talvesk::testing

#include "GuideTest.moc"
