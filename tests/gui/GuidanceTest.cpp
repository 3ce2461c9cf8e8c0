#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "support/TestSurveys.h"
#include "tomo/GridSetup.h"

#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace talvesk {
namespace {

using testing::pickTwoLayers;
using testing::WindowTest;

class Guidance : public WindowTest {
 protected:
  QToolButton& step(int number) {
    return child<QToolButton>(("guidanceStep" + std::to_string(number)).c_str());
  }
  /// What a screen reader says of the steps.
  std::string states() {
    std::string all;
    for (int number = 1; number <= 7; ++number) {
      all += step(number).accessibleName().section(QStringLiteral(", "), 1).toStdString() + "; ";
    }
    return all;
  }
  std::string next() { return child<QToolButton>("guidanceNext").text().toStdString(); }
  void edit(Edit kind, const std::function<Status(Survey&)>& change) {
    const Status status = window->session().apply(kind, change);
    ASSERT_TRUE(status.ok()) << status.message();
  }
  void pickAndGrid() {
    edit(Edit::kPick, [](Survey& survey) {
      pickTwoLayers(survey.document, 450.0, 1800.0, 3.0);
      return Status();
    });
    edit(Edit::kGrid, [this](Survey& survey) {
      return setUpGrid(survey.document, {8.0, 1.0, 4}, nowhere);
    });
  }

  Log nowhere;
};

constexpr char kNothing[] = "missing; missing; missing; missing; missing; missing; missing; ";
constexpr char kShots[] = "done; done; missing; missing; missing; missing; missing; ";
constexpr char kReady[] = "done; done; done; done; done; missing; missing; ";

TEST_F(Guidance, followsTheSurveyThroughEditsUndoAndAnotherSurvey) {
  open();
  EXPECT_EQ(states(), kNothing);
  EXPECT_EQ(next(), "Open shot files...");
  loadShots(2);
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kShots));
  EXPECT_EQ(next(), "AutoPick all shots along the line");
  EXPECT_EQ(child<QLabel>("guidanceReason").text().toStdString(), "Picks: no picks yet");
  pickAndGrid();
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kReady));
  EXPECT_EQ(next(), "Run tomography inversion");
  action("actionUndo").trigger();
  action("actionUndo").trigger();
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kShots));
  action("actionRedo").trigger();
  action("actionRedo").trigger();
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kReady));
  window->session().open({}, true);
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kNothing));
}

TEST_F(Guidance, givesTheCommandOfAStep) {
  open();
  loadShots(1);
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kShots));
  dialogs.expect([](QWidget& widget) {
    EXPECT_EQ(widget.objectName(), QStringLiteral("DialogSetGeometry"));
    widget.close();
  });
  step(2).click();
  EXPECT_TRUE(dialogs.finished());
  // What cannot work now is told and not tried.
  EXPECT_FALSE(action("actionResiduals").isEnabled());
  EXPECT_THAT(step(7).toolTip().toStdString(), ::testing::HasSubstr("no section yet"));
}

TEST_F(Guidance, isReachedByTheTabKeyAndSaysWhyWhereTheFocusIs) {
  open();
  loadShots(1);
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kShots));
  step(1).setFocus(Qt::TabFocusReason);
  for (int number = 2; number <= 7; ++number) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &step(number));
  }
  EXPECT_EQ(child<QLabel>("guidanceReason").text().toStdString(), "Result: no section yet");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &child<QToolButton>("guidanceNext"));
  EXPECT_EQ(child<QLabel>("guidanceReason").text().toStdString(), "Picks: no picks yet");
}

/// The Tab key meets what an empty view offers where it stands, and stops nowhere else in it.
TEST_F(Guidance, leadsTheTabKeyThroughEmptyViewsInTheOrderOfReading) {
  const auto nextStop = [] {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    return button != nullptr ? button->text() : QStringLiteral("no button");
  };
  open();
  child<QTabWidget>("tabWidget").setFocus();
  for (const char* text : {"Open shot files...", "Load Project...", "Import TravelTimes..."}) {
    EXPECT_EQ(nextStop().toStdString(), text);
  }
  loadShots(1);
  child<QWidget>("showTracesWidget").setFocus();
  for (const char* text : {"AutoPick all shots along the line", "Import TravelTimes..."}) {
    EXPECT_EQ(nextStop().toStdString(), text);
  }
}

TEST_F(Guidance, staysHiddenInTheNextSession) {
  open();
  auto* bar = &child<QToolBar>("guidanceBar");
  EXPECT_TRUE(bar->isVisible());
  bar->toggleViewAction()->trigger();
  EXPECT_FALSE(bar->isVisible());
  open();
  bar = &child<QToolBar>("guidanceBar");
  EXPECT_FALSE(bar->isVisible());
  loadShots(1);
  bar->toggleViewAction()->trigger();
  // It was hidden while the shots came.
  QTRY_COMPARE(QString::fromStdString(states()), QString::fromLatin1(kShots));
}

/// That of a small laptop, and as narrow as the window gets in any language.
TEST_F(Guidance, fitsNarrowWindowsInEveryLanguage) {
  for (const char* language : {"de", "en", "es", "fr", "it"}) {
    writeSettings(language);
    open();
    for (const int width : {1366, 800}) {
      SCOPED_TRACE(std::string(language) + " " + std::to_string(width));
      window->resize(width, 600);
      QCoreApplication::processEvents();
      const auto& next = child<QToolButton>("guidanceNext");
      EXPECT_TRUE(next.isVisible());
      EXPECT_LE(next.mapTo(window.get(), next.rect().bottomRight()).x(), width);
      EXPECT_GE(child<QLabel>("guidanceReason").width(), 60);
      EXPECT_EQ(window->width(), width) << "the strip must not widen the window";
    }
  }
}

}  // namespace
}  // namespace talvesk
