#include "figures/FigureWords.h"
#include "figures/report/ReportBuilder.h"
#include "model/GeoTransformer.h"
#include "model/GeographicsCoord.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

// The title page, what was measured where, and where that lies on the globe.

namespace talvesk::report {
namespace {

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
  return even ? length(spacing.high, 2) : lengthSpan(spacing.low, spacing.high, 2);
}

void addLine(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  Extent geophones;
  Extent shots;
  std::set<double> places;  // strings of a line that was moved along overlap
  for (const auto& string : document.line->goephonesStringSet) {
    for (const Point2D& geophone : string) {
      geophones.take(geophone);
      places.insert(geophone.x);
    }
  }
  for (const TravelTime& record : document.ttArray) shots.take(record.shotPos2d);

  ReportTable facts = ReportTable::ofFacts();
  addFact(facts, ReportWords::tr("Waves"),
          document.recordings->waveType == WaveType::S ? ReportWords::tr("S waves")
                                                       : ReportWords::tr("P waves"));
  if (geophones.x.known()) {
    addFact(facts, ReportWords::tr("Geophones from, to"),
            withLengthUnit(lengthSpan(geophones.x.low, geophones.x.high, 2)));
    addFact(facts, ReportWords::tr("Length of the line"),
            withLengthUnit(length(geophones.x.high - geophones.x.low, 2)));
    addFact(facts, ReportWords::tr("Elevation of the geophones"),
            withLengthUnit(lengthSpan(geophones.z.low, geophones.z.high, 2)));
  }
  if (shots.x.known()) {
    addFact(facts, ReportWords::tr("Shots from, to"),
            withLengthUnit(lengthSpan(shots.x.low, shots.x.high, 2)));
  }
  addFact(facts, ReportWords::tr("Geophone strings"),
          QString::number(document.line->goephonesStringSet.size()));
  addFact(facts, ReportWords::tr("Geophone positions"), QString::number(places.size()));
  addFact(facts, ReportWords::tr("Number of shots"), QString::number(document.ttArray.size()));
  builder.table(ReportWords::tr("The line"), facts);
}

void addStrings(ReportBuilder& builder) {
  const auto& strings = builder.source.document.line->goephonesStringSet;
  ReportTable table{{{ReportWords::tr("String"), true},
                     {ReportWords::tr("Geophones"), true},
                     {ReportWords::tr("From [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("To [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Spacing [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Elevation [%1]").arg(lengthUnitText()), true}},
                    {}};
  for (std::size_t i = 0; i < strings.size(); ++i) {
    Extent extent;
    for (const Point2D& geophone : strings[i]) extent.take(geophone);
    table.rows.push_back(
        {QString::number(i + 1), QString::number(strings[i].size()), length(extent.x.low, 2),
         length(extent.x.high, 2), spacingOf(strings[i]),
         extent.z.known() ? lengthSpan(extent.z.low, extent.z.high, 2) : number(std::nan(""), 0)});
  }
  builder.table(ReportWords::tr("Strings of geophones"), table);
}

constexpr int kMostOfName = 16;  ///< characters that a column has for the name of a file

/// Begin and end of a name: names of a survey mostly differ at their ends.
QString withoutMiddle(const QString& name) {
  constexpr int kBegin = 5;
  if (name.size() <= kMostOfName) return name;
  return name.left(kBegin) + QChar(0x2026) + name.right(kMostOfName - kBegin - 1);
}

/// A name from a little before a place on.
QString around(const QString& name, int place) {
  constexpr int kBefore = 5;
  if (name.size() <= kMostOfName) return name;
  const int begin = std::clamp(place - kBefore, 0, name.size() - kMostOfName + 1);
  const QString rest = name.mid(begin);
  QString part = (begin > 0 ? QString(QChar(0x2026)) : QString()) + rest;
  if (part.size() > kMostOfName) part = part.left(kMostOfName - 1) + QChar(0x2026);
  return part;
}

/// The names of the shot files in the width of a column, so that they can be told apart.
QStringList shortFileNames(const TomoDocument& document) {
  QStringList names;
  QStringList shortNames;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    names << QFileInfo(qt(shotFile(document, i))).fileName();
    shortNames << withoutMiddle(names.back());
  }
  const std::set<QString> all(names.begin(), names.end());
  if (std::set<QString>(shortNames.begin(), shortNames.end()).size() == all.size()) {
    return shortNames;
  }
  const QString& first = *all.begin();
  const QString& last = *all.rbegin();
  const auto differ = std::mismatch(first.begin(), first.end(), last.begin(), last.end());
  const int place = static_cast<int>(differ.first - first.begin());
  std::transform(names.begin(), names.end(), shortNames.begin(),
                 [place](const QString& name) { return around(name, place); });
  return shortNames;
}

/// The first trace of a shot that tells how it was sampled.
const Trace* sampledTrace(const TomoDocument& document, std::size_t shot) {
  if (shot >= document.recordings->traceSets.size()) return nullptr;
  for (const Trace& trace : document.recordings->traceSets[shot]) {
    if (!trace.samples.empty() && trace.sampleInterval > 0.0 && trace.sampleInterval < 1e3) {
      return &trace;
    }
  }
  return nullptr;
}

void addShots(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  const bool files =
      std::any_of(document.recordings->traceSets.begin(), document.recordings->traceSets.end(),
                  [](const TraceSet& set) { return !set.empty(); });
  ReportTable table{{{ReportWords::tr("Shot"), true},
                     {ReportWords::tr("Position [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Elevation [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("String"), true},
                     {ReportWords::tr("Traces"), true}},
                    {}};
  if (files) {
    table.columns.insert(table.columns.begin() + 1, {ReportWords::tr("File"), false});
    table.columns.push_back({ReportWords::tr("Interval [ms]"), true});
    table.columns.push_back({ReportWords::tr("Samples"), true});
    table.columns.push_back({ReportWords::tr("Length [ms]"), true});
  }
  const QStringList names = files ? shortFileNames(document) : QStringList();
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    QStringList row{QString::number(i + 1)};
    if (files) row += names[static_cast<int>(i)];
    row << length(record.shotPos2d.x, 2) << length(record.shotPos2d.z, 2)
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
  builder.table(files ? ReportWords::tr("Shots and their recordings") : ReportWords::tr("Shots"),
                table);
}

void addFilters(ReportBuilder& builder) {
  const Recordings& recordings = *builder.source.document.recordings;
  ReportTable table{{{ReportWords::tr("Shot"), true}, {ReportWords::tr("Filter"), false}}, {}};
  for (std::size_t set = 0; set < recordings.traceSets.size(); ++set) {
    for (const FilterStep& step : filtersOf(recordings, set)) {
      table.rows.push_back({QString::number(set + 1), FigureWords::message(describe(step))});
    }
  }
  if (table.rows.empty()) return;
  builder.subheading(ReportWords::tr("Filters"));
  builder.paragraph(ReportWords::tr(
      "These shots have filtered copies beside their recordings, made as listed, one "
      "filter after the other."));
  builder.table(ReportWords::tr("Filters of the recordings"), table);
}

void addMends(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  ReportTable table{{{ReportWords::tr("Shot"), true}, {ReportWords::tr("Mend"), false}}, {}};
  for (std::size_t set = 0; set < document.recordings->mends.size(); ++set) {
    for (const Message& line : describeMends(document, set)) {
      table.rows.push_back({QString::number(set + 1), FigureWords::message(line)});
    }
  }
  if (table.rows.empty()) return;
  builder.subheading(ReportWords::tr("Mends"));
  builder.paragraph(
      ReportWords::tr("The recordings of these shots are put right as listed. All figures and "
                      "times of this report are of the mended recordings."));
  builder.table(ReportWords::tr("Mends of recordings"), table);
}

}  // namespace

void addTitlePage(ReportBuilder& builder) {
  const ReportOptions& options = builder.options;
  const QString kind = ReportWords::tr("Seismic refraction survey");
  const QString title =
      qt(options.title.empty() ? builder.source.document.title : options.title).simplified();
  builder.add(ReportItem::Kind::kTitle, title.isEmpty() ? kind : title);
  if (!title.isEmpty()) builder.add(ReportItem::Kind::kSubtitle, kind);
  ReportTable facts = ReportTable::ofFacts();
  addFact(facts, ReportWords::tr("Client"), qt(options.client));
  addFact(facts, ReportWords::tr("Site"), qt(options.site));
  addFact(facts, ReportWords::tr("Author"), qt(options.author));
  addFact(facts, ReportWords::tr("Date"), qt(options.date));
  builder.table({}, facts);
  const QString notes = qt(options.notes);
  if (!notes.isEmpty()) {
    builder.subheading(ReportWords::tr("Notes"));
    for (const QString& part : notes.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
      builder.paragraph(part);
    }
  }
}

void addSurvey(ReportBuilder& builder) {
  builder.heading(ReportWords::tr("Survey"));
  addLine(builder);
  addStrings(builder);
  addShots(builder);
  addMends(builder);
  addFilters(builder);
}

void addPosition(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  if (!document.map->geoCoord_isSet) return;
  const geographicsCoord& place = document.map->geoCoord;
  builder.heading(ReportWords::tr("Position"));
  ReportTable table{{{ReportWords::tr("End of the line")},
                     {ReportWords::tr("Easting [m]"), true},
                     {ReportWords::tr("Northing [m]"), true}},
                    {}};
  const GeoTransformer globe(place.CRS);
  const bool known = globe.status().ok();
  if (known) {
    table.columns.push_back({ReportWords::tr("Longitude [°]"), true});
    table.columns.push_back({ReportWords::tr("Latitude [°]"), true});
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
  add(ReportWords::tr("First geophone"), place.mEastFstGeoph, place.mNorthFstGeoph);
  add(ReportWords::tr("Last geophone"), place.mEastLstGeoph, place.mNorthLstGeoph);
  const QString name = QString::fromStdString(globe.systemName());
  if (place.CRS == 0) {
    builder.paragraph(ReportWords::tr("The coordinate reference system of the line is not set."));
  } else if (name.isEmpty()) {
    builder.paragraph(ReportWords::tr("Coordinate reference system: EPSG:%1.").arg(place.CRS));
  } else {
    builder.paragraph(
        ReportWords::tr("Coordinate reference system: EPSG:%1, %2.").arg(place.CRS).arg(name));
  }
  builder.table(known ? ReportWords::tr("Ends of the line; longitude and latitude on WGS 84")
                      : ReportWords::tr("Ends of the line"),
                table, LiveFigure::kMap);
  addCourse(builder);
}

}  // namespace talvesk::report
