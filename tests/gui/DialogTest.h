#pragma once

#include "app/BackgroundCertainty.h"
#include "app/FileFolders.h"
#include "app/Languages.h"
#include "app/dialogs/AnnotationsDialog.h"
#include "app/dialogs/BlowPairDialog.h"
#include "app/dialogs/CampaignDialog.h"
#include "app/dialogs/CertaintyDialog.h"
#include "app/dialogs/CheckDialog.h"
#include "app/dialogs/CommandSearchDialog.h"
#include "app/dialogs/CompareLayersDialog.h"
#include "app/dialogs/CompareRunsDialog.h"
#include "app/dialogs/DepthProfileDialog.h"
#include "app/dialogs/DialogSetGeometry.h"
#include "app/dialogs/DrawingDialog.h"
#include "app/dialogs/ElasticDialog.h"
#include "app/dialogs/ExportTomoVelData.h"
#include "app/dialogs/FenceDialog.h"
#include "app/dialogs/GatherSheetDialog.h"
#include "app/dialogs/ImagesDialog.h"
#include "app/dialogs/KnownGroundDialog.h"
#include "app/dialogs/LayerMethodsDialog.h"
#include "app/dialogs/MarkedIsolinesDialog.h"
#include "app/dialogs/MendDialog.h"
#include "app/dialogs/NotchDialog.h"
#include "app/dialogs/PaletteDialog.h"
#include "app/dialogs/PrintDialog.h"
#include "app/dialogs/ReadingsDialog.h"
#include "app/dialogs/ReciprocityDialog.h"
#include "app/dialogs/RecordingDetailsDialog.h"
#include "app/dialogs/RefractionProcessingDialog.h"
#include "app/dialogs/ReportDialog.h"
#include "app/dialogs/ResidualsDialog.h"
#include "app/dialogs/ResolutionDialog.h"
#include "app/dialogs/RunsDialog.h"
#include "app/dialogs/ScreenshotDialog.h"
#include "app/dialogs/SecondLookDialog.h"
#include "app/dialogs/SelectCSVDelimiterDialog.h"
#include "app/dialogs/SettingsDialog.h"
#include "app/dialogs/StartLayersDialog.h"
#include "app/dialogs/SurveyedPositionsDialog.h"
#include "app/dialogs/TraceHeadersDialog.h"
#include "app/dialogs/VelocityFilterDialog.h"
#include "app/dialogs/contourlines_dialog.h"
#include "app/dialogs/doFilteringDialog.h"
#include "app/dialogs/gridDialog.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "app/dialogs/select_speed_Dialog.h"
#include "app/dialogs/setGeographyDialog.h"
#include "app/dialogs/smoothingDialog.h"
#include "figures/print/PrintFigures.h"
#include "gui/WindowTest.h"
#include "io/SegyFile.h"
#include "io/Survey.h"
#include "model/ChiSquare.h"
#include "model/TomographyOutcome.h"
#include "refraction/BuildProfiles.h"
#include "refraction/ShotArrivals.h"
#include "refraction/methods/MethodResult.h"
#include "support/RefractionLines.h"
#include "support/TestSurveys.h"

#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <functional>
#include <memory>

namespace talvesk::testing {

/// Every dialog of the program, of a survey that has something to show in each.
class DialogTest : public WindowTest {
 protected:
  struct Case {
    const char* name;
    std::function<std::unique_ptr<QDialog>()> make;
  };

  template <typename Dialog, typename... Arguments>
  std::unique_ptr<QDialog> make(Arguments&&... arguments) {
    return std::make_unique<Dialog>(std::forward<Arguments>(arguments)..., window.get());
  }

  void openSurvey() {
    open();
    loadShots(2);
    for (TravelTime& record : writable().ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) time = 0.01;
    }
    putGrid(writable(), 10.0, 1.0);
  }

  /// A line over two layers with its layered profile, beside the survey of the window.
  void layOutLayers() {
    std::vector<refractionDataStructure::layerStruct> marks;
    mLayered.document = standardDippingLine(twoDippingLayers(), marks);
    putGrid(mLayered.document, 30.0, 2.0);
    auto& interpretation = mLayered.interpretation.edit();
    interpretation.ttLayer = marks;
    ASSERT_TRUE(buildProfiles(shotArrivals(mLayered.document), interpretation).built);
  }

  std::vector<Case> cases() {
    std::vector<Case> all = surveyCases();
    for (const std::vector<Case>& more : {layerCases(), placeCases(), drawingCases()}) {
      all.insert(all.end(), more.begin(), more.end());
    }
    return all;
  }

  /// Of lines on the map.
  std::vector<Case> placeCases() {
    return {{"campaign",
             [&] {
               auto dialog = std::make_unique<CampaignDialog>(window.get());
               dialog->add({QStringLiteral("a.tvsk"), QStringLiteral("b.tvsk")});
               return std::unique_ptr<QDialog>(std::move(dialog));
             }},
            {"fence",
             [&] {
               return make<FenceDialog>(FenceLine{QStringLiteral("line"), writable()},
                                        mPalettes.current(), 2.0);
             }},
            {"surveyed positions", [&] {
               auto dialog =
                   std::make_unique<SurveyedPositionsDialog>(writable(), true, window.get());
               SurveyedTable table;
               const std::string text = "Name;East;North;Elevation\nG1;1;2;3\nG2;4;6;3\nG7;9;9;3\n";
               EXPECT_TRUE(SurveyedTable::parse(text, "points.csv", table).ok());
               dialog->setTable(std::move(table), QStringLiteral("points.csv"));
               return std::unique_ptr<QDialog>(std::move(dialog));
             }}};
  }

  /// Of what is drawn on the section, and of traces.
  std::vector<Case> drawingCases() {
    Annotation text;
    text.text = "old quarry";
    text.points = {{1.0, -2.0}};
    Annotation area;
    area.kind = AnnotationKind::kPolygon;
    area.points = {{0.0, 0.0}, {4.0, 0.0}, {2.0, -3.0}};
    return {{"annotations",
             [text, area, this] {
               return make<AnnotationsDialog>(std::vector<Annotation>{text, area},
                                              Point2D{2.0, -2.0}, Point2D{1.0, 1.0});
             }},
            {"marked isolines",
             [&] {
               return make<MarkedIsolinesDialog>(std::vector<MarkedIsoline>(2, MarkedIsoline()));
             }},
            {"depth profile",
             [&] {
               auto dialog = std::make_unique<DepthProfileDialog>(window.get());
               dialog->setSection(DepthProfiles(mLayered.document));
               return std::unique_ptr<QDialog>(std::move(dialog));
             }},
            {"notch", [&] { return make<NotchDialog>(writable(), 0, 1U); }},
            {"velocity filter", [&] { return make<VelocityFilterDialog>(writable(), 0, 1U); }}};
  }

  std::vector<Case> layerCases() {
    layOutLayers();
    const TomoDocument& line = mLayered.document;
    const auto& layers = *mLayered.interpretation;
    const ElasticSurvey wave{QStringLiteral("line"), line, layers};
    return {
        {"check", [&] { return make<CheckDialog>(); }},
        {"command search",
         [&] {
           return make<CommandSearchDialog>(commandsOf(*window->menuBar(), nullptr), QStringList());
         }},
        {"known ground", [&] { return make<KnownGroundDialog>(KnownGround(), QString()); }},
        {"reciprocity", [&] { return make<ReciprocityDialog>(); }},
        {"residuals",
         [&] {
           TomoDocument computed = line;
           computed.result.edit().has_tomographic_info = true;
           computed.result.edit().timesOfSection = true;
           for (TravelTime& record : computed.ttArray.edit()) {
             record.ttCalcolati = std::vector<double>(record.ttMisurati.size(), 0.02);
           }
           auto dialog = std::make_unique<ResidualsDialog>(window.get());
           dialog->showSurvey(computed, SectionFigureOptions());
           EXPECT_FALSE(dialog->table().picks.empty());
           return std::unique_ptr<QDialog>(std::move(dialog));
         }},
        {"runs", [&] { return make<RunsDialog>(); }},
        {"two runs", [&] { return make<CompareRunsDialog>(line, SectionFigureOptions(), false); }},
        {"second look",
         [&] {
           auto dialog = std::make_unique<SecondLookDialog>(window.get());
           SecondLook look;
           look.known = true;
           look.limit = 12.0;
           look.beyond = 12;
           look.suspects = {{7, 3, 0.0046, 0.0237, 0.0007}};
           look.shifts = {{1, -0.0038, true, true, true}, {3, 0.0048, false, true, false}};
           look.atLeast = {6, -20.0, -17.0, 0.0, 0.5};
           dialog->setLook(std::move(look));
           return std::unique_ptr<QDialog>(std::move(dialog));
         }},
        {"layers and section",
         [&] {
           return make<CompareLayersDialog>(line, layers.refractData, SectionFigureOptions());
         }},
        {"start from layers",
         [&] { return make<StartLayersDialog>(line, layers.refractData, SectionFigureOptions()); }},
        {"methods",
         [&] { return make<LayerMethodsDialog>(layerPicksOf(line, layers, PickErrorRule())); }},
        {"P and S", [wave, this] { return make<ElasticDialog>(wave, wave); }}};
  }

  std::vector<Case> surveyCases() {
    TomoDocument& document = writable();
    const SurveyProfile profile = document.surveyProfile();
    return {
        {"geometry", [&] { return make<DialogSetGeometry>(document, mSegy, mFolders, mContext); }},
        {"shift", [&] { return make<ExportTomoVelData>(); }},
        {"drawing", [&] { return make<DrawingDialog>(DrawingDialog::Start()); }},
        {"images", [&] { return make<ImagesDialog>(document, mLayers, ImageSetOptions(), 0); }},
        {"palette",
         [&] {
           return make<PaletteDialog>(mPalettes, false, ValueRange{250.0, 900.0}, mFolders);
         }},
        {"print", [&] { return make<PrintDialog>(printChoices(), 0U); }},
        {"mend", [&] { return make<MendDialog>(document, 0); }},
        {"recording", [&] { return make<RecordingDetailsDialog>(document, mFiles, 0); }},
        {"trace headers",
         [&] {
           auto dialog = make<TraceHeadersDialog>();
           dynamic_cast<TraceHeadersDialog&>(*dialog).showHeaders(TraceHeaders(document));
           return dialog;
         }},
        {"two shots",
         [&] {
           auto dialog = make<BlowPairDialog>();
           dynamic_cast<BlowPairDialog&>(*dialog).setSurvey(document);
           dynamic_cast<BlowPairDialog&>(*dialog).chooseShot(0);
           return dialog;
         }},
        {"sheet of shots", [&] { return make<GatherSheetDialog>(document); }},
        {"readings",
         [&] {
           return make<ReadingsDialog>(std::vector<ReadingsDialog::File>{{&mReading, &mFuller}});
         }},
        {"refraction", [&] { return make<RefractionProcessingDialog>(document, mLayers); }},
        {"report", [&] { return make<ReportDialog>(ReportOptions(), mBuild); }},
        {"screenshot", [&] { return make<ScreenshotDialog>(QSize(600, 400)); }},
        {"separator", [&] { return make<SelectCSVDelimiterDialog>(); }},
        {"settings", [&] { return make<SettingsDialog>(mLanguages.list(), 0, mSettings); }},
        {"contours",
         [&] {
           return make<contourlines_dialog>(mContours, SectionQuantity::kVelocity,
                                            ValueRange{250.0, 900.0}, mFolders);
         }},
        {"resolution", [&] { return make<ResolutionDialog>(document); }},
        {"certainty", [&] { return make<CertaintyDialog>(document, mCertainty); }},
        {"filters",
         [&] { return make<doFilteringDialog>(document, 0, std::vector<std::int32_t>{1}); }},
        {"grid",
         [&, profile] {
           return make<gridDialog>(document, profile, GridSettings{9.0, 0.5, 6}, 2U);
         }},
        {"progress", [&] { return make<progressTomographyDialog>(); }},
        {"run", [&] { return make<runTomography_Dialog>(250.0, 3500.0); }},
        {"layers", [&] { return make<select_speed_Dialog>(document); }},
        {"coordinates",
         [&] { return make<setGeographyDialog>(std::nullopt, std::optional<LineEnds>()); }},
        {"smoothing", [&] { return make<smoothingDialog>(SmoothingType::kUniform); }}};
  }

  /// All fields are shown for the second.
  std::vector<PrintChoice> printChoices() {
    PrintChoice none;
    none.name = QStringLiteral("Layered profile");
    none.whyNot = QStringLiteral("there is no layered profile yet");
    PrintChoice section;
    section.name = QStringLiteral("Section");
    section.places = PrintChoice::Places{0.0, 40.0, 20.0};
    section.make = [this](double) { return printedSection(mLayered.document, {}); };
    return {none, section};
  }

  static void show(QDialog& dialog) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  }

  /// Calls it for every page of the dialog, which may be only one.
  static void onEveryPage(QDialog& dialog, const std::function<void(int page)>& look) {
    const auto tabs = dialog.findChildren<QTabWidget*>();
    const int pages = tabs.isEmpty() ? 1 : tabs.front()->count();
    for (int page = 0; page < pages; ++page) {
      if (!tabs.isEmpty()) tabs.front()->setCurrentIndex(page);
      QCoreApplication::processEvents();
      look(page);
    }
  }

  Survey mLayered;
  SegyState mSegy;
  FileFolders mFolders{History(home.file("history.txt"))};
  DialogSetGeometry::Context mContext;
  refractionDataStructure::Interpretation mLayers;
  ColorPaletteList mPalettes;
  std::vector<RecordingInfo> mFiles;
  ReadShotFile mReading;
  FullerReading mFuller;
  ReportDialog::Build mBuild = [](const ReportOptions&, ReportContent&) { return Status(); };
  Languages mLanguages;
  Settings mSettings{home.file("settings.xml")};
  ContourSettings mContours;
  BackgroundCertainty mCertainty;
};

}  // namespace talvesk::testing
