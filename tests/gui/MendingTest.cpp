#include "gui/WindowTest.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QTableWidget>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::WindowTest;

class Mending : public WindowTest {
 protected:
  Mending() { open(); }

  /// The dialog of the shot in view is filled in by the function, and confirmed.
  void mend(const std::function<void(QDialog&)>& fill) {
    dialogs.expect([fill](QWidget& widget) {
      auto& dialog = dynamic_cast<QDialog&>(widget);
      fill(dialog);
      dialog.accept();
    });
    action("actionMend_recording").trigger();
  }
  std::string status() { return window->statusBar()->currentMessage().toStdString(); }
  std::string chosen(int shot) { return child<QComboBox>("shotCBox").itemText(shot).toStdString(); }
};

TEST_F(Mending, isOneStepFromItsDialogToTheTraces) {
  loadShots(2);
  action("actionAutoPick").trigger();
  const TomoDocument before = writable();
  ASSERT_TRUE(hasPick(before.ttArray[0].ttMisurati[7]));
  EXPECT_FALSE(action("actionTake_back_mends").isEnabled());
  mend([](QDialog& dialog) {
    dialog.findChild<QDoubleSpinBox*>("shiftEdit")->setValue(2.1);
    auto* table = dialog.findChild<QTableWidget*>("tracesTable");
    ASSERT_EQ(table->rowCount(), 12);
    table->item(0, 0)->setCheckState(Qt::Checked);
    table->item(1, 2)->setData(Qt::EditRole, 0.003);
    table->item(2, 3)->setData(Qt::EditRole, 2.5);
    dialog.findChild<QCheckBox*>("orderBox")->setChecked(true);
    EXPECT_EQ(table->item(11, 0)->checkState(), Qt::Checked) << "a mend stays with its channel";
    EXPECT_TRUE(dialog.findChild<QListWidget*>("stackList")->isHidden());
  });
  const ShotMends& mends = window->session().document().recordings->mends.at(0);
  EXPECT_EQ(mends.timeShift, 0.002) << "whole samples of 0.25 ms";
  EXPECT_TRUE(mends.orderReversed);
  ASSERT_EQ(mends.traces.size(), 12U);
  EXPECT_TRUE(mends.traces[11].killed);
  EXPECT_EQ(mends.traces[10].mutedBefore, 0.003);
  EXPECT_EQ(mends.traces[9].gain, 2.5);
  EXPECT_THAT(chosen(0), HasSubstr("(mended)"));
  EXPECT_THAT(status(), HasSubstr("whole samples"));
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Mend recordings\"");

  // Opened again it shows what there is, and changes nothing.
  mend([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QDoubleSpinBox*>("shiftEdit")->value(), 2.0);
    EXPECT_TRUE(dialog.findChild<QCheckBox*>("orderBox")->isChecked());
    EXPECT_EQ(dialog.findChild<QTableWidget*>("tracesTable")->item(11, 0)->checkState(),
              Qt::Checked);
  });
  dialogs.expect([](QWidget& dialog) {
    EXPECT_THAT(dialog.findChild<QLabel*>("mendsValue")->text().toStdString(),
                HasSubstr("traces killed: 12"));
    dialog.close();
  });
  action("actionRecording_details").trigger();
  action("actionUndo").trigger();
  EXPECT_EQ(*writable().ttArray[0].ttMisurati, *before.ttArray[0].ttMisurati);
  action("actionRedo").trigger();
  action("actionTake_back_mends").trigger();
  EXPECT_EQ(*writable().ttArray[0].ttMisurati, *before.ttArray[0].ttMisurati);
  EXPECT_EQ(writable().recordings->traceSets[0][0].samples,
            before.recordings->traceSets[0][0].samples);
  EXPECT_FALSE(action("actionTake_back_mends").isEnabled());
}

TEST_F(Mending, ofTheSelectedTracesGoesByTheMenu) {
  loadShots(2);
  auto& view = child<editTravelTimesWidget>("showTracesWidget");
  view.editPick(0, 4, 0.02);
  view.selectTraces(3, 4);
  dialogs.expect([](QWidget& dialog) {
    dialog.findChild<QDoubleSpinBox*>()->setValue(5.0);
    dynamic_cast<QDialog&>(dialog).accept();
  });
  action("actionMute_traces").trigger();
  for (const char* name : {"actionReverse_polarity", "actionAmplify_traces", "actionKill_traces"}) {
    action(name).trigger();
  }
  EXPECT_THAT(status(), HasSubstr("set aside: 1"));
  const ShotMends& mends = window->session().document().recordings->mends.at(0);
  ASSERT_EQ(mends.traces.size(), 5U);
  EXPECT_FALSE(mends.traces[2].any());
  for (const std::size_t trace : {3U, 4U}) {
    EXPECT_EQ(mends.traces[trace].mutedBefore, 0.005);
    EXPECT_TRUE(mends.traces[trace].reversed && mends.traces[trace].killed);
    EXPECT_EQ(mends.traces[trace].gain, 1.5);
  }
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Kill traces\"");
  action("actionTake_back_mends").trigger();
  EXPECT_EQ(writable().ttArray[0].ttMisurati[4], 0.02);
}

TEST_F(Mending, refusesPicksWhereThereIsNoPlaceForThem) {
  loadShots(2);
  mend([](QDialog& dialog) { dialog.findChild<QCheckBox*>("disabledBox")->setChecked(true); });
  EXPECT_THAT(chosen(0), HasSubstr("(disabled)"));
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 0.02);
  EXPECT_FALSE(hasPick(writable().ttArray[0].ttMisurati[3]));
  EXPECT_EQ(status(), "Shot 1 is disabled and takes no picks; Mend recording enables it.");
  action("actionAutoPick").trigger();
  EXPECT_EQ(status(),
            "First breaks found on 0 of 12 traces. 12 of them are of disabled shots or killed and "
            "left unpicked.");
}

TEST_F(Mending, stacksRepeatsAndDisablesThem) {
  dialogs.expectFiles("Open Seismic Trace",
                      {shotFile("a.dat"), shotFile("b.dat"), shotFile("c.dat", 13.0)});
  action("actionOpen_shot_files").trigger();
  mend([](QDialog& dialog) {
    auto* list = dialog.findChild<QListWidget*>("stackList");
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text().toStdString(), "2: b.dat");
    list->item(0)->setCheckState(Qt::Checked);
  });
  const Recordings& recordings = *window->session().document().recordings;
  ASSERT_EQ(recordings.mends.size(), 2U);
  EXPECT_EQ(recordings.mends[0].stackedWith, std::vector<std::int32_t>{1});
  EXPECT_TRUE(recordings.mends[1].disabled);
}

}  // namespace
}  // namespace talvesk
