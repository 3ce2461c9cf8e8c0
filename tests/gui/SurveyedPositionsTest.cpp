#include "app/dialogs/SurveyedPointsTable.h"
#include "app/dialogs/SurveyedPositionsDialog.h"
#include "export/SeismicLineKml.h"
#include "gui/WindowTest.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/MapLine.h"
#include "model/SurveyLine.h"
#include "support/TestSurveys.h"
#include "widgets/LinePlan.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <cmath>
#include <fstream>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;

class SurveyedPositionsCommand : public WindowTest {
 protected:
  /// Twelve geophones 2 m apart as planned, three shots, picked.
  void openLine() {
    TomoDocument line = testLine(12, 2.0, {-2.0, 9.0, 23.0});
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    showWritten();
  }

  /// Geophones 5 m apart on two legs at a right angle, and the first shot; decimal commas.
  QString bentTable() const {
    std::ofstream table(home.file("bent.csv"));
    table << "Punkt;Rechtswert;Hochwert;H\xC3\xB6he\n";
    for (int i = 0; i < 12; ++i) {
      table << "G" << i + 1 << ";" << 652000 + 5 * std::min(i, 6) << ",5;"
            << 5074000 + 5 * std::max(i - 6, 0) << ",25;" << 100 + i << ",5\n";
    }
    table << "S1;651990,5;5074001,25;99\n";
    return QString::fromStdString(home.file("bent.csv"));
  }

  using Act = std::function<void(SurveyedPositionsDialog&)>;
  void withDialog(const QString& file, Act act) {
    dialogs.expectFiles("Open surveyed positions", {file});
    dialogs.expect([act = std::move(act)](QWidget& widget) {
      auto* dialog = qobject_cast<SurveyedPositionsDialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      act(*dialog);
    });
    action("actionSurveyed_positions").trigger();
  }
  template <class Widget>
  static Widget& part(const QWidget& dialog, const char* name) {
    auto* widget = dialog.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }
  /// Chooses as a user does, who hears of it.
  static void choose(const QWidget& dialog, const char* box, int index) {
    auto& combo = part<QComboBox>(dialog, box);
    combo.setCurrentIndex(index);
    emit combo.activated(index);
  }
  static QPushButton& ok(const QWidget& dialog) {
    return *part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok);
  }
  static std::string text(const QWidget& dialog, const char* label) {
    return part<QLabel>(dialog, label).text().toStdString();
  }
  static std::string cell(const QWidget& dialog, int row, int column) {
    const QAbstractItemModel& model = *part<QTableView>(dialog, "pointsTable").model();
    return model.index(row, column).data().toString().toStdString();
  }
  const TomoDocument& document() { return window->document(); }
  std::vector<Point2D> geophones() { return document().line->goephonesStringSet[0]; }
};

TEST_F(SurveyedPositionsCommand, showsAndThenTakesABentLine) {
  openLine();
  const std::vector<Point2D> before = geophones();
  withDialog(bentTable(), [](SurveyedPositionsDialog& dialog) {
    EXPECT_EQ(part<QTableWidget>(dialog, "previewTable").rowCount(), 13);
    EXPECT_EQ(part<QComboBox>(dialog, "eastBox").currentText(), "2: Rechtswert");
    EXPECT_EQ(part<QComboBox>(dialog, "stationsBox").currentIndex(), 0);
    EXPECT_THAT(text(dialog, "mapLabel"), HasSubstr("Without an EPSG code"));
    EXPECT_THAT(text(dialog, "summaryLabel"), HasSubstr("12 of 12 geophones, 1 of 3 shots"));
    EXPECT_TRUE(part<QListWidget>(dialog, "findingsList").isVisibleTo(&dialog))
        << "a fitted line lies far from the corner";

    choose(dialog, "shapeBox", static_cast<int>(LineShape::kBent));
    EXPECT_THAT(text(dialog, "summaryLabel"), HasSubstr("0.00 m across the line"));
    part<QLineEdit>(dialog, "epsgEdit").setText("32632");
    EXPECT_THAT(text(dialog, "systemLabel"), HasSubstr("UTM zone 32N"));
    EXPECT_THAT(text(dialog, "mapLabel"), HasSubstr("along 12 point"));
    using Table = SurveyedPointsTable;
    EXPECT_EQ(cell(dialog, 11, Table::kName), "Geophone 12");
    EXPECT_EQ(cell(dialog, 11, Table::kRow), "13: G12");
    EXPECT_EQ(cell(dialog, 11, Table::kXBefore), "22.00");
    EXPECT_EQ(cell(dialog, 11, Table::kX), "55.00");
    EXPECT_EQ(cell(dialog, 11, Table::kXDifference), "33.00");
    EXPECT_EQ(cell(dialog, 11, Table::kZ), "111.50");
    EXPECT_EQ(cell(dialog, 12, Table::kX), "-10.00");
    EXPECT_EQ(cell(dialog, 12, Table::kAcross), "-1.00");
    EXPECT_EQ(cell(dialog, 13, Table::kRow), "none");
    EXPECT_EQ(cell(dialog, 13, Table::kX), "22.50");
    ok(dialog).click();
  });
  EXPECT_EQ(geophones()[7].x, 35.0);
  EXPECT_EQ(geophones()[7].z, 107.5);
  EXPECT_EQ(document().ttArray[0].shotPos2d.x, -10.0);
  EXPECT_EQ(document().ttArray[1].shotPos2d.x, 22.5);
  ASSERT_TRUE(document().map->geoCoord_isSet);
  EXPECT_EQ(document().map->geoCoord.CRS, 32632);
  const MapPoint corner = LinePlacement(document().map->geoCoord, courseOf(document())).at(30.0);
  EXPECT_NEAR(corner.easting, 652030.5, 0.001);
  EXPECT_NEAR(corner.northing, 5074000.25, 0.001);
  EXPECT_TRUE(writeSeismicLineKml(home.file("line.kml"), document()).ok());

  // One step, there and back.
  EXPECT_EQ(action("actionUndo").text().toStdString(), "Undo \"Surveyed positions\"");
  action("actionUndo").trigger();
  EXPECT_EQ(geophones()[7].x, before[7].x);
  EXPECT_FALSE(document().map->geoCoord_isSet);
  action("actionRedo").trigger();
  EXPECT_EQ(geophones()[7].x, 35.0);
  EXPECT_EQ(courseOf(document()).size(), 12U);
}

TEST_F(SurveyedPositionsCommand, changesNothingBeforeOk) {
  openLine();
  const std::vector<Point2D> before = geophones();
  const std::uint64_t revision = window->session().revision();
  withDialog(bentTable(), [](SurveyedPositionsDialog& dialog) {
    choose(dialog, "lengthBox", static_cast<int>(LengthAlong::kSlope));
    part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Cancel)->click();
  });
  EXPECT_EQ(geophones()[7].x, before[7].x);
  EXPECT_EQ(window->session().revision(), revision);

  dialogs.expectAndCancel();
  action("actionSurveyed_positions").trigger();
  std::ofstream(home.file("empty.csv")) << "\n";
  dialogs.expectFiles("Open surveyed positions", {QString::fromStdString(home.file("empty.csv"))});
  dialogs.expectBox("Error occured", "The positions cannot be read.", "it is empty",
                    QMessageBox::Ok);
  action("actionSurveyed_positions").trigger();
}

TEST_F(SurveyedPositionsCommand, takesOnlyWhatMakesALine) {
  openLine();
  std::ofstream table(home.file("odd.txt"));
  table << "P1 100 a 652000 5074000\n";
  for (int i = 2; i <= 12; ++i) table << "P" << i << " 100 a " << 652000 + 3 * i << " 5074000\n";
  table.close();
  withDialog(QString::fromStdString(home.file("odd.txt")), [](SurveyedPositionsDialog& dialog) {
    // Column 4 is the easting, column 5 the northing, column 2 the elevation.
    choose(dialog, "eastBox", 4);
    choose(dialog, "northBox", 3);
    EXPECT_FALSE(ok(dialog).isEnabled());
    EXPECT_THAT(text(dialog, "summaryLabel"), HasSubstr("line 1: in column 3 stands \"a\""));
    choose(dialog, "northBox", 5);
    choose(dialog, "elevationBox", 2);
    EXPECT_TRUE(ok(dialog).isEnabled());
    part<QLineEdit>(dialog, "startEdit").setText("ten");
    EXPECT_FALSE(ok(dialog).isEnabled());
    part<QLineEdit>(dialog, "startEdit").setText("10");
    part<QLineEdit>(dialog, "epsgEdit").setText("4326");
    EXPECT_FALSE(ok(dialog).isEnabled());
    EXPECT_THAT(text(dialog, "summaryLabel"), HasSubstr("not a projected system"));
    part<QLineEdit>(dialog, "epsgEdit").clear();
    EXPECT_EQ(cell(dialog, 0, SurveyedPointsTable::kX), "10.00");
    part<QPushButton>(dialog, "fileButton");
    ok(dialog).click();
  });
  EXPECT_EQ(geophones()[11].x, 46.0);
  EXPECT_EQ(geophones()[11].z, 100.0);
}

TEST_F(SurveyedPositionsCommand, leadsFromThePlansToTheRow) {
  openLine();
  withDialog(bentTable(), [](SurveyedPositionsDialog& dialog) {
    auto& tabs = part<QTabWidget>(dialog, "tabs");
    tabs.setCurrentIndex(1);
    QTest::qWait(50);
    auto& plan = part<LinePlan>(dialog, "mapPlan");
    ASSERT_EQ(plan.scene().strings[0].size(), 12U);
    const QPointF east = plan.pointOf({25.0, 0.0}) - plan.pointOf({0.0, 0.0});
    const QPointF north = plan.pointOf({0.0, 25.0}) - plan.pointOf({0.0, 0.0});
    EXPECT_NEAR(east.x(), -north.y(), 0.05 * east.x()) << "one scale both ways";
    QTest::mouseClick(plan.canvas(), Qt::LeftButton, Qt::NoModifier,
                      plan.pointOf(plan.scene().strings[0][8]).toPoint());
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(part<QTableView>(dialog, "pointsTable").currentIndex().row(), 8);
    part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Cancel)->click();
  });
}

TEST_F(SurveyedPositionsCommand, asksBeforeASectionIsLost) {
  openLine();
  putGrid(writable(), 12.0, 1.0);
  showWritten();
  withDialog(bentTable(), [this](SurveyedPositionsDialog& dialog) {
    dialogs.expectAndCancel();
    ok(dialog).click();
    ASSERT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_TRUE(document().model->grid != nullptr);
  EXPECT_EQ(geophones()[7].x, 14.0);
}

}  // namespace
}  // namespace talvesk::testing
