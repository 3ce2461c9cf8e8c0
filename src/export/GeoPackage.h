#pragma once

#include "base/Status.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

struct sqlite3;

namespace talvesk {

/// A corner of a feature: easting, northing and elevation, metres.
struct GeoPackageVertex {
  double easting = 0.0;
  double northing = 0.0;
  double elevation = 0.0;
};

/// A value of a feature; a number that is not finite is written as none.
using GeoPackageValue = std::variant<std::int64_t, double, std::string>;

/// A GeoPackage (OGC 12-128, version 1.3): vector layers of one reference system, which are put
/// together in memory and written in one go. A failure on the way comes out of write().
class GeoPackage {
 public:
  enum class Geometry { kPoint, kLine };
  struct Column {
    enum class Type { kInteger, kReal, kText };
    std::string name;  ///< letters, digits and "_"
    Type type = Type::kReal;
  };

  /// \param epsg code of the reference system \param systemName, definition its name and its
  /// well-known text; empty where they are not known
  GeoPackage(std::int32_t epsg, const std::string& systemName, const std::string& definition);
  ~GeoPackage();
  GeoPackage(const GeoPackage&) = delete;
  GeoPackage& operator=(const GeoPackage&) = delete;

  /// A layer that the features after it go to. \param name letters, digits and "_"
  void addLayer(const std::string& name, const std::string& description, Geometry geometry,
                const std::vector<Column>& columns);
  /// Nothing for a line of fewer than two corners and for corners that are not finite. \param
  /// values one per column of the layer
  void addFeature(const std::vector<GeoPackageVertex>& corners,
                  const std::vector<GeoPackageValue>& values);

  /// Replaces the file, whole or not at all.
  Status write(const std::string& path);

 private:
  struct Layer;
  struct Close {
    void operator()(sqlite3* database) const;
  };

  void run(const std::string& statement, const std::vector<GeoPackageValue>& values = {});
  void fail();
  void finishLayer();

  std::unique_ptr<sqlite3, Close> mDatabase;
  std::unique_ptr<Layer> mLayer;  ///< that features go to
  std::int32_t mSystem;
  Status mStatus;
};

}  // namespace talvesk
