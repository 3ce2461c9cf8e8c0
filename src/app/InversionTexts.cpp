#include "app/InversionTexts.h"

#include "app/MessageText.h"
#include "model/ChiSquare.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "tomo/fitted/References.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <cmath>

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

/// Hundredths, but none of a number that has none.
QString rounded(double value) {
  return general(std::round(100.0 * value) / 100.0 + 0.0);  // no -0
}

QString rmsOf(const SectionMisfit& misfit) {
  return Words::tr("RMS: [ms] %1; [%] %2\n")
      .arg(general(misfit.rmse * 1000.0), general(misfit.relativeRms * 100.0));
}

/// What chi-square counts, where that is not all picks as they are.
QString trustedText(const TomoDocument& document, const ChiSquare& fit) {
  if (fit.suspects.empty() && !fit.shifted) return {};
  const QString what = fit.suspects.empty() ? Words::tr("With the time shifts of shots")
                       : fit.shifted ? Words::tr("Without suspects, with the time shifts of shots")
                                     : Words::tr("Without suspects");
  return what + QStringLiteral(", ") + rmsOf(trustedMisfitOf(document));
}

QString ofSection(const TomoDocument& document) {
  const SectionMisfit misfit = sectionMisfitOf(document);
  if (misfit.count == 0) return {};
  const ChiSquare fit = sectionChiSquareOf(document);
  return Words::tr("Section, along fresh rays\n") + Words::tr("All picks as they are, ") +
         rmsOf(misfit) + trustedText(document, fit) +
         Words::tr("Chi-square: %1; of all picks %2; suspect picks %3\n")
             .arg(general(fit.chi2, 3), general(fit.all, 3))
             .arg(fit.suspects.size()) +
         Words::tr("Mean: [ms] %1\n").arg(general(misfit.bias * 1000.0)) +
         Words::tr("Largest difference: [ms] %1; shot %2, receiver %3\n")
             .arg(general(misfit.maxAbs * 1000.0))
             .arg(misfit.maxShot + 1)
             .arg(misfit.maxReceiver + 1) +
         QLatin1Char('\n');
}

/// How the section goes with what it was held to, and what could not be.
QString knownText(const KnownFit& known) {
  const std::vector<KnownFit::Departure> missed = known.missed();
  QString text = Words::tr("Known ground: %1 conditions, RMS %2 of their errors; fixed cells %3\n")
                     .arg(known.all.size())
                     .arg(general(known.rms(), 3))
                     .arg(known.fixedCells);
  for (const KnownFit::Departure& each : missed) {
    text += Words::tr("The section does not go with %1: off by %2 of its errors\n")
                .arg(textOf(each.name), general(each.inErrors, 3));
  }
  for (const Message& unused : known.unused) text += textOf(unused) + QLatin1Char('\n');
  return text;
}

}  // namespace

QString sectionMisfitText(const TomoDocument& document) {
  const SectionMisfit misfit = sectionMisfitOf(document);
  if (misfit.count == 0) return {};
  const ChiSquare fit = sectionChiSquareOf(document);
  QString text = fit.shifted ? Words::tr(
                                   "Misfit of the section: RMS %1 ms (%2 %), chi-square %3 "
                                   "with the time shifts of shots.")
                             : Words::tr("Misfit of the section: RMS %1 ms (%2 %), chi-square %3.");
  text = text.arg(general(misfit.rmse * 1000.0, 3), general(misfit.relativeRms * 100.0, 3),
                  general(fit.chi2, 3));
  if (!fit.shifted && fit.suspects.empty()) return text;
  return text + QLatin1Char(' ') +
         Words::tr("RMS of what chi-square counts: %1 ms.")
             .arg(general(trustedMisfitOf(document).rmse * 1000.0, 3));
}

QString inversionResultsText(const TomographyResult& result, const TomoDocument& document) {
  const Misfit& misfit = result.misfit;
  QString text = ofSection(document);
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

QString fitResultsText(const FittedRunResult& result, const TomoDocument& document) {
  QString text = textOf(result.outcome) + QStringLiteral("\n\n") + ofSection(document);
  text += Words::tr("Iterations: %1\n").arg(result.run.iterationsDone) +
          Words::tr("Weight of the roughness: %1\n").arg(general(result.lambda, 3)) +
          Words::tr("Started from and held to: %1\n").arg(referenceText(result.reference)) +
          Words::tr("Computing time: [s] %1\n").arg(general(result.run.computingSeconds, 3));
  if (result.known) text += knownText(*result.known);
  const QString shifts = shiftsText(result.statics);
  return shifts.isEmpty() ? text : text + Words::tr("Time shifts of shots: [ms] %1\n").arg(shifts);
}

QString shiftsText(const std::vector<double>& shifts) {
  QStringList texts;
  for (std::size_t i = 0; i < shifts.size(); ++i) {
    if (!std::isfinite(shifts[i])) continue;
    texts += Words::tr("shot %1: %2").arg(i + 1).arg(rounded(1000.0 * shifts[i]));
  }
  return texts.join(QStringLiteral(", "));
}

QString referenceText(const std::string& key) {
  if (key == kBestReference) return Words::tr("Best of the picks' models");
  const std::optional<ReferenceKind> kind = referenceKindOf(key);
  return kind ? textOf(nameOf(*kind)) : QString::fromStdString(key);
}

}  // namespace talvesk
