#include "app/InversionTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace talvesk {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(talvesk::InversionTexts)
};

QString general(double value, int digits = 6) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'g', digits);
}

QString ofSection(const SectionMisfit& misfit) {
  return Words::tr("Section, along fresh rays\n") +
         Words::tr("RMS: [ms] %1; [%] %2\n")
             .arg(general(misfit.rmse * 1000.0), general(misfit.relativeRms * 100.0)) +
         Words::tr("Mean: [ms] %1\n").arg(general(misfit.bias * 1000.0)) +
         Words::tr("Largest difference: [ms] %1; shot %2, receiver %3\n")
             .arg(general(misfit.maxAbs * 1000.0))
             .arg(misfit.maxShot + 1)
             .arg(misfit.maxReceiver + 1) +
         QLatin1Char('\n');
}

}  // namespace

QString sectionMisfitText(const SectionMisfit& misfit) {
  if (misfit.count == 0) return {};
  return Words::tr("Misfit of the section: RMS %1 ms (%2 %).")
      .arg(general(misfit.rmse * 1000.0, 3), general(misfit.relativeRms * 100.0, 3));
}

QString inversionResultsText(const TomographyResult& result) {
  const Misfit& misfit = result.misfit;
  QString text;
  if (result.sectionMisfit.count > 0) text = ofSection(result.sectionMisfit);
  if (result.coarseToFine) {
    text += Words::tr("From coarse to fine: iteration %1 of %2 is kept, smoothing parameter %3\n")
                .arg(result.coarseToFine->kept)
                .arg(result.iterationsDone)
                .arg(result.coarseToFine
                         ->radii[static_cast<std::size_t>(result.coarseToFine->kept - 1)]) +
            QLatin1Char('\n');
  }
  text += Words::tr("Computing time: [s] %1\n").arg(general(result.computingSeconds)) +
          QLatin1Char('\n') + Words::tr("Last solver pass\n");
  return text + Words::tr("Elapsed time: [s] %1\n").arg(general(result.elapsedSeconds)) +
         Words::tr("RMSE: [ms] %1; [%] %2\n")
             .arg(general(misfit.rmse * 1000.0), general(misfit.relativeRms * 100.0)) +
         Words::tr("MaxError: [ms] %1; [%] %2\n")
             .arg(general(misfit.maxError * 1000.0), general(misfit.maxRelativeError * 100.0));
}

}  // namespace talvesk
