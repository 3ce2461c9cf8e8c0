#include "gui/GeometryDriver.h"
#include "gui/WindowTest.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "session/FullSurvey.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

namespace talvesk::testing {
namespace {

/// A survey from its shot files to its layers, one command after the other, and all the way back.
class Undo : public WindowTest {
 protected:
  Undo() { open(); }

  struct Step {
    const char* name;  ///< what the menu calls it
    std::function<void()> make;
    std::vector<Part> voids;  ///< what has to be forgotten by it
    std::vector<const char*> enables;
  };

  void press(QDialogButtonBox::StandardButton button, const std::function<void(QWidget&)>& fill,
             const char* command) {
    dialogs.expect([fill, button](QWidget& dialog) {
      fill(dialog);
      QTest::qWait(1);
      if (auto* box = dialog.findChild<QDialogButtonBox*>()) {
        box->button(button)->click();
      } else {
        QTest::keyClick(&dialog, Qt::Key_Return);
      }
    });
    action(command).trigger();
  }
  void ok(const char* command, const std::function<void(QWidget&)>& fill) {
    press(QDialogButtonBox::Ok, fill, command);
  }
  template <typename Widget>
  static Widget& in(QWidget& dialog, const char* name) {
    return *dialog.findChild<Widget*>(QLatin1String(name));
  }
  void invert() {
    dialogs.expect([](QWidget& dialog) {
      in<QSpinBox>(dialog, "extIter_edit").setValue(2);
      in<QSpinBox>(dialog, "solvIter_Edit").setValue(2);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    dialogs.expect([](QWidget& widget) {
      dynamic_cast<QMessageBox&>(widget).button(QMessageBox::Ok)->click();
    });
    action("actionRun_tomography_inversion").trigger();
  }
  void markLayers() {
    ok("actionRefraction",
       [](QWidget& dialog) { in<QPushButton>(dialog, "proposeButton").click(); });
  }
  void editGeometry() {
    dialogs.expect([](QWidget& widget) {
      GeometryDriver driver(widget);
      driver.type(driver.shots(), 0, ShotTable::kX, QStringLiteral("7"));
      driver.ok();
    });
    action("actionGeometry").trigger();
  }

  /// Traces, curves, and the section, as they look now; focus, shot in view and what the status bar
  /// tells are none of it.
  std::vector<QImage> look() {
    takePictures();  // a plot lays itself out when it is painted first
    return takePictures();
  }
  std::vector<QImage> takePictures() {
    if (!window->document().ttArray.empty()) window->showFile(0);
    if (action("actionShow_filtered").isChecked()) action("actionShow_filtered").trigger();
    window->statusBar()->clearMessage();
    std::vector<QImage> images;
    auto& tabs = child<QTabWidget>("tabWidget");
    for (int tab = 0; tab < 2; ++tab) {
      tabs.setCurrentIndex(tab);
      if (QWidget* focus = window->focusWidget()) focus->clearFocus();
      QTest::qWait(20);
      images.push_back(tabs.widget(tab)->grab().toImage());
    }
    const auto& view = child<SectionView>("vtk_widget");
    images.push_back(view.isEmpty() ? QImage()
                                    : view.picture({600, 400}, SectionView::Part::kWhole));
    return images;
  }
};

TEST_F(Undo, goesBackToTheEmptyWindowAndForthToTheLayers) {
  const std::vector<Step> steps = {
      {"Open shot files", [this] { loadShots(3); }, {}, {"actionAutoPick", "actionFilter"}},
      {"Move pick",
       [this] { child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 0.0161); },
       {},
       {}},
      {"AutoPick", [this] { action("actionAutoPick").trigger(); }, {}, {}},
      {"AGC", [this] { action("actionAGC").trigger(); }, {}, {}},
      {"Geometry", [this] { editGeometry(); }, {}, {}},
      {"Grid",
       [this] {
         ok("actionGrid", [](QWidget& dialog) {
           in<QDoubleSpinBox>(dialog, "maxDepthEdit").setValue(8.0);
           in<QDoubleSpinBox>(dialog, "cellSizeEdit").setValue(1.0);
         });
       },
       {Part::kResult},
       {"actionDefine_model_velocity", "actionApply_smoothing"}},
      {"Define model velocity",
       [this] {
         ok("actionDefine_model_velocity",
            [](QWidget& dialog) { in<QSpinBox>(dialog, "v2Edit").setValue(1800); });
       },
       {Part::kResult},
       {}},
      {"Run tomography inversion", [this] { invert(); }, {}, {"actionShow_rays"}},
      {"Apply smoothing", [this] { ok("actionApply_smoothing", [](QWidget&) {}); }, {}, {}},
      {"Set title",
       [this] {
         dialogs.expect([](QWidget& widget) {
           auto& dialog = dynamic_cast<QInputDialog&>(widget);
           dialog.setTextValue(QStringLiteral("Dam"));
           dialog.accept();
         });
         action("actionSet_title").trigger();
       },
       {},
       {}},
      {"Palette",
       [this] {
         ok("actionPalette", [](QWidget& dialog) {
           auto& chooser = *dialog.findChild<QComboBox*>();
           chooser.setCurrentIndex(2);
         });
       },
       {},
       {}},
      {"Contour lines", [this] { ok("actionShow_Contour_Lines", [](QWidget&) {}); }, {}, {}},
      {"Refraction", [this] { markLayers(); }, {}, {}},
  };

  action("actionShow_all_traces").trigger();  // they are picked and filtered together
  std::vector<Survey> surveys = {window->session().survey()};
  std::vector<std::vector<QImage>> looks = {look()};
  std::vector<std::string> titles = {window->windowTitle().toStdString()};
  EXPECT_FALSE(window->isWindowModified());
  for (const Step& step : steps) {
    for (const char* command : step.enables) EXPECT_FALSE(action(command).isEnabled()) << command;
    const std::size_t before = window->session().steps();
    step.make();
    ASSERT_TRUE(dialogs.finished()) << step.name;
    ASSERT_EQ(window->session().steps(), before + 1) << step.name;
    EXPECT_TRUE(window->isWindowModified()) << step.name;
    for (const char* command : step.enables) EXPECT_TRUE(action(command).isEnabled()) << command;
    for (const Part part : step.voids) {
      Survey forgotten = window->session().survey();
      forgetPart(part, forgotten);
      EXPECT_TRUE(differingParts(forgotten, window->session().survey()).empty()) << step.name;
    }
    surveys.push_back(window->session().survey());
    looks.push_back(look());
    titles.push_back(window->windowTitle().toStdString());
  }

  const auto expectAt = [&](std::size_t i, const char* way) {
    Survey there = surveys[i];
    const Survey& here = window->session().survey();
    there.section = here.section;  // the view stays
    EXPECT_TRUE(isSame(window->session().survey(), there)) << way << ' ' << i;
    EXPECT_EQ(window->windowTitle().toStdString(), titles[i]) << way << ' ' << i;
    const std::vector<QImage> now = look();
    for (std::size_t k = 0; k < now.size(); ++k) {
      EXPECT_TRUE(now[k] == looks[i][k]) << way << ' ' << i << ", view " << k;
    }
  };
  for (std::size_t i = steps.size(); i-- > 0;) {
    EXPECT_EQ(action("actionUndo").text().toStdString(),
              std::string("Undo \"") + steps[i].name + '"');
    action("actionUndo").trigger();
    expectAt(i, "back");
    EXPECT_EQ(window->isWindowModified(), i > 0);
  }
  EXPECT_FALSE(action("actionUndo").isEnabled());
  EXPECT_EQ(action("actionUndo").text(), QStringLiteral("Undo"));
  for (const char* command : steps.front().enables) {
    EXPECT_FALSE(action(command).isEnabled()) << command;
  }
  for (std::size_t i = 1; i <= steps.size(); ++i) {
    action("actionRedo").trigger();
    expectAt(i, "forth");
  }
  EXPECT_FALSE(action("actionRedo").isEnabled());
}

TEST_F(Undo, bringsBackWhatAnImportReplaced) {
  loadShots(2);
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 0.0161);
  TomoDocument other = window->document();
  other.ttArray.edit()[1].ttMisurati.edit()[5] = 0.0333;
  ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), other).ok());
  window->session().markSaved();
  window->openFiles({QString::fromStdString(home.file("line.otte"))});
  ASSERT_TRUE(dialogs.finished());
  EXPECT_NEAR(window->document().ttArray[1].ttMisurati[5], 0.0333, 1e-9);
  EXPECT_EQ(action("actionUndo").text(), QStringLiteral("Undo \"Import travel times\""));
  action("actionUndo").trigger();
  EXPECT_EQ(window->document().ttArray[1].ttMisurati[5], kUnpicked);
  EXPECT_EQ(window->document().ttArray[0].ttMisurati[3], 0.0161);
  EXPECT_FALSE(window->isWindowModified()) << "it is as it was saved";
  action("actionUndo").trigger();
  EXPECT_EQ(window->document().ttArray[0].ttMisurati[3], kUnpicked) << "older steps are there, too";
}

TEST_F(Undo, bringsTheProjectFileBackWithTheSurveyOfIt) {
  const auto importLine = [this](const char* name, double first) {
    TomoDocument line = testLine(12, 2.0, {first, 30.0});
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file(name), line).ok());
    window->openFiles({QString::fromStdString(home.file(name))});
  };
  const auto saveAs = [this](const char* name) {
    dialogs.expectFiles(QStringLiteral("Save Project"), {QString::fromStdString(home.file(name))});
    action("actionSave_Project_As").trigger();
    ASSERT_TRUE(dialogs.finished());
  };
  importLine("first.otte", -1.0);
  saveAs("first.tvsk");
  importLine("second.otte", -5.0);
  EXPECT_THAT(window->windowTitle().toStdString(), ::testing::Not(::testing::HasSubstr("tvsk")));
  saveAs("second.tvsk");
  action("actionUndo").trigger();
  EXPECT_THAT(window->windowTitle().toStdString(), ::testing::HasSubstr("first.tvsk"));
  EXPECT_EQ(window->document().ttArray[0].shotPos2d.x, -1.0);
  action("actionRedo").trigger();
  EXPECT_THAT(window->windowTitle().toStdString(), ::testing::HasSubstr("second.tvsk"));
  EXPECT_EQ(window->document().ttArray[0].shotPos2d.x, -5.0);
}

TEST_F(Undo, bringsBackAShotThatWasRemoved) {
  loadShots(3);
  window->showFile(1);
  const Survey before = window->session().survey();
  action("actionRemove_shot").trigger();
  EXPECT_EQ(window->document().ttArray.size(), 2U);
  EXPECT_EQ(window->currentFile(), 1);
  EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
              ::testing::HasSubstr("Shot 2 is removed"));
  action("actionUndo").trigger();
  EXPECT_EQ(window->statusBar()->currentMessage(), QStringLiteral("Undone: Remove shot"));
  EXPECT_TRUE(isSame(window->session().survey(), before));
  for (int i = 0; i < 3; ++i) action("actionRemove_shot").trigger();
  EXPECT_TRUE(window->document().ttArray.empty());
  EXPECT_FALSE(action("actionRemove_shot").isEnabled());
}

TEST_F(Undo, saysWhenTheOldestStepsHaveGone) {
  loadShots(2);
  window->session().setUndoMemory(1);
  action("actionAGC").trigger();
  EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
              ::testing::Not(::testing::HasSubstr("oldest")));
  action("actionAGC").trigger();
  QCoreApplication::processEvents();
  EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
              ::testing::StartsWith("Filtered copies made"));
  EXPECT_THAT(window->statusBar()->currentMessage().toStdString(),
              ::testing::HasSubstr("The oldest steps can no longer be undone"));
}

TEST_F(Undo, redoNeedsNoFiles) {
  loadShots(2);
  const double sample = window->document().recordings->traceSets[1][4].samples[120];
  action("actionUndo").trigger();
  EXPECT_TRUE(window->document().recordings->traceSets.empty());
  for (const char* file : {"shot1.dat", "shot2.dat"})
    QFile::remove(QString::fromStdString(home.file(file)));
  action("actionRedo").trigger();
  ASSERT_EQ(window->document().recordings->traceSets.size(), 2U);
  EXPECT_EQ(window->document().recordings->traceSets[1][4].samples[120], sample);
}

}  // namespace
}  // namespace talvesk::testing
