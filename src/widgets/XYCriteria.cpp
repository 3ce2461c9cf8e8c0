#include "widgets/XYCriteria.h"

#include "figures/ShownLength.h"
#include "widgets/PointPlot.h"

#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include <qwt_plot.h>

namespace talvesk {
namespace {

const QColor kProposed(213, 94, 0);
constexpr double kMs = 1e3;
constexpr double kPercent = 100.0;
constexpr int kMostNumbers = 6;  ///< along the lower axis

/// So narrow that what all plots leave between two numbers would leave room for one.
class CriterionPlot : public PointPlot {
 public:
  using PointPlot::PointPlot;

 protected:
  void scaleAxes() override {
    PointPlot::scaleAxes();
    plot().setAxisMaxMajor(QwtPlot::xBottom, kMostNumbers);
  }
};

PointPlot* addPlot(QWidget& page, const QString& name) {
  auto* plot = new CriterionPlot(&page);
  plot->setObjectName(name);
  page.layout()->addWidget(plot);
  return plot;
}

}  // namespace

XYCriteria::XYCriteria(QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  mRoughness = addPlot(*this, QStringLiteral("roughnessPlot"));
  mUnevenness = addPlot(*this, QStringLiteral("unevennessPlot"));
  const QString xy = tr("XY (%1)").arg(lengthUnitText());
  mRoughness->setTexts(tr("Roughness of tV"), xy, tr("RMS (ms)"));
  mUnevenness->setTexts(tr("Unevenness of velocity"), xy, tr("RMS (%)"));
  mRoughness->setAccessibleName(tr("Roughness of tV against XY"));
  mUnevenness->setAccessibleName(tr("Unevenness of velocity against XY"));
  for (PointPlot* plot : {mRoughness, mUnevenness}) {
    plot->setTexts([this](std::size_t point) {
      return mTexts.value(static_cast<int>(point)) + QLatin1Char('\n') + tr("Click to choose it");
    });
    connect(plot, &PointPlot::pointChosen, this,
            [this](std::size_t point) { emit xyWanted(mChoice.tried[point].xy); });
  }
  clear();
}

void XYCriteria::setChoice(const XYChoice& choice, double chosen, const QStringList& texts) {
  mChoice = choice;
  mChosen = chosen;
  mTexts = texts;
  for (PointPlot* plot : {mRoughness, mUnevenness}) {
    plot->setEmptyText(
        tr("No XY can be judged: forward and reverse curve have too few geophones in common."));
  }
  fill(*mRoughness, &XYTried::roughness, kMs, choice.smoothest);
  fill(*mUnevenness, &XYTried::unevenness, kPercent, choice.mostEven);
}

void XYCriteria::clear() {
  mChoice = {};
  for (PointPlot* plot : {mRoughness, mUnevenness}) {
    plot->setPoints({});
    plot->setSeries({});
    plot->setEmptyText(tr("Nothing is built yet."));
  }
}

void XYCriteria::fill(PointPlot& plot, double XYTried::*figure, double factor,
                      const XYProposal& proposal) {
  PlotSeries all;
  all.color = palette().color(QPalette::WindowText);
  all.width = 1.0;
  all.symbols = true;
  double most = 0.0;
  for (const XYTried& tried : mChoice.tried) {
    all.points.push_back({tried.xy, factor * (tried.*figure)});
    if (isFinite(all.points.back())) most = std::max(most, all.points.back().z);
  }
  std::vector<PlotSeries> series;
  const auto mark = [&](const QString& name, double xy, const QColor& color, bool dashed) {
    PlotSeries line;
    line.name = name;
    line.color = color;
    line.dashed = dashed;
    line.points = {{xy, 0.0}, {xy, most}};
    series.push_back(std::move(line));
  };
  if (most > 0.0) {
    mark(tr("chosen"), mChosen, palette().color(QPalette::Highlight), false);
    if (proposal.told) mark(tr("proposed"), proposal.xy, kProposed, true);
    series.push_back(all);
  }
  plot.setPoints(all.points);
  plot.setSeries(std::move(series));
}

}  // namespace talvesk
