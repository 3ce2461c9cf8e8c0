#pragma once

#include "view/SectionScene.h"

#include <QCoreApplication>
#include <QString>
#include <cstddef>

namespace talvesk {

/// The words on figures, in the language of the program. Numbers look the same in every language.
struct FigureWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::FigureWords)

 public:
  static QString quantity(SectionQuantity quantity);
  /// With its unit: "Velocity [m/s]".
  static QString quantityAxis(SectionQuantity quantity);
  static QString distanceAxis() { return tr("Distance [m]"); }
  static QString elevationAxis() { return tr("Elevation [m]"); }
  static QString timeAxis() { return tr("Time [ms]"); }
  static QString channelAxis() { return tr("Channel"); }

  static QString traces(std::size_t count);
  static QString picks(std::size_t count);
  static QString shots(std::size_t count);
  static QString computedTimes(std::size_t count);
  static QString misfit(const SectionMisfit& misfit);  ///< "RMS misfit 1.21 ms, 2.34 %"
  static QString lastPassMisfit(double percent);       ///< of the solver, before its last smoothing
  static QString picksChanged();                       ///< since the section was inverted from them
  static QString refractor(std::size_t index);         ///< "Refractor 1" for 0, the shallowest
  static QString oldRefractor(std::size_t index);      ///< the same of a profile of other picks

  /// What a reader must know of a section beside its axes: values shown, contour distance, number
  /// of rays, misfit, and a vertical exaggeration (height of a metre over its width) other than 1.
  static QString sectionCaption(const SectionScene& scene, double verticalExaggeration);
  /// Puts parts of a caption into one line.
  static QString joined(const QStringList& parts);
};

}  // namespace talvesk
