#pragma once

#include "widgets/PlotPage.h"

#include <optional>
#include <vector>

class QwtPlotCurve;
class QwtPlotMarker;

namespace talvesk {

/// An amplitude spectrum with the corners of a filter, frequency to the right.
class SpectrumPlot : public PlotPage {
  Q_OBJECT

 public:
  explicit SpectrumPlot(QWidget* parent = nullptr);
  ~SpectrumPlot() override;

  /// \param frequencies Hz, ascending \param amplitudes as many; what is beyond is left out
  void setCurve(const std::vector<double>& frequencies, const std::vector<double>& amplitudes);
  /// Lines at the corners of the low-pass and high-pass, Hz; none where there is no such filter.
  void setCorners(std::optional<double> low, std::optional<double> high);

  std::size_t points() const;  ///< of the curve

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void dress() override;
  void retranslate() override;

 private:
  QwtPlotCurve* mCurve;
  QwtPlotMarker* mLow;
  QwtPlotMarker* mHigh;
};

}  // namespace talvesk
