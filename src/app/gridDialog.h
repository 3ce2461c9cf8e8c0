#pragma once

#include "grid/SurveyProfile.h"
#include "tomo/GridSetup.h"

#include <QDialog>
#include <memory>

namespace talvesk {

namespace Ui {
class gridDialog;
}

/// Asks for depth, cell size and nodes of a grid, and tells while they change what grid they make.
class gridDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param profile of the survey \param proposed what the fields show; a value below a field's
  /// range is shown as its minimum \param searches how many ray searches will run at once
  gridDialog(const SurveyProfile& profile, const GridSettings& proposed, unsigned searches,
             QWidget* parent = nullptr);
  ~gridDialog() override;

  GridSettings settings() const;

  /// Says that a new grid forgets the results of an inversion.
  void setForgetsResults(bool forgets);

  /// Warns of a depth of 0 and of many nodes, and closes all the same.
  void accept() override;

 private:
  void showPreview();

  std::unique_ptr<Ui::gridDialog> mUi;
  SurveyProfile mProfile;
  unsigned mSearches;
  bool mForgetsResults = false;
};

}  // namespace talvesk
