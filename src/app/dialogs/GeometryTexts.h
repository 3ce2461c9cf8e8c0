#pragma once

#include <QString>
#include <cstddef>
#include <vector>

namespace talvesk {

struct GeometryMistake;
struct SurveyGeometry;

/// Numbers and sentences of the geometry dialog, as the user writes and reads them.

/// A length as it is typed, metres; empty for NaN. Every digit that matters, no thousands marks.
QString geometryNumber(double value);

/// The same for a length, in the unit shown. \param metres none where it is not a number
QString geometryLength(double metres);

/// Reads a number as the user types it. \return whether it is one
bool readGeometryNumber(const QString& text, double& value);

bool usesDecimalComma();

/// "1-3, 6" of 0, 1, 2, 5.
QString numberRanges(const std::vector<std::size_t>& indices);

/// One sentence on what is wrong.
QString mistakeText(const GeometryMistake& mistake, const SurveyGeometry& geometry);

/// Number, string, position and file of a shot, as rich text.
QString shotDescription(const SurveyGeometry& geometry, std::size_t shot);

}  // namespace talvesk
