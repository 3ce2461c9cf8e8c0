#include "base/SampleStore.h"
#include "model/ChiSquare.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "processing/ShotFilters.h"
#include "processing/ShotTime.h"
#include "support/TestProjects.h"
#include "tomo/RayRecomputation.h"
#include "tomo/TomographyRun.h"

#include <cmath>
#include <filesystem>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

void invert(TomoDocument& document) {
  putGrid(document, 12, 1.5);
  Log log;
  TomographyParameters parameters;
  parameters.externalIterations = 2;
  ASSERT_TRUE(runInversion(document, parameters, log).status.ok());
}

void interpret(LoadedProject& project) {
  auto& records = project.interpretation.edit();
  for (std::uint32_t shot = 0; shot < 3; ++shot) {
    records.ttLayer.push_back({shot, {1, 1, 2, 2, 3, 0}, {0, 0, 0.001, 0, -0.002, 0}, shot != 1});
  }
  refractionDataStructure::phantom curve;
  curve.layer = 2;
  curve.shotID = 0;
  curve.points = {{0, 100}, {5, 100}};
  curve.times = {0.01, -1};
  curve.enabled = {true, false};
  curve.slope = 1.0 / 1500;
  curve.reciprocalTime = 0.033;
  records.phnt_A = {curve};
  records.phnt_R = {curve};
  refractionDataStructure::computedData data;
  data.x = {0, 5};
  data.tG = {0.002, 0.003};
  data.tV = {0.001, 0.004};
  data.tGs.assign(18, 0.5);
  data.tVs.assign(18, 0.25);
  data.chosenXY = 2.0;
  data.velocity = {1500, 1510};
  data.depth = {3, 3.1};
  data.elevation = {100, 100};
  records.refractData = {{data}, 400, {}, {1500, 1510}, {}};
}

TEST_F(ProjectTest, comesBackAsItWasSaved) {
  TomoDocument& document = project.document;
  countTimeFromShot(document);
  for (Trace& trace : document.recordings.edit().traceSets[1])
    trace.filtered.edit() = trace.samples.edit();
  document.recordings.edit().traceSets[1][2].filtered.edit()[3] = 0.1;
  document.title = "Strada <Nord> & Süd ";
  document.map.edit().geoCoord = {32632, 500000.25, 500100, 5000000, 5000001};
  document.map.edit().geoCoord_isSet = true;
  document.model.edit().minVelocity = 300;
  document.model.edit().layers = {{0, 300, 5, 900}};
  invert(document);
  interpret(project);
  project.palettes.edit().select(3);
  project.section.quantity = SectionQuantity::kLaplacian;
  project.section.contours.customValues = {400, 800};
  project.section.contours.gradientValues = {-1.5, 20};
  project.section.contours.customized = true;
  ASSERT_EQ(save(), 0) << console.error();
  EXPECT_THAT(writer.warnings(), IsEmpty());

  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.warnings(), IsEmpty());
  EXPECT_EQ(back.document.title, document.title);
  EXPECT_EQ(back.document.map->geoCoord.CRS, 32632);
  ASSERT_THAT(back.document.recordings->traceSets, SizeIs(3));
  const Trace& trace = back.document.recordings->traceSets[1][2];
  EXPECT_EQ(trace.samples, document.recordings->traceSets[1][2].samples);
  EXPECT_EQ(trace.droppedSamples, 2U);
  EXPECT_EQ(trace.delay, -0.002);
  EXPECT_EQ(trace.filtered, document.recordings->traceSets[1][2].filtered);
  EXPECT_THAT(back.document.recordings->traceSets[0][0].filtered, IsEmpty());
  EXPECT_EQ(back.document.ttArray[2].ttMisurati, document.ttArray[2].ttMisurati);
  EXPECT_EQ(back.document.ttArray[2].ttCalcolati, document.ttArray[2].ttCalcolati);
  ASSERT_NE(back.document.model->grid, nullptr);
  EXPECT_EQ(back.document.model->grid->velocities(), document.model->grid->velocities());
  EXPECT_EQ(back.document.model->xOffset, document.model->xOffset);
  EXPECT_EQ(back.document.model->surface.Y(), document.model->surface.Y());
  EXPECT_EQ(back.document.result->info_density, document.result->info_density);
  EXPECT_EQ(back.document.result->coverageLimit.size(), document.result->coverageLimit.size());
  EXPECT_EQ(back.document.result->coverageSpline.has_value(),
            document.result->coverageSpline.has_value());
  EXPECT_TRUE(back.document.result->has_tomographic_info);
  ASSERT_TRUE(back.document.result->lastInversion);
  EXPECT_EQ(back.document.result->lastInversion->externalIterations, 2);
  ASSERT_THAT(back.document.result->lastInversion->history, SizeIs(2));
  EXPECT_EQ(back.document.result->lastInversion->history[1].rmse,
            document.result->lastInversion->history[1].rmse);
  EXPECT_EQ(back.interpretation->ttLayer[1].layer, project.interpretation->ttLayer[1].layer);
  EXPECT_FALSE(back.interpretation->ttLayer[1].enabled);
  EXPECT_EQ(back.interpretation->refractData.cData[0].chosenXY, 2.0);
  EXPECT_EQ(back.interpretation->phnt_A[0].enabled, project.interpretation->phnt_A[0].enabled);
  EXPECT_EQ(back.palettes->currentIndex(), 3U);
  EXPECT_EQ(back.section.quantity, SectionQuantity::kLaplacian);
  EXPECT_EQ(back.section.contours, project.section.contours);
}

TEST_F(ProjectTest, isTheSameByteForByteWithSamplesOnTheDisk) {
  countTimeFromShot(project.document);
  agcShots(project.document, {1});
  Trace& changed = project.document.recordings.edit().traceSets[2][0];
  changed.samples.edit()[5] += 1.0;  // no shot file has that
  ASSERT_EQ(save(), 0);
  const SampleStore::Choice disk(SamplesOnDisk::kAlways);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  for (const TraceSet& traces : back.document.recordings->traceSets) {
    for (const Trace& trace : traces) {
      EXPECT_TRUE(trace.samples.onDisk());
      EXPECT_TRUE(trace.filtered.empty() || trace.filtered.onDisk());
    }
  }
  EXPECT_EQ(back.document.recordings->traceSets[2][0].samples, changed.samples);
  EXPECT_EQ(back.document.recordings->traceSets[1][3].filtered,
            project.document.recordings->traceSets[1][3].filtered);
  ASSERT_EQ(save(folder.file("again.tvsk"), back), 0);
  EXPECT_EQ(entriesOf(folder.file("again.tvsk")), entriesOf(archive()));
}

TEST_F(ProjectTest, isTheSameByteForByteAfterLoadingAndSavingAgain) {
  countTimeFromShot(project.document);
  for (Trace& trace : project.document.recordings.edit().traceSets[0])
    trace.filtered.edit() = trace.samples.edit();
  invert(project.document);
  interpret(project);
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  ASSERT_EQ(save(folder.file("again.tvsk"), back), 0);
  const auto first = entriesOf(archive());
  EXPECT_EQ(entriesOf(folder.file("again.tvsk")), first);
  EXPECT_THAT(first, SizeIs(10));
  EXPECT_THAT(first.at("traces.xml"), HasSubstr("<TAB size=\"dynamic\"/>"));
  EXPECT_EQ(first.at("2.dat"), TestFolder::get(shots[1]));
}

TEST_F(ProjectTest, isTheSameByteForByteWhenItIsSavedFromASnapshot) {
  for (Trace& trace : project.document.recordings.edit().traceSets[1])
    trace.filtered.edit() = trace.samples.edit();
  project.document.recordings.edit().traceSets.emplace_back();
  project.document.ttArray.edit().emplace_back().traceSetID = 3;
  invert(project.document);
  interpret(project);
  ASSERT_EQ(save(), 0);
  const LoadedProject copy = project;
  project.document.recordings.edit().traceSets.clear();
  project.document.title = "edited meanwhile";
  ASSERT_EQ(save(folder.file("copy.tvsk"), copy), 0);
  EXPECT_EQ(entriesOf(folder.file("copy.tvsk")), entriesOf(archive()));
}

TEST_F(ProjectTest, tellsTheSameFiguresOfItsSectionBeforeAndAfter) {
  TomoDocument& document = project.document;
  invert(document);
  document.result.edit().smoothedResult = true;
  FitRecord fit;
  fit.errorFloor = 0.0005;
  fit.chi2 = 0.98;
  fit.suspects = 3;
  document.result.edit().lastInversion->fit = fit;
  ASSERT_EQ(save(), 0) << console.error();
  LoadedProject loaded;
  ASSERT_EQ(load(archive(), loaded), 0) << reader.message();
  const TomoDocument& back = loaded.document;
  const SectionMisfit before = sectionMisfitOf(document);
  const SectionMisfit after = sectionMisfitOf(back);
  ASSERT_GT(before.count, 0);
  EXPECT_EQ(after.rmse, before.rmse);
  EXPECT_EQ(after.bias, before.bias);
  EXPECT_EQ(after.maxReceiver, before.maxReceiver);
  ASSERT_THAT(back.result->lastInversion->sectionHistory, SizeIs(3));
  EXPECT_EQ(back.result->lastInversion->sectionHistory[0].rmse,
            document.result->lastInversion->sectionHistory[0].rmse);
  EXPECT_EQ(back.result->lastInversion->computingSeconds,
            document.result->lastInversion->computingSeconds);
  ASSERT_TRUE(back.result->lastInversion->fit);
  EXPECT_EQ(back.result->lastInversion->fit->errorFloor, fit.errorFloor);
  EXPECT_EQ(back.result->lastInversion->fit->chi2, fit.chi2);
  EXPECT_EQ(back.result->lastInversion->fit->suspects, fit.suspects);
  EXPECT_EQ(back.result->hitCounts, document.result->hitCounts);
  EXPECT_EQ(back.result->coorcount, document.result->coorcount);
  EXPECT_TRUE(back.result->smoothedResult);
  EXPECT_FALSE(picksChangedSince(back));
  loaded.document.ttArray.edit()[0].ttMisurati.edit()[1] *= 1.1;
  EXPECT_TRUE(picksChangedSince(back));
}

TEST_F(ProjectTest, keepsHowItsSectionWasFittedAndTheShiftsThatWereFound) {
  TomoDocument& document = project.document;
  invert(document);
  FitRecord fit;
  fit.errorFloor = 0.0007;
  fit.errorShare = 0.02;
  fit.reference = "two-layers";
  fit.shifts.assign(document.ttArray.size(), {0.0, 0.0});
  fit.shifts[1] = {0.004, mendsOfRecord(document, 1).timeShift};
  document.result.edit().lastInversion->fit = fit;
  ASSERT_EQ(save(), 0) << console.error();
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  ASSERT_TRUE(back.document.result->lastInversion && back.document.result->lastInversion->fit);
  EXPECT_EQ(back.document.result->lastInversion->fit->reference, "two-layers");
  EXPECT_EQ(outstandingShift(back.document, 1), 0.004);
  const ChiSquare before = sectionChiSquareOf(document);
  const ChiSquare after = sectionChiSquareOf(back.document);
  ASSERT_GT(before.count, 0U);
  EXPECT_TRUE(after.shifted);
  EXPECT_EQ(after.chi2, before.chi2);
  EXPECT_EQ(after.suspects, before.suspects);

  document.result.edit().lastInversion->fit->shifts.pop_back();  // of another survey
  ASSERT_EQ(save(), 0) << console.error();
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("result.xml")));
}

TEST_F(ProjectTest, losesCoverageAndFiguresWithAWordWhenTheyDoNotGoWithItsGrid) {
  LoadedProject other = project;
  invert(project.document);
  ASSERT_EQ(save(), 0) << console.error();
  auto entries = entriesOf(archive());
  putGrid(other.document, 6, 1.5);
  other.document.result.edit().has_tomographic_info = true;
  other.document.result.edit().hitCounts.assign(other.document.model->grid->cellCount(), 1);
  other.document.result.edit().coorcount.assign(other.document.model->grid->cellCount(), 1.0);
  ASSERT_EQ(save(folder.file("other.tvsk"), other), 0) << console.error();
  entries["result.xml"] = entriesOf(folder.file("other.tvsk")).at("result.xml");
  LoadedProject back;
  ASSERT_EQ(load(pack("mixed.tvsk", entries), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("result.xml")));
  EXPECT_THAT(back.document.result->hitCounts, IsEmpty());
  EXPECT_FALSE(back.document.result->timesOfSection);
  Log log;
  ASSERT_TRUE(recomputeRays(back.document, log).ok());
  EXPECT_EQ(back.document.result->hitCounts.size(), back.document.model->grid->cellCount());
}

TEST_F(ProjectTest, ofAnEarlierVersionHasNoTimesOfAGridThatIsGone) {
  invert(project.document);
  project.document.result.edit().has_tomographic_info = false;
  ASSERT_EQ(save(), 0) << console.error();
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(back.document.ttArray[0].ttCalcolati, Each(kNoTime));
}

TEST_F(ProjectTest, hasItsRaysAgainAfterOneForwardPass) {
  invert(project.document);
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0);
  EXPECT_THAT(back.document.result->rays, IsEmpty());
  Log log;
  ASSERT_TRUE(recomputeRays(back.document, log).ok());
  ASSERT_TRUE(recomputeRays(project.document, log).ok());
  EXPECT_EQ(back.document.result->rays.size(), project.document.result->rays.size());
}

TEST_F(ProjectTest, ofPicksAloneNeedsNoTraces) {
  LoadedProject picks;
  picks.document = testLine(8, 5, {0, 20});
  for (TravelTime& record : picks.document.ttArray.edit()) record.traceSetID = -1;
  ASSERT_EQ(save(archive(), picks), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  ASSERT_THAT(back.document.ttArray, SizeIs(2));
  EXPECT_EQ(back.document.ttArray[1].traceSetID, 1) << "that of its own place";
  EXPECT_EQ(back.document.model->grid, nullptr);
}

/// Shot files with a wrong scalar put shots there, and their picks are work all the same.
TEST_F(ProjectTest, ofPositionsBeyondTheGlobeIsOpenedAgain) {
  const Point2D far{5e9, -5e9};
  project.document.ttArray.edit()[0].shotPos2d = far;
  project.document.line.edit().goephonesStringSet[0][5] = far;
  ASSERT_EQ(save(), 0) << console.error();
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_EQ(back.document.ttArray[0].shotPos2d, far);
  EXPECT_EQ(back.document.line->goephonesStringSet[0][5], far);
  EXPECT_EQ(back.document.ttArray[0].ttMisurati, project.document.ttArray[0].ttMisurati);
}

TEST_F(ProjectTest, tellsWhatItWritesAndExtracts) {
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(console.out(), HasSubstr("ProjectWriter::saveTomoDocument_XML\n"
                                       "ProjectWriter::saveTomoDocumentGrid_XML\n"
                                       "ProjectWriter::saveTomoDocumentTraces_XML\n"));
  EXPECT_THAT(console.out(), HasSubstr("ProjectWriter::savePalettes_XML\n"
                                       "ProjectWriter::saveRefraction_XML\n"
                                       "ProjectWriter::compress_project\n"));
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0);
  EXPECT_THAT(console.out(),
              HasSubstr("extract [ tomodoc.xml ] in [ " + back.folder->path() + " ]\n"));
}

TEST_F(ProjectTest, keepsTheSamplesOfAFileThatVanishedOrChanged) {
  QFile::remove(QString::fromStdString(shots[0]));
  folder.put("2.dat", projectShot(12.5, 5));
  const TraceSet vanished = project.document.recordings->traceSets[0];
  const TraceSet changed = project.document.recordings->traceSets[1];
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(console.error(), HasSubstr("Error while saving " + shots[0] + "\n"));
  EXPECT_THAT(writer.warnings(), ElementsAre(HasSubstr(shots[0])));
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  for (std::size_t i = 0; i < vanished.size(); ++i) {
    EXPECT_EQ(back.document.recordings->traceSets[0][i].samples, vanished[i].samples);
    EXPECT_EQ(back.document.recordings->traceSets[0][i].receiverPosition,
              vanished[i].receiverPosition);
    EXPECT_EQ(back.document.recordings->traceSets[0][i].delay, vanished[i].delay);
    EXPECT_EQ(back.document.recordings->traceSets[1][i].samples, changed[i].samples);
  }
}

TEST_F(ProjectTest, keepsTheSamplesOfTwoFilesOfOneName) {
  QDir(QString::fromStdString(folder.path())).mkdir(QStringLiteral("day2"));
  const std::string other = folder.put("day2/1.dat", projectShot(40, 9));
  ShotLoader().load({other}, project.document);
  ASSERT_EQ(save(), 0);
  EXPECT_THAT(writer.warnings(), ElementsAre(HasSubstr(shots[0] + " and " + other)));
  EXPECT_THAT(entriesOf(archive()), SizeIs(8));
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_EQ(back.document.recordings->traceSets[0][1].samples,
            project.document.recordings->traceSets[0][1].samples);
  EXPECT_EQ(back.document.recordings->traceSets[3][1].samples,
            project.document.recordings->traceSets[3][1].samples);
}

TEST_F(ProjectTest, keepsTheSamplesOfAFileThatNoArchiveCanName) {
  const std::string odd = folder.put("bell\a.dat", projectShot(40, 4));
  ShotLoader().load({odd}, project.document);
  ASSERT_EQ(save(), 0) << writer.message();
  ASSERT_EQ(writer.warnings().size(), 1U);
  EXPECT_THAT(writer.warnings().front(), HasSubstr(odd));
  LoadedProject loaded;
  ASSERT_EQ(load(archive(), loaded), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  ASSERT_EQ(loaded.document.recordings->traceSets.size(), 4U);
  EXPECT_EQ(loaded.document.recordings->traceSets[3][5].samples,
            project.document.recordings->traceSets[3][5].samples);
}

/// Records of dead channels shrink to a thousandth, which loading takes for a trap.
TEST_F(ProjectTest, ofNothingButZerosCanBeOpenedAgain) {
  const std::vector<std::string> files = {
      folder.put("tomodoc.xml", ""), folder.put("dead.dat", std::string(12 * 1000 * 1000, '\0'))};
  Message why;
  ASSERT_EQ(writeZip(archive(), files, why), 0) << why;
  EXPECT_EQ(entriesOf(archive())["dead.dat"].size(), 12U * 1000 * 1000);
}

TEST_F(ProjectTest, thatCouldNotBeOpenedAgainForItsSizeIsNotWritten) {
  const std::string huge = folder.put("huge.dat", "");
  std::filesystem::resize_file(huge, (std::uintmax_t{4} << 30) + 1);  // takes no room
  Message why;
  EXPECT_EQ(writeZip(archive(), {folder.put("tomodoc.xml", ""), huge}, why), 1);
  EXPECT_THAT(console.error(), HasSubstr("more than the 4294 MB that can be opened again"));
  EXPECT_FALSE(QFile::exists(QString::fromStdString(archive())));
}

TEST_F(ProjectTest, bringsPairsOfPolaritiesBackAsTheirDifference) {
  LoadedProject pairs;
  TomoDocument dx, sx;
  ShotLoader().load({shots[0], shots[1]}, dx);
  ShotLoader().load({shots[1], shots[2]}, sx);
  pairs.document = std::move(dx);
  pairs.document.recordings.edit().filenames_DX =
      std::move(pairs.document.recordings.edit().filenames);
  pairs.document.recordings.edit().filenames_SX = sx.recordings->filenames;
  pairs.document.recordings.edit().filenames = {};
  pairs.document.recordings.edit().waveType = WaveType::S;
  for (std::size_t set = 0; set < 2; ++set) {
    for (std::size_t i = 0; i < 6; ++i) {
      Trace& trace = pairs.document.recordings.edit().traceSets[set][i];
      trace.waveKind = Trace::kSWavePair;
      trace.samplesDX = trace.samples;
      trace.samplesSX = sx.recordings->traceSets[set][i].samples;
      for (std::size_t s = 0; s < 40; ++s) trace.samples.edit()[s] -= trace.samplesSX[s];
    }
  }
  for (const bool filesThere : {true, false}) {
    if (!filesThere) QFile::remove(QString::fromStdString(shots[2]));
    ASSERT_EQ(save(archive(), pairs), 0);
    LoadedProject back;
    ASSERT_EQ(load(archive(), back), 0) << reader.message();
    EXPECT_EQ(back.document.recordings->waveType, WaveType::S);
    const Trace& trace = back.document.recordings->traceSets[1][4];
    EXPECT_EQ(trace.waveKind, Trace::kSWavePair);
    EXPECT_EQ(trace.samples, pairs.document.recordings->traceSets[1][4].samples) << filesThere;
    EXPECT_EQ(trace.samplesDX, pairs.document.recordings->traceSets[1][4].samplesDX);
    EXPECT_EQ(trace.samplesSX, pairs.document.recordings->traceSets[1][4].samplesSX);
  }
}

TEST_F(ProjectTest, readsSuFilesInTheByteOrderThatTheyWereReadInBefore) {
  SegyFixture file;
  file.channels = {{{4, 5, 6}, 7, 10, 0}, {{7, 8, 9}, 7, 20, 0}};
  const std::string su = folder.put("big.su", suBytes(file));
  file.constant = {1, 2, 3, 4};
  const std::string segy = folder.put("big.sgy", segyBytes(file));
  TomoDocument all;
  ShotLoader().load({segy, su}, all);
  for (const bool withSegy : {true, false}) {
    LoadedProject saved;
    ShotLoader loader;
    // The SEG-Y file sets the order in which the SU file is read, be it part of the survey or not.
    TomoDocument other;
    loader.load({segy}, withSegy ? saved.document : other);
    loader.load({su}, saved.document);
    const TraceSet before = saved.document.recordings->traceSets.back();
    ASSERT_EQ(before[1].samples, all.recordings->traceSets[1][1].samples);
    ASSERT_EQ(save(archive(), saved), 0);
    const std::string traces = entriesOf(archive())["traces.xml"];
    EXPECT_EQ(traces.find("<TAB size=\"dynamic\">") == std::string::npos, withSegy);
    LoadedProject back;
    ASSERT_EQ(load(archive(), back), 0) << reader.message();
    EXPECT_EQ(back.document.recordings->traceSets.back()[1].samples, before[1].samples);
    // Files that come after the project's own follow these.
    ShotLoader after;
    after.remember(back.shotFiles);
    EXPECT_EQ(after.state().nativeOrder, !withSegy);
  }
}

TEST_F(ProjectTest, leavesTracesEmptyWhoseFileIsNotInTheArchive) {
  ASSERT_EQ(save(), 0);
  auto entries = entriesOf(archive());
  entries.erase("2.dat");
  entries["3.dat"] = "no shot file";
  LoadedProject back;
  ASSERT_EQ(load(pack("poor.tvsk", entries), back), 0);
  ASSERT_THAT(reader.warnings(), SizeIs(2));
  EXPECT_THAT(reader.warnings()[0], HasSubstr("2.dat"));
  EXPECT_THAT(reader.warnings()[0], Not(HasSubstr(work())));
  EXPECT_THAT(console.error(), HasSubstr("Error while loading traces: Invalid file format.\n"));
  ASSERT_THAT(back.document.recordings->traceSets[1], SizeIs(6));
  EXPECT_THAT(back.document.recordings->traceSets[1][0].samples, IsEmpty());
  EXPECT_EQ(back.document.recordings->traceSets[1][5].receiverPosition, (Point2D{25, 100}));
  EXPECT_THAT(back.document.recordings->traceSets[0][0].samples, SizeIs(40));
}

struct OldElement {
  const char* element;
  const char* message;
};

class OldProject : public ProjectTest, public ::testing::WithParamInterface<OldElement> {};

TEST_P(OldProject, loadsWithItsDefaultAndSaysSo) {
  invert(project.document);
  project.document.title = "Title";
  ASSERT_EQ(save(), 0);
  auto entries = entriesOf(archive());
  std::string& member =
      entries[entries["tomodoc.xml"].find(GetParam().element) == std::string::npos ? "traces.xml"
                                                                                   : "tomodoc.xml"];
  member = without(member, GetParam().element);
  LoadedProject back;
  ASSERT_EQ(load(pack("old.tvsk", entries), back), 0) << reader.message();
  EXPECT_THAT(console.out() + console.error(), HasSubstr(std::string(GetParam().message) + "\n"));
  const TomoDocument& document = back.document;
  const std::string element = GetParam().element;
  EXPECT_EQ(document.result->has_tomographic_info, element != "has_tomographic_info");
  EXPECT_EQ(document.result->RMSE_tomography < 0, element == "RMSE_tomography");
  EXPECT_EQ(document.title, element == "title" ? "" : "Title");
  EXPECT_THAT(document.result->info_density, SizeIs(document.model->grid->cellCount()));
  if (element == "info_density") {
    EXPECT_EQ(document.result->info_density,
              std::vector<double>(document.model->grid->cellCount(), 1.0));
  }
  EXPECT_FALSE(document.map->geoCoord_isSet);
}

INSTANTIATE_TEST_SUITE_P(
    Elements, OldProject,
    ::testing::Values(
        OldElement{"has_tomographic_info",
                   "Flag [has_tomographic_info] unknown. Set to FALSE by default."},
        OldElement{"geoCoord", "Variable [geoCoord] unknown. Set to  default."},
        OldElement{"geoCoord_isSet", "Variable [geoCoord_isSet] unknown. Set to  default."},
        OldElement{"RMSE_tomography", "Variable [RMSE_tomography] unknown. Set to  default."},
        OldElement{"info_density", "Variable [info_density] unknown. Set to  default."},
        OldElement{"title", "Variable [info_density] unknown. Set to  default."},
        OldElement{"CRS", " CRS not set"},
        OldElement{"filenames_DX",
                   "[No DX and SX filenames.] This is a project saved before "
                   "version 2019.1"},
        OldElement{"filtered",
                   "[No filtered traces] This is a project saved before version 2019.1"}));

TEST_F(ProjectTest, ofAnEarlierVersionHasNeitherNewElementsNorRefraction) {
  invert(project.document);
  ASSERT_EQ(save(), 0);
  auto entries = entriesOf(archive());
  for (const char* later : {"min_velocity", "max_velocity", "layers", "proposed_cell_sizes",
                            "coverage_limit", "section_view", "last_inversion"}) {
    entries["tomodoc.xml"] = without(entries["tomodoc.xml"], later);
  }
  entries.erase("refraction.xml");
  LoadedProject back;
  ASSERT_EQ(load(pack("old.tvsk", entries), back), 0) << reader.message();
  // The limit can be told from the cells that are drawn.
  ASSERT_EQ(back.document.result->coverageLimit.size(),
            project.document.result->coverageLimit.size());
  EXPECT_EQ(back.document.result->coverageLimit.front(),
            project.document.result->coverageLimit.front());
  EXPECT_EQ(back.document.model->maxVelocity, 3500.0);
  EXPECT_FALSE(back.document.result->lastInversion);
}

TEST_F(ProjectTest, forgetsARunThatCannotHaveBeen) {
  invert(project.document);
  project.document.result.edit().lastInversion->history[0].rmse = std::nan("");
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_TRUE(back.document.result->has_tomographic_info);
  EXPECT_FALSE(back.document.result->lastInversion);
}

TEST_F(ProjectTest, keepsItsShotFilesAsLongAsItIsOpen) {
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0);
  const std::string extracted = back.folder->path();
  LoadedProject other;
  ASSERT_EQ(load(archive(), other), 0);
  EXPECT_TRUE(QFile::exists(QString::fromStdString(extracted + "1.dat")));
  back = std::move(other);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(extracted)));
  back = {};
  EXPECT_THAT(leftovers(), IsEmpty());
}

}  // namespace
}  // namespace talvesk
