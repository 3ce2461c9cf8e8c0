#pragma once

#include <QWidget>
#include <vector>

class QwtPlot;
class QwtPlotCurve;

namespace talvesk {

/// The misfit after every external iteration of an inversion, as a small curve that grows.
class MisfitPlot : public QWidget {
  Q_OBJECT

 public:
  explicit MisfitPlot(QWidget* parent = nullptr);
  ~MisfitPlot() override;

  /// How many iterations there will be, 1 at least.
  void setTotal(int iterations);
  /// \param rmse of the next iteration, seconds
  void addMisfit(double rmse);

  std::size_t points() const { return mRmse.size(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void dress();
  void retranslate();
  void draw();

  QwtPlot* mPlot;
  QwtPlotCurve* mCurve;
  int mTotal = 1;
  std::vector<double> mRmse;  ///< milliseconds
};

}  // namespace talvesk
