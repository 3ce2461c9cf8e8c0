#pragma once

#include <QEvent>

class QwtPlot;

namespace talvesk {

/// Gives a small plot the frame, fonts and background of the others, from its widget's palette and
/// font. The items are dressed by who owns them.
void dressPlot(QwtPlot& plot);

/// What a plot does when its widget's language changes, and when its colours, font or style do.
template <typename Retranslate, typename Dress>
void followChange(const QEvent& event, Retranslate retranslate, Dress dress) {
  switch (event.type()) {
    case QEvent::LanguageChange:
      retranslate();
      break;
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
      dress();
      break;
    default:
      break;
  }
}

}  // namespace talvesk
