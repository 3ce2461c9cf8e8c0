#include "gui/GeometryDriver.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using testing::Geometry;
using testing::GeometryDriver;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using testing::TestFolder;

TEST_F(Geometry, savesAndLoadsFilesWithEverySeparator) {
  loadShots(2);
  for (int entry = 0; entry < 3; ++entry) {
    const std::string between = std::string(" ;,").substr(static_cast<std::size_t>(entry), 1);
    const std::string name = home.file("line" + std::to_string(entry));
    dialogs.expect([&](QWidget& widget) {
      GeometryDriver user(widget);
      user.click("saveGeophonesButton");
      user.child<QLineEdit>("firstEdit").setText("0");
      user.child<QLineEdit>("spacingEdit").setText("5");
      user.click("autofillButton");
      EXPECT_EQ(user.cell(user.geophones(), 11, GeophoneTable::kX), "55");
      user.click("loadGeophonesButton");
      EXPECT_EQ(user.cell(user.geophones(), 11, GeophoneTable::kX), "32");
      user.click("saveShotsButton");
      user.type(user.shots(), 1, ShotTable::kX, "99");
      user.click("loadShotsButton");
      EXPECT_EQ(user.cell(user.shots(), 1, ShotTable::kX), "13");
      user.ok();
    });
    dialogs.expectFiles("Save Geometry", {QString::fromStdString(name)});
    expectSeparator(entry);
    dialogs.expectFiles("Open Geometry", {QString::fromStdString(name + ".csv")});
    expectSeparator(entry);
    dialogs.expectFiles("Save Geometry", {QString::fromStdString(name + ".CSV")});
    expectSeparator(entry);
    dialogs.expectFiles("Open Geometry", {QString::fromStdString(name + ".CSV.csv")});
    expectSeparator(entry);
    action("actionGeometry").trigger();
    EXPECT_THAT(TestFolder::get(name + ".csv"), HasSubstr("10" + between + "0\n12" + between));
    EXPECT_EQ(
        TestFolder::get(name + ".CSV.csv"),
        "shot_id_1" + between + "9" + between + "0\nshot_id_2" + between + "13" + between + "0\n");
    EXPECT_EQ(string().back().x, 32.0);
  }
  EXPECT_THAT(console.out(), HasSubstr("LOADED\nTo be updated: 2\nSetting 1\nSetting 2\n"));
}

TEST_F(Geometry, rejectsFilesThatDoNotFit) {
  loadShots(2);
  std::string geophones;
  for (int i = 0; i < 12; ++i) geophones += std::to_string(i) + ";1\n";
  const struct {
    bool shots;
    std::string text;
    int separator;
    const char* details;
  } kCases[] = {
      {false, geophones.substr(0, geophones.size() - 5), 1, "Invalid geometry file. 11"},
      {false, geophones + "12;1\n", 1, "Invalid geometry file. 13"},
      {false, geophones, 2, "Invalid geometry file. 12"},
      {false, std::string(300, '1'), 1, "Invalid geometry file. 0"},
      {true, "shot_id_1;1;2\n", 1, "Invalid shot file. 1"},
      {true, "shot_id_1;1;2\nshot_id_2;1\n", 1, "Invalid shot file. 2"},
      {true, "shot_id_1;1;2\nshot_id_2;1;2\n", 0, "Invalid shot file. 0"},
  };
  for (const auto& [shots, text, separator, details] : kCases) {
    SCOPED_TRACE(details);
    const std::string path = home.put("line.csv", text);
    const bool ofShots = shots;
    dialogs.expect([ofShots](QWidget& widget) {
      GeometryDriver user(widget);
      user.click(ofShots ? "loadShotsButton" : "loadGeophonesButton");
      EXPECT_EQ(user.cell(user.geophones(), 0, GeophoneTable::kX), "10");
      EXPECT_EQ(user.cell(user.shots(), 0, ShotTable::kX), "9");
      EXPECT_FALSE(user.notice().isEmpty()) << "the count alone tells nobody what to do";
      user.cancel();
    });
    dialogs.expectFiles("Open Geometry", {QString::fromStdString(path)});
    expectSeparator(separator);
    expectRefused(details);
    action("actionGeometry").trigger();
  }
}

TEST_F(Geometry, tellsWhatOfAFileItSkippedAndTookForZero) {
  loadShots(1);
  std::string text = "\xEF\xBB\xBFx (m);z (m)\n";
  for (int i = 0; i < 12; ++i) text += std::to_string(i) + (i == 4 ? ";low\n" : ";1\n");
  const std::string path = home.put("line.csv", text);
  QString notice;
  dialogs.expect([&notice](QWidget& widget) {
    GeometryDriver user(widget);
    user.click("loadGeophonesButton");
    notice = user.notice();
    user.ok();
  });
  dialogs.expectFiles("Open Geometry", {QString::fromStdString(path)});
  expectSeparator(1);
  dialogs.expect([](QWidget& widget) {
    auto* box = qobject_cast<QMessageBox*>(&widget);
    ASSERT_NE(box, nullptr) << widget.windowTitle().toStdString();
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_THAT(box->text().toStdString(), HasSubstr("of line.csv"));
    EXPECT_EQ(box->informativeText(), "line 6: \"low\"");
    box->button(QMessageBox::Ok)->click();
  });
  action("actionGeometry").trigger();
  EXPECT_EQ(notice,
            "Geophones loaded from line.csv. The first line, \"x (m);z (m)\", was taken for a "
            "heading and skipped.");
  EXPECT_EQ(string()[3], (Point2D{3, 1}));
  EXPECT_EQ(string()[4], (Point2D{4, 0}));
}

TEST_F(Geometry, leavesFilesAloneWhenTheSeparatorIsNotChosen) {
  loadShots(1);
  dialogs.expect([](QWidget& widget) {
    GeometryDriver user(widget);
    user.click("saveGeophonesButton");
    user.click("loadGeophonesButton");
    user.cancel();
  });
  const std::string path = home.put("line.csv", "keep\n");
  dialogs.expectFiles("Save Geometry", {QString::fromStdString(home.file("new"))});
  dialogs.expectAndCancel();
  dialogs.expectFiles("Open Geometry", {QString::fromStdString(path)});
  dialogs.expectAndCancel();
  action("actionGeometry").trigger();
  EXPECT_FALSE(QFile::exists(QString::fromStdString(home.file("new.csv"))));
  EXPECT_EQ(TestFolder::get(path), "keep\n");
}

}  // namespace
}  // namespace talvesk
