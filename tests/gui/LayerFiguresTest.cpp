// What a layered profile is shown with: dashes, error bands, and its times in the curves.
#include "app/dialogs/RefractionProcessingDialog.h"
#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "io/project/ProjectWriter.h"
#include "support/RefractionLines.h"
#include "widgets/RefractionProfilePlot.h"
#include "widgets/SeriesPlot.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QUndoStack>
#include <functional>
#include <stdexcept>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using testing::WindowTest;

template <typename Widget>
Widget& in(QWidget& dialog, const char* name) {
  auto* found = dialog.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

const RefractionScene& sceneOf(QWidget& dialog) {
  return in<RefractionProfilePlot>(dialog, "profilePlot").scene();
}

bool findsBands(QWidget& dialog) {
  in<QCheckBox>(dialog, "errorBandsCheck").setChecked(true);
  return QTest::qWaitFor([&] { return sceneOf(dialog).hasBands(); }, 60000);
}

/// The window on a line whose true layers are known.
class LayerFigures : public WindowTest {
 protected:
  LayerFigures() {
    open();
    writable() = testing::standardDippingLine(testing::twoDippingLayers(), truth);
    window->session().markSaved();
    window->showFile(0);
  }
  ~LayerFigures() override { window->session().markSaved(); }

  /// The dialog with a profile; what is done in it before OK.
  void interpret(const std::function<void(QWidget&)>& work = {}) {
    dialogs.expect([work](QWidget& dialog) {
      if (!hasMarks(dynamic_cast<RefractionProcessingDialog&>(dialog).interpretation().ttLayer)) {
        in<QPushButton>(dialog, "proposeButton").click();
      }
      in<QPushButton>(dialog, "buildButton").click();
      if (work) work(dialog);
      in<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Ok)->click();
    });
    action("actionRefraction").trigger();
    EXPECT_TRUE(dialogs.finished());
  }
  TravelTimePlot& plot() { return child<TravelTimePlot>("travelTimeCurves"); }
  /// The plot beside the traces has a box of that name, too, which is never seen.
  QCheckBox& layersBox() { return in<QCheckBox>(plot(), "layeredBox"); }
  bool hasTimes() {
    return QTest::qWaitFor([this] { return !plot().layered().empty(); }, 60000);
  }
  std::vector<refractionDataStructure::layerStruct> truth;
};

TEST_F(LayerFigures, dashesWhatPicksDoNotCarryAndSaysSoInTheTable) {
  interpret([](QWidget& dialog) {
    const RefractionScene& scene = sceneOf(dialog);
    ASSERT_EQ(scene.looks.size(), 1U);
    EXPECT_TRUE(scene.hasUncarried());
    EXPECT_FALSE(scene.looks[0].carried.empty()) << "in the middle";
    EXPECT_FALSE(scene.hasBands()) << "nobody has asked for them";
    const auto& table = in<QTableWidget>(dialog, "profileTable");
    ASSERT_EQ(table.columnCount(), 4);
    const auto text = [&](int row, int column) {
      return table.item(row, column)->text().toStdString();
    };
    EXPECT_EQ(text(2, 3), "phantom") << "the direct wave comes first near the shot";
    EXPECT_THAT(text(2, 1), MatchesRegex("\\([0-9.]+\\)"));
    EXPECT_EQ(text(30, 3), "picks");
    EXPECT_THAT(text(30, 1), MatchesRegex("[0-9.]+"));
  });
}

/// Of a profile that is fitted to all picks there are no curves, tV, tG, XY and errors, and nothing
/// of a profile that was there before is left.
TEST_F(LayerFigures, showsNothingOfTheReciprocalMethodBesideAFittedProfile) {
  interpret([](QWidget& dialog) {
    auto& choice = in<QComboBox>(dialog, "profileCombo");
    EXPECT_EQ(choice.currentText(), "Reciprocal method");
    ASSERT_TRUE(findsBands(dialog));
    ASSERT_FALSE(in<SeriesPlot>(dialog, "tvPlot").series().empty());
    choice.setCurrentIndex(1);
    emit choice.activated(1);
    const auto& stale = in<QLabel>(dialog, "staleLabel");
    EXPECT_EQ(stale.text(), "The profile that is shown is by the reciprocal method.");
    in<QPushButton>(dialog, "buildButton").click();
    EXPECT_EQ(stale.text(), "");

    for (const char* plot : {"tvPlot", "tgPlot", "phantomPlot"}) {
      EXPECT_TRUE(in<SeriesPlot>(dialog, plot).series().empty()) << plot;
    }
    EXPECT_FALSE(sceneOf(dialog).hasBands());
    EXPECT_EQ(sceneOf(dialog).v1Error, 0.0);
    EXPECT_TRUE(sceneOf(dialog).v1IsMean);
    EXPECT_EQ(in<QTableWidget>(dialog, "shiftTable").rowCount(), 0);
    for (const char* part :
         {"xyCombo", "refractorCombo", "errorBandsCheck", "pushAutoPhantButton"}) {
      EXPECT_FALSE(in<QWidget>(dialog, part).isEnabled()) << part;
    }
    EXPECT_EQ(in<QLabel>(dialog, "xyFoundLabel").text(), "");
    EXPECT_THAT(in<QLabel>(dialog, "errorBandsNote").text().toStdString(),
                HasSubstr("for the reciprocal method only"));
    const auto& table = in<QTableWidget>(dialog, "profileTable");
    EXPECT_EQ(table.item(30, 3)->text(), "picks");
    EXPECT_THAT(table.item(30, 1)->text().toStdString(), MatchesRegex("[0-9.]+"));
    EXPECT_THAT(table.item(30, 1)->toolTip().toStdString(), HasSubstr("Fitted to all picks"));
    EXPECT_THAT(in<QLabel>(dialog, "notesLabel").text().toStdString(),
                HasSubstr("fitted to all picks. Layer 1 has "));

    choice.setCurrentIndex(0);
    emit choice.activated(0);
    in<QPushButton>(dialog, "buildButton").click();
    EXPECT_FALSE(in<SeriesPlot>(dialog, "tvPlot").series().empty());
    EXPECT_TRUE(in<QComboBox>(dialog, "xyCombo").isEnabled());
    EXPECT_FALSE(sceneOf(dialog).v1IsMean);
  });
}

/// Kept by OK, undo and a project; its times are drawn until picks are others.
TEST_F(LayerFigures, keepsAFittedProfileAndItsTimes) {
  interpret([](QWidget& dialog) {
    auto& choice = in<QComboBox>(dialog, "profileCombo");
    in<QPushButton>(dialog, "clearButton").click();
    in<QPushButton>(dialog, "proposeSurveyButton").click();
    EXPECT_EQ(choice.currentText(), "Fitted to all picks");
    EXPECT_THAT(in<QLabel>(dialog, "proposalLabel").text().toStdString(),
                HasSubstr("\"Build profiles\" fits the profile to all picks"));
    in<QPushButton>(dialog, "buildButton").click();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return in<QCheckBox>(dialog, "computedCheck").isEnabled(); }, 60000));
  });
  const auto isFitted = [this] {
    return window->session().survey().interpretation->refractData.isFitted();
  };
  ASSERT_TRUE(isFitted());
  layersBox().setChecked(true);
  ASSERT_TRUE(hasTimes());
  const double pick = window->document().ttArray[5].ttMisurati[50];
  child<editTravelTimesWidget>("showTracesWidget").editPick(5, 50, pick + 0.004);
  EXPECT_TRUE(plot().layered().empty());
  child<editTravelTimesWidget>("showTracesWidget").editPick(5, 50, pick);
  EXPECT_TRUE(hasTimes()) << "as after undo";

  const std::string file = home.file("fitted.tvsk");
  const Survey& kept = window->session().survey();
  ASSERT_EQ(ProjectWriter().save(file, home.file("Talvesk_TMP/"), kept.document,
                                 kept.interpretation, kept.palettes),
            0);
  window->session().undo();
  window->session().markSaved();
  window->openFiles({QString::fromStdString(file)});
  ASSERT_TRUE(isFitted());
  dialogs.expect([](QWidget& dialog) {
    EXPECT_EQ(in<QComboBox>(dialog, "profileCombo").currentText(), "Fitted to all picks");
    EXPECT_EQ(in<QLabel>(dialog, "staleLabel").text(), "");
    dialog.close();
  });
  action("actionRefraction").trigger();
}

TEST_F(LayerFigures, showsErrorBandsOnDemandUntilWhatTheyRestOnChanges) {
  interpret([](QWidget& dialog) {
    ASSERT_TRUE(findsBands(dialog));
    const RefractionScene& scene = sceneOf(dialog);
    EXPECT_GT(scene.v1Error, 0.0);
    EXPECT_GT(scene.velocityErrors.at(0), 0.0);
    EXPECT_FALSE(in<SeriesPlot>(dialog, "velocityPlot").series().back().low.empty());
    EXPECT_THAT(in<QTableWidget>(dialog, "profileTable").item(30, 2)->text().toStdString(),
                MatchesRegex("[0-9,]+ ± [0-9]+"));
    EXPECT_FALSE(in<QPushButton>(dialog, "errorBandsStop").isVisible());

    // With another XY they are found anew, of other marks they are none.
    const double before = scene.looks[0].bands.at(0).at(0).z;
    auto& xy = in<QComboBox>(dialog, "xyCombo");
    xy.setCurrentIndex(xy.findText(QStringLiteral("1")));
    emit xy.activated(xy.currentIndex());
    EXPECT_FALSE(sceneOf(dialog).hasBands());
    ASSERT_TRUE(QTest::qWaitFor([&] { return sceneOf(dialog).hasBands(); }, 60000));
    EXPECT_NE(sceneOf(dialog).looks[0].bands.at(0).at(0).z, before);
    in<QPushButton>(dialog, "clearButton").click();
    EXPECT_FALSE(sceneOf(dialog).hasBands());
    EXPECT_FALSE(in<QCheckBox>(dialog, "errorBandsCheck").isEnabled());
    dynamic_cast<RefractionProcessingDialog&>(dialog).undoStack()->undo();
    in<QPushButton>(dialog, "buildButton").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sceneOf(dialog).hasBands(); }, 60000));
    in<QCheckBox>(dialog, "errorBandsCheck").setChecked(false);
    EXPECT_FALSE(sceneOf(dialog).hasBands());
  });
}

TEST_F(LayerFigures, givesUpBandsOnStop) {
  interpret([](QWidget& dialog) {
    auto& box = in<QCheckBox>(dialog, "errorBandsCheck");
    box.setChecked(true);
    ASSERT_TRUE(in<QPushButton>(dialog, "errorBandsStop").isVisibleTo(&dialog));
    in<QPushButton>(dialog, "errorBandsStop").click();
    EXPECT_FALSE(box.isChecked());
    QTest::qWait(300);
    EXPECT_FALSE(sceneOf(dialog).hasBands());
  });
}

TEST_F(LayerFigures, putsTheBandsIntoPicturesAndForgetsThemWithThePicks) {
  const auto picture = [this](const char* name) {
    dialogs.expect([this, name](QWidget& dialog) {
      in<QLineEdit>(dialog, "folderEdit").setText(QString::fromStdString(home.path()));
      in<QLineEdit>(dialog, "nameEdit").setText(QLatin1String(name));
      in<QComboBox>(dialog, "formatCBox").setCurrentIndex(1);
      in<QCheckBox>(dialog, "travelTimesBox").setChecked(false);
      in<QCheckBox>(dialog, "refractionBox").setChecked(true);
      in<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Save)->click();
    });
    action("actionImages").trigger();
    EXPECT_TRUE(dialogs.finished());
    return testing::TestFolder::get(home.file(std::string(name) + "_refraction.svg"));
  };
  interpret([](QWidget& dialog) { ASSERT_TRUE(findsBands(dialog)); });
  const std::string with = picture("with");
  EXPECT_THAT(with, HasSubstr("Error of the picks (68 of 100)"));
  EXPECT_THAT(with, HasSubstr("Dashed: not carried by picks there"));
  child<editTravelTimesWidget>("showTracesWidget").editPick(5, 20, 0.05);
  const std::string without = picture("without");
  EXPECT_THAT(without, ::testing::Not(HasSubstr("Error of the picks")));
  EXPECT_THAT(without, HasSubstr("Layer 2"));
}

TEST_F(LayerFigures, drawsTimesThroughTheLayersInTheCurvesUntilPicksChange) {
  EXPECT_FALSE(layersBox().isEnabled()) << "there is no profile";
  interpret();
  ASSERT_TRUE(layersBox().isEnabled());
  EXPECT_TRUE(plot().layered().empty()) << "not asked for";
  layersBox().setChecked(true);
  ASSERT_TRUE(hasTimes());
  EXPECT_NEAR(plot().layered()[5][40], window->document().ttArray[5].ttMisurati[40], 0.0015);

  const double pick = window->document().ttArray[5].ttMisurati[40];
  const auto edit = [&](double time) {
    child<editTravelTimesWidget>("showTracesWidget").editPick(5, 40, time);
  };
  edit(pick + 0.001);
  EXPECT_TRUE(plot().layered().empty());
  EXPECT_FALSE(layersBox().isEnabled());
  EXPECT_THAT(layersBox().toolTip().toStdString(), HasSubstr("build the profiles"));
  edit(pick);
  EXPECT_TRUE(hasTimes()) << "they are those of the picks again";
  edit(pick + 0.001);
  interpret();
  EXPECT_TRUE(hasTimes()) << "of the profile of the new picks";
}

TEST_F(LayerFigures, tellsNoTimesOfAProfileOfOtherMarks) {
  interpret([](QWidget& dialog) { in<QPushButton>(dialog, "clearButton").click(); });
  ASSERT_TRUE(layersBox().isEnabled());
  layersBox().setChecked(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !layersBox().isChecked(); }, 60000));
  EXPECT_TRUE(plot().layered().empty());
}

}  // namespace
}  // namespace talvesk
