#include "app/presenters/CommandTable.h"
#include "gui/WindowTest.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::WindowTest;

class CommandSearch : public WindowTest {
 protected:
  /// Types into the search, looks at it, and ends it with a key.
  void search(const char* typed, Qt::Key end, const std::function<void(QListWidget&)>& look = {}) {
    dialogs.expect([=](QWidget& popup) {
      auto& field = *popup.findChild<QLineEdit*>();
      EXPECT_TRUE(field.hasFocus());
      QTest::keyClicks(&field, QString::fromUtf8(typed));
      if (look) look(*popup.findChild<QListWidget*>());
      QTest::keyClick(&field, end);
      if (popup.isVisible()) {
        EXPECT_TRUE(end == Qt::Key_Return) << "Escape closes it";
        popup.close();
      }
    });
    QApplication::setActiveWindow(window.get());
    QTest::keyClick(window.get(), Qt::Key_K, Qt::ControlModifier);
    QCoreApplication::processEvents();  // the command comes after the search
  }
  static std::string said(const QListWidgetItem* item) {
    return item->data(Qt::AccessibleTextRole).toString().toStdString();
  }
};

TEST_F(CommandSearch, givesWhatItHasFound) {
  open();
  EXPECT_FALSE(action("actionTwo_colors").isChecked());
  search("colours two", Qt::Key_Return, [](QListWidget& list) {
    EXPECT_EQ(said(list.currentItem()), "Two colours, Traces > Wiggles");
  });
  EXPECT_TRUE(action("actionTwo_colors").isChecked());
  search("two colours", Qt::Key_Escape);
  EXPECT_TRUE(action("actionTwo_colors").isChecked());
}

TEST_F(CommandSearch, saysWhyACommandCannotWorkAndDoesNotGiveIt) {
  open();
  ASSERT_FALSE(action("actionGrid").isEnabled());
  search("grid ...", Qt::Key_Return, [](QListWidget& list) {
    EXPECT_EQ(said(list.currentItem()),
              "Grid ..., Project, not now: There are no geophones and no shots yet.");
  });
  EXPECT_THAT(log(), ::testing::Not(HasSubstr("on_actionGrid_triggered")));
}

TEST_F(CommandSearch, hasAReasonForEveryCommandThatCannotWork) {
  open();
  search("", Qt::Key_Escape, [this](QListWidget& list) {
    EXPECT_GT(list.count(), 80);
    int silent = 0;
    for (int i = 0; i < list.count(); ++i) {
      if (said(list.item(i)).find("It cannot work") != std::string::npos) ++silent;
    }
    EXPECT_LE(silent, 1) << "one asks for two things at once";
  });
}

TEST_F(CommandSearch, putsWhatWasFoundLastInFrontAlsoInTheNextSession) {
  open();
  search("magnifier", Qt::Key_Return);
  search("", Qt::Key_Escape,
         [](QListWidget& list) { EXPECT_THAT(said(list.item(0)), HasSubstr("Magnifier")); });
  open();
  search("", Qt::Key_Escape,
         [](QListWidget& list) { EXPECT_THAT(said(list.item(0)), HasSubstr("Magnifier")); });
}

TEST_F(CommandSearch, findsByTheTextOfTheLanguageAndByTheEnglishOne) {
  writeSettings("de");
  open();
  const std::string german = action("actionGeometry").text().toStdString();
  ASSERT_NE(german, "Geometry ...");
  for (const std::string& words : {german, std::string("geometry")}) {
    search(words.c_str(), Qt::Key_Escape, [&german](QListWidget& list) {
      EXPECT_EQ(list.currentItem()->text().toStdString(), german);
    });
  }
}

TEST_F(CommandSearch, isWalkedByTheArrowsAndTellsThatNothingWasFound) {
  open();
  search("show", Qt::Key_Escape, [](QListWidget& list) {
    auto& field = *list.window()->findChild<QLineEdit*>();
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(field.accessibleDescription().toStdString(), said(list.currentItem()));
    QTest::keyClicks(&field, QStringLiteral("xyzzy"));
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(field.accessibleDescription(), QStringLiteral("No command has these words."));
  });
}

}  // namespace
}  // namespace talvesk
