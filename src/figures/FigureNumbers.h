#pragma once

#include <QLocale>
#include <QString>
#include <string>

namespace talvesk {

/// How numbers are written on pictures, on printed sheets and in reports, which people read: as the
/// language of the program does, but without marks between thousands. A program without windows has
/// the C locale, and so have files that programs read.
QLocale figureLocale();

/// A number as formatDouble() writes it, with the decimal sign of a locale.
QString withSignOf(const QLocale& locale, const std::string& digits);

/// The same with that of figures.
QString figureDigits(const std::string& digits);

}  // namespace talvesk
