#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// Interpolating splines over one abscissa. Building and evaluating throw std::runtime_error with
/// the spline's name; nothing else does.
///
/// Thread rule: evaluation caches the last interval, so one spline serves one thread at a time.
namespace Splines {

class Spline {
 public:
  /// \param name only for messages
  /// \param checkRange true: evaluating outside [X[0], X[n-1]] throws
  Spline(std::string name, bool checkRange) : mName(std::move(name)), mCheckRange(checkRange) {}
  virtual ~Spline() = default;
  Spline(const Spline&) = default;
  Spline& operator=(const Spline&) = default;
  Spline(Spline&&) noexcept = default;
  Spline& operator=(Spline&&) noexcept = default;

  /// Copies n nodes and computes what evaluation needs. What the spline held before is lost when it
  /// throws.
  virtual void build(const double* x, const double* y, std::uint32_t n) = 0;
  virtual double operator()(double x) const = 0;
  virtual double D(double x) const = 0;    ///< first derivative
  virtual double DD(double x) const = 0;   ///< second derivative
  virtual double DDD(double x) const = 0;  ///< third derivative

  void build(const std::vector<double>& x, const std::vector<double>& y);  ///< the shorter of both

  /// Index of the interval [X[i], X[i+1]) that evaluation uses at x, 0 .. n - 2; beyond the ends
  /// the nearest interval that is not of zero width. Throws with fewer than two nodes.
  std::int32_t search(double x) const;

  std::uint32_t npts() const { return static_cast<std::uint32_t>(mX.size()); }
  const std::vector<double>& X() const { return mX; }
  const std::vector<double>& Y() const { return mY; }
  const std::string& name() const { return mName; }

 protected:
  void setNodes(const double* x, const double* y, std::uint32_t n);
  void requireInRange(double x) const;
  [[noreturn]] void fail(int line, const std::string& text) const;

  std::string mName;
  bool mCheckRange;
  bool mSorted = true;  ///< no abscissa is less than the one before it
  std::vector<double> mX;
  std::vector<double> mY;
  mutable std::int32_t mLastInterval = 0;
};

/// Piecewise linear; constant beyond both ends, where the derivatives are 0. A single node gives
/// its value everywhere but at its own abscissa, where there is no interval to search and it
/// throws.
class LinearSpline : public Spline {
 public:
  explicit LinearSpline(std::string name = "LinearSpline", bool checkRange = false)
      : Spline(std::move(name), checkRange) {}
  using Spline::build;
  void build(const double* x, const double* y, std::uint32_t n) override;
  double operator()(double x) const override;
  double D(double x) const override;
  double DD(double x) const override;
  double DDD(double x) const override;
};

/// What piecewise cubic Hermite splines share: values and slopes at the nodes.
class CubicSplineBase : public Spline {
 public:
  using Spline::Spline;
  double operator()(double x) const override;
  double D(double x) const override;
  double DD(double x) const override;
  double DDD(double x) const override;
  const std::vector<double>& Yp() const { return mYp; }  ///< slopes at the nodes

 protected:
  /// Where x lies in its interval: i the index, h the width, s the fraction.
  struct Place {
    std::size_t i;
    double h;
    double s;
  };
  Place locate(double x) const;

  std::vector<double> mYp;
};

/// Hermite spline whose slopes are Bessel's three-point estimates (de Boor, A Practical Guide to
/// Splines, chapter IV). An abscissa that is not greater than the one before it starts a new run of
/// nodes with end slopes of its own. Needs two nodes.
class BesselSpline : public CubicSplineBase {
 public:
  explicit BesselSpline(std::string name = "BesselSpline", bool checkRange = false)
      : CubicSplineBase(std::move(name), checkRange) {}
  using Spline::build;
  void build(const double* x, const double* y, std::uint32_t n) override;
};

/// C2-continuous cubic spline with given second derivatives at both ends (de Boor, chapter IV).
/// Needs two nodes and strictly ascending abscissae.
class CubicSpline : public CubicSplineBase {
 public:
  explicit CubicSpline(std::string name = "CubicSpline", bool checkRange = false,
                       double ddyBegin = 0.0, double ddyEnd = 0.0)
      : CubicSplineBase(std::move(name), checkRange), mDdyBegin(ddyBegin), mDdyEnd(ddyEnd) {}
  using Spline::build;
  void build(const double* x, const double* y, std::uint32_t n) override;

 private:
  double mDdyBegin;  ///< "ddy_begin"
  double mDdyEnd;    ///< "ddy_end"
};

}  // namespace Splines
