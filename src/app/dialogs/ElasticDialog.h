#pragma once

#include "figures/ElasticFigure.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"
#include "refraction/elastic/ElasticLine.h"
#include "refraction/elastic/LayeredWave.h"

#include <QDialog>
#include <QString>
#include <functional>
#include <memory>

class QDoubleSpinBox;

namespace talvesk {

namespace Ui {
class ElasticDialog;
}
class FigureSheetWidget;

/// A survey of one kind of wave with its layered interpretation.
struct ElasticSurvey {
  QString name;  ///< as users know it
  TomoDocument document;
  refractionDataStructure::Interpretation interpretation;
};

/// The layered interpretations of two surveys, P and S, as Vp/Vs, Poisson's ratio and moduli along
/// the line: curves, table and what does not fit. Changes nothing.
class ElasticDialog : public QDialog {
  Q_OBJECT

 public:
  ElasticDialog(ElasticSurvey own, ElasticSurvey other, QWidget* parent = nullptr);
  ~ElasticDialog() override;

  /// Takes another survey for the other wave, and guesses anew which of the two is of S.
  void setOther(ElasticSurvey other);

  /// Asked for another survey, and to write or print what is shown.
  std::function<void()> otherWanted;
  std::function<void(const ElasticLine&, const ElasticFigureOptions&)> pictureWanted;
  std::function<void(const ElasticLine&, const ElasticFigureOptions&)> printWanted;
  std::function<void(const ElasticLine&)> tableWanted;

 private:
  /// A survey and its layers, which are read once.
  struct Side {
    ElasticSurvey survey;
    LayeredWave layers;
    bool picksChanged = false;  ///< since they were built
  };

  void connectAll();
  void read(Side& side, const std::function<bool()>& goOn) const;
  void readBoth();
  void guessRoles();
  void match();
  void fillLayers();
  void show();
  void showTable();
  void copyTable() const;
  QString notes(const Status& status) const;
  ElasticOptions options() const;
  ElasticFigureOptions picture() const;
  const Side& p() const;
  const Side& s() const;

  std::unique_ptr<Ui::ElasticDialog> mUi;
  Side mOwn;
  Side mOther;
  ElasticLine mLine;  ///< without layers where the two cannot be matched
  FigureSheetWidget* mSheet;
};

}  // namespace talvesk
