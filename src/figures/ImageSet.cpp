#include "figures/ImageSet.h"

#include "figures/FigureOutput.h"
#include "figures/GatherFigure.h"
#include "figures/RefractionFigure.h"
#include "figures/ResidualFigures.h"
#include "figures/TravelTimeFigure.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "view/RayLines.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr double kHeightOverWidth = 0.62;  ///< of pictures that ask for no height of their own

/// Names of files are the same in every language.
const char* nameOf(SectionQuantity quantity) {
  switch (quantity) {
    case SectionQuantity::kVerticalGradient:
      return "gradient";
    case SectionQuantity::kLaplacian:
      return "laplacian";
    case SectionQuantity::kInformationDensity:
      return "density";
    case SectionQuantity::kCertainty:
      return "certainty";
    case SectionQuantity::kVelocity:
      break;
  }
  return "velocity";
}

class Planner {
 public:
  Planner(const TomoDocument& document, const ImageSetOptions& options)
      : mDocument(document), mOptions(options) {}

  void addGathers() {
    const std::size_t count = mDocument.recordings->traceSets.size();
    const std::size_t first = mOptions.shot.value_or(0);
    const std::size_t end = mOptions.shot ? std::min(first + 1, count) : count;
    for (std::size_t shot = first; shot < end; ++shot) {
      if (mDocument.recordings->traceSets[shot].empty()) continue;
      GatherFigureOptions figure;
      setSize(figure);
      figure.shot = shot;
      figure.filtered = mOptions.filtered;
      figure.manner = mOptions.gatherManner;
      figure.errorBars = mOptions.errorBars;
      add("shot_" + withZeros(shot + 1, count),
          [&document = mDocument, figure](const std::string& path) {
            std::vector<std::string> written;
            return writeGatherFigures(document, figure, path, written);
          });
    }
  }

  void addTravelTimes() {
    if (!hasPicks(mDocument)) return;
    TravelTimeFigureOptions figure;
    setSize(figure);
    figure.errorBars = mOptions.errorBars;
    add("traveltimes", [&document = mDocument, figure](const std::string& path) {
      return writeTravelTimeFigure(document, figure, path);
    });
  }

  void addSection(SectionQuantity quantity, bool smooth) {
    const bool density = quantity == SectionQuantity::kInformationDensity;
    if (mDocument.model->grid == nullptr || (density && !mDocument.result->has_tomographic_info) ||
        (quantity == SectionQuantity::kCertainty && !mDocument.result->certainty)) {
      return;
    }
    SectionViewSettings view = mOptions.view;
    view.quantity = quantity;
    view.profile = true;
    view.smooth = smooth;
    if (smooth) view.contours.filled = false;
    SectionFigureOptions figure = sectionFigureOptions(view, mOptions.palette, mOptions.refractors);
    if (mOptions.horizontalColorBar && figure.colorBar == ColorBar::kVertical) {
      figure.colorBar = ColorBar::kHorizontal;
    }
    figure.widthMm = mOptions.widthMm;
    figure.heightMm = mOptions.heightMm;
    figure.dpi = mOptions.dpi;
    add(std::string(nameOf(quantity)) + (smooth ? "_smooth" : ""),
        [&document = mDocument, figure](const std::string& path) {
          return writeSectionFigure(document, figure, path);
        });
  }

  void addResiduals() {
    const ResidualTable table = residualTableOf(mDocument);
    if (table.picks.empty()) return;
    SectionFigureOptions sheet =
        sectionFigureOptions(mOptions.view, mOptions.palette, mOptions.refractors);
    sheet.widthMm = mOptions.widthMm;
    sheet.heightMm = mOptions.heightMm;
    sheet.dpi = mOptions.dpi;
    const auto write = [&](ResidualView view) {
      return [&document = mDocument, table, view, sheet](const std::string& path) {
        return writeResidualFigure(document, table, view, {}, sheet, path);
      };
    };
    add("residuals", write(ResidualView::kMap));
    if (!rayOwners(mDocument).empty()) add("residuals_section", write(ResidualView::kSection));
  }

  void addRefraction(const refractionDataStructure::Interpretation& profile) {
    RefractionFigureOptions figure;
    setSize(figure);
    figure.errors = mOptions.profileErrors;
    FigureDrawing drawing;
    if (!prepareRefractionFigure(mDocument, profile, figure, drawing).ok()) return;
    add("refraction", [&document = mDocument, &profile, figure](const std::string& path) {
      return writeRefractionFigure(document, profile, figure, path);
    });
  }

  std::vector<PlannedImage> take() { return std::move(mImages); }

 private:
  template <typename Figure>
  void setSize(Figure& figure) const {
    figure.widthMm = mOptions.widthMm;
    figure.heightMm =
        mOptions.heightMm > 0.0 ? mOptions.heightMm : kHeightOverWidth * mOptions.widthMm;
    figure.dpi = mOptions.dpi;
  }

  void add(const std::string& name, std::function<Status(const std::string&)> write) {
    std::string path = mOptions.folder;
    if (!path.empty() && path.back() != '/') path += '/';
    if (!mOptions.baseName.empty()) path += mOptions.baseName + '_';
    path += name + suffixOf(mOptions.format);
    mImages.push_back({path, [path, write = std::move(write)] { return write(path); }});
  }

  const TomoDocument& mDocument;
  const ImageSetOptions mOptions;
  std::vector<PlannedImage> mImages;
};

}  // namespace

std::vector<PlannedImage> planImages(const TomoDocument& document,
                                     const refractionDataStructure::Interpretation* interpretation,
                                     const ImageSetOptions& options) {
  Planner planner(document, options);
  if (options.gathers) planner.addGathers();
  if (options.travelTimes) planner.addTravelTimes();
  if (options.section) {
    for (const SectionQuantity quantity : options.quantities) {
      if (options.cells) planner.addSection(quantity, false);
      if (options.smooth) planner.addSection(quantity, true);
    }
  }
  if (options.residuals) planner.addResiduals();
  if (options.refraction && interpretation != nullptr) {
    planner.addRefraction(*interpretation);
  }
  return planner.take();
}

const char* suffixOf(FigureFormat format) {
  switch (format) {
    case FigureFormat::kSvg:
      return ".svg";
    case FigureFormat::kPdf:
      return ".pdf";
    case FigureFormat::kPng:
      break;
  }
  return ".png";
}

}  // namespace talvesk
