#include "tomo/TestFit.h"
#include "tomo/TestRefraction.h"
#include "tomo/fitted/Ensemble.h"
#include "tomo/fitted/MemberNoise.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::fitLine;
using testing::FitLine;
using testing::FitLineSize;
using testing::gradientOverRefractor;
using testing::gradientTimes;
using testing::twoLayerTimes;

constexpr FitLineSize kSmall{12, 3.0, 4, 9.0, 1.5, 0.0005};

EnsembleOptions optionsOf(const FitLine& line, std::vector<double> isovalues = {}) {
  EnsembleOptions options;
  options.fit.start = line.start;
  options.seed = 7;
  options.isovalues = std::move(isovalues);
  return options;
}

Ensemble ensembleOf(const FitLine& line, std::vector<double> isovalues = {}) {
  return Ensemble(line.geometry, line.data, optionsOf(line, std::move(isovalues)));
}

void expectSame(const Ensemble& one, const Ensemble& other) {
  EXPECT_EQ(one.done(), other.done());
  EXPECT_EQ(one.leftOut(), other.leftOut());
  EXPECT_EQ(one.counts().velocities().median, other.counts().velocities().median);
  EXPECT_EQ(one.counts().velocities().low, other.counts().velocities().low);
  EXPECT_EQ(one.counts().velocities().high, other.counts().velocities().high);
  EXPECT_EQ(one.counts().deviations(), other.counts().deviations());
  EXPECT_EQ(one.counts().touched(), other.counts().touched());
  ASSERT_EQ(one.counts().bands().size(), other.counts().bands().size());
  for (std::size_t i = 0; i < one.counts().bands().size(); ++i) {
    EXPECT_THAT(one.counts().bands()[i].depths.median,
                ::testing::Pointwise(::testing::NanSensitiveDoubleEq(),
                                     other.counts().bands()[i].depths.median));
  }
}

TEST(MemberNoise, leavesPicksPositive) {
  FitData data;
  data.picks.assign(1000, {0, 0, 0.001, 0.002});
  const FitData moved = perturbedPicks(data, 1, 3);
  double least = 1.0;
  for (const FitPick& pick : moved.picks) least = std::min(least, pick.time);
  EXPECT_DOUBLE_EQ(least, 0.0001);
}

TEST(BinCounts, givesQuantilesBetweenBins) {
  BinCounts counts;
  EXPECT_TRUE(std::isnan(counts.quantile(0.5)));
  for (const int bin : {7, 3, 3, 5}) counts.add(bin);
  EXPECT_DOUBLE_EQ(counts.quantile(0.0), 3.5);
  EXPECT_DOUBLE_EQ(counts.quantile(0.5), 4.5);
  EXPECT_DOUBLE_EQ(counts.quantile(1.0), 7.5);
  counts.add(BinCounts::kBeyond, 4);
  EXPECT_DOUBLE_EQ(counts.quantile(0.25), 5.0);
  EXPECT_TRUE(std::isnan(counts.quantile(0.5))) << "half of them are beyond";
}

TEST(EnsembleCounts, isTheSameInAnyOrderAndAnyParts) {
  const FitLine line = fitLine(kSmall, gradientTimes(400.0, 50.0));
  const std::size_t cells = line.geometry->cellCount();
  std::vector<std::vector<double>> sections;
  for (std::uint64_t k = 0; k < 9; ++k) {
    NormalNumbers normal(1, k);
    sections.push_back(line.start);
    for (double& slowness : sections.back()) slowness *= std::exp(0.2 * normal.next());
  }
  const std::vector<double> isovalues = {500.0, 700.0, 5000.0};
  EnsembleCounts forward(*line.geometry, isovalues), parts = forward, rest = forward;
  for (std::size_t k = 0; k < 9; ++k) {
    forward.add(sections[k], std::vector<bool>(cells, k % 2 == 0));
    EnsembleCounts& part = (8 - k) % 3 == 0 ? rest : parts;
    part.add(sections[8 - k], std::vector<bool>(cells, k % 2 == 0));
  }
  rest.add(parts);
  EXPECT_EQ(forward.velocities().median, rest.velocities().median);
  EXPECT_EQ(forward.velocities().high, rest.velocities().high);
  EXPECT_EQ(forward.deviations(), rest.deviations());
  EXPECT_EQ(forward.touched(), rest.touched());
  EXPECT_EQ(forward.bands()[1].depths.low, rest.bands()[1].depths.low);
  EXPECT_TRUE(std::isnan(forward.bands()[2].depths.median[0])) << "nowhere so fast";

  double meanDeviation = 0.0;
  for (const double d : forward.deviations()) meanDeviation += d / static_cast<double>(cells);
  EXPECT_NEAR(meanDeviation, 0.2, 0.03);
}

TEST(Ensemble, isTheSameWithAnyThreadsAndInAnySteps) {
  const FitLine line = fitLine(kSmall, twoLayerTimes(500.0, 1800.0, 3.0));
  constexpr int kMembers = 5;
  Ensemble alone = ensembleOf(line, {900.0});
  ASSERT_TRUE(alone.run(kMembers, 1).ok());
  ASSERT_EQ(alone.done(), kMembers);
  ASSERT_GT(alone.counts().members(), 0);
  for (const unsigned threads : {2U, 4U}) {
    SCOPED_TRACE(threads);
    Ensemble many = ensembleOf(line, {900.0});
    ASSERT_TRUE(many.run(kMembers, threads).ok());
    expectSame(many, alone);
  }
  Ensemble stepwise = ensembleOf(line, {900.0});
  int asked = 0;
  while (stepwise.done() < kMembers) {
    // Stopped again and again, in models and in members.
    int left = 60;
    ASSERT_TRUE(stepwise.run(2 + stepwise.done(), 1, {}, [&] { return left-- > 0; }).ok());
    ASSERT_LT(++asked, 100) << "it does not get on";
    if (stepwise.done() + 2 > kMembers) break;
  }
  EXPECT_GT(asked, 1) << "or it was never stopped";
  ASSERT_TRUE(stepwise.run(kMembers, 2).ok());
  expectSame(stepwise, alone);
}

TEST(Ensemble, isTheSameInAnyPartsPutTogetherInAnyOrder) {
  const FitLine line = fitLine(kSmall, twoLayerTimes(500.0, 1800.0, 3.0));
  constexpr int kMembers = 7;
  Ensemble alone = ensembleOf(line, {900.0});
  ASSERT_TRUE(alone.run(kMembers, 2).ok());
  // Ranges of other runs, and single members that were fitted elsewhere, the last one first.
  std::vector<EnsembleState> parts;
  for (const MemberRange range : {MemberRange{4, 5}, MemberRange{0, 2}, MemberRange{5, 7}}) {
    Ensemble part = ensembleOf(line, {900.0});
    ASSERT_TRUE(part.run(range, 2).ok());
    EXPECT_EQ(part.done(), range.end - range.first);
    EXPECT_EQ(part.openOf(range).size(), 0U);
    parts.push_back(part.state());
  }
  for (const std::vector<std::size_t>& order : {std::vector<std::size_t>{0, 1, 2}, {2, 0, 1}}) {
    Ensemble whole = ensembleOf(line, {900.0});
    for (const std::size_t part : order) ASSERT_TRUE(whole.add(parts[part]));
    EXPECT_FALSE(whole.add(parts[0])) << "its members are done";
    ASSERT_TRUE(whole.prepare({0, kMembers}, 2).ok());
    const auto tracer = whole.fits()->newTracer();
    EXPECT_EQ(whole.openOf({0, kMembers}), (std::vector<std::size_t>{2, 3}));
    for (const std::size_t k : {std::size_t{3}, std::size_t{2}}) {
      std::optional<EnsembleMember> member;
      ASSERT_TRUE(whole.fits()->fit(k, *tracer, {}, member).ok());
      ASSERT_TRUE(member);
      whole.take(*member);
      whole.take(*member);  // changes nothing
    }
    expectSame(whole, alone);
    for (std::size_t i = 0; i < alone.models().size(); ++i) {
      EXPECT_EQ(whole.models()[i].members, alone.models()[i].members);
    }
  }
}

TEST(Ensemble, variesTheSettingsThatItIsTold) {
  const FitLine line = fitLine(kSmall, twoLayerTimes(500.0, 1800.0, 3.0));
  constexpr int kMembers = 8;
  EnsembleOptions options = optionsOf(line);
  Ensemble usual(line.geometry, line.data, options);
  ASSERT_TRUE(usual.run(kMembers, 2).ok());

  // Settings that are those of the fit change nothing.
  options.vary.smoothing = {1.0};
  options.vary.blocky = {false, false};
  Ensemble same(line.geometry, line.data, options);
  ASSERT_TRUE(same.run(kMembers, 2).ok());
  expectSame(same, usual);

  options.vary.smoothing = {0.1, 10.0};
  options.vary.blocky = {false, true};
  Ensemble varied(line.geometry, line.data, options);
  ASSERT_TRUE(varied.run(kMembers, 2).ok());
  EXPECT_EQ(varied.models().size(), 2 * usual.models().size());
  EXPECT_NE(varied.counts().deviations(), usual.counts().deviations());
  bool blocky[2] = {false, false};
  for (std::size_t k = 0; k < 100; ++k) {
    const MemberStart& start = varied.fits()->startOf(k);
    blocky[start.manner.blocky ? 1 : 0] = true;
    EXPECT_EQ(start.layered, usual.fits()->startOf(k).layered) << "half and half in either manner";
    const std::string name = varied.models()[start.model].name.english();
    EXPECT_THAT(name, ::testing::EndsWith(start.manner.blocky ? ", blocky" : ", smooth"));
  }
  EXPECT_TRUE(blocky[0] && blocky[1]);

  Ensemble parts(line.geometry, line.data, options);
  ASSERT_TRUE(parts.run(MemberRange{5, kMembers}, 1).ok());
  ASSERT_TRUE(parts.run(kMembers, 2).ok());
  expectSame(parts, varied);
}

TEST(MemberDraw, isEvenAndOfItsSeedAndNumberAlone) {
  int counts[3] = {0, 0, 0};
  for (std::uint64_t k = 0; k < 3000; ++k) ++counts[memberDraw(1, k, 0) % 3];
  for (const int count : counts) EXPECT_NEAR(count, 1000, 100);
  EXPECT_EQ(memberDraw(1, 5, 0), memberDraw(1, 5, 0));
  EXPECT_NE(memberDraw(1, 5, 0), memberDraw(1, 5, 1));
  EXPECT_NE(memberDraw(1, 5, 0), memberDraw(2, 5, 0));
}

TEST(Ensemble, dependsOnItsSeed) {
  const FitLine line = fitLine(kSmall, gradientTimes(400.0, 50.0));
  Ensemble one = ensembleOf(line);
  EnsembleOptions options = optionsOf(line);
  options.seed = 8;
  Ensemble other(line.geometry, line.data, options);
  ASSERT_TRUE(one.run(3, 2).ok());
  ASSERT_TRUE(other.run(3, 2).ok());
  EXPECT_NE(one.counts().deviations(), other.counts().deviations());
}

TEST(Ensemble, countsMembersThatDoNotExplainThePicks) {
  FitLine line = fitLine(kSmall, twoLayerTimes(500.0, 1800.0, 3.0));
  for (FitPick& pick : line.data.picks) pick.sigma *= 0.76;
  Ensemble ensemble = ensembleOf(line);
  EnsembleProgress last;
  ASSERT_TRUE(ensemble.run(12, 2, [&](const EnsembleProgress& state) { last = state; }).ok());
  EXPECT_GT(ensemble.leftOut(), 0);
  EXPECT_GT(ensemble.counts().members(), 0);
  EXPECT_EQ(ensemble.counts().members() + ensemble.leftOut(), 12);
  EXPECT_EQ(last.members, 12);
  EXPECT_EQ(last.leftOut, ensemble.leftOut());
  int members = 0;
  for (const EnsembleModel& model : ensemble.models()) members += model.members;
  EXPECT_EQ(members, ensemble.counts().members());
}

TEST(Ensemble, saysWhenNoModelExplainsThePicks) {
  FitLine line = fitLine(kSmall, gradientTimes(400.0, 50.0));
  for (FitPick& pick : line.data.picks) pick.sigma *= 0.1;
  Ensemble ensemble = ensembleOf(line);
  const Status status = ensemble.run(4, 2);
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(status.message(), ::testing::HasSubstr("No model explains the picks"));
  EXPECT_EQ(ensemble.done(), 0);
}

/// Share of the cells with rays whose true velocity lies inside two of the stated deviations.
double truthInside(const Ensemble& ensemble, const FitLine& line,
                   const std::function<double(double depth)>& truth) {
  const Quantiles q = ensemble.counts().velocities();
  int inside = 0, covered = 0;
  for (std::size_t c = 0; c < q.median.size(); ++c) {
    if (ensemble.counts().touched()[c] == 0) continue;
    ++covered;
    const double deviation = 0.5 * std::log(q.high[c] / q.low[c]);
    if (std::fabs(std::log(truth(line.depth(c)) / q.median[c])) <= 2.0 * deviation) ++inside;
  }
  return inside / std::max(1.0, static_cast<double>(covered));
}

TEST(Ensemble, holdsTheTruthOfGradientsAndLayers) {
  const FitLineSize usual{24, 2.0, 7, 12.0, 1.0, 0.0005};
  const struct {
    const char* name;
    testing::TimeBetween times;
    std::function<double(double)> truth;
  } grounds[] = {
      {"gradient", gradientTimes(400.0, 50.0), [](double z) { return 400.0 + 50.0 * z; }},
      {"layers", twoLayerTimes(500.0, 2000.0, 4.0),
       [](double z) { return z < 4.0 ? 500.0 : 2000.0; }},
      {"gradient over a refractor", gradientOverRefractor(400.0, 40.0, 2500.0, 5.0),
       [](double z) { return z < 5.0 ? 400.0 + 40.0 * z : 2500.0; }},
  };
  for (const auto& ground : grounds) {
    SCOPED_TRACE(ground.name);
    const FitLine line = fitLine(usual, ground.times);
    Ensemble ensemble = ensembleOf(line);
    ASSERT_TRUE(ensemble.run(12, 2).ok());
    EXPECT_GE(truthInside(ensemble, line, ground.truth), 0.9);
  }
}

TEST(Ensemble, boundsTheDepthOfARefractor) {
  const FitLine line = fitLine({24, 2.0, 7, 12.0, 1.0, 0.0005}, twoLayerTimes(500.0, 2000.0, 4.0));
  Ensemble ensemble = ensembleOf(line, {1000.0});
  ASSERT_TRUE(ensemble.run(12, 2).ok());
  const Quantiles depths = ensemble.counts().bands().front().depths;
  int inside = 0, columns = 0;
  for (std::size_t c = 4; c + 4 < depths.median.size(); ++c) {
    ++columns;
    const double deviation = 0.5 * (depths.high[c] - depths.low[c]);
    EXPECT_GT(deviation, 0.0);
    if (std::fabs(depths.median[c] - 4.0) <= 2.0 * deviation + 0.5) ++inside;
  }
  EXPECT_GE(inside, columns * 9 / 10);
}

}  // namespace
}  // namespace talvesk
