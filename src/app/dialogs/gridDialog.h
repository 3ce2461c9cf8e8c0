#pragma once

#include "grid/SurveyProfile.h"
#include "tomo/GridPreview.h"
#include "tomo/GridSetup.h"

#include <QDialog>
#include <QStringList>
#include <memory>
#include <optional>

class QPushButton;

namespace talvesk {

class LengthBox;

namespace Ui {
class gridDialog;
}

/// Asks for depth, cell size and nodes of a grid, and tells while they change what grid they make.
class gridDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param survey that the grid is for; it outlives the dialog \param profile of the survey
  /// \param proposed what the fields show; a value beyond a field's range is shown as its limit.
  /// "Propose" goes between that cell size and the one of the grid that the survey has
  /// \param searches how many ray searches will run at once
  gridDialog(const TomoDocument& survey, const SurveyProfile& profile, const GridSettings& proposed,
             unsigned searches, QWidget* parent = nullptr);
  ~gridDialog() override;

  /// Values that were not edited are those that were proposed, with digits that no field shows.
  GridSettings settings() const;

  /// Warns of a depth of 0 and of many nodes, and closes all the same.
  void accept() override;

 private:
  /// A value as a field shows it, and as it is.
  struct Value {
    double shown = 0.0;
    double exact = 0.0;
  };
  static Value fill(double exact, double most, LengthBox& box);

  void connectFields();
  void propose(bool on);
  void showPreview();
  QStringList warningsOf(const GridPreview& preview) const;
  void offer(QPushButton& button, const std::optional<double>& cellSize);

  std::unique_ptr<Ui::gridDialog> mUi;
  const TomoDocument& mSurvey;
  SurveyProfile mProfile;
  double mProposedCell;
  unsigned mSearches;
  Value mDepth;
  Value mCell;
};

}  // namespace talvesk
