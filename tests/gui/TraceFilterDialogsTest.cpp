#include "app/dialogs/VelocityFilterDialog.h"
#include "gui/WindowTest.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "widgets/FkView.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStatusBar>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::WindowTest;

class TraceFilterDialogs : public WindowTest {
 protected:
  TraceFilterDialogs() {
    open();
    loadShots(2);
  }
  std::vector<FilterStep> steps() { return filtersOf(*window->session().document().recordings, 0); }
  template <typename Widget>
  static Widget& in(QWidget& dialog, const char* name) {
    auto* found = dialog.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
};

TEST_F(TraceFilterDialogs, makeTheFilteredCopyThatTheProjectTellsOf) {
  dialogs.expect([](QWidget& dialog) {
    EXPECT_FALSE(in<QWidget>(dialog, "applyToBox").isEnabled()) << "there is no copy";
    in<QDoubleSpinBox>(dialog, "hertzEdit").setValue(60.0);
    in<QSpinBox>(dialog, "harmonicsEdit").setValue(2);
    dynamic_cast<QDialog&>(dialog).accept();
  });
  action("actionNotch").trigger();
  ASSERT_EQ(steps().size(), 1U);
  EXPECT_EQ(steps()[0].numbers, (std::vector<double>{60.0, 2.0, 50.0}));
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Notch\"");
  EXPECT_FALSE(writable().recordings->traceSets[0][0].filtered.empty());
  EXPECT_TRUE(writable().recordings->traceSets[1][0].filtered.empty());

  dialogs.expect([](QWidget& dialog) {
    in<QRadioButton>(dialog, "applyToFiltered").setChecked(true);
    in<QComboBox>(dialog, "directionCBox").setCurrentIndex(2);
    dynamic_cast<QDialog&>(dialog).accept();
  });
  action("actionVelocity_filter").trigger();
  ASSERT_EQ(steps().size(), 2U);
  EXPECT_EQ(steps()[1].numbers, (std::vector<double>{600.0, 0.0, -1.0, 1.0, 20.0}));
  dialogs.expect([](QWidget& dialog) {
    EXPECT_THAT(in<QLabel>(dialog, "filtersValue").text().toStdString(),
                HasSubstr("notches at 60 Hz"));
    dialog.close();
  });
  action("actionRecording_details").trigger();
  action("actionUndo").trigger();
  action("actionUndo").trigger();
  EXPECT_TRUE(writable().recordings->traceSets[0][0].filtered.empty());
}

TEST_F(TraceFilterDialogs, haveAWedgeThatTheMouseTurns) {
  VelocityFilterDialog dialog(window->document(), 0, 1);
  dialog.show();
  auto& view = in<FkView>(dialog, "fkView");
  auto& slowest = in<QDoubleSpinBox>(dialog, "slowestEdit");
  auto& fastest = in<QDoubleSpinBox>(dialog, "fastestEdit");
  const auto send = [&view](QEvent::Type type, const QPointF& at) {
    QMouseEvent event(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
  };
  const auto drag = [&](const QPointF& from, const QPointF& to) {
    send(QEvent::MouseButtonPress, from);
    send(QEvent::MouseMove, to);
    send(QEvent::MouseButtonRelease, to);
  };
  drag(view.pointOf(60.0 / 600.0, 60.0), view.pointOf(60.0 / 400.0, 60.0));
  EXPECT_NEAR(slowest.value(), 400.0, 12.0);
  drag(view.pointOf(0.0, 200.0), view.pointOf(-200.0 / 2500.0, 200.0));
  EXPECT_NEAR(fastest.value(), 2500.0, 80.0);
  drag(view.pointOf(200.0 / fastest.value(), 200.0), view.pointOf(0.0, 200.0));
  EXPECT_EQ(fastest.value(), 0.0) << "no limit again";
  drag(view.pointOf(0.2, 10.0), view.pointOf(0.1, 10.0));
  EXPECT_NEAR(slowest.value(), 400.0, 12.0) << "nothing was taken hold of";

  const QImage before = view.grab().toImage();
  in<QRadioButton>(dialog, "showAfter").setChecked(true);
  EXPECT_NE(view.grab().toImage(), before);
  fastest.setValue(300.0);
  dialogs.expectBox("Velocity filter", "No filter applied.",
                    "the slowest velocity, 400 m/s, must be above 0 and below the fastest, 300 m/s",
                    QMessageBox::Ok);
  slowest.setValue(400.0);
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(TraceFilterDialogs, sayWhyALineCannotBeFiltered) {
  writable().line.edit().goephonesStringSet[0][5].x += 0.7;
  VelocityFilterDialog dialog(window->document(), 0, 1);
  EXPECT_THAT(in<QLabel>(dialog, "shotLabel").text().toStdString(),
              HasSubstr("Shot 1 cannot be filtered: its geophones are not evenly spaced"));
  EXPECT_FALSE(in<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->isEnabled());
}

}  // namespace
}  // namespace talvesk
