#include "app/LossQuestion.h"

#include "app/Messages.h"
#include "model/GroundModel.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <QCoreApplication>

namespace talvesk {
namespace {

class LossQuestion {
  Q_DECLARE_TR_FUNCTIONS(talvesk::LossQuestion)
 public:
  static QStringList words(const TomoDocument& document, const Losses& losses);
  static bool ask(QWidget* parent, const QStringList& words);
};

QStringList LossQuestion::words(const TomoDocument& document, const Losses& losses) {
  QStringList words;
  const bool results = document.result->has_tomographic_info;
  if (losses.model == ModelLoss::kGrid) {
    if (results) {
      words << tr("the grid and the results of the inversion");
    } else if (document.model->grid) {
      words << tr("the grid");
    }
  } else if (losses.model == ModelLoss::kResults && results) {
    words << tr("the results of the inversion; the grid stays");
  }
  if (losses.startingModel && !document.model->layers.empty()) {
    words << tr("the layers of the starting model");
  }
  if (losses.interpretation) words << tr("the refraction interpretation");
  return words + losses.others;
}

bool LossQuestion::ask(QWidget* parent, const QStringList& words) {
  return askYesNo(
      parent, tr("Warning"), tr("The survey changes. This will be removed (Undo brings it back):"),
      words.join(QLatin1Char('\n')) + QStringLiteral("\n\n") + tr("Do you want to continue?"),
      false);
}

}  // namespace

bool mayLose(QWidget* parent, const TomoDocument& document, const Losses& losses) {
  const QStringList words = LossQuestion::words(document, losses);
  return words.isEmpty() || LossQuestion::ask(parent, words);
}

bool isInterpreted(const refractionDataStructure::Interpretation& interpretation) {
  return !interpretation.phnt_A.empty() || !interpretation.phnt_R.empty() ||
         !interpretation.refractData.cData.empty();
}

}  // namespace talvesk
