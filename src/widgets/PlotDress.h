#pragma once

class QwtPlot;

namespace talvesk {

/// Gives a small plot the frame, fonts and background of the others, from its widget's palette and
/// font. The items are dressed by who owns them.
void dressPlot(QwtPlot& plot);

}  // namespace talvesk
