#pragma once

#include "widgets/PlotPage.h"

#include <vector>

class QwtPlotCurve;
class QwtPlotLegendItem;

namespace talvesk {

/// The misfit of an inversion as small curves that grow: of the section after every external
/// iteration, 0 being the starting model, and of the solver's last pass in each.
class MisfitPlot : public PlotPage {
  Q_OBJECT

 public:
  explicit MisfitPlot(QWidget* parent = nullptr);
  ~MisfitPlot() override;

  /// How many iterations there will be, 1 at least.
  void setTotal(int iterations);
  /// Of an inversion without solver passes: there is one curve only.
  void showSectionOnly();
  /// Of the next iteration, seconds; not a number where one is not known.
  /// \param sectionBefore of the section that it started from \param lastPass of its solver
  void addMisfit(double sectionBefore, double lastPass);

  std::size_t points() const { return mSection.size(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void scaleAxes() override;
  void dress() override;
  void retranslate() override;

 private:
  void draw();

  QwtPlotCurve* mSectionCurve;
  QwtPlotCurve* mPassCurve;
  QwtPlotLegendItem* mLegend;
  int mTotal = 1;
  std::vector<double> mSection;  ///< milliseconds; of the starting model first
  std::vector<double> mPass;     ///< milliseconds; of the first iteration first
};

}  // namespace talvesk
