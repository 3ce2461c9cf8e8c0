#include "gui/WindowTest.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/TestSurveys.h"
#include "tomo/GridSetup.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace talvesk {
namespace {

using testing::WindowTest;

/// Dialogs that are opened and closed by OK.
class Untouched : public WindowTest {
 protected:
  /// A survey that has whatever these dialogs edit, and a result to lose.
  Untouched() {
    open();
    loadShots(2);
    TomoDocument& document = writable();
    document.title = "A line at 12.5 m";
    // Positions that no field shows with all digits.
    document.line.edit().goephonesStringSet[0][3] = {16.0 + 1.0 / 3.0, 100.123456789};
    document.ttArray.edit()[1].shotPos2d = {13.0 + 1.0 / 7.0, 99.5};
    for (TravelTime& record : document.ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) time = 0.01;
    }
    document.map.edit().geoCoord = {32632, 500000.123456789, 500022.0, 5000000.1, 5000000.0};
    document.map.edit().geoCoord_isSet = true;
    testing::putGrid(document, 10.0, 1.0);
    EXPECT_TRUE(applyLayers(document, {{0.0, 300.0, 10.0, 2500.0}}).ok());
    answer();
    action("actionShow_Contour_Lines").trigger();  // the first time proposes some
    document.result.edit().has_tomographic_info = true;
    document.result.edit().RMSE_tomography = 0.02;
    window->session().markSaved();
    window->showFile(0);
  }

  /// Closes the next dialog by OK (or by Close, its only button), after a change or without one.
  void answer(std::function<void(QWidget&)> change = nullptr) {
    dialogs.expect([change = std::move(change)](QWidget& dialog) {
      if (change) change(dialog);
      const auto* box = dialog.findChild<QDialogButtonBox*>();
      QPushButton* ok = box->button(QDialogButtonBox::Ok);
      QPushButton* button = ok != nullptr ? ok : box->button(QDialogButtonBox::Close);
      EXPECT_TRUE(button->isEnabled());
      button->isEnabled() ? button->click() : static_cast<void>(dialog.close());
    });
  }
  void expectLayersAgain(QMessageBox::StandardButton button) {
    dialogs.expectBox("Define model velocity", "You have not changed the layers.",
                      "The results of the last inversion will be removed (Undo brings them back).",
                      button);
  }
};

TEST_F(Untouched, dialogsLeaveTheSurveyAsItIs) {
  const TomoDocument& document = writable();
  const std::vector<double> slownesses = document.model->grid->slownesses();
  const std::size_t steps = window->session().steps();
  for (const char* command :
       {"actionGeometry", "actionSet_title", "actionSettings", "actionShow_Contour_Lines",
        "actionPalette", "actionSet_geography_coordinates", "actionFilter", "actionRefraction"}) {
    ASSERT_TRUE(action(command).isEnabled()) << command;
    answer();
    action(command).trigger();
    EXPECT_TRUE(dialogs.finished()) << command;
    EXPECT_FALSE(window->session().modified()) << command;
    EXPECT_TRUE(document.result->has_tomographic_info) << command;
    EXPECT_EQ(window->session().steps(), steps) << command;
  }
  EXPECT_EQ(document.model->grid->slownesses(), slownesses);
  EXPECT_EQ(document.line->goephonesStringSet[0][3].z, 100.123456789);
  EXPECT_EQ(document.map->geoCoord.mEastFstGeoph, 500000.123456789);
}

TEST_F(Untouched, layersGoIntoTheGridAgainOnlyWhenTheUserSaysSo) {
  TomoDocument& document = writable();
  answer();
  expectLayersAgain(QMessageBox::No);
  action("actionDefine_model_velocity").trigger();
  EXPECT_TRUE(document.result->has_tomographic_info && !window->session().modified());

  answer();
  expectLayersAgain(QMessageBox::Yes);
  action("actionDefine_model_velocity").trigger();
  EXPECT_FALSE(document.result->has_tomographic_info);
  EXPECT_TRUE(window->session().modified());

  window->session().markSaved();
  answer();
  action("actionDefine_model_velocity").trigger();
  EXPECT_FALSE(window->session().modified())
      << "the grid has these layers: there is nothing to ask";
}

TEST_F(Untouched, gridIsBuiltAgainOnlyWhenTheUserSaysSo) {
  TomoDocument& document = writable();
  answer();
  action("actionGrid").trigger();  // now it has what the dialog proposes
  const double slowness = 1.0 / 777.0;
  document.model.edit().editGrid().setSlowness(0, slowness);
  for (const auto again : {QMessageBox::No, QMessageBox::Yes}) {
    window->session().markSaved();
    answer();
    dialogs.expectBox("Warning", "The grid has these cells already.", "build it anew", again);
    action("actionGrid").trigger();
    EXPECT_EQ(document.model->grid->slowness(0) == slowness, again == QMessageBox::No);
    EXPECT_EQ(window->session().modified(), again == QMessageBox::Yes);
  }
}

TEST_F(Untouched, isNoLongerWhatIsChanged) {
  const struct {
    const char* command;
    std::function<void(QWidget&)> change;
  } cases[] = {{"actionShow_Contour_Lines",
                [](QWidget& dialog) { dialog.findChild<QSpinBox*>("fontSize")->stepUp(); }},
               {"actionPalette",
                [](QWidget& dialog) { dialog.findChild<QSpinBox*>("colorsSpinBox")->stepUp(); }},
               {"actionPalette",
                [](QWidget& dialog) { dialog.findChild<QCheckBox*>("lockRangeCB")->click(); }},
               {"actionSet_geography_coordinates", [](QWidget& dialog) {
                  dialog.findChild<QLineEdit*>("northFstGeoph")->setText("5000000.2");
                }}};
  for (const auto& each : cases) {
    window->session().markSaved();
    answer(each.change);
    action(each.command).trigger();
    EXPECT_TRUE(window->session().modified()) << each.command;
  }
}

}  // namespace
}  // namespace talvesk
