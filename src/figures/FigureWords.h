#pragma once

#include "base/Message.h"
#include "figures/FigureNumbers.h"
#include "figures/ShownLength.h"
#include "model/Mends.h"
#include "model/PickGrades.h"
#include "view/SectionScene.h"
#include "view/ShownUnit.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <cstdint>

namespace talvesk {

/// The words on figures, in the language of the program, as are numbers; see FigureNumbers.h.
struct FigureWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::FigureWords)

 public:
  static QString quantity(SectionQuantity quantity);
  static QString quantity(const SectionScene& scene);
  /// With its unit: "Velocity [m/s]".
  static QString quantityAxis(const SectionScene& scene);
  static QString distanceAxis() { return tr("Distance [%1]").arg(lengthUnitText()); }
  static QString elevationAxis() { return tr("Elevation [%1]").arg(lengthUnitText()); }
  static QString timeAxis() { return tr("Time [ms]"); }
  static QString channelAxis() { return tr("Channel"); }

  static QString traces(std::size_t count);
  static QString picks(std::size_t count);
  /// Milliseconds without their unit; a dash where it is not known. \param sigma seconds
  static QString pickError(double sigma, const QLocale& locale = figureLocale());
  /// "20 good, 3 doubtful, 1 of unknown error"; a dash for none.
  static QString grades(const PickGrades& grades);
  /// What error bars in a picture are.
  static QString errorBars();
  static QString shots(std::size_t count);
  static QString computedTimes(std::size_t count);
  static QString misfit(const SectionMisfit& misfit,
                        const QLocale& locale = figureLocale());  ///< "RMS misfit 1.21 ms, 2.34 %"
  /// "chi-square 1.02"; empty without a pick.
  static QString chiSquare(const ChiSquare& fit, const QLocale& locale = figureLocale());
  static QString lastPassMisfit(
      double percent,
      const QLocale& locale = figureLocale());  ///< of the solver, before its last smoothing
  static QString picksChanged();                ///< since the section was inverted from them
  /// What is put right of a shot, in a few words each: "shot disabled", "2 traces killed".
  static QStringList mends(const ShotMends& mends, const QLocale& locale = figureLocale());
  /// A message of the rooms below, translated as the window does it.
  static QString message(const Message& message, const QLocale& locale = figureLocale());
  static QString refractor(std::size_t index);     ///< "Refractor 1" for 0, the shallowest
  static QString oldRefractor(std::size_t index);  ///< the same of a profile of other picks

  /// What a value of a scene is multiplied by to be shown, and the unit then.
  static ShownUnit unitOf(const SectionScene& scene);

  /// Of a legend: "Layer 2, 1850 ± 60 m/s", without what is not known.
  static QString layer(std::uint32_t layer, double velocity, double error,
                       const QLocale& locale = figureLocale());
  static QString uncarried();    ///< what dashed lines of a profile are
  static QString profileBand();  ///< what the band round a line of a profile is
  static QString velocity(double velocity, const QLocale& locale = figureLocale());  ///< "800 m/s"
  /// What the legend calls a DepthBand, and ground that fades.
  static QString depthBand(double velocity, const QLocale& locale = figureLocale());
  static QString fading();
  /// Why a section's certainty may not be its own; as a rule nothing.
  static QStringList certaintyWarnings(const SectionScene& scene,
                                       const QLocale& locale = figureLocale());

  /// "Vertical exaggeration 2.0": height of a metre over its width; empty for 1.
  static QString exaggeration(double factor, const QLocale& locale = figureLocale());
  /// What a reader must know of a section beside its axes: values shown, contour distance, number
  /// of rays, misfit, what its certainty is, and a vertical exaggeration other than 1.
  static QStringList sectionFacts(const SectionScene& scene, double verticalExaggeration,
                                  const QLocale& locale = figureLocale());
  /// The title of a document without one: what the section shows. Empty when that is no value.
  static QString sectionTitle(const SectionScene& scene);
  /// Puts parts of a caption into one line.
  static QString joined(const QStringList& parts);
};

}  // namespace talvesk
