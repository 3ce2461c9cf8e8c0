#include "figures/report/ReportBuilder.h"

#include "figures/FigureNumbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

void ReportBuilder::add(ReportItem::Kind kind, const QString& text) {
  ReportItem item;
  item.kind = kind;
  item.text = text;
  mContent.items.push_back(std::move(item));
}

void ReportBuilder::heading(const QString& text) {
  add(ReportItem::Kind::kHeading, QStringLiteral("%1  %2").arg(++mHeadings).arg(text));
}

void ReportBuilder::table(const QString& caption, ReportTable table, LiveFigure live) {
  if (table.rows.empty()) return;
  add(ReportItem::Kind::kTable,
      caption.isEmpty() ? QString() : ReportWords::tr("Table %1. %2").arg(++mTables).arg(caption));
  mContent.items.back().table = std::move(table);
  mContent.items.back().live = live;
}

void ReportBuilder::figure(const QString& caption, FigureDrawing drawing, LiveFigure live) {
  add(ReportItem::Kind::kFigure, ReportWords::tr("Figure %1. %2").arg(++mFigures).arg(caption));
  mContent.items.back().figure = std::move(drawing);
  mContent.items.back().live = live;
}

namespace report {

QString number(double value, int places) {
  if (!std::isfinite(value)) return QStringLiteral("\u2013");
  // Nothing is minus nothing.
  const bool nothing = QString::number(value, 'f', places).toDouble() == 0.0;
  return figureLocale().toString(nothing ? 0.0 : value, 'f', places);
}

QString span(double from, double to, int places) {
  const QString low = number(from, places);
  const QString high = number(to, places);
  return low == high ? low : QStringLiteral("%1 \u2013 %2").arg(low, high);
}

QString length(double metres, int places) {
  return number(shownLength(metres), places);
}

QString lengthSpan(double from, double to, int places) {
  return span(shownLength(from), shownLength(to), places);
}

void Range::take(double value) {
  if (!std::isfinite(value)) return;
  low = std::min(low, value);
  high = std::max(high, value);
}

}  // namespace report

}  // namespace talvesk
