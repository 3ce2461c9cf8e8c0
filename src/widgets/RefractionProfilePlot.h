#pragma once

#include "figures/RefractionItems.h"
#include "widgets/PlotPage.h"

namespace talvesk {

/// The section of layers with the surface.
class RefractionProfilePlot : public PlotPage {
  Q_OBJECT

 public:
  explicit RefractionProfilePlot(QWidget* parent = nullptr);
  ~RefractionProfilePlot() override;

  void setScene(RefractionScene scene);
  const RefractionScene& scene() const { return mScene; }

 private:
  RefractionScene mScene;
};

}  // namespace talvesk
