#include "gui/WindowTest.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QInputDialog>

namespace talvesk {
namespace {

using testing::WindowTest;

/// The commands that draw traces by offset, in reduced time and with a gain in time.
class TraceMannerCommands : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    open();
    loadShots(2);
  }
  const GatherManner& manner() { return view().options().manner; }
  editTravelTimesWidget& view() { return child<editTravelTimesWidget>("showTracesWidget"); }
  /// Answers the next question by a number, which the view follows while it is open.
  void expectNumber(double asked, double answer, bool accept) {
    dialogs.expect([=](QWidget& widget) {
      auto& box = dynamic_cast<QInputDialog&>(widget);
      EXPECT_EQ(box.doubleValue(), asked);
      EXPECT_FALSE(manner().plain()) << "the proposal is seen";
      box.setDoubleValue(answer);
      EXPECT_EQ(manner().reduction + manner().timeGain, answer);
      accept ? box.accept() : box.reject();
    });
  }
  bool checked(const char* name) { return action(name).isChecked(); }
};

TEST_F(TraceMannerCommands, askForAVelocityOnceAndRememberIt) {
  expectNumber(1500.0, 900.0, false);
  action("actionReduced_time").trigger();
  EXPECT_TRUE(manner().plain());
  EXPECT_FALSE(checked("actionReduced_time"));
  expectNumber(1500.0, 900.0, true);
  action("actionReduced_time").trigger();
  EXPECT_EQ(manner().reduction, 900.0);
  EXPECT_TRUE(checked("actionReduced_time"));
  action("actionReduced_time").trigger();
  EXPECT_TRUE(manner().plain());
  action("actionReduced_time").trigger();
  EXPECT_EQ(manner().reduction, 900.0) << "nobody was asked";
  expectNumber(900.0, 2500.0, true);
  action("actionReduction_velocity").trigger();
  EXPECT_EQ(manner().reduction, 2500.0);
}

TEST_F(TraceMannerCommands, amplifyByAPowerOfTime) {
  action("actionTime_gain").trigger();
  EXPECT_EQ(manner().timeGain, 1.0);
  expectNumber(1.0, 2.25, true);
  action("actionTime_gain_exponent").trigger();
  EXPECT_EQ(manner().timeGain, 2.25);
  EXPECT_TRUE(checked("actionTime_gain"));
  action("actionTime_gain").trigger();
  EXPECT_TRUE(manner().plain());
}

TEST_F(TraceMannerCommands, ordersAreOneAtATime) {
  const auto order = [this] {
    return std::string(checked("actionBy_distance") ? "d" : "") +
           (checked("actionBy_offset") ? "o" : "") +
           (checked("actionBy_absolute_offset") ? "a" : "");
  };
  action("actionBy_offset").trigger();
  EXPECT_EQ(order(), "o");
  action("actionBy_absolute_offset").trigger();
  EXPECT_EQ(order(), "a");
  action("actionBy_distance").trigger();
  EXPECT_EQ(order(), "d");
  action("actionBy_offset").trigger();
  action("actionBy_offset").trigger();
  EXPECT_EQ(order(), "d") << "as it was";
  EXPECT_TRUE(view().options().byDistance);
}

TEST_F(TraceMannerCommands, picturesFollowTheViewUnlessToldOtherwise) {
  const auto expectBox = [this](bool offered) {
    dialogs.expect([offered](QWidget& dialog) {
      const auto* box = dialog.findChild<QCheckBox*>("mannerBox");
      EXPECT_EQ(box->isEnabled(), offered);
      EXPECT_EQ(box->isChecked(), offered);
      dynamic_cast<QDialog&>(dialog).reject();
    });
    action("actionImages").trigger();
  };
  expectBox(false);
  view().setByOffset(true);
  expectBox(true);
}

}  // namespace
}  // namespace talvesk
