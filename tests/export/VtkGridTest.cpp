#include "export/VtkGrid.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/CertainDocument.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <cmath>

#include <gmock/gmock.h>
#include <vtkCell.h>
#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkNew.h>
#include <vtkUnstructuredGrid.h>
#include <vtkXMLUnstructuredGridReader.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;

/// Three rows of four cells of 1 m from survey x = 99 m on, 100 m/s more in every row.
TomoDocument section(double relief = 0.0) {
  return sectionDocument(3, 4, relief,
                         [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
}

vtkUnstructuredGrid* readBack(vtkXMLUnstructuredGridReader& reader, const std::string& path) {
  reader.SetFileName(path.c_str());
  reader.Update();
  EXPECT_EQ(reader.GetErrorCode(), 0U);
  return reader.GetOutput();
}

TEST(VtkGrid, isReadByVtkWithItsCellsAndValues) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = section(2.0);
  document.result.edit().has_tomographic_info = true;
  document.result.edit().info_density.assign(12, 0.5);
  document.result.edit().info_density[7] = -1.0;
  document.model.edit().editGrid().setDraw(0, false);
  document.model.edit().editGrid().setSlowness(5, 0.0);
  ASSERT_TRUE(writeVtkGrid(folder.file("s.vtu"), document).ok());
  EXPECT_EQ(folder.entries(), 1);

  vtkNew<vtkXMLUnstructuredGridReader> reader;
  vtkUnstructuredGrid& grid = *readBack(*reader, folder.file("s.vtu"));
  ASSERT_EQ(grid.GetNumberOfCells(), 11);
  EXPECT_EQ(grid.GetNumberOfPoints(), 19) << "one corner belongs to the hidden cell alone";
  vtkCellData& data = *grid.GetCellData();
  ASSERT_EQ(data.GetNumberOfArrays(), 4);
  vtkDataArray& velocity = *data.GetArray("Velocity (m/s)");
  vtkDataArray& slowness = *data.GetArray("Slowness (s/m)");
  vtkDataArray& density = *data.GetArray("Information density");
  for (vtkIdType i = 0; i < 11; ++i) {
    const auto cell = static_cast<std::uint32_t>(i + 1);
    SCOPED_TRACE(cell);
    EXPECT_EQ(slowness.GetComponent(i, 0), document.model->grid->slowness(cell));
    if (cell == 5) {
      EXPECT_TRUE(std::isnan(velocity.GetComponent(i, 0)));
    } else {
      EXPECT_EQ(velocity.GetComponent(i, 0), document.model->grid->velocity(cell));
    }
    EXPECT_EQ(std::isnan(density.GetComponent(i, 0)), cell == 7);
    ASSERT_EQ(grid.GetCellType(i), 9);
    double bounds[6];
    grid.GetCell(i)->GetBounds(bounds);
    EXPECT_NEAR(bounds[0], 99.0 + cell % 4, 1e-9) << "survey x";
    EXPECT_NEAR(bounds[1], 100.0 + cell % 4, 1e-9);
    EXPECT_EQ(bounds[2], 0.0);
    EXPECT_EQ(bounds[3], 0.0);
    EXPECT_LT(bounds[4], -document.model->grid->cellCentre(cell).z);
    EXPECT_GT(bounds[5], -document.model->grid->cellCentre(cell).z);
  }
}

TEST(VtkGrid, holdsTheCertaintyWhereItIsKnown) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeVtkGrid(folder.file("s.vtu"), certainDocument(2, 6)).ok());
  vtkNew<vtkXMLUnstructuredGridReader> reader;
  vtkCellData& data = *readBack(*reader, folder.file("s.vtu"))->GetCellData();
  EXPECT_EQ(data.GetArray("Median velocity (m/s)")->GetComponent(6, 0), 500.0);
  EXPECT_EQ(data.GetArray("16 % velocity (m/s)")->GetComponent(6, 0), 475.0);
  EXPECT_EQ(data.GetArray("84 % velocity (m/s)")->GetComponent(6, 0), 525.0);
  EXPECT_NEAR(data.GetArray("Uncertainty (%)")->GetComponent(6, 0), 5.0, 1e-12);
  EXPECT_TRUE(std::isnan(data.GetArray("Uncertainty (%)")->GetComponent(5, 0)));
}

TEST(VtkGrid, holdsTheGradientOfALinearModelEverywhere) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeVtkGrid(folder.file("s.vtu"), section()).ok());
  vtkNew<vtkXMLUnstructuredGridReader> reader;
  vtkCellData& data = *readBack(*reader, folder.file("s.vtu"))->GetCellData();
  EXPECT_EQ(data.GetArray("Information density"), nullptr) << "before any inversion";
  vtkDataArray& gradient = *data.GetArray("Vertical gradient (1/s)");
  for (vtkIdType i = 0; i < 12; ++i) EXPECT_NEAR(gradient.GetComponent(i, 0), 100.0, 1e-9);
}

TEST(VtkGrid, isNotWrittenWithoutDrawnCellsOrWhereItCannotBe) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument hidden = section();
  for (std::uint32_t cell = 0; cell < 12; ++cell)
    hidden.model.edit().editGrid().setDraw(cell, false);
  EXPECT_THAT(writeVtkGrid(folder.file("s.vtu"), hidden).message(), HasSubstr("no cell"));
  EXPECT_THAT(writeVtkGrid(folder.file("s.vtu"), TomoDocument()).message(), HasSubstr("no grid"));
  EXPECT_THAT(writeVtkGrid(folder.file("no/s.vtu"), section()).message(), HasSubstr("no/s.vtu"));
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk
