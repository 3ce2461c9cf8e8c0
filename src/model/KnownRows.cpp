#include "model/KnownRows.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

using Column = KnownColumn;

bool isEmpty(double number) {
  return std::isnan(number);
}

double orNone(double number) {
  return isEmpty(number) ? 0.0 : number;
}

double unlessNone(double number) {
  return number == 0.0 ? std::numeric_limits<double>::quiet_NaN() : number;
}

Message faultOfColumns(const KnownRow& row) {
  const KnownLayout& layout = layoutOf(row.kind);
  for (std::size_t i = 0; i < kKnownColumns.size(); ++i) {
    const auto column = static_cast<Column>(i);
    const auto at = std::find(layout.columns.begin(), layout.columns.end(), column);
    const bool needed = at < layout.columns.begin() + static_cast<std::ptrdiff_t>(layout.needed);
    if (needed && isEmpty(row[column])) {
      return Message::tr("there is no %1").arg(kKnownColumns[i]);
    }
    if (at == layout.columns.end() && !isEmpty(row[column])) {
      return Message::tr("a %1 has no %2")
          .arg(kKnownKinds[static_cast<std::size_t>(row.kind)])
          .arg(kKnownColumns[i]);
    }
  }
  return {};
}

template <typename Thing>
Thing* find(std::vector<Thing>& things, const std::string& name) {
  const auto found = std::find_if(things.begin(), things.end(),
                                  [&](const Thing& each) { return each.name == name; });
  return found == things.end() ? nullptr : &*found;
}

Message addLayer(const KnownRow& row, KnownGround& known) {
  const double offset = orNone(row[Column::kOffset]);
  KnownBorehole* borehole = find(known.boreholes, row.name);
  if (borehole == nullptr) {
    known.boreholes.push_back({row.name, row[Column::kX], offset, {}});
    borehole = &known.boreholes.back();
  }
  if (borehole->x != row[Column::kX] || borehole->offset != offset) {
    return Message::tr("borehole %1 stands somewhere else in the rows above").arg(row.name);
  }
  borehole->layers.push_back({row[Column::kDepth], row[Column::kBottom], row[Column::kVelocity],
                              orNone(row[Column::kError])});
  return faultOf(*borehole);
}

Message addDepth(const KnownRow& row, KnownGround& known) {
  constexpr double kMostRefractors = 1000.0;  // that fit into a whole number by far
  const double refractor = orNone(row[Column::kRefractor]);
  if (refractor != std::floor(refractor) || std::fabs(refractor) > kMostRefractors) {
    return Message::tr("the number of a refractor is a whole one");
  }
  KnownDepth& point = known.depths.emplace_back();
  point.name = row.name.empty() ? "P" + std::to_string(known.depths.size()) : row.name;
  point.x = row[Column::kX];
  point.depth = row[Column::kDepth];
  point.error = orNone(row[Column::kError]);
  point.refractor = static_cast<int>(refractor);
  point.isovalue = orNone(row[Column::kVelocity]);
  point.above = orNone(row[Column::kAbove]);
  point.below = orNone(row[Column::kBelow]);
  return faultOf(point);
}

Message addCorner(const KnownRow& row, KnownGround& known) {
  const KnownCorner corner{row[Column::kX], row[Column::kDepth]};
  const double velocity = row[Column::kVelocity];
  KnownBody* body = find(known.bodies, row.name);
  if (body == nullptr) {
    if (isEmpty(velocity)) return Message::tr("there is no %1").arg("velocity");
    known.bodies.push_back({row.name, velocity, {}});
    body = &known.bodies.back();
  }
  if (!isEmpty(velocity) && velocity != body->velocity) {
    return Message::tr("body %1 has another velocity in the rows above").arg(row.name);
  }
  body->outline.push_back(corner);
  // That it has too few corners can be said once all rows are there.
  return faultOf(KnownBody{body->name, body->velocity, {corner, corner, corner}});
}

KnownRow rowOf(KnownKind kind, const std::string& name, double x, double depth) {
  KnownRow row;
  row.kind = kind;
  row.name = name;
  row[Column::kX] = x;
  row[Column::kDepth] = depth;
  return row;
}

}  // namespace

KnownRow::KnownRow() {
  numbers.fill(std::numeric_limits<double>::quiet_NaN());
}

const KnownLayout& layoutOf(KnownKind kind) {
  static const KnownLayout layouts[] = {
      {{Column::kX, Column::kDepth, Column::kBottom, Column::kVelocity, Column::kError,
        Column::kOffset},
       4},
      {{Column::kX, Column::kDepth, Column::kError, Column::kVelocity, Column::kAbove,
        Column::kBelow, Column::kRefractor},
       2},
      {{Column::kX, Column::kDepth, Column::kVelocity}, 2}};
  return layouts[static_cast<std::size_t>(kind)];
}

Message addRow(const KnownRow& row, KnownGround& known) {
  if (Message fault = faultOfColumns(row); !fault.empty()) return fault;
  switch (row.kind) {
    case KnownKind::kBorehole:
      return addLayer(row, known);
    case KnownKind::kDepth:
      return addDepth(row, known);
    case KnownKind::kBody:
      break;
  }
  return addCorner(row, known);
}

std::vector<KnownRow> rowsOf(const KnownGround& known) {
  std::vector<KnownRow> rows;
  for (const KnownBorehole& borehole : known.boreholes) {
    for (const KnownLayer& layer : borehole.layers) {
      KnownRow row = rowOf(KnownKind::kBorehole, borehole.name, borehole.x, layer.top);
      row[Column::kOffset] = unlessNone(borehole.offset);
      row[Column::kBottom] = layer.bottom;
      row[Column::kVelocity] = layer.velocity;
      row[Column::kError] = unlessNone(layer.error);
      rows.push_back(std::move(row));
    }
  }
  for (const KnownDepth& point : known.depths) {
    KnownRow row = rowOf(KnownKind::kDepth, point.name, point.x, point.depth);
    row[Column::kError] = unlessNone(point.error);
    row[Column::kVelocity] = unlessNone(point.isovalue);
    row[Column::kRefractor] = unlessNone(point.refractor);
    row[Column::kAbove] = unlessNone(point.above);
    row[Column::kBelow] = unlessNone(point.below);
    rows.push_back(std::move(row));
  }
  for (const KnownBody& body : known.bodies) {
    for (const KnownCorner& corner : body.outline) {
      KnownRow row = rowOf(KnownKind::kBody, body.name, corner.x, corner.depth);
      row[Column::kVelocity] = body.velocity;
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

}  // namespace talvesk
