#include "model/GeoTransformer.h"

#include "base/Console.h"

#include <cmath>
#include <ostream>
#include <vector>

#include <proj.h>

namespace talvesk {
namespace {

constexpr const char* kGlobe = "EPSG:4326";  ///< WGS84, which every map viewer understands

/// PROJ's own complaints are many lines, and come with every code that is half typed.
class SilentProj {
 public:
  SilentProj() : mBefore(proj_log_level(nullptr, PJ_LOG_NONE)) {}
  ~SilentProj() { proj_log_level(nullptr, mBefore); }
  SilentProj(const SilentProj&) = delete;
  SilentProj& operator=(const SilentProj&) = delete;

 private:
  PJ_LOG_LEVEL mBefore;
};

struct Axis {
  std::string direction;  ///< "east", "north", "west", "south"
  std::string unit;
  double metres = 0.0;  ///< of one unit
};

std::vector<Axis> axesOf(const PJ* coordinateSystem) {
  std::vector<Axis> axes;
  const int count = proj_cs_get_axis_count(nullptr, coordinateSystem);
  for (int i = 0; i < count; ++i) {
    const char* direction = nullptr;
    const char* unit = nullptr;
    double metres = 0.0;
    if (proj_cs_get_axis_info(nullptr, coordinateSystem, i, nullptr, nullptr, &direction, &metres,
                              &unit, nullptr, nullptr) == 0) {
      return {};
    }
    axes.push_back({direction ? direction : "", unit ? unit : "", metres});
  }
  return axes;
}

/// Systems of the poles count both axes along meridians, and have easting and northing all the
/// same.
bool countsBackward(const std::vector<Axis>& axes) {
  const std::string both = axes[0].direction + " " + axes[1].direction;
  return both.find("west") != std::string::npos || both == "south east" || both == "east south";
}

Message toward(const std::string& direction) {
  if (direction == "east") return Message::tr("eastward");
  if (direction == "north") return Message::tr("northward");
  if (direction == "west") return Message::tr("westward");
  if (direction == "south") return Message::tr("southward");
  return direction + "ward";
}

}  // namespace

void GeoTransformer::Release::operator()(PJconsts* object) const {
  proj_destroy(object);
}

GeoTransformer::GeoTransformer(std::int32_t epsg) {
  console::error() << "PROJ" << std::endl;
  const SilentProj silence;
  const std::string code = "EPSG:" + std::to_string(epsg);
  const Object system(epsg > 0 ? proj_create(nullptr, code.c_str()) : nullptr);
  mStatus = examine(system, code);
  if (mStatus.ok()) mStatus = build(code);
}

GeoTransformer::~GeoTransformer() = default;
GeoTransformer::GeoTransformer(GeoTransformer&&) noexcept = default;
GeoTransformer& GeoTransformer::operator=(GeoTransformer&&) noexcept = default;

Status GeoTransformer::examine(const Object& system, const std::string& code) {
  if (!system) {
    return Status::failure(Message::tr("%1 is no reference system that is known here").arg(code),
                           kUnknownSystem);
  }
  if (const char* name = proj_get_name(system.get())) mName = name;
  const std::string what = code + " (" + mName + ")";
  if (proj_get_type(system.get()) != PJ_TYPE_PROJECTED_CRS) {
    return Status::failure(
        Message::tr("%1 is not a projected system; easting and northing need one").arg(what),
        kNotProjected);
  }
  const Object coordinateSystem(proj_crs_get_coordinate_system(nullptr, system.get()));
  const std::vector<Axis> axes =
      coordinateSystem ? axesOf(coordinateSystem.get()) : std::vector<Axis>{};
  if (axes.size() < 2) {
    return Status::failure(Message::tr("%1 has no axes that are known here").arg(what),
                           kNotProjected);
  }
  for (const Axis& axis : axes) {
    if (axis.metres == 1.0) continue;
    return Status::failure(
        Message::tr("%1 counts in another unit than the metre: %2; choose a system in metres")
            .arg(what)
            .arg(axis.unit),
        kNotInMetres);
  }
  if (countsBackward(axes)) {
    return Status::failure(
        Message::tr("%1 counts %2 and %3; choose a system with easting and northing")
            .arg(what)
            .arg(toward(axes[0].direction))
            .arg(toward(axes[1].direction)),
        kCountsBackward);
  }
  return {};
}

Status GeoTransformer::build(const std::string& code) {
  const Object asDefined(proj_create_crs_to_crs(nullptr, code.c_str(), kGlobe, nullptr));
  if (asDefined) mTransformation.reset(proj_normalize_for_visualization(nullptr, asDefined.get()));
  if (mTransformation) return {};
  return Status::failure(
      Message::tr("%1 (%2) cannot be turned into longitude and latitude").arg(code).arg(mName),
      kNoTransformation);
}

bool GeoTransformer::transform(double easting, double northing, LonLat& out) const {
  if (!mTransformation || !std::isfinite(easting) || !std::isfinite(northing)) return false;
  const SilentProj silence;
  proj_errno_reset(mTransformation.get());
  const PJ_COORD place =
      proj_trans(mTransformation.get(), PJ_FWD, proj_coord(easting, northing, 0.0, 0.0));
  if (!std::isfinite(place.xy.x) || !std::isfinite(place.xy.y)) return false;
  out = {place.xy.x, place.xy.y};
  return true;
}

std::string wellKnownText(std::int32_t epsg) {
  const SilentProj silence;
  const std::string code = "EPSG:" + std::to_string(epsg);
  PJ* const system = epsg > 0 ? proj_create(nullptr, code.c_str()) : nullptr;
  if (system == nullptr) return {};
  const char* const written = proj_as_wkt(nullptr, system, PJ_WKT1_GDAL, nullptr);
  std::string text = written != nullptr ? written : "";  // which lives as long as its system
  proj_destroy(system);
  return text;
}

bool GeoTransformer::project(const LonLat& place, MapPoint& out) const {
  const bool onGlobe = std::fabs(place.longitude) <= 180.0 && std::fabs(place.latitude) <= 90.0;
  if (!mTransformation || !onGlobe) return false;
  const SilentProj silence;
  proj_errno_reset(mTransformation.get());
  const PJ_COORD at = proj_trans(mTransformation.get(), PJ_INV,
                                 proj_coord(place.longitude, place.latitude, 0.0, 0.0));
  if (!std::isfinite(at.xy.x) || !std::isfinite(at.xy.y)) return false;
  out = {at.xy.x, at.xy.y};
  return true;
}

std::int32_t utmSystemOf(const LonLat& place) {
  constexpr std::int32_t kNorth = 32600;
  constexpr std::int32_t kSouth = 32700;
  const double longitude = place.longitude;
  const double latitude = place.latitude;
  if (!(std::fabs(longitude) <= 180.0) || !(std::fabs(latitude) <= 90.0)) return 0;
  auto zone = static_cast<std::int32_t>(std::floor((longitude + 180.0) / 6.0)) % 60 + 1;
  const bool norway = latitude >= 56.0 && latitude < 64.0 && longitude >= 3.0 && longitude < 12.0;
  if (norway) zone = 32;
  const bool svalbard = latitude >= 72.0 && longitude >= 0.0 && longitude < 42.0;
  if (svalbard) zone = longitude < 9.0 ? 31 : longitude < 21.0 ? 33 : longitude < 33.0 ? 35 : 37;
  return (latitude < 0.0 ? kSouth : kNorth) + zone;
}

}  // namespace talvesk
