#include "app/ElidedLabel.h"
#include "app/FenceLines.h"
#include "app/dialogs/AnnotationsDialog.h"
#include "app/dialogs/DepthProfileDialog.h"
#include "app/dialogs/FenceDialog.h"
#include "app/dialogs/MarkedIsolinesDialog.h"
#include "figures/SectionCamera.h"
#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "io/TravelTimeFile.h"
#include "model/Annotations.h"
#include "model/GeoTransformer.h"
#include "support/TestSurveys.h"
#include "view/SectionScene.h"
#include "widgets/fence/FenceView.h"
#include "widgets/section/SectionView.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;

class SectionDrawing : public WindowTest {
 protected:
  void openLine() {
    TomoDocument line = testLine(24, 2.0, {-2.0, 9.0, 23.0, 37.0, 48.0}, 1.0);
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    putGrid(writable(), 12.0, 1.0);
    showWritten();
    action("actionReset_View").trigger();
  }
  template <class Dialog>
  void expectDialog(std::function<void(Dialog&)> act) {
    dialogs.expect([act = std::move(act)](QWidget& widget) {
      auto* dialog = qobject_cast<Dialog*>(&widget);
      ASSERT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
      act(*dialog);
    });
  }
  template <class Widget>
  static Widget& part(const QWidget& dialog, const char* name) {
    auto* widget = dialog.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }
  static void pressOk(const QWidget& dialog) {
    part<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
  }
  SectionView& view() { return child<SectionView>("vtk_widget"); }
  double top() { return view().scene()->upperRight().z; }
  /// \param z metres above the highest ground
  QPoint at(double x, double z) { return view().pointOf({x, top() + z}).toPoint(); }
  /// As the mouse does, whatever window lies in front.
  void point(double x, double z, Qt::MouseButtons pressed = Qt::NoButton) {
    QMouseEvent move(QEvent::MouseMove, at(x, z), Qt::NoButton, pressed, Qt::NoModifier);
    QApplication::sendEvent(view().sheet(), &move);
  }
  void drag(const Point2D& from, const Point2D& to) {
    QTest::mousePress(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(from.x, from.z));
    point(to.x, to.z, Qt::LeftButton);
    QTest::mouseRelease(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(to.x, to.z));
  }
  void click(double x, double z) {
    QTest::mouseClick(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(x, z));
  }
  const Annotations& drawn() { return *window->document().annotations; }
  const SectionAnnotations& shown() { return view().scene()->annotations; }
};

TEST_F(SectionDrawing, marksAnIsolineThatIsUndoneAndHidden) {
  openLine();
  EXPECT_FALSE(action("actionShow_annotations").isEnabled());
  expectDialog<MarkedIsolinesDialog>([](MarkedIsolinesDialog& dialog) {
    auto& table = part<QTableWidget>(dialog, "isolinesTable");
    ASSERT_EQ(table.rowCount(), 1) << "the first is proposed";
    table.item(0, 0)->setText("Grundwasser");
    qobject_cast<QDoubleSpinBox*>(table.cellWidget(0, 1))->setValue(1200.0);
    pressOk(dialog);
  });
  action("actionMarked_isolines").trigger();
  ASSERT_EQ(drawn().isolines.size(), 1U);
  EXPECT_EQ(drawn().isolines[0].name, "Grundwasser");
  EXPECT_EQ(drawn().isolines[0].velocity, 1200.0);
  ASSERT_EQ(shown().isolines.size(), 1U);
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_TRUE(action("actionShow_annotations").isChecked());
  action("actionShow_annotations").trigger();
  EXPECT_TRUE(shown().empty());
  action("actionUndo").trigger();
  EXPECT_TRUE(drawn().empty());
}

TEST_F(SectionDrawing, drawsAnAreaByMouseAndNamesItsGround) {
  openLine();
  view().startDrawing(AnnotationKind::kPolygon);
  click(10.0, -2.0);
  click(20.0, -2.0);
  QTest::keyClick(view().sheet(), Qt::Key_Return);
  EXPECT_TRUE(view().hasTool()) << "two points are no area";
  click(30.0, -8.0);
  click(20.0, -6.0);
  QTest::keyClick(view().sheet(), Qt::Key_Backspace);
  expectDialog<AnnotationsDialog>([](AnnotationsDialog& dialog) {
    auto& table = part<QTableWidget>(dialog, "itemsTable");
    ASSERT_EQ(table.rowCount(), 1);
    qobject_cast<QComboBox*>(table.cellWidget(0, 2))
        ->setCurrentIndex(static_cast<int>(Lithology::kGravel));
    EXPECT_EQ(part<QTableWidget>(dialog, "pointsTable").rowCount(), 3);
    part<QTableWidget>(dialog, "pointsTable").item(0, 0)->setText("11.5");
    pressOk(dialog);
  });
  QTest::keyClick(view().sheet(), Qt::Key_Return);
  QApplication::processEvents();
  ASSERT_EQ(drawn().items.size(), 1U);
  const Annotation& area = drawn().items[0];
  EXPECT_EQ(area.pattern, Lithology::kGravel);
  EXPECT_EQ(area.points[0].x, 11.5) << "typed";
  EXPECT_NEAR(area.points[1].x, 20.0, 0.2) << "clicked, to a pixel";
  EXPECT_NEAR(area.points[2].z, top() - 8.0, 0.2);
  QTest::keyClick(view().sheet(), Qt::Key_Escape);
  EXPECT_FALSE(view().hasTool());
  action("actionUndo").trigger();
  EXPECT_TRUE(drawn().empty());
}

TEST_F(SectionDrawing, dragsWhatIsDrawnAndItsCornersAndUndoesEach) {
  openLine();
  const double z = top();
  const Annotation area{
      AnnotationKind::kPolygon, "", {{10.0, z - 2}, {20.0, z - 2}, {20.0, z - 6}, {10.0, z - 6}}};
  const Annotation note{AnnotationKind::kText, "old quarry", {{30.0, z - 3.0}}};
  const Status put = window->session().apply(Edit::kAnnotations, [&](Survey& survey) {
    survey.document.annotations.edit().items = {note, area};
    return Status();
  });
  ASSERT_TRUE(put.ok());
  const auto dragged = [&](const Point2D& from, const Point2D& to) {
    drag(from, to);
    QApplication::processEvents();
    return drawn().items;
  };
  view().findChild<QAction*>("moveAnnotations")->trigger();
  ASSERT_TRUE(view().hasTool());
  std::vector<Annotation> items = dragged({15.0, -4.0}, {18.0, -5.0});
  EXPECT_NEAR(items[1].points[0].x, 13.0, 0.2) << "all of it";
  EXPECT_NEAR(items[1].points[2].z, z - 7.0, 0.2);
  EXPECT_EQ(items[0], note);

  const std::vector<Annotation> before = items;
  items = dragged({items[1].points[1].x, items[1].points[1].z - z}, {28.0, -1.0});
  EXPECT_NEAR(items[1].points[1].x, 28.0, 0.2) << "a corner alone";
  EXPECT_EQ(items[1].points[0], before[1].points[0]);
  EXPECT_EQ(items[1].points[2], before[1].points[2]);

  items = dragged({30.0, -3.0}, {35.0, -8.0});
  EXPECT_NEAR(items[0].points[0].x, 35.0, 0.2) << "a text by its letters";
  EXPECT_EQ(dragged({2.0, -11.0}, {9.0, -11.0}), items) << "there is nothing";
  EXPECT_TRUE(view().hasTool()) << "until Escape";
  for (int i = 0; i < 3; ++i) action("actionUndo").trigger();
  EXPECT_EQ(drawn().items, (std::vector<Annotation>{note, area})) << "to the bit";

  QTest::mousePress(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(15.0, -4.0));
  point(18.0, -5.0, Qt::LeftButton);
  QTest::keyClick(view().sheet(), Qt::Key_Escape);
  QTest::mouseRelease(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(18.0, -5.0));
  QApplication::processEvents();
  EXPECT_EQ(drawn().items, (std::vector<Annotation>{note, area})) << "given up halfway";
}

/// The items count from the first, and an undo gives another one the number of what is held.
TEST_F(SectionDrawing, movesNothingElseWhenWhatIsDraggedIsUndone) {
  openLine();
  const double z = top();
  const Annotation area{
      AnnotationKind::kPolygon, "", {{10.0, z - 2}, {20.0, z - 2}, {20.0, z - 6}, {10.0, z - 6}}};
  Annotation other = area;
  for (Point2D& p : other.points) p.x += 20.0;
  const auto put = [&](const std::vector<Annotation>& items) {
    return window->session().apply(Edit::kAnnotations, [&](Survey& survey) {
      survey.document.annotations.edit().items = items;
      return Status();
    });
  };
  ASSERT_TRUE(put({other}).ok());
  ASSERT_TRUE(put({area}).ok());
  view().findChild<QAction*>("moveAnnotations")->trigger();
  const auto hold = [&] {
    QTest::mousePress(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(15.0, -4.0));
    point(18.0, -5.0, Qt::LeftButton);
    action("actionUndo").trigger();
  };
  hold();
  QApplication::processEvents();
  QTest::mouseRelease(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(18.0, -5.0));
  QApplication::processEvents();
  EXPECT_EQ(drawn().items, std::vector<Annotation>{other});

  action("actionRedo").trigger();
  QApplication::processEvents();
  ASSERT_EQ(drawn().items, std::vector<Annotation>{area});
  hold();
  QTest::mouseRelease(view().sheet(), Qt::LeftButton, Qt::NoModifier, at(18.0, -5.0));
  QApplication::processEvents();
  EXPECT_EQ(drawn().items, std::vector<Annotation>{other}) << "before the picture is painted anew";
}

TEST_F(SectionDrawing, needsNoMouseAndTakesNothingThatCannotBe) {
  openLine();
  expectDialog<AnnotationsDialog>([](AnnotationsDialog& dialog) {
    part<QPushButton>(dialog, "addTextButton").click();
    EXPECT_THAT(part<QLabel>(dialog, "messageLabel").text().toStdString(),
                HasSubstr("annotation 1: it says nothing"));
    pressOk(dialog);
    ASSERT_TRUE(dialog.isVisible()) << "what cannot be is not taken";
    part<QTableWidget>(dialog, "itemsTable").item(0, 1)->setText("old quarry");
    auto& points = part<QTableWidget>(dialog, "pointsTable");
    points.item(0, 1)->setText("deep");
    EXPECT_NEAR(points.item(0, 1)->text().toDouble(), dialog.items()[0].points[0].z, 1e-3)
        << "what is no number goes";
    EXPECT_FALSE(part<QPushButton>(dialog, "addPointButton").isEnabled()) << "of a text";
    pressOk(dialog);
  });
  action("actionAnnotations").trigger();
  ASSERT_EQ(drawn().items.size(), 1U);
  EXPECT_EQ(drawn().items[0].text, "old quarry");
}

TEST_F(SectionDrawing, measuresUntilEscapeAndMovesTheSectionAgainAfterwards) {
  openLine();
  const Point2D before = view().camera().centre;
  auto& button = part<QToolButton>(view(), "measureButton");
  button.click();
  ASSERT_TRUE(view().hasTool());
  const QImage plain = view().sheet()->grab().toImage();
  drag({10.0, -2.0}, {30.0, -6.0});
  EXPECT_NE(view().sheet()->grab().toImage(), plain) << "the line and its figures";
  EXPECT_EQ(view().camera().centre.x, before.x) << "the section stays where it is";
  QTest::keyClick(view().sheet(), Qt::Key_Escape);
  EXPECT_FALSE(view().hasTool());
  EXPECT_FALSE(button.isChecked());
  drag({10.0, -2.0}, {30.0, -6.0});
  EXPECT_NEAR(view().camera().centre.x, before.x - 20.0, 0.3) << "and moves again";
}

TEST_F(SectionDrawing, laysTheStyleOfOneSurveyOnAnotherAndBack) {
  openLine();
  const QString file = QString::fromStdString(home.file("campaign.tvstyle"));
  const Status chosen = window->session().apply(Edit::kPalette, [](Survey& survey) {
    survey.palettes.edit().select(4);
    survey.palettes.edit().current().max_db = 3210.0;
    return Status();
  });
  ASSERT_TRUE(chosen.ok());
  dialogs.expectFiles("Save style", {file});
  action("actionSave_style").trigger();
  action("actionUndo").trigger();
  EXPECT_EQ(window->session().survey().palettes->currentIndex(), 0U);
  dialogs.expectFiles("Apply style", {file});
  action("actionApply_style").trigger();
  EXPECT_EQ(window->session().survey().palettes->currentIndex(), 4U);
  EXPECT_EQ(view().scene()->range.max, 3210.0);
  EXPECT_TRUE(window->session().survey().section.lockRange);
  action("actionUndo").trigger();
  EXPECT_EQ(window->session().survey().palettes->currentIndex(), 0U);
  EXPECT_FALSE(window->session().survey().section.lockRange);
}

TEST_F(SectionDrawing, showsTheGroundBelowThePointerUntilItIsHeld) {
  openLine();
  action("actionDepth_profile").trigger();
  auto* dialog = window->findChild<DepthProfileDialog*>();
  ASSERT_NE(dialog, nullptr);
  point(12.0, -3.0);
  EXPECT_NEAR(dialog->profile().x, 12.0, 0.2);
  EXPECT_EQ(dialog->profile().layers.size(), 12U);
  auto& place = part<QDoubleSpinBox>(*dialog, "placeSpin");
  place.setValue(30.0);
  point(20.0, -3.0);
  EXPECT_EQ(dialog->profile().x, 30.0) << "typed, so held";
  const QString file = QString::fromStdString(home.file("profile.svg"));
  dialogs.expectFiles("Save depth profile", {file});
  part<QPushButton>(*dialog, "saveButton").click();
  EXPECT_THAT(TestFolder::get(file.toStdString()), HasSubstr("Vertical gradient [1/s]"));
}

TEST_F(SectionDrawing, saysByDotsWhereTheStatusBarHasNoRoom) {
  const QString text = "Distance 140.09 m   Elevation 575.04 m   Velocity 2,152 m/s";
  ElidedLabel label(text);
  QLabel plain(text);
  const auto pictureOf = [](QLabel& shown, int width) {
    shown.resize(width, 24);
    return shown.grab().toImage();
  };
  EXPECT_LE(label.minimumSizeHint().width(), 1) << "a long text does not widen the window";
  EXPECT_EQ(pictureOf(label, 900), pictureOf(plain, 900));
  EXPECT_NE(pictureOf(label, 150), pictureOf(plain, 150)) << "not cut off within a number";
  QHelpEvent hover(QEvent::ToolTip, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(&label, &hover);
  EXPECT_EQ(QToolTip::text(), text);
  QToolTip::hideText();
  open();
  EXPECT_NE(dynamic_cast<ElidedLabel*>(&child<QLabel>("cursorLabel")), nullptr);
  EXPECT_NE(dynamic_cast<ElidedLabel*>(&child<QLabel>("misfitLabel")), nullptr);
}

TEST_F(SectionDrawing, convertsLinesOfOtherSystemsIntoThatOfTheFence) {
  openLine();
  // The same line by the next zone, 6 degrees further: both are at 12 degrees east, 45.15 north.
  const LonLat first{12.0, 45.15};
  const LonLat last{12.0005, 45.1502};
  const auto lineIn = [&](std::int32_t epsg) {
    const GeoTransformer globe(epsg);
    MapPoint a;
    MapPoint b;
    EXPECT_TRUE(globe.project(first, a) && globe.project(last, b));
    TomoDocument line = window->document();
    line.map.edit() = {{epsg, a.easting, b.easting, a.northing, b.northing}, true};
    return line;
  };
  FenceNotes notes;
  const FenceScene scene = fenceOf({{"own", lineIn(32632)},
                                    {"next", lineIn(32633)},
                                    {"feet",
                                     [&] {
                                       TomoDocument line = lineIn(32632);
                                       line.map.edit().geoCoord.CRS = 2272;
                                       return line;
                                     }()}},
                                   notes);
  ASSERT_EQ(scene.panels.size(), 2U);
  EXPECT_EQ(notes.converted, QStringList{"next from EPSG:32633 to EPSG:32632"});
  ASSERT_EQ(notes.leftOut.size(), 1);
  EXPECT_THAT(notes.leftOut[0].toStdString(), HasSubstr("counts in another unit than the metre"));
  for (std::size_t i = 0; i < scene.panels[0].corners.size(); ++i) {
    EXPECT_NEAR(scene.panels[1].corners[i].east, scene.panels[0].corners[i].east, 0.01);
    EXPECT_NEAR(scene.panels[1].corners[i].north, scene.panels[0].corners[i].north, 0.01);
  }
}

TEST_F(SectionDrawing, standsNoLineInAFenceTwiceAndNoneThatCountsInFeet) {
  openLine();
  TomoDocument line = window->document();
  line.map.edit() = {{32632, 500000.0, 500040.0, 5.0e6, 5.0e6 + 20.0}, true};
  TomoDocument feet = line;
  feet.map.edit().geoCoord.CRS = 2272;
  FenceNotes notes;
  const FenceScene scene = fenceOf({{"feet", feet, "feet.tvsk"},
                                    {"one", line, "line.tvsk"},
                                    {"two", line, "line.tvsk"},
                                    {"unsaved", line, {}},
                                    {"unsaved too", line, {}}},
                                   notes);
  EXPECT_EQ(scene.panels.size(), 3U);
  ASSERT_EQ(notes.leftOut.size(), 2);
  EXPECT_THAT(notes.leftOut[0].toStdString(), HasSubstr("counts in another unit than the metre"))
      << "though it is the first";
  EXPECT_EQ(notes.leftOut[1], "two: it stands in the fence already");
}

TEST_F(SectionDrawing, saysWhichLinesOfAFenceAreBeyondItsColours) {
  openLine();
  TomoDocument line = window->document();
  line.map.edit() = {{32632, 500000.0, 500040.0, 5.0e6, 5.0e6 + 20.0}, true};
  ColorPalette palette = ColorPaletteList().current();
  palette.min_db = 100.0;
  palette.max_db = 9000.0;
  FenceDialog wide({"own", line, {}}, palette, 1.0);
  const auto message = [](const FenceDialog& dialog) {
    return part<QLabel>(dialog, "messageLabel").text().toStdString();
  };
  EXPECT_EQ(message(wide), "Lines that stand in the fence: 1.");
  wide.add({"own", line, {}});
  EXPECT_EQ(part<QListWidget>(wide, "linesList").item(1)->text(), "own (2)");
  palette.max_db = 1000.0;
  FenceDialog narrow({"own", line, {}}, palette, 1.0);
  EXPECT_THAT(message(narrow), HasSubstr("Beyond the colours: own "));
}

TEST_F(SectionDrawing, offersAPlaceToALineThatCannotStandInTheFence) {
  openLine();
  const auto buttonOf = [](const QDialog& dialog, const QString& text) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == text && button->isVisible()) return button;
    }
    return static_cast<QPushButton*>(nullptr);
  };
  expectDialog<FenceDialog>([&](FenceDialog& dialog) {
    EXPECT_FALSE(part<FenceView>(dialog, "fenceView").isVisible());
    EXPECT_NE(buttonOf(dialog, "Surveyed positions ..."), nullptr);
    QPushButton* place = buttonOf(dialog, "Set geographic coordinates ...");
    ASSERT_NE(place, nullptr);
    place->click();
  });
  action("actionFence").trigger();
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), QStringLiteral("setGeographyDialog"));
    dialog.close();
  });
  QCoreApplication::processEvents();
  EXPECT_TRUE(dialogs.finished());
}

TEST_F(SectionDrawing, standsLinesInAFenceAndSaysWhatHasNoPlace) {
  openLine();
  const QString other = QString::fromStdString(home.file("other.tvsk"));
  dialogs.expectFiles("Save Project", {other});
  action("actionSave_Project_As").trigger();
  const QString second = QString::fromStdString(home.file("second.tvsk"));
  ASSERT_TRUE(QFile::copy(other, second));
  writable().map.edit() = {{32632, 500000.0, 500040.0, 5.0e6, 5.0e6 + 20.0}, true};
  showWritten();
  expectDialog<FenceDialog>([&](FenceDialog& dialog) {
    const auto& fence = part<FenceView>(dialog, "fenceView");
    ASSERT_EQ(fence.scene().panels.size(), 1U);
    dialogs.expectFiles("Add projects to the fence", {second});
    part<QPushButton>(dialog, "addButton").click();
    EXPECT_EQ(fence.scene().panels.size(), 1U);
    EXPECT_EQ(part<QLabel>(dialog, "leftOutLabel").text(),
              "Left out: second: it has no position on the map.");
    EXPECT_TRUE(part<QLabel>(dialog, "leftOutLabel").isVisible());
    dialogs.expectFiles("Add projects to the fence", {other});
    part<QPushButton>(dialog, "addButton").click();
    EXPECT_THAT(part<QLabel>(dialog, "leftOutLabel").text().toStdString(),
                HasSubstr("other (2): it stands in the fence already"));
    part<QPushButton>(dialog, "removeButton").click();
    const QImage plain = dialog.picture();
    part<QDoubleSpinBox>(dialog, "exaggerationSpin").setValue(2.0);
    const QRect corner(0, plain.height() - 30, 120, 30);
    EXPECT_NE(dialog.picture().copy(corner), plain.copy(corner)) << "it says so";
    const double before = fence.camera().azimuth;
    QTest::keyClick(dialog.findChild<FenceView*>(), Qt::Key_Right);
    EXPECT_NE(fence.camera().azimuth, before);
    part<QPushButton>(dialog, "removeButton").click();
    EXPECT_EQ(part<QListWidget>(dialog, "linesList").count(), 1);
    dialog.reject();
  });
  action("actionFence").trigger();
  EXPECT_TRUE(window->document().map->geoCoord_isSet) << "nothing here changes the survey";
  EXPECT_EQ(TestFolder::get(second.toStdString()), TestFolder::get(other.toStdString()))
      << "nor the projects beside it";
}

}  // namespace
}  // namespace talvesk::testing
