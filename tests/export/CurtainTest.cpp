#include "export/CurtainTable.h"
#include "export/VtkGrid.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"

#include <sstream>

#include <gmock/gmock.h>
#include <vtkCell.h>
#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkFieldData.h>
#include <vtkNew.h>
#include <vtkUnstructuredGrid.h>
#include <vtkXMLUnstructuredGridReader.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;

/// Three rows of ten cells of 1 m from survey x = 99 m on, under geophones from 100 m on that lie
/// on the map along (0.6, 0.8).
TomoDocument placed() {
  TomoDocument document = sectionDocument(
      3, 10, 0.0, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
  document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
  document.map.edit().geoCoord_isSet = true;
  return document;
}

TEST(VtkCurtain, standsOnTheMapAndNamesItsSystem) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeVtkCurtain(folder.file("s.vtu"), placed()).ok());
  vtkNew<vtkXMLUnstructuredGridReader> reader;
  reader->SetFileName(folder.file("s.vtu").c_str());
  reader->Update();
  ASSERT_EQ(reader->GetErrorCode(), 0U);
  vtkUnstructuredGrid& grid = *reader->GetOutput();
  ASSERT_EQ(grid.GetNumberOfCells(), 30);
  vtkDataArray* epsg = grid.GetFieldData()->GetArray("EPSG");
  ASSERT_NE(epsg, nullptr);
  EXPECT_EQ(epsg->GetComponent(0, 0), 32632.0);
  EXPECT_EQ(grid.GetCellData()->GetArray("Velocity (m/s)")->GetComponent(13, 0), 600.0);
  double bounds[6];
  grid.GetCell(13)->GetBounds(bounds);  // second row, fourth column: 102 to 103 m
  EXPECT_NEAR(bounds[0], 652000.0 + 0.6 * 2.0, 1e-6);
  EXPECT_NEAR(bounds[1], 652000.0 + 0.6 * 3.0, 1e-6);
  EXPECT_NEAR(bounds[2], 5074000.0 + 0.8 * 2.0, 1e-6);
  EXPECT_NEAR(bounds[3], 5074000.0 + 0.8 * 3.0, 1e-6);
  EXPECT_NEAR(bounds[4], 98.0, 1e-9);
  EXPECT_NEAR(bounds[5], 99.0, 1e-9);
}

TEST(CurtainTable, hasALinePerDrawnCellWithPlaceVelocityAndCoverage) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.model.edit().editGrid().setDraw(0, false);
  const auto lines = [&] {
    std::istringstream text(TestFolder::get(folder.file("s.csv")));
    std::vector<std::string> all;
    for (std::string line; std::getline(text, line);) all.push_back(line);
    return all;
  };
  ASSERT_TRUE(writeCurtainTable(folder.file("s.csv"), document).ok());
  ASSERT_EQ(lines().size(), 30U);
  EXPECT_EQ(lines()[0],
            "easting_m_epsg32632,northing_m_epsg32632,elevation_m,distance_m,depth_m,velocity_m_s,"
            "coverage_m");
  EXPECT_EQ(lines()[13], "652001.5,5074002,98.5,102.5,1.5,600,")
      << "no inversion told its coverage";

  document.result.edit().has_tomographic_info = true;
  document.result.edit().coorcount.assign(30, 0.0);
  document.result.edit().coorcount[13] = 2.25;
  const CommaStreams streams;
  const CommaNumbers numbers;
  ASSERT_TRUE(writeCurtainTable(folder.file("s.csv"), document).ok());
  EXPECT_EQ(lines()[13], "652001.5,5074002,98.5,102.5,1.5,600,2.25");
}

TEST(Curtain, isRefusedWithReasonAndLeavesNoFile) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("s");
  TomoDocument nowhere = placed();
  nowhere.map.edit().geoCoord_isSet = false;
  TomoDocument point = placed();
  point.map.edit().geoCoord = {32632, 652000.0, 652000.0, 5074000.0, 5074000.0};
  TomoDocument degrees = placed();
  degrees.map.edit().geoCoord.CRS = 4326;
  TomoDocument hidden = placed();
  for (std::uint32_t cell = 0; cell < 30; ++cell)
    hidden.model.edit().editGrid().setDraw(cell, false);
  const std::pair<const TomoDocument*, const char*> kCases[] = {
      {&nowhere, "no place on the map"},
      {&point, "same coordinates"},
      {&degrees, "not a projected system"},
      {&hidden, "no cell"}};
  for (const auto& [document, reason] : kCases) {
    EXPECT_THAT(writeVtkCurtain(path, *document).message(), HasSubstr(reason));
    EXPECT_THAT(writeCurtainTable(path, *document).message(), HasSubstr(reason));
  }
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk
