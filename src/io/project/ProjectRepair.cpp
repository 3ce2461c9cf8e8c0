#include "io/project/ProjectRepair.h"

#include "base/PlainText.h"
#include "base/TextNumber.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace talvesk {
namespace {

using namespace refractionDataStructure;
using Repairs = std::vector<Message>;

constexpr double kLeastVelocity = 1e-3;      // m/s
constexpr double kLargestVelocity = 1e9;     // m/s
constexpr double kLargestTime = 1e6;         // seconds
constexpr std::size_t kLongestTitle = 1000;  // bytes

bool isPosition(double metres) {
  return std::fabs(metres) <= kLargestCoordinate;  // false for what is no number
}

bool isPosition(const Point2D& point) {
  return isPosition(point.x) && isPosition(point.z);
}

bool isVelocity(double v) {
  return v >= kLeastVelocity && v <= kLargestVelocity;
}

template <typename Value, typename Test>
bool all(const std::vector<Value>& values, Test test) {
  return std::all_of(values.begin(), values.end(), test);
}

void repairTitle(std::string& title, Repairs& repairs) {
  std::string clean = beginningOf(withoutControls(title), kLongestTitle);
  if (clean == title) return;
  title = std::move(clean);
  repairs.push_back(Message::tr("its title has control characters or is too long; it reads %1 now")
                        .arg(quoted(title)));
}

bool fits(const VelocityLayer& layer) {
  return isPosition(layer.initialDepth) && isPosition(layer.finalDepth) &&
         isVelocity(layer.initialVelocity) && isVelocity(layer.finalVelocity);
}

void repairInversion(TomoDocument& document, Repairs& repairs) {
  const TomoDocument fresh;
  if (!std::isfinite(document.result->RMSE_tomography)) {
    repairs.push_back(Message::tr("its RMS misfit is no number; it is left out"));
    document.result.edit().RMSE_tomography = fresh.result->RMSE_tomography;
  }
  if (!isVelocity(document.model->minVelocity) || !isVelocity(document.model->maxVelocity)) {
    repairs.push_back(Message::tr("its limits of velocity cannot be; they are as in a new survey"));
    document.model.edit().minVelocity = fresh.model->minVelocity;
    document.model.edit().maxVelocity = fresh.model->maxVelocity;
  }
  if (!all(document.model->layers, fits)) {
    repairs.push_back(
        Message::tr("a layer of its starting model cannot be; the model is left out"));
    document.model.edit().layers.clear();
  }
  const auto isSize = [](double size) { return size > 0.0 && isPosition(size); };
  if (!all(*document.proposedCellSizes, isSize)) {
    repairs.push_back(Message::tr("a cell size that it proposes cannot be; it proposes new ones"));
    document.proposedCellSizes = {};
  }
}

void repairPlace(TomoDocument& document, Repairs& repairs) {
  const geographicsCoord& place = document.map->geoCoord;
  const double sum = std::fabs(place.mEastFstGeoph) + std::fabs(place.mEastLstGeoph) +
                     std::fabs(place.mNorthFstGeoph) + std::fabs(place.mNorthLstGeoph);
  if (std::isfinite(sum)) return;
  repairs.push_back(Message::tr("its geographic coordinates are no numbers; they are left out"));
  document.map.edit().geoCoord = {};
  document.map.edit().geoCoord_isSet = false;
}

void repairExaggeration(double& exaggeration, Repairs& repairs) {
  constexpr auto kRange = parameters::kExaggeration.limits;
  if (exaggeration >= kRange.least && exaggeration <= kRange.most) return;
  const double before = exaggeration;
  const bool isFactor = std::isfinite(before) && before > 0.0;
  exaggeration = isFactor ? std::clamp(before, kRange.least, kRange.most)
                          : SectionViewSettings().verticalExaggeration;
  repairs.push_back(
      Message::tr("no section can be drawn with a vertical exaggeration of %1; it is %2 now")
          .arg(before)
          .arg(exaggeration));
}

/// Whether the value was outside.
template <typename Number>
bool hold(Number& value, Number least, Number most) {
  const Number before = value;
  value = std::isfinite(static_cast<double>(before)) ? std::clamp(before, least, most) : least;
  return value != before;
}

/// The same, within what users can choose.
bool hold(int& value, const Parameter<int>& parameter) {
  return hold(value, parameter.limits.least, parameter.limits.most);
}

/// Whether a list had to be given up.
bool repairContourLists(ContourSettings& contours) {
  std::vector<double>* const lists[] = {&contours.customValues, &contours.gradientValues,
                                        &contours.laplacianValues};
  bool repaired = false;
  for (std::vector<double>* values : lists) {
    if (values->size() > SectionSceneOptions::kMaxContours ||
        !all(*values, [](double v) { return std::isfinite(v); })) {
      values->clear();
      repaired = true;
    }
    std::sort(values->begin(), values->end());
  }
  // Projects once had one list, for whatever quantity was contoured.
  if (contours.customized && contours.onVerticalGradient && contours.gradientValues.empty()) {
    contours.gradientValues = contours.customValues;
  }
  if (contours.customized && contours.onLaplacian && contours.laplacianValues.empty()) {
    contours.laplacianValues = contours.customValues;
  }
  if (std::all_of(std::begin(lists), std::end(lists),
                  [](const std::vector<double>* list) { return list->empty(); })) {
    contours.customized = false;
  }
  return repaired;
}

void repairContours(ContourSettings& contours, Repairs& repairs) {
  bool repaired = hold(contours.numberOfValues, parameters::kContours);
  repaired = hold(contours.labelEvery, parameters::kLabelEvery) || repaired;
  repaired = hold(contours.labelSize, parameters::kLabelSize) || repaired;
  for (double* part : {&contours.color.r, &contours.color.g, &contours.color.b}) {
    repaired = hold(*part, 0.0, 1.0) || repaired;
  }
  repaired = repairContourLists(contours) || repaired;
  if (repaired) {
    repairs.push_back(Message::tr("its contours cannot be drawn so; they are put right"));
  }
}

/// What is not a number is not known; what is one must be small enough.
bool within(const std::vector<double>& values, double largest) {
  return all(values, [largest](double v) { return std::isnan(v) || std::fabs(v) <= largest; });
}

bool canBe(const phantom& curve) {
  const std::size_t n = curve.points.size();
  return curve.times.size() == n && curve.enabled.size() == n &&
         all(curve.points, [](const Point2D& point) { return isPosition(point); }) &&
         within(curve.times, kLargestTime) &&
         within({curve.trasla, curve.slope, curve.intercept, curve.reciprocalTime}, kLargestTime);
}

bool canBe(const computedData& data) {
  const std::size_t n = data.x.size();
  const auto perReceiver = [n](const std::vector<double>& values, double largest) {
    return (values.empty() || values.size() == n) && within(values, largest);
  };
  const auto family = [n](const std::vector<double>& values) {
    return (values.empty() || values.size() == kXYFamily.size() * n) &&
           within(values, kLargestTime);
  };
  const auto isPlace = [](double metres) { return isPosition(metres); };
  return all(data.x, isPlace) && all(data.elevation, isPlace) &&
         perReceiver(data.tG, kLargestTime) && perReceiver(data.tV, kLargestTime) &&
         family(data.tGs) && family(data.tVs) && perReceiver(data.elevation, kLargestCoordinate) &&
         perReceiver(data.velocity, kLargestVelocity) &&
         perReceiver(data.depth, kLargestCoordinate);
}

template <typename Record>
bool allCanBe(const std::vector<Record>& records) {
  constexpr std::size_t kRefractors = kLastLayer - 1;
  return records.size() <= kRefractors &&
         all(records, [](const Record& record) { return canBe(record); });
}

bool canBe(const processingData& results) {
  return allCanBe(results.cData) && within(results.v2, kLargestVelocity) &&
         within(results.v3, kLargestVelocity) && within({results.v1}, kLargestVelocity);
}

}  // namespace

void repairSection(SectionViewSettings& section, Repairs& repairs) {
  const SectionViewSettings fresh;
  if (section.quantity < SectionQuantity::kVelocity ||
      section.quantity > SectionQuantity::kCertainty) {
    section.quantity = fresh.quantity;
    repairs.push_back(
        Message::tr("its section shows a quantity that does not exist; it is the velocity now"));
  }
  if (section.geophones < GeophoneMarkers::kNone || section.geophones > GeophoneMarkers::kLarge) {
    section.geophones = fresh.geophones;
    repairs.push_back(
        Message::tr("its geophone markers have a size that does not exist; it is normal now"));
  }
  repairExaggeration(section.verticalExaggeration, repairs);
  repairContours(section.contours, repairs);
  if (!areBandVelocities(section.bandVelocities)) {
    section.bandVelocities.clear();
    repairs.push_back(Message::tr("its depth bands cannot be drawn so; there are none now"));
  }
}

void repairSurvey(SurveyMember& member, Repairs& repairs) {
  repairTitle(member.document.title, repairs);
  repairInversion(member.document, repairs);
  repairPlace(member.document, repairs);
  repairSection(member.section, repairs);
}

void repairVelocities(std::vector<double>& velocities, Repairs& repairs) {
  std::size_t held = 0;
  for (double& velocity : velocities) {
    const bool isOutside = !isVelocity(velocity) && std::isfinite(velocity) && velocity > 0.0;
    if (isOutside && hold(velocity, kLeastVelocity, kLargestVelocity)) ++held;
  }
  if (held == 0) return;
  Message text =
      held == 1 ? Message::tr("velocities of %1 cell cannot be; they are held within %2 and %3")
                : Message::tr("velocities of %1 cells cannot be; they are held within %2 and %3");
  repairs.push_back(std::move(text)
                        .arg(held)
                        .arg(Message::velocity(kLeastVelocity))
                        .arg(Message::velocity(kLargestVelocity)));
}

void repairResults(Interpretation& interpretation, Repairs& repairs) {
  bool shifted = false;
  for (layerStruct& shot : interpretation.ttLayer) {
    for (double& shift : shot.trasla) {
      if (std::fabs(shift) <= kLargestTime) continue;
      shift = 0.0;
      shifted = true;
    }
  }
  if (shifted) {
    repairs.push_back(Message::tr("a time shift of its arrivals cannot be; it is 0 now"));
  }
  if (allCanBe(interpretation.phnt_A) && allCanBe(interpretation.phnt_R) &&
      canBe(interpretation.refractData)) {
    return;
  }
  interpretation.phnt_A.clear();
  interpretation.phnt_R.clear();
  interpretation.refractData = {};
  repairs.push_back(
      Message::tr("its layered profile cannot be; it is left out and can be built again"));
}

}  // namespace talvesk
