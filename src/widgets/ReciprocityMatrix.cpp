#include "widgets/ReciprocityMatrix.h"

#include "base/RoundStep.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1e3;
constexpr double kLeastLimit = 0.5e-3;  ///< seconds: smaller differences stay pale
constexpr double kMostInColour = 0.95;  ///< share of the pairs that the colours tell apart
constexpr double kLegendWidth = 14.0;
constexpr double kGap = 8.0;
const QColor kLate(196, 60, 40);
const QColor kEarly(40, 100, 200);

QColor mix(const QColor& a, const QColor& b, double share) {
  const auto part = [share](int from, int to) {
    return static_cast<int>(std::lround(from + share * (to - from)));
  };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

/// A round figure that nearly all differences are below.
double limitOf(const doctor::ReciprocityTable& table) {
  if (table.pairs.empty()) return kLeastLimit;
  std::vector<double> sizes;
  for (const auto& pair : table.pairs) sizes.push_back(std::fabs(pair.difference()));
  const auto most = sizes.begin() + static_cast<std::ptrdiff_t>(
                                        kMostInColour * static_cast<double>(sizes.size() - 1));
  std::nth_element(sizes.begin(), most, sizes.end());
  return roundStep(std::max(*most, kLeastLimit));
}

QString milliseconds(double seconds) {
  return QLocale().toString(kMilliseconds * seconds, 'f', 2);
}

}  // namespace

ReciprocityMatrix::ReciprocityMatrix(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

void ReciprocityMatrix::setTable(doctor::ReciprocityTable table) {
  mTable = std::move(table);
  mOrder.clear();
  for (std::size_t i = 0; i < mTable.shots.size(); ++i) {
    if (mTable.shots[i].pairs > 0) mOrder.push_back(i);
  }
  std::stable_sort(mOrder.begin(), mOrder.end(), [this](std::size_t a, std::size_t b) {
    return mTable.shots[a].x < mTable.shots[b].x;
  });
  const std::size_t count = mOrder.size();
  mRank.assign(mTable.shots.size(), count);
  for (std::size_t i = 0; i < count; ++i) mRank[mOrder[i]] = i;
  mPairs.assign(count * count, 0);
  for (std::size_t i = 0; i < mTable.pairs.size(); ++i) {
    const std::size_t a = mRank[mTable.pairs[i].first];
    const std::size_t b = mRank[mTable.pairs[i].second];
    mPairs[a * count + b] = mPairs[b * count + a] = static_cast<std::uint32_t>(i + 1);
  }
  mLimit = limitOf(mTable);
  if (mCurrent && rectOf(*mCurrent).isNull()) mCurrent.reset();
  update();
}

const doctor::ReciprocalTimes* ReciprocityMatrix::pairOf(const Cell& cell) const {
  const std::size_t count = mOrder.size();
  if (cell.from >= mRank.size() || cell.to >= mRank.size()) return nullptr;
  if (mRank[cell.from] >= count || mRank[cell.to] >= count) return nullptr;
  const std::uint32_t pair = mPairs[mRank[cell.from] * count + mRank[cell.to]];
  return pair == 0 ? nullptr : &mTable.pairs[pair - 1];
}

std::optional<double> ReciprocityMatrix::difference(const Cell& cell) const {
  const doctor::ReciprocalTimes* pair = pairOf(cell);
  if (pair == nullptr) return std::nullopt;
  return pair->first == cell.from ? pair->difference() : -pair->difference();
}

void ReciprocityMatrix::setCurrent(const Cell& cell) {
  if (rectOf(cell).isNull() || mCurrent == cell) return;
  mCurrent = cell;
  setAccessibleDescription(describe(cell));
  update();
}

void ReciprocityMatrix::moveTo(const Cell& cell) {
  if (mCurrent == cell) return;
  setCurrent(cell);
  emit currentChanged();
}

// --- Where things are.

/// The square of the cells: numbers stand left of it and above, the legend right of it.
QRectF ReciprocityMatrix::grid() const {
  const QFontMetricsF metrics(font());
  const double left = metrics.horizontalAdvance(QStringLiteral("0000")) + kGap;
  const double top = 2.0 * metrics.height() + kGap;
  const double legend =
      2.0 * kGap + kLegendWidth + metrics.horizontalAdvance(QStringLiteral("\u2264 -00.0"));
  const double side =
      std::max(1.0, std::min(width() - left - legend - kGap, height() - top - kGap));
  return {left, top, side, side};
}

QRectF ReciprocityMatrix::rectOf(const Cell& cell) const {
  const std::size_t count = mOrder.size();
  if (cell.from >= mRank.size() || cell.to >= mRank.size()) return {};
  if (mRank[cell.from] >= count || mRank[cell.to] >= count) return {};
  const QRectF area = grid();
  const double side = area.width() / static_cast<double>(count);
  return {area.left() + side * static_cast<double>(mRank[cell.to]),
          area.top() + side * static_cast<double>(mRank[cell.from]), side, side};
}

std::optional<ReciprocityMatrix::Cell> ReciprocityMatrix::cellAt(const QPointF& point) const {
  const QRectF area = grid();
  if (mOrder.empty() || !area.contains(point)) return std::nullopt;
  const auto at = [&](double along) {
    const auto count = static_cast<double>(mOrder.size());
    const auto rank = static_cast<std::size_t>(std::max(0.0, along / area.width() * count));
    return mOrder[std::min(rank, mOrder.size() - 1)];
  };
  return Cell{at(point.y() - area.top()), at(point.x() - area.left())};
}

// --- Drawing.

QColor ReciprocityMatrix::colorOf(double seconds) const {
  const double share = std::clamp(std::fabs(seconds) / mLimit, 0.0, 1.0);
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  const QColor zero = dark ? QColor(72, 72, 76) : QColor(240, 240, 236);
  return mix(zero, seconds > 0.0 ? kLate : kEarly, share);
}

void ReciprocityMatrix::paintCells(QPainter& painter, const QRectF& area) const {
  painter.fillRect(area, palette().color(QPalette::Base));
  // What is not known must not look like no difference.
  painter.fillRect(area, QBrush(palette().color(QPalette::Mid), Qt::BDiagPattern));
  const std::size_t count = mOrder.size();
  for (std::size_t row = 0; row < count; ++row) {
    for (std::size_t column = 0; column < count; ++column) {
      const Cell cell{mOrder[row], mOrder[column]};
      const std::optional<double> seconds = difference(cell);
      if (seconds) painter.fillRect(rectOf(cell), colorOf(*seconds));
    }
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(area);
  if (!mCurrent) return;
  const QColor mark = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Text);
  painter.setPen(QPen(mark, 2.0));
  painter.drawRect(rectOf(*mCurrent).adjusted(0.5, 0.5, -0.5, -0.5));
}

/// As many shot numbers as have room, those of stand-outs bold.
void ReciprocityMatrix::paintNumbers(QPainter& painter, const QRectF& area) const {
  const QFontMetricsF metrics(font());
  const double side = area.width() / static_cast<double>(mOrder.size());
  const double wide = metrics.horizontalAdvance(QStringLiteral("000")) + 4.0;
  const auto every = static_cast<std::size_t>(std::ceil(std::max(wide, metrics.height()) / side));
  painter.setPen(palette().color(QPalette::WindowText));
  for (std::size_t i = 0; i < mOrder.size(); i += every) {
    QFont face = font();
    face.setBold(mTable.shots[mOrder[i]].standsOut());
    painter.setFont(face);
    const QString number = QString::number(mOrder[i] + 1);
    const double middle = side * (static_cast<double>(i) + 0.5);
    painter.drawText(QRectF(0.0, area.top() + middle - metrics.height() / 2.0, area.left() - 4.0,
                            metrics.height()),
                     Qt::AlignRight | Qt::AlignVCenter, number);
    painter.drawText(QRectF(area.left() + middle - wide, area.top() - metrics.height() - 2.0,
                            2.0 * wide, metrics.height()),
                     Qt::AlignCenter, number);
  }
  painter.setFont(font());
  painter.drawText(QRectF(area.left(), 0.0, width() - area.left(), metrics.height()),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   metrics.elidedText(tr("Row to column, longer than back by [ms]"), Qt::ElideRight,
                                      width() - area.left()));
}

/// The ends stand for all that is beyond them.
QString ReciprocityMatrix::legendText(double share) const {
  const QString text = QLocale().toString(kMilliseconds * share * mLimit, 'g', 3);
  const bool beyond =
      std::fabs(share) == 1.0 &&
      std::any_of(mTable.pairs.begin(), mTable.pairs.end(),
                  [this](const auto& pair) { return std::fabs(pair.difference()) > mLimit; });
  if (!beyond) return text;
  return (share > 0.0 ? QStringLiteral("\u2265 %1") : QStringLiteral("\u2264 %1")).arg(text);
}

void ReciprocityMatrix::paintLegend(QPainter& painter, const QRectF& area) const {
  const QFontMetricsF metrics(font());
  const QRectF bar(area.right() + 2.0 * kGap, area.top(), kLegendWidth, area.height());
  for (double y = bar.top(); y < bar.bottom(); y += 1.0) {
    const double share = 1.0 - 2.0 * (y - bar.top()) / bar.height();
    painter.fillRect(QRectF(bar.left(), y, bar.width(), 1.0), colorOf(share * mLimit));
  }
  painter.setPen(palette().color(QPalette::WindowText));
  for (const double share : {1.0, 0.5, 0.0, -0.5, -1.0}) {
    const double y = bar.center().y() - share * bar.height() / 2.0;
    const double top = std::clamp(y - metrics.height() / 2.0, bar.top(),
                                  std::max(bar.top(), bar.bottom() - metrics.height()));
    painter.drawText(QRectF(bar.right() + 4.0, top, width() - bar.right() - 4.0, metrics.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, legendText(share));
  }
}

void ReciprocityMatrix::paintEvent(QPaintEvent* /*event*/) {
  if (mOrder.empty()) return;
  QPainter painter(this);
  const QRectF area = grid();
  paintCells(painter, area);
  paintNumbers(painter, area);
  paintLegend(painter, area);
}

// --- Mouse and keys.

QString ReciprocityMatrix::describe(const Cell& cell) const {
  const doctor::ReciprocalTimes* pair = pairOf(cell);
  const QString ways = tr("Shot %1 to shot %2").arg(cell.from + 1).arg(cell.to + 1);
  if (cell.from == cell.to) return tr("Shot %1").arg(cell.from + 1);
  if (pair == nullptr) return tr("%1: no picks along both ways").arg(ways);
  const bool forward = pair->first == cell.from;
  return tr("%1: %2 ms, back %3 ms, difference %4 ms")
      .arg(ways, milliseconds(forward ? pair->there : pair->back),
           milliseconds(forward ? pair->back : pair->there), milliseconds(*difference(cell)));
}

bool ReciprocityMatrix::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const std::optional<Cell> cell = cellAt(help.pos());
  if (cell) {
    QToolTip::showText(help.globalPos(), describe(*cell), this, rectOf(*cell).toRect());
  } else {
    QToolTip::hideText();
  }
  return true;
}

void ReciprocityMatrix::mousePressEvent(QMouseEvent* event) {
  const std::optional<Cell> cell = cellAt(event->localPos());
  if (event->button() != Qt::LeftButton || !cell) return QWidget::mousePressEvent(event);
  moveTo(*cell);
  if (difference(*cell)) emit chosen(cell->from, cell->to);
}

void ReciprocityMatrix::walk(std::ptrdiff_t down, std::ptrdiff_t right) {
  const auto last = static_cast<std::ptrdiff_t>(mOrder.size()) - 1;
  const auto step = [&](std::size_t shot, std::ptrdiff_t by) {
    const auto rank = static_cast<std::ptrdiff_t>(mRank[shot]) + by;
    return mOrder[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(rank, 0, last))];
  };
  const Cell from = mCurrent.value_or(Cell{mOrder.front(), mOrder.front()});
  moveTo({step(from.from, down), step(from.to, right)});
}

void ReciprocityMatrix::keyPressEvent(QKeyEvent* event) {
  if (mOrder.empty()) return QWidget::keyPressEvent(event);
  const auto all = static_cast<std::ptrdiff_t>(mOrder.size());
  switch (event->key()) {
    case Qt::Key_Up:
      return walk(-1, 0);
    case Qt::Key_Down:
      return walk(1, 0);
    case Qt::Key_Left:
      return walk(0, -1);
    case Qt::Key_Right:
      return walk(0, 1);
    case Qt::Key_Home:
      return walk(0, -all);
    case Qt::Key_End:
      return walk(0, all);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (mCurrent && difference(*mCurrent)) emit chosen(mCurrent->from, mCurrent->to);
      return;
    default:
      return QWidget::keyPressEvent(event);
  }
}

}  // namespace talvesk
