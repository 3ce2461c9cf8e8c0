#pragma once

#include <QString>
#include <functional>

class QwtPlot;

namespace talvesk {

/// Whether a title says that what it stands for is shown in feet: "Distance [ft]", "Velocity
/// (ft/s)".
bool namesFeet(const QString& title);

/// Makes an axis count in the unit that its title names. What is plotted, and the ends of the
/// scale, stay metres or m/s; marks lie at round numbers of what is shown, and carry these. So a
/// title and the numbers below it can never differ. An axis in metres is as it would be without.
/// \param number writes a number; default: as the locale has it
void setShownScale(QwtPlot& plot, int axis, std::function<QString(double)> number = {});

}  // namespace talvesk
