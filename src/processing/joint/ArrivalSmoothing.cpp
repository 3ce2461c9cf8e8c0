#include "processing/joint/ArrivalSmoothing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace talvesk {
namespace {

constexpr double kBend = 0.5;         // milliseconds between neighbours
constexpr double kFarBend = 3.0;      // deviations from which on a bend is a corner
constexpr double kFarTime = 1.5;      // deviations from which on an arrival is an outlier
constexpr double kStepOfBends = 5.0;  // milliseconds; longer steps bend in proportion
constexpr int kRounds = 5;            // of weighing anew
constexpr std::size_t kMostBack = 4;  // arrivals back to those that make expect another

/// Weight of what is off by `value` where `sigma` is usual and more than `far` of them is not.
double weightOf(double value, double sigma, double far) {
  const double share = value / (far * sigma);
  return 1.0 / (sigma * sigma * (1.0 + share * share));
}

/// A symmetric system of equations whose rows reach two to either side.
class Band {
 public:
  explicit Band(std::size_t count) : mRows(count), mRight(count, 0.0) {}

  void addTime(std::size_t i, double time, double weight) {
    mRows[i][0] += weight;
    mRight[i] += weight * time;
  }
  /// Of row i between its neighbours, of which the left one counts `left`.
  void addBend(std::size_t i, double left, double weight) {
    const double right = 1.0 - left;
    mRows[i - 1][0] += weight * left * left;
    mRows[i][0] += weight;
    mRows[i + 1][0] += weight * right * right;
    mRows[i - 1][1] -= weight * left;
    mRows[i][1] -= weight * right;
    mRows[i - 1][2] += weight * left * right;
  }

  /// The solution, and the diagonal of the inverse.
  void solve(std::vector<double>& solution, std::vector<double>& variances);

 private:
  void factorise();
  double factor(std::size_t i, std::size_t reach) const {
    return i + reach < mRows.size() ? mRows[i][reach] : 0.0;
  }

  std::vector<std::array<double, 3>> mRows;  ///< diagonal and the two behind it; then its factors
  std::vector<double> mRight;
};

void Band::factorise() {
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    const auto [pivot, one, two] = mRows[i];
    mRows[i][1] = one / pivot;
    mRows[i][2] = two / pivot;
    if (i + 1 < mRows.size()) {
      mRows[i + 1][0] -= one * one / pivot;
      mRows[i + 1][1] -= one * two / pivot;
    }
    if (i + 2 < mRows.size()) mRows[i + 2][0] -= two * two / pivot;
  }
}

void Band::solve(std::vector<double>& solution, std::vector<double>& variances) {
  factorise();
  const std::size_t count = mRows.size();
  solution = mRight;
  for (std::size_t i = 0; i < count; ++i) {
    if (i + 1 < count) solution[i + 1] -= mRows[i][1] * solution[i];
    if (i + 2 < count) solution[i + 2] -= mRows[i][2] * solution[i];
  }
  variances.assign(count + 2, 0.0);
  std::vector<double> beside(count + 2, 0.0);  // of the inverse, one off its diagonal
  solution.resize(count + 2, 0.0);
  for (std::size_t i = count; i-- > 0;) {
    const double one = factor(i, 1);
    const double two = factor(i, 2);
    solution[i] = solution[i] / mRows[i][0] - one * solution[i + 1] - two * solution[i + 2];
    beside[i] = -one * variances[i + 1] - two * beside[i + 1];
    const double next = -one * beside[i + 1] - two * variances[i + 2];
    variances[i] = 1.0 / mRows[i][0] - one * beside[i] - two * next;
  }
  solution.resize(count);
  variances.resize(count);
}

/// What the left neighbour of an arrival counts on the line between both.
double leftShare(const std::vector<SmoothArrival>& arrivals, std::size_t i) {
  const double left = arrivals[i].offset - arrivals[i - 1].offset;
  const double right = arrivals[i + 1].offset - arrivals[i].offset;
  return left + right > 0.0 ? right / (left + right) : 0.5;
}

Band equationsAt(const std::vector<SmoothArrival>& arrivals, const std::vector<double>& times) {
  Band band(arrivals.size());
  for (std::size_t i = 0; i < arrivals.size(); ++i) {
    const SmoothArrival& one = arrivals[i];
    band.addTime(i, one.time, weightOf(times[i] - one.time, one.error, kFarTime));
  }
  for (std::size_t i = 1; i + 1 < arrivals.size(); ++i) {
    const double left = leftShare(arrivals, i);
    const double bend = times[i] - left * times[i - 1] - (1.0 - left) * times[i + 1];
    const double step = 0.5 * std::fabs(times[i + 1] - times[i - 1]);
    const double sigma = kBend * std::sqrt(std::max(1.0, step / kStepOfBends));
    band.addBend(i, left, weightOf(bend, sigma, kFarBend));
  }
  return band;
}

/// How far it is behind lines through two earlier arrivals, as many apart as the nearer one is from
/// this.
double laterThanExpected(const std::vector<SmoothArrival>& arrivals, std::size_t i) {
  double later = 0.0;
  for (std::size_t back = 2; back <= kMostBack && 2 * back <= i; ++back) {
    const SmoothArrival& near = arrivals[i - back];
    const SmoothArrival& far = arrivals[i - 2 * back];
    if (!(near.offset > far.offset)) continue;
    const double slope = (near.time - far.time) / (near.offset - far.offset);
    const double expected = near.time + slope * (arrivals[i].offset - near.offset);
    later = std::max(later, arrivals[i].time - expected);
  }
  return later;
}

}  // namespace

void smoothArrivals(std::vector<SmoothArrival>& arrivals) {
  std::vector<double> times;
  for (const SmoothArrival& one : arrivals) times.push_back(one.time);
  std::vector<double> variances;
  for (int round = 0; round < kRounds; ++round) {
    equationsAt(arrivals, times).solve(times, variances);
  }
  for (std::size_t i = 0; i < arrivals.size(); ++i) {
    arrivals[i].time = times[i];
    arrivals[i].error = std::sqrt(variances[i]);
  }
  for (std::size_t i = 0; i < arrivals.size(); ++i) {
    arrivals[i].later = laterThanExpected(arrivals, i);
  }
}

}  // namespace talvesk
