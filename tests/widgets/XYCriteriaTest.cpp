#include "widgets/PointPlot.h"
#include "widgets/XYCriteria.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// -6 to 6 spacings of 5 m, of which the outer two cannot be judged; least at 10 m.
XYChoice choiceOf(bool told) {
  XYChoice choice;
  for (int k = -6; k <= 6; ++k) {
    const double figure = std::abs(k) > 4 ? std::nan("") : 1e-3 * (1.0 + std::abs(k - 2));
    choice.tried.push_back({5.0 * k, figure, figure});
  }
  choice.receivers = 20;
  choice.smoothest = {told ? 10.0 : 0.0, told};
  return choice;
}

struct Criteria {
  Criteria() {
    page.resize(300, 500);
    page.show();
    QTest::qWait(1);
  }
  PointPlot& plot(const char* name) { return *page.findChild<PointPlot*>(QLatin1String(name)); }
  QStringList names(const char* name) {
    QStringList found;
    for (const PlotSeries& series : plot(name).series()) found << series.name;
    return found;
  }
  XYCriteria page;
};

TEST(XYCriteria, marksWhatIsChosenAndWhatThePicksPropose) {
  Criteria criteria;
  criteria.page.setChoice(choiceOf(true), -5.0, {});
  EXPECT_EQ(criteria.names("roughnessPlot"), QStringList({"chosen", "proposed", ""}));
  EXPECT_EQ(criteria.plot("roughnessPlot").series()[0].points[0].x, -5.0);
  EXPECT_EQ(criteria.plot("roughnessPlot").series()[1].points[0].x, 10.0);
  EXPECT_EQ(criteria.names("unevennessPlot"), QStringList({"chosen", ""})) << "not told by that";
  EXPECT_DOUBLE_EQ(criteria.plot("roughnessPlot").series().back().points[8].z, 1.0) << "ms";
  EXPECT_DOUBLE_EQ(criteria.plot("unevennessPlot").series().back().points[8].z, 0.1) << "percent";
}

TEST(XYCriteria, asksForTheXYThatIsClicked) {
  Criteria criteria;
  criteria.page.setChoice(choiceOf(true), 0.0, {});
  QSignalSpy wanted(&criteria.page, &XYCriteria::xyWanted);
  PointPlot& plot = criteria.plot("unevennessPlot");
  const auto click = [&](double x, double percent) {
    QTest::mouseClick(plot.canvas(), Qt::LeftButton, {}, plot.toCanvas({x, percent}).toPoint());
  };
  click(10.0, 0.1);
  ASSERT_EQ(wanted.count(), 1);
  EXPECT_EQ(wanted[0][0].toDouble(), 10.0);
  click(10.0, 0.4);
  EXPECT_EQ(wanted.count(), 1) << "beside the points";
}

TEST(XYCriteria, saysWhyThereIsNothingToSee) {
  Criteria criteria;
  const auto says = [&](const char* text) {
    for (const QLabel* label : criteria.plot("roughnessPlot").findChildren<QLabel*>()) {
      if (label->isVisible() && label->text().contains(QLatin1String(text))) return true;
    }
    return false;
  };
  EXPECT_TRUE(says("Nothing is built yet."));
  XYChoice none = choiceOf(false);
  for (XYTried& tried : none.tried) tried.roughness = std::nan("");
  criteria.page.setChoice(none, 0.0, {});
  EXPECT_TRUE(says("No XY can be judged"));
  criteria.page.setChoice(choiceOf(false), 0.0, {});
  EXPECT_FALSE(says(""));
}

}  // namespace
}  // namespace talvesk
