#include "app/RunTexts.h"

#include "app/InversionTexts.h"
#include "app/LengthText.h"
#include "app/MessageText.h"
#include "figures/ShownLength.h"
#include "model/ChiSquare.h"
#include "model/KeptRuns.h"
#include "model/TomoDocument.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QStringList>

namespace talvesk {
namespace {

struct RunTexts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::RunTexts)
};

QString number(double value) {
  return QLocale().toString(value, 'g', 6);
}

}  // namespace

QString runTitle(const KeptRun& run) {
  return textOf(run.title());
}

QString runMethod(const KeptRun& run) {
  return run.record.fit ? RunTexts::tr("Fitted to errors") : RunTexts::tr("Smoothed");
}

QString runFigure(double value, bool known) {
  return known ? QLocale().toString(value, 'g', 3) : QStringLiteral("\u2013");
}

QString runErrors(const KeptRun& run) {
  const PickErrorRule rule = errorRuleOf(run.record);
  return RunTexts::tr("%1 ms or %2 %").arg(number(rule.floor * 1000.0), number(rule.share * 100.0));
}

QString runTime(const KeptRun& run) {
  const QDateTime when = QDateTime::fromString(QString::fromStdString(run.when), Qt::ISODate);
  return when.isValid() ? QLocale().toString(when.toLocalTime(), QLocale::ShortFormat) : QString();
}

QString runSettings(const KeptRun& run) {
  const InversionRecord& record = run.record;
  QStringList words;
  words += RunTexts::tr("%1 rows and %2 columns of %3")
               .arg(run.size.righe)
               .arg(run.size.col)
               .arg(withLengthUnit(lengthText(run.size.aLato)));
  words += RunTexts::tr("velocities from %1 to %2")
               .arg(lengthDigits(record.minVelocity, 6),
                    withVelocityUnit(lengthDigits(record.maxVelocity, 6)));
  words += RunTexts::tr("errors of %1").arg(runErrors(run));
  if (record.fit) {
    words += RunTexts::tr("from \"%1\"").arg(referenceText(record.fit->reference));
    words += record.fit->robust ? RunTexts::tr("robust") : RunTexts::tr("not robust");
    if (record.fit->blocky) words += RunTexts::tr("blocky");
    if (record.fit->statics) {
      words += RunTexts::tr("with shot statics, trigger error %1 ms")
                   .arg(number(record.fit->triggerError * 1000.0));
    }
    if (record.fit->known != 0) words += RunTexts::tr("held to known ground");
    words += RunTexts::tr("suspect picks: %1").arg(record.fit->suspects);
  } else {
    words += RunTexts::tr("%1 solver iterations").arg(record.solverIterations);
    words += RunTexts::tr("smoothing parameter %1").arg(record.smoothing);
    if (record.symmetric) words += RunTexts::tr("symmetric");
    if (record.coarseToFine > 0) words += RunTexts::tr("from coarse to fine");
  }
  if (record.stopped) words += RunTexts::tr("stopped by the user");
  return words.join(QStringLiteral("; "));
}

QString runRemarks(const KeptRun& run, const TomoDocument& document) {
  const RunChanges changes = changesSince(run, document);
  QStringList words;
  if (changes.picks) words += RunTexts::tr("picks have changed since");
  if (changes.ground) {
    words += RunTexts::tr("the surface or the ends of the line have changed since");
  } else if (changes.positions) {
    words += RunTexts::tr("positions have changed since");
  }
  return words.join(QStringLiteral("; "));
}

}  // namespace talvesk
