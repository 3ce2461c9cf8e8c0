#include "figures/ImageSet.h"
#include "model/Recordings.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"

#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using testing::TestFolder;

/// A section, a picked shot and two sets of traces.
TomoDocument survey() {
  TomoDocument document = testing::sectionDocument(
      6, 20, 0.5, [](std::uint32_t row, std::uint32_t) { return 400.0 + 300.0 * row; });
  for (int shot = 0; shot < 2; ++shot) {
    Trace trace;
    trace.sampleInterval = 1e-3;
    for (int i = 0; i < 100; ++i) trace.samples.edit().push_back(i % 7);
    document.recordings.edit().traceSets.push_back({trace, trace, trace});
  }
  return document;
}

ImageSetOptions everything(const TestFolder& folder) {
  ImageSetOptions options;
  options.gathers = options.travelTimes = options.section = options.refraction = true;
  options.smooth = true;
  options.quantities = {SectionQuantity::kVelocity, SectionQuantity::kVerticalGradient,
                        SectionQuantity::kInformationDensity};
  options.palette = ColorPaletteList().current();
  options.folder = folder.path();
  options.baseName = "line";
  return options;
}

std::vector<std::string> namesOf(const std::vector<PlannedImage>& images) {
  std::vector<std::string> names;
  for (const PlannedImage& image : images) {
    names.push_back(image.path.substr(image.path.rfind('/') + 1));
  }
  return names;
}

TEST(ImageSet, hasAPictureOfWhatThereIsOnly) {
  const TestFolder folder;
  const TomoDocument document = survey();
  ImageSetOptions options = everything(folder);
  EXPECT_THAT(namesOf(planImages(document, nullptr, options)),
              ElementsAre("line_shot_01.png", "line_shot_02.png", "line_traveltimes.png",
                          "line_velocity.png", "line_velocity_smooth.png", "line_gradient.png",
                          "line_gradient_smooth.png"));
  options.shot = 1;
  options.section = options.travelTimes = false;
  options.baseName.clear();
  options.format = FigureFormat::kSvg;
  EXPECT_THAT(namesOf(planImages(document, nullptr, options)), ElementsAre("shot_02.svg"));
  EXPECT_THAT(planImages(TomoDocument(), nullptr, everything(folder)), IsEmpty());
}

TEST(ImageSet, writesEveryPictureInItsFormatAndSize) {
  const TomoDocument document = survey();
  for (const FigureFormat format : {FigureFormat::kPng, FigureFormat::kSvg, FigureFormat::kPdf}) {
    const TestFolder folder;
    ImageSetOptions options = everything(folder);
    options.format = format;
    options.widthMm = 254.0;
    options.heightMm = 127.0;
    options.dpi = 100.0;
    options.horizontalColorBar = true;
    for (const PlannedImage& image : planImages(document, nullptr, options)) {
      const Status status = image.write();
      ASSERT_TRUE(status.ok()) << status.message();
      const std::string bytes = TestFolder::get(image.path);
      if (format == FigureFormat::kPng) {
        EXPECT_EQ(QImage(QString::fromStdString(image.path)).size(), QSize(1000, 500));
      } else if (format == FigureFormat::kSvg) {
        EXPECT_THAT(bytes, HasSubstr("width=\"254mm\" height=\"127mm\"")) << image.path;
      } else {
        EXPECT_THAT(bytes, StartsWith("%PDF-")) << image.path;
      }
    }
    EXPECT_EQ(folder.entries(), 7);
  }
}

TEST(ImageSet, namesTheFileThatCannotBeWritten) {
  const TestFolder folder;
  const TomoDocument document = survey();
  ImageSetOptions options = everything(folder);
  options.folder += "/no";
  const auto images = planImages(document, nullptr, options);
  ASSERT_THAT(images, Not(IsEmpty()));
  for (const PlannedImage& image : images) {
    EXPECT_THAT(image.write().message(), HasSubstr(image.path));
  }
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk
