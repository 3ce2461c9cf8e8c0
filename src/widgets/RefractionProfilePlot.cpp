#include "widgets/RefractionProfilePlot.h"

#include "figures/SectionItems.h"

#include <QLocale>
#include <algorithm>
#include <utility>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_item.h>

namespace talvesk {
namespace {

constexpr double kGroundBelow = 0.2;  ///< of the height: what is shown of the lowest layer
constexpr double kSkyAbove = 0.06;    ///< room for the geophones

}  // namespace

RefractionProfilePlot::RefractionProfilePlot(QWidget* parent) : PlotPage(parent) {
  alignNumbers();
  plot().insertLegend(new QwtLegend, QwtPlot::BottomLegend);
}

RefractionProfilePlot::~RefractionProfilePlot() = default;

void RefractionProfilePlot::setScene(RefractionScene scene) {
  mScene = std::move(scene);
  const QwtPlotItemList before = plot().itemList();
  for (QwtPlotItem* item : before) {
    if (item->rtti() == QwtPlotItem::Rtti_PlotGrid) continue;
    item->detach();
    delete item;
  }
  if (!mScene.isEmpty()) {
    for (QwtPlotItem* item : refraction_items::layers(mScene, QLocale())) add(item);
    add(refraction_items::surface(mScene, palette().color(QPalette::Text)));
    using namespace section_items;
    add(markers(mScene.geophones, tr("Geophones"), Marker::kGeophone));
    add(markers(mScene.shots, tr("Shots"), Marker::kShot));
  }
  const Point2D low = mScene.lowerLeft();
  const Point2D high = mScene.upperRight();
  const double height = std::max(high.z - low.z, 1e-3);
  setWhole(QRectF(QPointF(low.x, low.z - kGroundBelow * height),
                  QPointF(high.x, high.z + kSkyAbove * height)),
           mScene.isEmpty());
}

}  // namespace talvesk
