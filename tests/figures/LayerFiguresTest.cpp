// What a layered profile is drawn and told with beside its values.
#include "figures/BoundaryLook.h"
#include "figures/RefractionFigure.h"
#include "figures/TravelTimeFigure.h"
#include "figures/report/Report.h"
#include "refraction/BuildProfiles.h"
#include "refraction/LayeredFit.h"
#include "refraction/WeighedPicks.h"
#include "refraction/methods/ProfileErrors.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"

#include <QByteArray>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

struct Built {
  Interpretation all;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), all.ttLayer);

  Built() {
    const testing::ConsoleCapture console;
    EXPECT_TRUE(buildProfiles(shotArrivals(line), all).built);
  }
};

TEST(BoundaryLook, isSolidOnlyBetweenReceiversThatPicksCarry) {
  refractionDataStructure::computedData data;
  data.x = {0.0, 1.0, 2.0, 3.0, 4.0, 5.0};
  data.elevation.assign(6, 100.0);
  data.depth = {5.0, 5.0, 5.0, NAN, 5.0, 5.0};
  Band band;
  band.low = {4.0, 4.0, NAN, NAN, 4.0, 4.0};
  band.high = {7.0, 7.0, NAN, NAN, 7.0, 7.0};
  const std::vector<Support> support{Support::kPhantom, Support::kPicks, Support::kPicks,
                                     Support::kPicks,   Support::kPicks, Support::kGap};
  const BoundaryLook look = boundaryLook(data, support, &band);
  ASSERT_EQ(look.carried.size(), 1U);
  EXPECT_EQ(look.carried[0].front().x, 1.0);
  EXPECT_EQ(look.carried[0].back().x, 2.0);
  ASSERT_EQ(look.uncarried.size(), 2U);
  EXPECT_EQ(look.uncarried[0].back().x, 1.0);
  EXPECT_EQ(look.uncarried[1].front().x, 4.0);
  ASSERT_EQ(look.bands.size(), 2U);
  ASSERT_EQ(look.bands[0].size(), 4U);
  EXPECT_EQ(look.bands[0][0].z, 96.0);
  EXPECT_EQ(look.bands[0][3].z, 93.0);
  EXPECT_TRUE(boundaryLook(data, {}, nullptr).uncarried.empty()) << "not known";
}

TEST(LayerFigures, legendTellsDashesAndErrorsWhereThereAreAny) {
  Built built;
  const auto svgOf = [&built](const ProfileErrors* errors) {
    RefractionFigureOptions options;
    options.errors = errors;
    QByteArray svg;
    EXPECT_TRUE(
        renderRefractionFigure(built.line, built.all, options, FigureFormat::kSvg, svg).ok());
    return svg.toStdString();
  };
  const std::string plain = svgOf(nullptr);
  EXPECT_THAT(plain, HasSubstr("Dashed: not carried by picks there"));
  EXPECT_THAT(plain, HasSubstr("stroke-dasharray"));
  EXPECT_THAT(plain, Not(HasSubstr("Error of the picks")));
  ProfileErrors errors;
  errors.v1Error = 12.0;
  const auto& data = built.all.refractData.cData[0];
  errors.refractors.push_back({{}, {}, 60.0});
  for (const double depth : data.depth) {
    errors.refractors[0].depth.low.push_back(depth - 1.0);
    errors.refractors[0].depth.high.push_back(depth + 1.0);
  }
  const std::string with = svgOf(&errors);
  EXPECT_THAT(with, HasSubstr("Error of the picks (68 of 100)"));
  EXPECT_THAT(with, HasSubstr("Layer 1, 500 \u00B1 12 m/s"));
  EXPECT_THAT(with, HasSubstr(" \u00B1 60 m/s"));
}

TEST(LayerFigures, reportTellsMisfitErrorsAndWhatCarriesTheDepths) {
  const Built built;
  const std::vector<ShotArrivals> shots = shotArrivals(built.line);
  const auto errors = findProfileErrors(layerPicksOf(built.line, built.all, {}), {20, 1, 0});
  ASSERT_TRUE(errors);
  const LayeredFit fit = fitOfProfile(shots, pickErrors(built.line, shots), built.all);
  const auto contentOf = [&](const ReportSource& source) {
    ReportContent content;
    EXPECT_TRUE(buildReport(source, {}, content).ok());
    return content;
  };
  const auto tableOf = [](const ReportContent& content, const char* caption) {
    for (const ReportItem& item : content.items) {
      if (item.kind == ReportItem::Kind::kTable && item.text.contains(QLatin1String(caption))) {
        return item.table;
      }
    }
    return ReportTable();
  };
  const ReportContent content = contentOf({built.line, &built.all, nullptr, &fit, &*errors});
  const ReportTable misfit = tableOf(content, "RMS misfit of the layers");
  ASSERT_EQ(misfit.rows.size(), 21U) << "20 shots, then all";
  EXPECT_EQ(misfit.rows[20][0], QStringLiteral("All"));
  EXPECT_EQ(misfit.columns.size(), 3U);
  const ReportTable depths = tableOf(content, "Depths below the surface");
  EXPECT_EQ(depths.rows[2].last(), QStringLiteral("phantom"));
  EXPECT_THAT(depths.rows[2][2].toStdString(), ::testing::MatchesRegex("\\(.* \u00B1 .*\\)"));
  EXPECT_EQ(depths.rows[30].last(), QStringLiteral("picks"));
  EXPECT_THAT(depths.rows[30][2].toStdString(), ::testing::MatchesRegex("[0-9.]+ \u00B1 [0-9.]+"));
  // An empty fit is one that could not be found, null one that nobody looked for.
  const LayeredFit none;
  const auto says = [](const ReportContent& report) {
    std::vector<std::string> texts;
    for (const ReportItem& item : report.items) texts.push_back(item.text.toStdString());
    return texts;
  };
  const char* missing = "No misfit of the layers is told";
  EXPECT_THAT(says(contentOf({built.line, &built.all, nullptr, &none})),
              Contains(HasSubstr(missing)));
  EXPECT_THAT(says(contentOf({built.line, &built.all})), Not(Contains(HasSubstr(missing))));
}

TEST(LayerFigures, curvesTellTimesThroughLayersApart) {
  const Built built;
  const auto svgOf = [&built](bool layered, TravelTimeFigureLayout& layout) {
    TravelTimeFigureOptions options;
    if (layered) {
      options.layered.assign(built.line.ttArray.size(), std::vector<double>(60, NAN));
      for (int i = 10; i < 20; ++i)
        options.layered[3][static_cast<std::size_t>(i)] = 0.01 + 0.001 * i;
    }
    QByteArray svg;
    EXPECT_TRUE(renderTravelTimeFigure(built.line, options, FigureFormat::kSvg, svg, &layout).ok());
    return svg.toStdString();
  };
  TravelTimeFigureLayout layout;
  EXPECT_THAT(svgOf(false, layout), Not(HasSubstr("stroke-dasharray")));
  EXPECT_EQ(layout.layeredTimes, 0U);
  const std::string with = svgOf(true, layout);
  EXPECT_EQ(layout.layeredTimes, 10U);
  EXPECT_THAT(with, HasSubstr("stroke-dasharray"));
  EXPECT_THAT(with, HasSubstr("dashed: times through the layers"));
}

}  // namespace
}  // namespace talvesk
