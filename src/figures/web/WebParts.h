#pragma once

#include "base/Point2D.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <vector>

// The parts of what a web page shows. Lengths and velocities are in the unit that is shown: the
// page makes round numbers of them by itself. An object or a list without anything in it: there is
// none.

namespace talvesk {

class TomoDocument;
struct ReportOptions;
struct ReportSource;

namespace web {

/// Cells, layers and what else lies in the section.
QJsonObject sectionData(const ReportSource& source, const ReportOptions& options);
/// Of every shot, by receiver: lists of whole hundredths of the unit shown, x and elevation of the
/// first point, then steps to the next; an empty list where there is none.
QJsonArray rayData(const TomoDocument& document);
/// Picks and computed times, shot by shot.
QJsonArray shotData(const TomoDocument& document);
/// Traces thinned for the screen, in the order of the shots; null for a shot without recordings.
QJsonArray gatherData(const TomoDocument& document);
/// Per shot, per geophone and per iteration.
QJsonObject misfitData(const TomoDocument& document);
QJsonArray reciprocityData(const TomoDocument& document);
/// The line in its own coordinates.
QJsonObject mapData(const TomoDocument& document);
/// What figures and controls say.
QJsonObject words();

/// A number with at most so many places; null for what is none.
QJsonValue rounded(double value, int places);
QJsonArray rounded(const std::vector<double>& values, int places);
/// x and z in the unit that is shown, one after the other. \param points metres
QJsonArray rounded(const std::vector<Point2D>& points, int places);

}  // namespace web
}  // namespace talvesk
