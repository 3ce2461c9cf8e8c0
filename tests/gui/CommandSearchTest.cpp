#include "app/CommandIndex.h"
#include "app/CommandWords.h"
#include "app/StepTexts.h"
#include "app/presenters/CommandTable.h"
#include "gui/WindowTest.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSet>
#include <QTest>
#include <algorithm>
#include <iterator>

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

/// The commands that lead from recordings to a result, by what those call them who come from other
/// programs. Each must be among the first three.
struct SaidAs {
  const char* typed;
  const char* action;
};
constexpr SaidAs kTrade[] = {
    {"load seismograms", "actionOpen_shot_files"},
    {"raw data", "actionOpen_shot_files"},
    {"segy", "actionOpen_shot_files"},
    {"sampling rate", "actionRecording_details"},
    {"file headers", "actionRecording_details"},
    {"trigger", "actionCount_from_shot"},
    {"time zero", "actionCount_from_shot"},
    {"geophone positions", "actionGeometry"},
    {"topography", "actionGeometry"},
    {"shot points", "actionGeometry"},
    {"gps", "actionSurveyed_positions"},
    {"easting northing", "actionSurveyed_positions"},
    {"load picks", "actionLoad_TT"},
    {"first arrivals", "actionLoad_TT"},
    {"first breaks", "actionAutoPick"},
    {"automatic picking", "actionAutoPick_survey"},
    {"first breaks line", "actionAutoPick_survey"},
    {"reduction velocity", "actionReduction_velocity"},
    {"reduced travel time", "actionReduced_time"},
    {"outliers", "actionNext_doubtful"},
    {"check picks", "actionNext_doubtful"},
    {"quality control", "actionCheck_recordings"},
    {"bad traces", "actionCheck_recordings"},
    {"reciprocal times", "actionReciprocity"},
    {"reverse shots", "actionReciprocity"},
    {"mesh", "actionGrid"},
    {"cell size", "actionGrid"},
    {"starting model", "actionDefine_model_velocity"},
    {"initial model", "actionDefine_model_velocity"},
    {"intial modle", "actionDefine_model_velocity"},
    {"invert", "actionRun_tomography_inversion"},
    {"iterations", "actionRun_tomography_inversion"},
    {"chi-square", "actionSecond_look"},
    {"misfit", "actionSecond_look"},
    {"rms", "actionResiduals"},
    {"computed measured", "actionResiduals"},
    {"plus minus", "actionRefraction"},
    {"layered model", "actionRefraction"},
    {"uncertainty", "actionCertainty"},
    {"standard deviation", "actionCertainty"},
    {"html", "actionWeb_page"},
    {"interactive report", "actionWeb_page"},
};

TEST_F(CommandSearch, findsTheCommandsOfTheWayToASectionByTheWordsOfTheTrade) {
  for (const char* language : {"en", "de"}) {  // everybody types English words at times
    writeSettings(language);
    open();
    const std::vector<IndexedCommand> all = commandsOf(*window->menuBar(), nullptr);
    for (const SaidAs& said : kTrade) {
      const auto found = findCommands(all, QString::fromUtf8(said.typed), {});
      QStringList first;
      for (std::size_t i = 0; i < found.size() && i < 3; ++i) first << all[found[i]].key;
      EXPECT_TRUE(first.contains(QLatin1String(said.action)))
          << language << ": " << said.typed << " gives " << first.join(", ").toStdString();
    }
  }
}

TEST_F(CommandSearch, hasWordsForCommandsThatThereAreAndTwoForEachStep) {
  open();
  const QStringList named = commandsWithWords();
  for (const QString& name : named) {
    EXPECT_NE(window->findChild<QAction*>(name), nullptr) << name.toStdString();
  }
  EXPECT_EQ(QSet<QString>(named.begin(), named.end()).size(), named.size()) << "one list each";
  for (int i = 0; i <= static_cast<int>(StepCommand::kReport); ++i) {
    const std::string action = StepTexts::action(static_cast<StepCommand>(i));
    const auto ways = std::count_if(std::begin(kTrade), std::end(kTrade),
                                    [&](const SaidAs& said) { return action == said.action; });
    EXPECT_GE(ways, 2) << action;
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
