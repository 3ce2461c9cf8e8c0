#include "widgets/ReciprocityMatrix.h"

#include "base/RoundStep.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1e3;
constexpr double kLeastLimit = 0.5e-3;  ///< seconds: smaller differences stay pale
constexpr double kMostInColour = 0.95;  ///< share of the pairs that the colours tell apart

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

ReciprocityMatrix::ReciprocityMatrix(QWidget* parent) : MatrixView(parent) {
  setTexts([this](const Place& place) { return describe(cellOf(place)); });
  connect(this, &MatrixView::placeChosen, this,
          [this](const Place& place) { emit chosen(mOrder[place.row], mOrder[place.column]); });
}

void ReciprocityMatrix::setTable(doctor::ReciprocityTable table) {
  const std::optional<Cell> before = current();
  setCurrentPlace(std::nullopt);
  mTable = std::move(table);
  arrange();
  setPicture(pictureOfTable());
  if (before) setCurrent(*before);
}

void ReciprocityMatrix::arrange() {
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
}

MatrixPicture ReciprocityMatrix::pictureOfTable() const {
  MatrixPicture picture;
  picture.square = true;
  picture.heading = tr("Row to column, longer than back by [ms]");
  picture.limit = kMilliseconds * limitOf(mTable);
  for (const std::size_t shot : mOrder) {
    picture.rows.push_back({QString::number(shot + 1), mTable.shots[shot].standsOut()});
  }
  picture.columns = picture.rows;
  for (const std::size_t from : mOrder) {
    for (const std::size_t to : mOrder) {
      const std::optional<double> seconds = difference({from, to});
      picture.values.push_back(seconds ? kMilliseconds * *seconds
                                       : std::numeric_limits<double>::quiet_NaN());
    }
  }
  return picture;
}

const doctor::ReciprocalTimes* ReciprocityMatrix::pairOf(const Cell& cell) const {
  const std::optional<Place> place = placeOf(cell);
  const std::uint32_t pair = place ? mPairs[place->row * mOrder.size() + place->column] : 0;
  return pair == 0 ? nullptr : &mTable.pairs[pair - 1];
}

std::optional<double> ReciprocityMatrix::difference(const Cell& cell) const {
  const doctor::ReciprocalTimes* pair = pairOf(cell);
  if (pair == nullptr) return std::nullopt;
  return pair->first == cell.from ? pair->difference() : -pair->difference();
}

std::optional<MatrixView::Place> ReciprocityMatrix::placeOf(const Cell& cell) const {
  const std::size_t count = mOrder.size();
  if (cell.from >= mRank.size() || cell.to >= mRank.size()) return std::nullopt;
  if (mRank[cell.from] >= count || mRank[cell.to] >= count) return std::nullopt;
  return Place{mRank[cell.from], mRank[cell.to]};
}

std::optional<ReciprocityMatrix::Cell> ReciprocityMatrix::current() const {
  if (!currentPlace()) return std::nullopt;
  return cellOf(*currentPlace());
}

void ReciprocityMatrix::setCurrent(const Cell& cell) {
  if (const std::optional<Place> place = placeOf(cell)) setCurrentPlace(place);
}

QRectF ReciprocityMatrix::rectOf(const Cell& cell) const {
  const std::optional<Place> place = placeOf(cell);
  return place ? rectAt(*place) : QRectF();
}

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

}  // namespace talvesk
