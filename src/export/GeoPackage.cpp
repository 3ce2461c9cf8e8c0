#include "export/GeoPackage.h"

#include "base/AtomicFile.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include <sqlite3.h>

namespace talvesk {
namespace {

constexpr const char* kTables[] = {
    "PRAGMA application_id = 1196444487",  // "GPKG"
    "PRAGMA user_version = 10300",
    "CREATE TABLE gpkg_spatial_ref_sys (srs_name TEXT NOT NULL, srs_id INTEGER NOT NULL PRIMARY "
    "KEY, organization TEXT NOT NULL, organization_coordsys_id INTEGER NOT NULL, definition TEXT "
    "NOT NULL, description TEXT)",
    "CREATE TABLE gpkg_contents (table_name TEXT NOT NULL PRIMARY KEY, data_type TEXT NOT NULL, "
    "identifier TEXT UNIQUE, description TEXT DEFAULT '', last_change DATETIME NOT NULL DEFAULT "
    "(strftime('%Y-%m-%dT%H:%M:%fZ','now')), min_x DOUBLE, min_y DOUBLE, max_x DOUBLE, max_y "
    "DOUBLE, srs_id INTEGER, CONSTRAINT fk_gc_r_srs_id FOREIGN KEY (srs_id) REFERENCES "
    "gpkg_spatial_ref_sys(srs_id))",
    "CREATE TABLE gpkg_geometry_columns (table_name TEXT NOT NULL, column_name TEXT NOT NULL, "
    "geometry_type_name TEXT NOT NULL, srs_id INTEGER NOT NULL, z TINYINT NOT NULL, m TINYINT NOT "
    "NULL, CONSTRAINT pk_geom_cols PRIMARY KEY (table_name, column_name), CONSTRAINT "
    "uk_gc_table_name UNIQUE (table_name), CONSTRAINT fk_gc_tn FOREIGN KEY (table_name) REFERENCES "
    "gpkg_contents(table_name), CONSTRAINT fk_gc_srs FOREIGN KEY (srs_id) REFERENCES "
    "gpkg_spatial_ref_sys (srs_id))"};

/// The systems that every file has to have.
constexpr const char* kGlobe =
    "GEOGCS[\"WGS 84\",DATUM[\"WGS_1984\",SPHEROID[\"WGS "
    "84\",6378137,298.257223563,AUTHORITY[\"EPSG\",\"7030\"]],AUTHORITY[\"EPSG\",\"6326\"]],PRIMEM["
    "\"Greenwich\",0,AUTHORITY[\"EPSG\",\"8901\"]],UNIT[\"degree\",0.0174532925199433,AUTHORITY["
    "\"EPSG\",\"9122\"]],AUTHORITY[\"EPSG\",\"4326\"]]";
constexpr const char* kInsertSystem =
    "INSERT OR REPLACE INTO gpkg_spatial_ref_sys (srs_name, srs_id, organization, "
    "organization_coordsys_id, definition) VALUES (?, ?, ?, ?, ?)";

/// Bytes of a geometry, lowest first.
class Bytes {
 public:
  template <typename T>
  void put(T value) {
    static_assert(std::is_trivially_copyable_v<T> && sizeof(T) <= 8);
    std::uint64_t bits = 0;
    if constexpr (std::is_floating_point_v<T>) {
      std::memcpy(&bits, &value, sizeof value);
    } else {
      bits = static_cast<std::uint64_t>(value);
    }
    for (std::size_t i = 0; i < sizeof(T); ++i) text += static_cast<char>(bits >> (8 * i) & 0xFF);
  }
  std::string text;
};

/// A geometry in the standard's header, with a box in the plane, and well-known binary with Z.
std::string geometryOf(const std::vector<GeoPackageVertex>& corners, std::int32_t system,
                       GeoPackage::Geometry kind) {
  constexpr std::uint8_t kLowestFirst = 1;
  constexpr std::uint8_t kWithBox = 1 << 1;
  constexpr std::uint32_t kPointZ = 1001;
  constexpr std::uint32_t kLineZ = 1002;
  const bool line = kind == GeoPackage::Geometry::kLine;
  Bytes bytes;
  bytes.text = "GP";
  bytes.put(std::uint8_t{0});  // version
  bytes.put(static_cast<std::uint8_t>(kLowestFirst | (line ? kWithBox : 0)));
  bytes.put(system);
  if (line) {
    const auto eastings =
        std::minmax_element(corners.begin(), corners.end(),
                            [](const auto& a, const auto& b) { return a.easting < b.easting; });
    const auto northings =
        std::minmax_element(corners.begin(), corners.end(),
                            [](const auto& a, const auto& b) { return a.northing < b.northing; });
    bytes.put(eastings.first->easting);
    bytes.put(eastings.second->easting);
    bytes.put(northings.first->northing);
    bytes.put(northings.second->northing);
  }
  bytes.put(kLowestFirst);
  bytes.put(line ? kLineZ : kPointZ);
  if (line) bytes.put(static_cast<std::uint32_t>(corners.size()));
  for (const GeoPackageVertex& corner : corners) {
    bytes.put(corner.easting);
    bytes.put(corner.northing);
    bytes.put(corner.elevation);
  }
  return bytes.text;
}

const char* typeName(GeoPackage::Column::Type type) {
  switch (type) {
    case GeoPackage::Column::Type::kInteger:
      return "INTEGER";
    case GeoPackage::Column::Type::kReal:
      return "DOUBLE";
    case GeoPackage::Column::Type::kText:
      break;
  }
  return "TEXT";
}

void bind(sqlite3_stmt* statement, int place, const GeoPackageValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    sqlite3_bind_int64(statement, place, *whole);
  } else if (const auto* number = std::get_if<double>(&value)) {
    if (std::isfinite(*number)) sqlite3_bind_double(statement, place, *number);
  } else {
    const std::string& text = std::get<std::string>(value);
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
  }
}

bool isPlace(const GeoPackageVertex& corner) {
  return std::isfinite(corner.easting) && std::isfinite(corner.northing) &&
         std::isfinite(corner.elevation);
}

}  // namespace

struct GeoPackage::Layer {
  struct Finish {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::string name;
  Geometry geometry = Geometry::kPoint;
  std::unique_ptr<sqlite3_stmt, Finish> insert;
  bool any = false;
  GeoPackageVertex least;
  GeoPackageVertex most;

  void take(const GeoPackageVertex& corner) {
    if (!any) least = most = corner;
    any = true;
    least.easting = std::min(least.easting, corner.easting);
    least.northing = std::min(least.northing, corner.northing);
    most.easting = std::max(most.easting, corner.easting);
    most.northing = std::max(most.northing, corner.northing);
  }
};

void GeoPackage::Close::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

GeoPackage::GeoPackage(std::int32_t epsg, const std::string& systemName,
                       const std::string& definition)
    : mSystem(epsg) {
  sqlite3* database = nullptr;
  const int opened = sqlite3_open(":memory:", &database);
  mDatabase.reset(database);
  if (opened != SQLITE_OK) fail();
  for (const char* statement : kTables) run(statement);
  const auto code = [](std::int32_t number) { return GeoPackageValue(std::int64_t{number}); };
  using Text = std::string;
  run(kInsertSystem,
      {Text("Undefined cartesian SRS"), code(-1), Text("NONE"), code(-1), Text("undefined")});
  run(kInsertSystem,
      {Text("Undefined geographic SRS"), code(0), Text("NONE"), code(0), Text("undefined")});
  run(kInsertSystem, {Text("WGS 84 geodetic"), code(4326), Text("EPSG"), code(4326), Text(kGlobe)});
  const Text name = systemName.empty() ? "EPSG:" + std::to_string(epsg) : systemName;
  if (epsg > 0) {
    run(kInsertSystem, {name, code(epsg), Text("EPSG"), code(epsg),
                        definition.empty() ? Text("undefined") : definition});
  } else {
    mSystem = -1;
  }
  run("BEGIN");
}

GeoPackage::~GeoPackage() = default;

void GeoPackage::fail() {
  if (!mStatus.ok()) return;
  mStatus = Status::failure(
      Message(mDatabase ? std::string(sqlite3_errmsg(mDatabase.get())) : "out of memory"));
}

void GeoPackage::run(const std::string& statement, const std::vector<GeoPackageValue>& values) {
  if (!mStatus.ok()) return;
  sqlite3_stmt* prepared = nullptr;
  if (sqlite3_prepare_v2(mDatabase.get(), statement.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
    return fail();
  }
  const std::unique_ptr<sqlite3_stmt, Layer::Finish> owner(prepared);
  for (std::size_t i = 0; i < values.size(); ++i) {
    bind(prepared, static_cast<int>(i + 1), values[i]);
  }
  const int done = sqlite3_step(prepared);
  if (done != SQLITE_DONE && done != SQLITE_ROW) fail();
}

void GeoPackage::addLayer(const std::string& name, const std::string& description,
                          Geometry geometry, const std::vector<Column>& columns) {
  finishLayer();
  const std::string type = geometry == Geometry::kLine ? "LINESTRING" : "POINT";
  std::string definition =
      "CREATE TABLE \"" + name + "\" (fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL, geom " + type;
  std::string insert = "INSERT INTO \"" + name + "\" (geom";
  std::string places = "?";
  for (const Column& column : columns) {
    definition += ", \"" + column.name + "\" " + typeName(column.type);
    insert += ", \"" + column.name + '"';
    places += ", ?";
  }
  run(definition + ")");
  run("INSERT INTO gpkg_contents (table_name, data_type, identifier, description, srs_id) VALUES "
      "(?, 'features', ?, ?, ?)",
      {name, name, description, std::int64_t{mSystem}});
  run("INSERT INTO gpkg_geometry_columns VALUES (?, 'geom', ?, ?, 1, 0)",
      {name, type, std::int64_t{mSystem}});
  if (!mStatus.ok()) return;
  mLayer = std::make_unique<Layer>();
  mLayer->name = name;
  mLayer->geometry = geometry;
  sqlite3_stmt* prepared = nullptr;
  insert += ") VALUES (" + places + ")";
  if (sqlite3_prepare_v2(mDatabase.get(), insert.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
    fail();
  }
  mLayer->insert.reset(prepared);
}

void GeoPackage::addFeature(const std::vector<GeoPackageVertex>& corners,
                            const std::vector<GeoPackageValue>& values) {
  if (!mStatus.ok() || !mLayer) return;
  const std::size_t least = mLayer->geometry == Geometry::kLine ? 2 : 1;
  if (corners.size() < least || !std::all_of(corners.begin(), corners.end(), isPlace)) return;
  sqlite3_stmt* insert = mLayer->insert.get();
  const std::string geometry = geometryOf(corners, mSystem, mLayer->geometry);
  sqlite3_reset(insert);
  sqlite3_clear_bindings(insert);
  sqlite3_bind_blob(insert, 1, geometry.data(), static_cast<int>(geometry.size()),
                    SQLITE_TRANSIENT);
  for (std::size_t i = 0; i < values.size(); ++i) bind(insert, static_cast<int>(i + 2), values[i]);
  if (sqlite3_step(insert) != SQLITE_DONE) return fail();
  for (const GeoPackageVertex& corner : corners) mLayer->take(corner);
}

void GeoPackage::finishLayer() {
  if (!mLayer) return;
  if (mLayer->any) {
    run("UPDATE gpkg_contents SET min_x = ?, min_y = ?, max_x = ?, max_y = ? WHERE table_name = ?",
        {mLayer->least.easting, mLayer->least.northing, mLayer->most.easting, mLayer->most.northing,
         mLayer->name});
  }
  mLayer.reset();
}

Status GeoPackage::write(const std::string& path) {
  finishLayer();
  run("COMMIT");
  if (!mStatus.ok()) return mStatus;
  sqlite3_int64 size = 0;
  const std::unique_ptr<unsigned char, void (*)(void*)> bytes(
      sqlite3_serialize(mDatabase.get(), "main", &size, 0), sqlite3_free);
  if (!bytes) return Status::failure(Message("out of memory"));
  return writeFileAtomically(
      path, {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)});
}

}  // namespace talvesk
