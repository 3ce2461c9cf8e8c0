#include "gui/WindowTest.h"
#include "model/GeographicsCoord.h"
#include "support/SectionDocument.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace talvesk {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::TestFolder;
using testing::WindowTest;

/// The window with a section of 3 rows of 10 cells of 1 m under geophones from 100 m to 108 m.
class Drawings : public WindowTest {
 protected:
  Drawings() { open(); }

  void takeSection(bool onMap) {
    TomoDocument& document = writable();
    document = testing::sectionDocument(
        3, 10, 0.0, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
    if (onMap) {
      document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
      document.map.edit().geoCoord_isSet = true;
    }
    window->showFile(0);
  }
  template <typename T>
  static T& part(QWidget& dialog, const char* name) {
    auto* found = dialog.findChild<T*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no part ") + name);
    return *found;
  }
  static QPushButton& ok(QWidget& dialog) {
    return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
  }
};

TEST_F(Drawings, goWhereTheUserWantsThemWithHisIsovalues) {
  takeSection(true);
  dialogs.expect([](QWidget& dialog) {
    auto& edit = part<QLineEdit>(dialog, "isovaluesEdit");
    EXPECT_THAT(edit.text().toStdString(), HasSubstr("600")) << "round values to begin with";
    for (const char* wrong : {"fast", "600 -1", "0", "1e999"}) {
      edit.setText(QLatin1String(wrong));
      EXPECT_FALSE(ok(dialog).isEnabled()) << wrong;
      EXPECT_THAT(part<QLabel>(dialog, "problemLabel").text().toStdString(),
                  HasSubstr("is not a velocity."));
    }
    edit.setText(QStringLiteral("  650;550 "));
    part<QRadioButton>(dialog, "mapButton").click();
    ok(dialog).click();
  });
  dialogs.expectFiles("Export DXF Drawing", {QString::fromStdString(home.file("map"))});
  action("actionExport_DXF").trigger();
  EXPECT_THAT(TestFolder::get(home.file("map.dxf")),
              AllOf(HasSubstr("ISOLINE_550\n"), HasSubstr("ISOLINE_650\n"),
                    Not(HasSubstr("ISOLINE_600\n")), HasSubstr("\n10\n652000.0000\n")));
  EXPECT_FALSE(window->session().modified()) << "an export changes nothing";
}

TEST_F(Drawings, needNoPlaceOnTheMap) {
  takeSection(false);
  dialogs.expect([](QWidget& dialog) {
    EXPECT_FALSE(part<QRadioButton>(dialog, "mapButton").isEnabled());
    EXPECT_THAT(part<QLabel>(dialog, "noteLabel").text().toStdString(),
                HasSubstr("Project > Set geographic coordinates ..."));
    ok(dialog).click();
  });
  dialogs.expectFiles("Export DXF Drawing", {QString::fromStdString(home.file("s"))});
  action("actionExport_DXF").trigger();
  EXPECT_THAT(TestFolder::get(home.file("s.dxf")), HasSubstr("\n10\n100.0000\n"));
  for (const char* name : {"actionExport_GeoPackage", "actionExport_curtain"}) {
    dialogs.expectBox("Warning", "The line has no place on the map.", "", QMessageBox::Ok);
    action(name).trigger();
    EXPECT_TRUE(dialogs.finished()) << name;
  }
}

TEST_F(Drawings, areWrittenForMaps) {
  takeSection(true);
  dialogs.expect([](QWidget& dialog) {
    EXPECT_FALSE(part<QRadioButton>(dialog, "sectionButton").isVisible());
    ok(dialog).click();
  });
  dialogs.expectFiles("Export GeoPackage", {QString::fromStdString(home.file("s"))});
  action("actionExport_GeoPackage").trigger();
  EXPECT_THAT(TestFolder::get(home.file("s.gpkg")), StartsWith("SQLite format 3"));
  dialogs.expectFiles("Export Curtain", {QString::fromStdString(home.file("c.csv"))});
  action("actionExport_curtain").trigger();
  EXPECT_THAT(TestFolder::get(home.file("c.csv")), StartsWith("easting_m_epsg32632,"));
  dialogs.expectFiles("Export Curtain", {QString::fromStdString(home.file("c"))});
  action("actionExport_curtain").trigger();
  EXPECT_THAT(TestFolder::get(home.file("c.vtu")), HasSubstr("EPSG"));
}

TEST_F(Drawings, areNotWrittenWhenTheUserGivesUpAndFailuresAreTold) {
  takeSection(true);
  const int before = home.entries();
  dialogs.expectAndCancel();
  action("actionExport_DXF").trigger();
  dialogs.expect([](QWidget& dialog) { ok(dialog).click(); });
  dialogs.expectAndCancel();
  action("actionExport_GeoPackage").trigger();
  dialogs.expectAndCancel();
  action("actionExport_curtain").trigger();
  dialogs.expectFiles("Export Curtain", {QString::fromStdString(home.file("no/c.vtu"))});
  dialogs.expectBox("Error occured", "The data have not been exported.",
                    QString::fromStdString(home.file("no/c.vtu")), QMessageBox::Ok);
  action("actionExport_curtain").trigger();
  EXPECT_EQ(home.entries(), before);
  EXPECT_TRUE(dialogs.finished());
}

}  // namespace
}  // namespace talvesk
