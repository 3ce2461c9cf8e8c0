#include "figures/FigureWords.h"
#include "figures/ShownLength.h"
#include "figures/web/WebParts.h"

#include <QCoreApplication>

namespace talvesk::web {
namespace {

struct WebPageWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::WebPage)
};

void addSection(QJsonObject& words) {
  const QString length = withLengthUnit(QStringLiteral("%1"));  // the page puts the number in
  words[QStringLiteral("section")] = WebPageWords::tr("Section");
  words[QStringLiteral("sectionControls")] = WebPageWords::tr("What the section shows");
  words[QStringLiteral("sectionHelp")] = WebPageWords::tr(
      "Point at the section to read it, click for the profile below a point, drag to move it. "
      "Keys: arrows move a cross, Enter shows the profile below it, + and - zoom, 0 shows all.");
  words[QStringLiteral("colorBy")] = WebPageWords::tr("Colours show");
  words[QStringLiteral("palette")] = WebPageWords::tr("Palette");
  words[QStringLiteral("rangeFrom")] = WebPageWords::tr("Colours from");
  words[QStringLiteral("rangeTo")] = WebPageWords::tr("Colours to");
  words[QStringLiteral("contours")] = WebPageWords::tr("Contour lines");
  words[QStringLiteral("exaggeration")] = WebPageWords::tr("Vertical exaggeration");
  words[QStringLiteral("fit")] = WebPageWords::tr("as it fits");
  words[QStringLiteral("rays")] = WebPageWords::tr("Rays");
  words[QStringLiteral("none")] = WebPageWords::tr("None");
  words[QStringLiteral("all")] = WebPageWords::tr("All");
  words[QStringLiteral("coverage")] = WebPageWords::tr("Coverage limit");
  words[QStringLiteral("geophones")] = WebPageWords::tr("Geophones");
  words[QStringLiteral("shots")] = WebPageWords::tr("Shots");
  words[QStringLiteral("layers")] = WebPageWords::tr("Layers");
  words[QStringLiteral("drawn")] = WebPageWords::tr("Annotations");
  words[QStringLiteral("zoomIn")] = WebPageWords::tr("Zoom in");
  words[QStringLiteral("zoomOut")] = WebPageWords::tr("Zoom out");
  words[QStringLiteral("whole")] = WebPageWords::tr("Show all");
  words[QStringLiteral("atDistance")] = WebPageWords::tr("Distance %1").arg(length);
  words[QStringLiteral("atElevation")] = WebPageWords::tr("elevation %1").arg(length);
  words[QStringLiteral("atDepth")] = WebPageWords::tr("depth %1").arg(length);
  words[QStringLiteral("profile")] = WebPageWords::tr("Vertical profile");
  words[QStringLiteral("profileAt")] = WebPageWords::tr("Vertical profile at %1").arg(length);
  words[QStringLiteral("depthFrom")] = WebPageWords::tr("Depth from [%1]").arg(lengthUnitText());
  words[QStringLiteral("depthTo")] = WebPageWords::tr("Depth to [%1]").arg(lengthUnitText());
  words[QStringLiteral("depth")] =
      WebPageWords::tr("Depth below ground [%1]").arg(lengthUnitText());
  words[QStringLiteral("velocity")] = WebPageWords::tr("Velocity [%1]").arg(velocityUnitText());
  words[QStringLiteral("tooManyCells")] = WebPageWords::tr(
      "The section has %1 cells, too many to be explored in a page: it stands here as a picture.");
}

void addTimes(QJsonObject& words) {
  words[QStringLiteral("times")] = WebPageWords::tr("Travel-time curves");
  words[QStringLiteral("timesControls")] = WebPageWords::tr("What the curves show");
  words[QStringLiteral("timesHelp")] = WebPageWords::tr(
      "Point at a pick to read it, click it for its recording and its ray in the section. Keys: "
      "left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows "
      "all.");
  words[QStringLiteral("measured")] = WebPageWords::tr("Measured");
  words[QStringLiteral("errors")] = WebPageWords::tr("Error bars");
  words[QStringLiteral("computed")] = WebPageWords::tr("Computed");
  words[QStringLiteral("shot")] = WebPageWords::tr("Shot %1");
  words[QStringLiteral("geophone")] =
      WebPageWords::tr("geophone %1 at %2")
          .arg(QStringLiteral("%1"), withLengthUnit(QStringLiteral("%2")));
  words[QStringLiteral("ms")] = WebPageWords::tr("%1 ms");
  words[QStringLiteral("msWithError")] = WebPageWords::tr("%1 ± %2 ms");
  words[QStringLiteral("computedMs")] = WebPageWords::tr("computed %1 ms");
  words[QStringLiteral("misfitMs")] = WebPageWords::tr("misfit %1 ms");
  words[QStringLiteral("shotColumn")] = WebPageWords::tr("Shot");
  words[QStringLiteral("geophoneColumn")] = WebPageWords::tr("Geophone");
  words[QStringLiteral("measuredColumn")] = WebPageWords::tr("Measured [ms]");
  words[QStringLiteral("errorColumn")] = WebPageWords::tr("Error [ms]");
  words[QStringLiteral("computedColumn")] = WebPageWords::tr("Computed [ms]");
  words[QStringLiteral("misfitColumn")] = WebPageWords::tr("Misfit [ms]");
  words[QStringLiteral("gather")] = WebPageWords::tr("Recording of the shot");
  words[QStringLiteral("gatherHelp")] = WebPageWords::tr(
      "Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 "
      "shows all.");
  words[QStringLiteral("noGather")] = WebPageWords::tr("There is no recording of this shot.");
  words[QStringLiteral("gatherLeftOut")] = WebPageWords::tr(
      "The recording of this shot is left out: those of the shots before it are as much as a page "
      "holds.");
}

void addMisfit(QJsonObject& words) {
  words[QStringLiteral("marksHelp")] = WebPageWords::tr(
      "Point at a mark to read it. Keys: left and right go from mark to mark, + and - zoom, 0 "
      "shows "
      "all.");
  words[QStringLiteral("misfitPerShot")] = WebPageWords::tr("Misfit of every shot");
  words[QStringLiteral("misfitPerGeophone")] = WebPageWords::tr("Misfit of every geophone");
  words[QStringLiteral("misfitPerIteration")] = WebPageWords::tr("Misfit of every iteration");
  words[QStringLiteral("residualMs")] = WebPageWords::tr("Computed minus measured [ms]");
  words[QStringLiteral("rms")] = WebPageWords::tr("RMS [ms]");
  words[QStringLiteral("mean")] = WebPageWords::tr("Mean [ms]");
  words[QStringLiteral("picksColumn")] = WebPageWords::tr("Picks");
  words[QStringLiteral("rmsMs")] = WebPageWords::tr("RMS %1 ms");
  words[QStringLiteral("meanMs")] = WebPageWords::tr("mean %1 ms");
  words[QStringLiteral("picks")] = WebPageWords::tr("picks: %1");
  words[QStringLiteral("iterations")] = WebPageWords::tr("Iteration");
  words[QStringLiteral("iteration")] = WebPageWords::tr("Iteration %1");
  words[QStringLiteral("ofSection")] = WebPageWords::tr("Section, RMS [ms]");
  words[QStringLiteral("ofPass")] = WebPageWords::tr("Last solver pass, RMS [ms]");
  words[QStringLiteral("reciprocity")] = WebPageWords::tr("Times there and back");
  words[QStringLiteral("there")] = WebPageWords::tr("There [ms]");
  words[QStringLiteral("back")] = WebPageWords::tr("Back [ms]");
  words[QStringLiteral("difference")] = WebPageWords::tr("Difference [ms]");
  words[QStringLiteral("shotPair")] = WebPageWords::tr("Shots %1 and %2");
  words[QStringLiteral("thereMs")] = WebPageWords::tr("there %1 ms");
  words[QStringLiteral("backMs")] = WebPageWords::tr("back %1 ms");
  words[QStringLiteral("differenceMs")] = WebPageWords::tr("difference %1 ms");
}

void addPage(QJsonObject& words) {
  words[QStringLiteral("distance")] = FigureWords::distanceAxis();
  words[QStringLiteral("elevation")] = FigureWords::elevationAxis();
  words[QStringLiteral("time")] = FigureWords::timeAxis();
  words[QStringLiteral("channel")] = FigureWords::channelAxis();
  words[QStringLiteral("numbers")] = WebPageWords::tr("The numbers of this figure");
  words[QStringLiteral("close")] = WebPageWords::tr("Close");
  words[QStringLiteral("tools")] = WebPageWords::tr("Page");
  words[QStringLiteral("dark")] = WebPageWords::tr("Dark");
  words[QStringLiteral("light")] = WebPageWords::tr("Light");
  words[QStringLiteral("picksCsv")] = WebPageWords::tr("Picks as CSV");
  words[QStringLiteral("sectionCsv")] = WebPageWords::tr("Section as CSV");
  words[QStringLiteral("mapText")] = WebPageWords::tr("Map of the line");
  words[QStringLiteral("north")] = WebPageWords::tr("N", "north");
  words[QStringLiteral("firstGeophone")] = WebPageWords::tr("First geophone");
  words[QStringLiteral("lastGeophone")] = WebPageWords::tr("Last geophone");
  words[QStringLiteral("openMap")] = WebPageWords::tr("Open the place in a map service");
}

}  // namespace

QJsonObject words() {
  QJsonObject words;
  addPage(words);
  addSection(words);
  addTimes(words);
  addMisfit(words);
  return words;
}

}  // namespace talvesk::web
