#include "app/dialogs/gridDialog.h"
#include "gui/WindowTest.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "support/TestSurveys.h"
#include "tomo/Smoothing.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;

/// The commands that make and change the model of the ground.
class Model : public WindowTest {
 protected:
  void openLine() {
    TomoDocument line = testLine(24, 2.0, {-1.0, 47.0});
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    ASSERT_EQ(writable().ttArray.size(), 2U);
  }
  void answer(const std::function<void(QWidget&)>& fill) {
    dialogs.expect([fill](QWidget& widget) {
      fill(widget);
      QTest::keyClick(&widget, Qt::Key_Return);
    });
  }
  template <typename Widget>
  static Widget& field(QWidget& dialog, const char* name) {
    return *dialog.findChild<Widget*>(QLatin1String(name));
  }
  const TomoDocument& document() { return writable(); }
};

TEST_F(Model, gridIsProposedFromTheGeophonesAndItsNodesFromTheOneBefore) {
  openLine();
  answer([](QWidget& dialog) {
    EXPECT_EQ(field<QDoubleSpinBox>(dialog, "maxDepthEdit").value(), 25.0);
    EXPECT_EQ(field<QDoubleSpinBox>(dialog, "cellSizeEdit").value(), 0.5);
    EXPECT_EQ(field<QSpinBox>(dialog, "nodesEdit").value(), 6);
    field<QDoubleSpinBox>(dialog, "cellSizeEdit").setValue(1.0);
    field<QDoubleSpinBox>(dialog, "maxDepthEdit").setValue(10.0);
    field<QSpinBox>(dialog, "nodesEdit").setValue(8);
  });
  action("actionGrid").trigger();
  ASSERT_NE(document().model->grid, nullptr);
  EXPECT_EQ(document().model->grid->righe(), 10U);
  EXPECT_EQ(document().model->grid->col(), 50U);
  EXPECT_EQ(document().model->grid->nV(), 8U);
  for (const char* line : {"Talvesk_MainWindows::on_actionGrid_triggered\n", "Setting Grid ... \n",
                           "Generating the grid ... COMPLETED\n", "Setting Grid ... COMPLETED. \n",
                           "Setting info layer ... COMPLETED. \n"}) {
    EXPECT_THAT(log(), HasSubstr(line));
  }
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(field<QDoubleSpinBox>(dialog, "maxDepthEdit").value(), 25.0);
    EXPECT_EQ(field<QDoubleSpinBox>(dialog, "cellSizeEdit").value(), 0.5) << "proposed again";
    EXPECT_EQ(field<QSpinBox>(dialog, "nodesEdit").value(), 8);
    dialog.close();
  });
  action("actionGrid").trigger();
  EXPECT_EQ(document().model->grid->righe(), 10U);
}

TEST_F(Model, gridWithoutGeometryAsksForIt) {
  openLine();
  TomoDocument& line = writable();
  for (auto& string : line.line.edit().goephonesStringSet) string.clear();
  window->session().markSaved();
  dialogs.expect([](QWidget& widget) {
    auto& box = dynamic_cast<QMessageBox&>(widget);
    EXPECT_EQ(box.windowTitle().toStdString(), "Warning");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.text().toStdString(),
              "Geophones do not have geometry! \nPlease set the position of geophones\n");
    EXPECT_THAT(box.findChild<QLabel*>("qt_msgbox_label")->styleSheet().toStdString(),
                HasSubstr("color: red; font-size: 11px;"));
    box.button(QMessageBox::Ok)->click();
  });
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Set survey geometry - Dialog");
    dialog.close();
  });
  action("actionGrid").trigger();
  EXPECT_EQ(line.model->grid, nullptr);
  EXPECT_FALSE(window->session().modified());
}

TEST_F(Model, commandsWaitForWhatTheyNeed) {
  open();
  const char* const names[] = {"actionGrid", "actionRun_tomography_inversion",
                               "actionDefine_model_velocity", "actionApply_smoothing"};
  for (const char* name : names) EXPECT_FALSE(action(name).isEnabled()) << name;
  openLine();
  EXPECT_TRUE(action("actionGrid").isEnabled());
  EXPECT_TRUE(action("actionRun_tomography_inversion").isEnabled());
  EXPECT_FALSE(action("actionDefine_model_velocity").isEnabled());
  answer([](QWidget& dialog) { field<QDoubleSpinBox>(dialog, "maxDepthEdit").setValue(6.0); });
  action("actionGrid").trigger();
  for (const char* name : names) EXPECT_TRUE(action(name).isEnabled()) << name;
}

TEST_F(Model, layersAndSmoothingChangeTheGridUnlessCancelled) {
  openLine();
  answer([](QWidget& dialog) { field<QDoubleSpinBox>(dialog, "maxDepthEdit").setValue(6.0); });
  action("actionGrid").trigger();
  const std::vector<double> atFirst = document().model->grid->slownesses();
  for (const char* name : {"actionDefine_model_velocity", "actionApply_smoothing"}) {
    dialogs.expectAndCancel();
    action(name).trigger();
    EXPECT_EQ(document().model->grid->slownesses(), atFirst) << name;
  }
  EXPECT_THAT(log(), HasSubstr("Talvesk_MainWindows::on_actionDefine_model_velocity_triggered\n"));
  answer([](QWidget&) {});
  dialogs.expectBox("Define model velocity", "You have not changed the layers.",
                    "put them into the grid", QMessageBox::Yes);
  action("actionDefine_model_velocity").trigger();
  const std::vector<double> layered = document().model->grid->slownesses();
  EXPECT_NE(layered, atFirst);
  EXPECT_EQ(document().model->layers.size(), 1U);
  answer([](QWidget& dialog) {
    field<QComboBox>(dialog, "typeOfSmoothingCBox").setCurrentIndex(1);
    field<QSpinBox>(dialog, "smooth_Edit").setValue(3);
  });
  action("actionApply_smoothing").trigger();
  EXPECT_EQ(document().model->grid->slownesses(),
            smoothSlowness(SmoothingType::kLinear,
                           Grid(document().model->grid->sharedGeometry(), layered),
                           std::vector<std::uint32_t>(layered.size(), 0), 3, 0.7));
}

}  // namespace
}  // namespace talvesk::testing
