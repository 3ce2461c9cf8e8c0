#include "figures/GatherFigure.h"
#include "figures/GatherScene.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "support/CommaLocale.h"
#include "support/ShotDocument.h"
#include "support/TestFolder.h"

#include <QByteArray>
#include <QImage>
#include <QLocale>
#include <cfloat>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using testing::firstBreak;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::shotDocument;
using ::testing::StartsWith;
using testing::TestFolder;

const GatherFigureOptions kDefaults;

struct Gather {
  std::string bytes;
  GatherFigureLayout layout;

  QImage image() const {
    return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                            static_cast<int>(bytes.size()));
  }
};

Gather gatherOf(const TomoDocument& document, const GatherFigureOptions& options,
                FigureFormat format, std::size_t shot = 0) {
  Gather gather;
  QByteArray bytes;
  const Status status = renderGatherFigure(document, shot, options, format, bytes, &gather.layout);
  EXPECT_TRUE(status.ok()) << status.message();
  gather.bytes = bytes.toStdString();
  return gather;
}

QColor colorAt(const QImage& image, const PlotPlace& place, double x, double timeMs) {
  const double column = place.xToMm(x) / place.widthMm * image.width();
  const double row = place.yToMm(timeMs) / place.heightMm * image.height();
  return image.pixelColor(static_cast<int>(column), static_cast<int>(row));
}

std::vector<double> pickXs(const GatherFigureLayout& layout) {
  std::vector<double> xs;
  for (const auto& pick : layout.picks) xs.push_back(pick.x);
  return xs;
}

TEST(GatherFigure, picksAreMarkedAtTheirTraceAndTime) {
  const TomoDocument document = shotDocument(1, 12, 400);
  const Gather gather = gatherOf(document, kDefaults, FigureFormat::kPng);
  const QImage image = gather.image();
  ASSERT_EQ(gather.layout.picks.size(), 12U);
  for (std::size_t i = 0; i < 12; ++i) {
    const auto& pick = gather.layout.picks[i];
    EXPECT_EQ(pick.trace, i);
    EXPECT_EQ(pick.x, document.line->goephonesStringSet[0][i].x);
    EXPECT_DOUBLE_EQ(pick.timeMs, 1e3 * firstBreak(i));
    const QColor mark = colorAt(image, gather.layout.place, pick.x, pick.timeMs);
    EXPECT_GT(mark.red(), 150) << i;
    EXPECT_LT(mark.green(), 80) << i;
  }
}

TEST(GatherFigure, standsABarOverThePicksWhoseErrorIsKnown) {
  TomoDocument document = shotDocument(1, 12, 400);
  const auto isRed = [](const QColor& color) { return color.red() > color.green() + 80; };
  const auto redOver = [&](const GatherFigureOptions& options, std::size_t pick, double off) {
    const Gather gather = gatherOf(document, options, FigureFormat::kPng);
    const auto& at = gather.layout.picks[pick];
    return isRed(colorAt(gather.image(), gather.layout.place, at.x, at.timeMs - off));
  };
  EXPECT_FALSE(redOver(kDefaults, 4, 1.5));
  document.ttArray.edit()[0].setError(4, 0.002);
  EXPECT_TRUE(redOver(kDefaults, 4, 1.5));
  EXPECT_FALSE(redOver(kDefaults, 4, 2.5)) << "no longer than its error";
  EXPECT_FALSE(redOver(kDefaults, 5, 1.5)) << "nothing is known there";
  GatherFigureOptions bare;
  bare.errorBars = false;
  EXPECT_FALSE(redOver(bare, 4, 1.5));
  const std::string words = "bars of one standard deviation, dashed above 2.5 ms";
  EXPECT_THAT(gatherOf(document, kDefaults, FigureFormat::kSvg).bytes, HasSubstr(words));
  EXPECT_THAT(gatherOf(document, bare, FigureFormat::kSvg).bytes, ::testing::Not(HasSubstr(words)));
}

TEST(GatherFigure, wigglesLeaveTheBaseLineWhereTheirSamplesDo) {
  TomoDocument document = shotDocument(1, 8, 400);
  for (std::size_t i = 0; i < 8; ++i) {
    auto& samples = document.recordings.edit().traceSets[0][i].samples.edit();
    for (std::size_t k = 0; k < samples.size(); ++k) {
      samples[k] = k < 100 + 20 * i || k % 2 == 0 ? 0.0 : (k / 2 % 2 == 0 ? 1.0 : -1.0);
    }
  }
  GatherFigureOptions options;
  options.picks = false;
  options.window = TimeWindow{0.0, 99.75};
  const Gather gather = gatherOf(document, options, FigureFormat::kPng);
  const QImage image = gather.image();
  const double msPerPixel = gather.layout.place.heightMm / image.height() /
                            (gather.layout.place.yToMm(1.0) - gather.layout.place.yToMm(0.0));
  for (std::size_t i = 0; i < 8; ++i) {
    const double x = document.line->goephonesStringSet[0][i].x + 0.4;
    const double breakMs = 0.25 * static_cast<double>(100 + 20 * i);
    const auto darkest = [&](double fromMs, double toMs) {
      int least = 255;
      for (double ms = fromMs; ms < toMs; ms += 0.5 * msPerPixel) {
        least = std::min(least, colorAt(image, gather.layout.place, x, ms).lightness());
      }
      return least;
    };
    EXPECT_GT(darkest(1.0, breakMs - 1.5 * msPerPixel), 250) << i;
    EXPECT_LT(darkest(breakMs, breakMs + 1.5), 150) << i;
  }
}

TEST(GatherFigure, saysThatItsShotIsMended) {
  TomoDocument document = testing::shotDocument(1, 6, 200);
  ShotMends mends;
  mends.disabled = true;
  mends.timeShift = 0.0005;
  mends.traces = {{true, false, 0.0}, {true, true, 0.01}};
  ASSERT_TRUE(setMends(0, mends, document).ok());
  GatherScene scene;
  ASSERT_TRUE(buildGatherScene(document, 0, {}, scene).ok());
  for (const char* words : {"shot disabled", "shifted by 0.5 ms", "2 traces killed",
                            "1 trace of reversed polarity", "1 trace muted"}) {
    EXPECT_THAT(scene.caption, ::testing::HasSubstr(words));
  }
}

TEST(GatherFigure, timesThatAreNoPicksAreNotDrawn) {
  TomoDocument document = shotDocument(1, 8, 400);
  document.ttArray.edit()[0].ttMisurati.edit() = {0.02,     0.0,  kNoTime, NAN,
                                                  INFINITY, -0.0, 0.03};  // and one less
  EXPECT_THAT(pickXs(gatherOf(document, kDefaults, FigureFormat::kSvg).layout),
              ElementsAre(10.0, 22.0));
  GatherFigureOptions options;
  options.window = TimeWindow{0.0, 25.0};
  const Gather gather = gatherOf(document, options, FigureFormat::kSvg);
  EXPECT_THAT(pickXs(gather.layout), ElementsAre(10.0));
  EXPECT_THAT(gather.bytes, HasSubstr("1 pick outside the times shown"));
  document.ttArray.edit().clear();
  EXPECT_THAT(gatherOf(document, kDefaults, FigureFormat::kSvg).layout.picks, IsEmpty());
}

TEST(GatherFigure, positionsComeFromTheStringThenTheHeadersThenTheChannels) {
  const struct {
    const char* what;
    std::function<void(TomoDocument&)> change;
    bool byChannel;
    double first, last;
  } facts[] = {
      {"string",
       [](TomoDocument& d) { d.recordings.edit().traceSets[0][0].receiverPosition.x = 77.0; },
       false, 10, 14},
      {"second string",
       [](TomoDocument& d) {
         d.line.edit().goephonesStringSet.push_back({{30, 0}, {20, 0}, {10, 0}});
         d.ttArray.edit()[0].indexStesa = 1;
       },
       false, 30, 10},
      {"short string", [](TomoDocument& d) { d.line.edit().goephonesStringSet[0].resize(2); },
       false, 10, 14},
      {"no string", [](TomoDocument& d) { d.ttArray.edit()[0].indexStesa = 5; }, false, 10, 14},
      {"negative string", [](TomoDocument& d) { d.ttArray.edit()[0].indexStesa = -1; }, false, 10,
       14},
      {"nothing known",
       [](TomoDocument& d) {
         for (auto& g : d.line.edit().goephonesStringSet[0]) g = {};
         for (auto& t : d.recordings.edit().traceSets[0]) t.receiverPosition = {};
       },
       true, 1, 3},
      {"no numbers",
       [](TomoDocument& d) {
         d.line.edit().goephonesStringSet[0][1].x = NAN;
         d.recordings.edit().traceSets[0][1].receiverPosition.x = 1e300;
       },
       true, 1, 3}};
  for (const auto& fact : facts) {
    TomoDocument document = shotDocument(1, 3, 400);
    fact.change(document);
    const Gather gather = gatherOf(document, kDefaults, FigureFormat::kSvg);
    EXPECT_EQ(gather.layout.byChannel, fact.byChannel) << fact.what;
    ASSERT_EQ(gather.layout.picks.size(), 3U) << fact.what;
    EXPECT_EQ(gather.layout.picks[0].x, fact.first) << fact.what;
    EXPECT_EQ(gather.layout.picks[2].x, fact.last) << fact.what;
    EXPECT_THAT(gather.bytes, HasSubstr(fact.byChannel ? ">Channel<" : ">Distance [m]<"));
    EXPECT_THAT(gather.bytes, HasSubstr(">Time [ms]<"));
  }
}

TEST(GatherFigure, showsHalfAsLongAgainAsThePicksTakeOrTheWholeRecord) {
  TomoDocument document = shotDocument(1, 4, 1000);
  const auto endMs = [&document] {
    return gatherOf(document, kDefaults, FigureFormat::kSvg).layout.window.endMs;
  };
  const struct {
    double pick, end;
  } facts[] = {{0.0, 249.75}, {0.016, 25.0},     {0.1, 150.0},
               {0.2, 249.75}, {kNoTime, 249.75}, {0.3, 315.0}};
  for (const auto& fact : facts) {
    document.ttArray.edit()[0].ttMisurati.edit().assign(4, fact.pick);
    EXPECT_NEAR(endMs(), fact.end, 1e-9) << fact.pick;
  }
}

TEST(GatherFigure, aPeakOfOneSampleSurvivesHoweverLongTheRecord) {
  TomoDocument document = shotDocument(1, 5, 10);
  for (Trace& trace : document.recordings.edit().traceSets[0]) {
    trace.samples.edit().assign(400001, 0.0);
    trace.samples.edit()[234567] = 1.0;
  }
  GatherFigureOptions options;
  options.picks = false;
  options.window = TimeWindow{0.0, 100000.0};
  const Gather gather = gatherOf(document, options, FigureFormat::kPng);
  EXPECT_LT(colorAt(gather.image(), gather.layout.place, 14.4, 0.25 * 234567).lightness(), 200);
  EXPECT_LT(gatherOf(document, options, FigureFormat::kSvg).bytes.size(), 200000U);
}

TEST(GatherFigure, vectorFilesStaySmall) {
  const struct { std::size_t traces, samples; } facts[] = {{96, 4000}, {64, 20000}, {5000, 500}};
  for (const auto& fact : facts) {
    TomoDocument document = shotDocument(1, fact.traces, fact.samples);
    std::uint32_t random = 1;
    for (Trace& trace : document.recordings.edit().traceSets[0]) {
      for (double& sample : trace.samples.edit()) {
        random = random * 1664525U + 1013904223U;
        sample = random;
      }
    }
    document.ttArray.edit().clear();
    for (const FigureFormat format : {FigureFormat::kSvg, FigureFormat::kPdf}) {
      EXPECT_LT(gatherOf(document, kDefaults, format).bytes.size(), 6000000U) << fact.traces;
    }
  }
}

TEST(GatherFigure, drawsTheFilteredCopyWhereThereIsOneAndItIsWanted) {
  TomoDocument document = shotDocument(1, 4, 400);
  GatherFigureOptions raw;
  raw.filtered = false;
  const std::string before = gatherOf(document, raw, FigureFormat::kSvg).bytes;
  EXPECT_EQ(gatherOf(document, kDefaults, FigureFormat::kSvg).bytes, before);
  for (Trace& trace : document.recordings.edit().traceSets[0]) {
    trace.filtered = trace.samples;
    for (double& sample : trace.filtered.edit()) sample = -sample;
  }
  EXPECT_EQ(gatherOf(document, raw, FigureFormat::kSvg).bytes, before);
  const std::string filtered = gatherOf(document, kDefaults, FigureFormat::kSvg).bytes;
  EXPECT_THAT(filtered, HasSubstr("4 traces, filtered"));
  EXPECT_NE(filtered, before);
}

TEST(GatherFigure, oneScaleForAllTracesKeepsTheirAmplitudes) {
  TomoDocument document = shotDocument(1, 4, 400);
  for (double& sample : document.recordings.edit().traceSets[0][1].samples.edit()) sample *= 1e-3;
  GatherFigureOptions options;
  options.picks = false;
  const double x = document.line->goephonesStringSet[0][1].x + 0.5;
  const double ms = 1e3 * firstBreak(1) + 5.2;  // a quarter of the ringing's period later
  for (const GatherScaling scaling : {GatherScaling::kEachTrace, GatherScaling::kWholeShot}) {
    options.scaling = scaling;
    const Gather gather = gatherOf(document, options, FigureFormat::kPng);
    const bool dark = colorAt(gather.image(), gather.layout.place, x, ms).lightness() < 128;
    EXPECT_EQ(dark, scaling == GatherScaling::kEachTrace);
  }
}

TEST(GatherFigure, writesAPageOrAFileForEachShot) {
  const TestFolder folder;
  const TomoDocument document = shotDocument(3, 6, 400);
  std::vector<std::string> written;
  const auto write = [&](const TomoDocument& shots, const GatherFigureOptions& options,
                         const char* name) {
    const Status status = writeGatherFigures(shots, options, folder.file(name), written);
    EXPECT_TRUE(status.ok()) << status.message();
  };
  write(document, kDefaults, "line.PNG");
  EXPECT_THAT(written, ElementsAre(folder.file("line_01.PNG"), folder.file("line_02.PNG"),
                                   folder.file("line_03.PNG")));
  for (const std::string& path : written) {
    EXPECT_THAT(TestFolder::get(path), StartsWith("\x89PNG\r\n\x1a\n"));
  }
  write(document, kDefaults, "line.svg");
  ASSERT_EQ(written.size(), 3U);
  EXPECT_THAT(TestFolder::get(written[1]), HasSubstr("2.dat   \xC2\xB7   Shot 2 of 3 at 13 m"));

  GatherFigureOptions second;
  second.shot = 1;
  write(document, second, "two.svg");
  EXPECT_THAT(written, ElementsAre(folder.file("two.svg")));
  EXPECT_THAT(TestFolder::get(written[0]), HasSubstr("Shot 2 of 3"));
  write(shotDocument(1, 6, 400), kDefaults, "only.png");
  EXPECT_THAT(written, ElementsAre(folder.file("only.png")));

  write(document, kDefaults, "line.pdf");
  EXPECT_THAT(written, ElementsAre(folder.file("line.pdf")));
  const std::string pdf = TestFolder::get(written[0]);
  EXPECT_THAT(pdf, StartsWith("%PDF-1."));
  EXPECT_THAT(pdf, HasSubstr("/Count 3"));
  EXPECT_EQ(folder.entries(), 9);
}

TEST(GatherFigure, aFailureLeavesNoFileAndTouchesNone) {
  const TestFolder folder;
  TomoDocument document = shotDocument(2, 4, 400);
  std::vector<std::string> written = {"stale"};
  const auto failure = [&](const GatherFigureOptions& options, const std::string& name) {
    const Status status = writeGatherFigures(document, options, folder.file(name), written);
    EXPECT_THAT(written, IsEmpty()) << name;
    return status.ok() ? std::string("no failure") : status.message();
  };
  EXPECT_THAT(failure(kDefaults, "a.bmp"), HasSubstr(".png, .svg or .pdf"));
  EXPECT_NE(failure(kDefaults, "missing/a.png"), "no failure");
  const std::vector<std::function<void(GatherFigureOptions&)>> wrong = {
      [](auto& o) { o.shot = 2; },
      [](auto& o) { o.gain = 0.0; },
      [](auto& o) { o.gain = NAN; },
      [](auto& o) { o.clip = -1.0; },
      [](auto& o) { o.clip = INFINITY; },
      [](auto& o) {
        o.window = TimeWindow{5.0, 5.0};
      },
      [](auto& o) {
        o.window = TimeWindow{-5.0, 5.0};
      },
      [](auto& o) {
        o.window = TimeWindow{0.0, NAN};
      },
      [](auto& o) { o.widthMm = 30.0; },
      [](auto& o) { o.widthMm = NAN; },
      [](auto& o) { o.heightMm = 1e9; }};
  for (std::size_t i = 0; i < wrong.size(); ++i) {
    GatherFigureOptions options;
    wrong[i](options);
    for (const char* name : {"a.png", "a.svg", "a.pdf"}) {
      EXPECT_NE(failure(options, name), "no failure") << i << " " << name;
    }
  }
  const std::string path = folder.put("b.pdf", "before");
  document.recordings.edit().traceSets.clear();
  EXPECT_THAT(failure(kDefaults, "b.pdf"), HasSubstr("no traces"));
  EXPECT_EQ(TestFolder::get(path), "before");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(GatherFigure, drawsWhateverTheSamplesAre) {
  const struct {
    const char* what;
    std::function<void(TomoDocument&)> change;
    std::size_t drawn;
  } facts[] = {
      {"no numbers",
       [](TomoDocument& d) {
         auto& samples = d.recordings.edit().traceSets[0][0].samples.edit();
         for (std::size_t i = 0; i < samples.size(); i += 7) samples[i] = i % 2 ? NAN : -INFINITY;
         d.recordings.edit().traceSets[0][1].samples.edit().assign(400, NAN);
       },
       6},
      {"largest numbers",
       [](TomoDocument& d) {
         auto& samples = d.recordings.edit().traceSets[0][0].samples.edit();
         for (std::size_t i = 0; i < samples.size(); ++i) samples[i] = i % 3 ? DBL_MAX : -DBL_MAX;
       },
       6},
      {"smallest numbers",
       [](TomoDocument& d) {
         for (double& sample : d.recordings.edit().traceSets[0][0].samples.edit())
           sample = sample > 0 ? 5e-324 : 0.0;
       },
       6},
      {"constants",
       [](TomoDocument& d) { d.recordings.edit().traceSets[0][0].samples.edit().assign(400, 0.1); },
       6},
      {"empty traces",
       [](TomoDocument& d) {
         d.recordings.edit().traceSets[0][0].samples.edit().clear();
         d.recordings.edit().traceSets[0][5].samples.edit().assign(1, 3.0);
       },
       5},
      {"no interval",
       [](TomoDocument& d) { d.recordings.edit().traceSets[0][2].sampleInterval = DBL_MAX; }, 5},
      {"odd intervals",
       [](TomoDocument& d) {
         d.recordings.edit().traceSets[0][0].sampleInterval = 1e-300;
         d.recordings.edit().traceSets[0][1].sampleInterval = 1e3;
         d.recordings.edit().traceSets[0][2].sampleInterval = NAN;
         d.recordings.edit().traceSets[0][3].sampleInterval = -1.0;
         d.ttArray.edit().clear();
       },
       4},
      {"one trace",
       [](TomoDocument& d) {
         d.recordings.edit().traceSets[0].resize(1);
         d.line.edit().goephonesStringSet.clear();
       },
       1},
      {"no trace", [](TomoDocument& d) { d.recordings.edit().traceSets[0].clear(); }, 0},
      {"nothing but picks",
       [](TomoDocument& d) {
         for (Trace& trace : d.recordings.edit().traceSets[0]) trace = Trace();
       },
       0},
      {"a shot nowhere", [](TomoDocument& d) { d.ttArray.edit()[0].shotPos2d.x = -INFINITY; }, 6},
      {"a shot far off", [](TomoDocument& d) { d.ttArray.edit()[0].shotPos2d.x = 9e7; }, 6},
      {"receivers far apart",
       [](TomoDocument& d) { d.line.edit().goephonesStringSet[0][3].x = 9e7; }, 6},
      {"a pick past the record",
       [](TomoDocument& d) { d.ttArray.edit()[0].ttMisurati.edit()[3] = 9e5; }, 6}};
  for (const auto& fact : facts) {
    TomoDocument document = shotDocument(1, 6, 400);
    fact.change(document);
    for (const FigureFormat format : {FigureFormat::kPng, FigureFormat::kSvg, FigureFormat::kPdf}) {
      const Gather gather = gatherOf(document, kDefaults, format);
      EXPECT_EQ(gather.layout.tracesDrawn, fact.drawn) << fact.what;
      if (format != FigureFormat::kSvg) continue;
      for (const char* word : {"nan", "inf,", "inf ", "e+"}) {
        EXPECT_EQ(gather.bytes.find(word), std::string::npos) << fact.what << ": " << word;
      }
    }
  }
}

TEST(GatherFigure, aConstantIsAStraightLine) {
  TomoDocument document = shotDocument(1, 2, 400);
  document.recordings.edit().traceSets[0][0].samples.edit().assign(400, 0.1);
  document.recordings.edit().traceSets[0][1].samples.edit().assign(400, -1e17 / 3.0);
  document.ttArray.edit().clear();
  const Gather gather = gatherOf(document, kDefaults, FigureFormat::kPng);
  const QImage image = gather.image();
  for (double ms = 1.0; ms < 99.0; ms += 0.2) {
    for (const double x : {10.2, 12.2}) {
      ASSERT_EQ(colorAt(image, gather.layout.place, x, ms), QColor(Qt::white)) << ms;
    }
  }
}

TEST(GatherFigure, manyTracesAreThinnedAndTheCaptionSaysSo) {
  const TomoDocument document = shotDocument(1, 1500, 50);
  const Gather gather = gatherOf(document, kDefaults, FigureFormat::kSvg);
  EXPECT_EQ(gather.layout.tracesDrawn, 500U);
  EXPECT_THAT(gather.bytes, HasSubstr("One of every 3 is drawn"));
}

TEST(GatherFigure, onlyTheLanguageOfTheProgramChangesItsNumbers) {
  const TomoDocument document = shotDocument(2, 6, 400);
  GatherFigureOptions options;
  options.gain = 1.5;
  const std::string before = gatherOf(document, options, FigureFormat::kSvg, 1).bytes;
  const testing::CommaStreams streams;
  const testing::CommaNumbers numbers;
  EXPECT_EQ(gatherOf(document, options, FigureFormat::kSvg, 1).bytes, before);
  const QLocale locale;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  const std::string german = gatherOf(document, options, FigureFormat::kSvg, 1).bytes;
  QLocale::setDefault(locale);
  EXPECT_THAT(before, HasSubstr("gain 1.5 "));
  EXPECT_THAT(german, HasSubstr("gain 1,5 "));
}

}  // namespace
}  // namespace talvesk
