#include "model/GeometryCheck.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

/// 12 geophones from 0 to 22 m and shots at both ends, all at 100 m; nothing is wrong with it.
SurveyGeometry faultless() {
  SurveyGeometry geometry;
  for (int i = 0; i < 12; ++i) {
    if (i == 0) geometry.strings.emplace_back();
    geometry.strings[0].push_back({2.0 * i, 100.0, true});
  }
  for (const double x : {-1.0, 23.0}) {
    GeometryShot& shot = geometry.shots.emplace_back();
    shot.place = {x, 100.0, true};
    shot.traces = 12;
  }
  return geometry;
}

/// "fault string:geophones/shots" of what is found.
std::vector<std::string> found(const SurveyGeometry& geometry) {
  static const char* kNames[] = {"position", "empty",       "no string",    "mixed",
                                 "place",    "back",        "elevation",    "count",
                                 "far",      "off surface", "not levelled", "unused"};
  std::vector<std::string> all;
  for (const GeometryMistake& mistake : geometryMistakes(geometry)) {
    std::string text = kNames[static_cast<int>(mistake.fault)];
    text += " " + std::to_string(mistake.string) + ":";
    for (const std::size_t i : mistake.geophones) text += std::to_string(i) + ",";
    text += "/";
    for (const std::size_t i : mistake.shots) text += std::to_string(i) + ",";
    all.push_back(text + (mistake.blocks() ? "!" : ""));
  }
  return all;
}

TEST(GeometryCheck, findsWhatIsWrong) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* name;
    std::function<void(SurveyGeometry&)> spoil;
    std::vector<std::string> mistakes;
  } kCases[] = {
      {"nothing", [](SurveyGeometry&) {}, {}},
      {"an empty cell", [](SurveyGeometry& g) { g.strings[0][3].z = kNone; }, {"position 0:3,/!"}},
      {"absurdly far", [](SurveyGeometry& g) { g.strings[0][11].x = 1e8; }, {"position 0:11,/!"}},
      {"a shot nowhere",
       [](SurveyGeometry& g) { g.shots[1].place.x = kNone; },
       {"position -1:/1,!"}},
      {"two at one place", [](SurveyGeometry& g) { g.strings[0][4].x = 6.0; }, {"place 0:3,4,/"}},
      {"two at one distance",
       [](SurveyGeometry& g) {
         g.strings[0][4] = {6.0, 101.0};
       },
       {"place 0:3,4,/"}},
      {"one steps back", [](SurveyGeometry& g) { g.strings[0][4].x = 5.0; }, {"back 0:4,/"}},
      {"a string laid backwards is fine",
       [](SurveyGeometry& g) { std::reverse(g.strings[0].begin(), g.strings[0].end()); },
       {}},
      {"an empty string",
       [](SurveyGeometry& g) { g.strings[0].clear(); },
       {"empty 0:/!", "count 0:/0,1,"}},
      {"no such string", [](SurveyGeometry& g) { g.shots[0].string = 4; }, {"no string -1:/0,!"}},
      {"fewer geophones", [](SurveyGeometry& g) { g.strings[0].pop_back(); }, {"count 0:/0,1,"}},
      {"a shot as far off as the line is long is fine",
       [](SurveyGeometry& g) { g.shots[1].place.x = 44.0; },
       {}},
      {"a shot farther off", [](SurveyGeometry& g) { g.shots[1].place.x = 44.5; }, {"far -1:/1,"}},
      {"a shot without elevation",
       [](SurveyGeometry& g) { g.shots[0].place.z = 0.0; },
       {"off surface -1:/0,"}},
      {"shots left at 0 under a low hill",
       [](SurveyGeometry& g) {
         for (GeometryPlace& place : g.strings[0]) place.z = 3.0;
         for (GeometryShot& shot : g.shots) shot.place = {shot.place.x, 0.0, false};
       },
       {"not levelled -1:/0,1,"}},
      {"shots left at 0 on flat ground are fine",
       [](SurveyGeometry& g) {
         for (GeometryPlace& place : g.strings[0]) place = {place.x, 0.0, false};
         for (GeometryShot& shot : g.shots) shot.place = {shot.place.x, 0.0, false};
       },
       {}},
      {"interpolated shots are fine until the line moves",
       [](SurveyGeometry& g) {
         for (GeometryShot& shot : g.shots) shot.place.typed = false;
         interpolateShotElevations(g);
         g.strings[0].back().z = 101.0;
       },
       {"not levelled -1:/1,"}},
      {"a string nobody uses",
       [](SurveyGeometry& g) { g.strings.push_back(g.strings[0]); },
       {"unused 1:/"}},
      {"two elevations at one distance",
       [](SurveyGeometry& g) {
         g.strings.push_back(g.strings[0]);
         g.shots[1].string = 1;
         g.strings[1][5].z = 101.0;
       },
       {"elevation 1:5,/"}},
      {"pairs beside others",
       [](SurveyGeometry& g) {
         g.shots[0].fileDX = "a";
         g.shots[0].pair = std::make_shared<SWavePair>();
       },
       {"mixed -1:/1,!"}},
      {"what blocks comes first",
       [](SurveyGeometry& g) {
         g.strings[0][4].x = 6.0;
         g.shots[0].place.z = kNone;
       },
       {"position -1:/0,!", "place 0:3,4,/"}},
      {"nothing at all", [](SurveyGeometry& g) { g = {}; }, {}},
  };
  for (const auto& [name, spoil, mistakes] : kCases) {
    SurveyGeometry geometry = faultless();
    spoil(geometry);
    EXPECT_EQ(found(geometry), mistakes) << name;
  }
}

}  // namespace
}  // namespace talvesk
