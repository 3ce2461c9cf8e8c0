#include "export/GeoTransformer.h"
#include "figures/ReportBuilder.h"
#include "model/SurveyGeometry.h"
#include "model/TomoDocument.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

// The title page, what was measured where, and where that lies on the globe.

namespace talvesk::report {
namespace {

using W = ReportWords;

struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void take(double value) {
    if (!std::isfinite(value)) return;
    low = std::min(low, value);
    high = std::max(high, value);
  }
  bool known() const { return low <= high; }
};

struct Extent {
  Range x;
  Range z;

  void take(const Point2D& point) {
    x.take(point.x);
    z.take(point.z);
  }
};

void addFact(ReportTable& table, const QString& name, const QString& value) {
  if (!value.isEmpty()) table.rows.push_back({name, value});
}

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8).trimmed();
}

/// Spacing of neighbours along the line: one value, or the range of it.
QString spacingOf(const std::vector<Point2D>& string) {
  std::vector<double> places;
  for (const Point2D& geophone : string) {
    if (std::isfinite(geophone.x)) places.push_back(geophone.x);
  }
  std::sort(places.begin(), places.end());
  Range spacing;
  for (std::size_t i = 1; i < places.size(); ++i) {
    if (places[i] > places[i - 1]) spacing.take(places[i] - places[i - 1]);
  }
  if (!spacing.known()) return number(std::nan(""), 0);
  const bool even = spacing.high - spacing.low < 0.005 * spacing.high;
  return even ? number(spacing.high, 2) : span(spacing.low, spacing.high, 2);
}

void addLine(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  Extent geophones;
  Extent shots;
  std::size_t count = 0;
  for (const auto& string : document.goephonesStringSet) {
    count += string.size();
    for (const Point2D& geophone : string) geophones.take(geophone);
  }
  for (const TravelTime& record : document.ttArray) shots.take(record.shotPos2d);

  ReportTable facts = ReportTable::ofFacts();
  addFact(facts, W::tr("Waves"),
          document.waveType == WaveType::S ? W::tr("S waves") : W::tr("P waves"));
  if (geophones.x.known()) {
    addFact(facts, W::tr("Geophones from, to"),
            W::tr("%1 m").arg(span(geophones.x.low, geophones.x.high, 2)));
    addFact(facts, W::tr("Length of the line"),
            W::tr("%1 m").arg(number(geophones.x.high - geophones.x.low, 2)));
    addFact(facts, W::tr("Elevation of the geophones"),
            W::tr("%1 m").arg(span(geophones.z.low, geophones.z.high, 2)));
  }
  if (shots.x.known()) {
    addFact(facts, W::tr("Shots from, to"), W::tr("%1 m").arg(span(shots.x.low, shots.x.high, 2)));
  }
  addFact(facts, W::tr("Geophone strings"), QString::number(document.goephonesStringSet.size()));
  addFact(facts, W::tr("Geophone positions"), QString::number(count));
  addFact(facts, W::tr("Number of shots"), QString::number(document.ttArray.size()));
  builder.table(W::tr("The line"), facts);
}

void addStrings(ReportBuilder& builder) {
  const auto& strings = builder.source.document.goephonesStringSet;
  ReportTable table{{{W::tr("String"), true},
                     {W::tr("Geophones"), true},
                     {W::tr("From [m]"), true},
                     {W::tr("To [m]"), true},
                     {W::tr("Spacing [m]"), true},
                     {W::tr("Elevation [m]"), true}},
                    {}};
  for (std::size_t i = 0; i < strings.size(); ++i) {
    Extent extent;
    for (const Point2D& geophone : strings[i]) extent.take(geophone);
    table.rows.push_back(
        {QString::number(i + 1), QString::number(strings[i].size()), number(extent.x.low, 2),
         number(extent.x.high, 2), spacingOf(strings[i]),
         extent.z.known() ? span(extent.z.low, extent.z.high, 2) : number(std::nan(""), 0)});
  }
  builder.table(W::tr("Strings of geophones"), table);
}

/// The first trace of a shot that tells how it was sampled.
const Trace* sampledTrace(const TomoDocument& document, std::size_t shot) {
  if (shot >= document.traceSets.size()) return nullptr;
  for (const Trace& trace : document.traceSets[shot]) {
    if (!trace.samples.empty() && trace.sampleInterval > 0.0 && trace.sampleInterval < 1e3) {
      return &trace;
    }
  }
  return nullptr;
}

void addShots(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  const bool files = std::any_of(document.traceSets.begin(), document.traceSets.end(),
                                 [](const TraceSet& set) { return !set.empty(); });
  ReportTable table{{{W::tr("Shot"), true},
                     {W::tr("Position [m]"), true},
                     {W::tr("Elevation [m]"), true},
                     {W::tr("String"), true},
                     {W::tr("Traces"), true}},
                    {}};
  if (files) {
    table.columns.insert(table.columns.begin() + 1, {W::tr("File"), false});
    table.columns.push_back({W::tr("Interval [ms]"), true});
    table.columns.push_back({W::tr("Samples"), true});
    table.columns.push_back({W::tr("Length [ms]"), true});
  }
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    QStringList row{QString::number(i + 1)};
    if (files) row += QFileInfo(QString::fromStdString(shotFile(document, i))).fileName();
    row << number(record.shotPos2d.x, 2) << number(record.shotPos2d.z, 2)
        << (record.indexStesa >= 0 ? QString::number(record.indexStesa + 1) : QString())
        << QString::number(record.ttMisurati.size());
    if (files) {
      const Trace* trace = sampledTrace(document, i);
      const double intervalMs = trace != nullptr ? 1e3 * trace->sampleInterval : std::nan("");
      row << number(intervalMs, 4)
          << (trace != nullptr ? QString::number(trace->samples.size()) : number(std::nan(""), 0))
          << (trace != nullptr ? number(intervalMs * double(trace->samples.size()), 1)
                               : number(std::nan(""), 0));
    }
    table.rows.push_back(row);
  }
  builder.table(files ? W::tr("Shots and their recordings") : W::tr("Shots"), table);
}

}  // namespace

void addTitlePage(ReportBuilder& builder) {
  const ReportOptions& options = builder.options;
  const QString kind = W::tr("Seismic refraction survey");
  const QString title =
      qt(options.title.empty() ? builder.source.document.title : options.title).simplified();
  builder.add(ReportItem::Kind::kTitle, title.isEmpty() ? kind : title);
  if (!title.isEmpty()) builder.add(ReportItem::Kind::kSubtitle, kind);
  ReportTable facts = ReportTable::ofFacts();
  addFact(facts, W::tr("Client"), qt(options.client));
  addFact(facts, W::tr("Site"), qt(options.site));
  addFact(facts, W::tr("Author"), qt(options.author));
  addFact(facts, W::tr("Date"), qt(options.date));
  builder.table({}, facts);
  const QString notes = qt(options.notes);
  if (!notes.isEmpty()) {
    builder.subheading(W::tr("Notes"));
    for (const QString& part : notes.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
      builder.paragraph(part);
    }
  }
}

void addSurvey(ReportBuilder& builder) {
  builder.heading(W::tr("Survey"));
  addLine(builder);
  addStrings(builder);
  addShots(builder);
}

void addPosition(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  if (!document.geoCoordIsSet) return;
  const geographicsCoord& place = document.geoCoord;
  builder.heading(W::tr("Position"));
  ReportTable table{
      {{W::tr("End of the line")}, {W::tr("Easting [m]"), true}, {W::tr("Northing [m]"), true}},
      {}};
  const GeoTransformer globe(place.CRS);
  const bool known = globe.status().ok();
  if (known) {
    table.columns.push_back({W::tr("Longitude [°]"), true});
    table.columns.push_back({W::tr("Latitude [°]"), true});
  }
  const auto add = [&](const QString& name, double east, double north) {
    QStringList row{name, number(east, 2), number(north, 2)};
    LonLat point{std::nan(""), std::nan("")};
    if (known) {
      globe.transform(east, north, point);
      row << number(point.longitude, 6) << number(point.latitude, 6);
    }
    table.rows.push_back(row);
  };
  add(W::tr("First geophone"), place.mEastFstGeoph, place.mNorthFstGeoph);
  add(W::tr("Last geophone"), place.mEastLstGeoph, place.mNorthLstGeoph);
  const QString name = QString::fromStdString(globe.systemName());
  if (place.CRS == 0) {
    builder.paragraph(W::tr("The coordinate reference system of the line is not set."));
  } else if (name.isEmpty()) {
    builder.paragraph(W::tr("Coordinate reference system: EPSG:%1.").arg(place.CRS));
  } else {
    builder.paragraph(W::tr("Coordinate reference system: EPSG:%1, %2.").arg(place.CRS).arg(name));
  }
  builder.table(known ? W::tr("Ends of the line; longitude and latitude on WGS 84")
                      : W::tr("Ends of the line"),
                table);
}

}  // namespace talvesk::report
