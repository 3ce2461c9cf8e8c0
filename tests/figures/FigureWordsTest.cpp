#include "figures/FigureWords.h"
#include "support/SectionDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t /*column*/) {
  return 300.0 + 100.0 * row;
}

SectionScene sceneOf(const TomoDocument& document, const SectionSceneOptions& options = {}) {
  SectionScene scene;
  EXPECT_TRUE(buildSectionScene(document, options, scene).ok());
  return scene;
}

std::string captionOf(const SectionScene& scene, double exaggeration) {
  return FigureWords::sectionCaption(scene, exaggeration).toStdString();
}

TEST(FigureWords, theCaptionStatesWhatTheReaderCannotSee) {
  TomoDocument document = sectionDocument(8, 20, 0.0, layered);
  document.has_tomographic_info = true;
  document.RMSE_tomography = 2.3456;
  SectionSceneOptions options;
  options.range = ValueRange{300.0, 1000.0};
  options.equallySpacedContours = 6;
  const SectionScene scene = sceneOf(document, options);
  EXPECT_EQ(captionOf(scene, 1.0),
            "Velocity 300 to 1000 m/s   \u00B7   Contours every 100 m/s   \u00B7   "
            "RMS misfit of the inversion 2.35 %");
  EXPECT_THAT(captionOf(scene, 2.0), HasSubstr("Vertical exaggeration 2.0"));
  EXPECT_THAT(captionOf(scene, 1.25), HasSubstr("Vertical exaggeration 1.25"));
  document.has_tomographic_info = false;
  EXPECT_THAT(captionOf(sceneOf(document), 1.0), Not(HasSubstr("RMS")));
}

}  // namespace
}  // namespace talvesk
