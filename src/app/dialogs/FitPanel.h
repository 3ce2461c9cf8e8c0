#pragma once

#include "app/BackgroundReferences.h"
#include "model/TomoDocument.h"
#include "tomo/fitted/FittedRun.h"
#include "tomo/fitted/GivenModels.h"

#include <QTimer>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

namespace talvesk {

namespace Ui {
class FitPanel;
}

/// Asks how a section is to be fitted to the errors of its picks, and from which model. It makes
/// the models beside the window as soon as it is shown, and again when what they depend on changes.
class FitPanel : public QWidget {
  Q_OBJECT

 public:
  explicit FitPanel(QWidget* parent = nullptr);
  ~FitPanel() override;

  /// \param document holds a grid; it is copied \param given models from outside to choose from,
  /// too
  void setDocument(const TomoDocument& document, std::vector<GivenModel> given = {});
  FittedSettings settings() const;  ///< the reference is a key of References.h
  bool limitsCross() const;         ///< the least velocity is not below the greatest
  bool modelsKnown() const;         ///< and traced, as what is chosen here has them

 signals:
  void changed();     ///< a limit of the velocities
  void modelsMade();  ///< and traced; or they cannot be

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Row;

  void setUpFields();
  void connectAll();
  void showErrors();
  void makeModelsSoon();
  void makeModels();
  void takeModels();
  std::vector<Row> rows() const;
  void fillTable();
  void drawCurves();
  std::string chosen() const;
  std::string drawn() const;

  std::unique_ptr<Ui::FitPanel> mUi;
  TomoDocument mDocument;
  std::vector<GivenModel> mGiven;
  BackgroundReferences mMaker;
  References mReferences;  ///< those that are shown
  QTimer mWait;            ///< until a value has been typed
  bool mBegun = false;
};

}  // namespace talvesk
