#pragma once

#include "io/SurveyedTable.h"
#include "model/SurveyedPositions.h"

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

class QComboBox;

namespace talvesk {

namespace Ui {
class SurveyedPositionsDialog;
}
class SurveyedPointsTable;

/// Shows what a table of surveyed positions makes of a line before anything of it is taken: the
/// columns, the line laid through the geophones, distances and elevations before and after, offsets
/// across, and what looks wrong. It changes nothing; after OK, outcome() is what the user means.
class SurveyedPositionsDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog, which only reads it
  /// \param interpreted a layered interpretation hangs on the positions as they are
  SurveyedPositionsDialog(const TomoDocument& document, bool interpreted,
                          QWidget* parent = nullptr);
  ~SurveyedPositionsDialog() override;

  /// \param name of its file, for the user
  void setTable(SurveyedTable table, const QString& name);
  const SurveyedOutcome& outcome() const { return *mOutcome; }  ///< once accepted

  void accept() override;  ///< asks before results are lost

 signals:
  void otherTableWanted();

 private:
  void setUpChoices();
  void connectChoices();
  void showColumns();
  void showPreview();
  void chooseSeparator();
  void chooseColumns();
  SurveyedColumns columns() const;
  std::optional<SurveyedOptions> options();
  void refresh();
  Status place();
  void showOutcome();
  void showPlans(const std::vector<std::size_t>& doubtful);
  void showFindings();
  QString summary() const;
  QString systemText() const;
  QString mapText() const;
  void selectPoint(std::size_t point);

  std::unique_ptr<Ui::SurveyedPositionsDialog> mUi;
  const TomoDocument& mDocument;
  bool mInterpreted;
  SurveyGeometry mBefore;
  SurveyedTable mTable;
  SurveyedReading mReading;
  std::optional<SurveyedOutcome> mOutcome;  ///< none while the table makes no line
  SurveyedPointsTable* mPoints;
  bool mStationsChosen = false;  ///< by the user, not for the table
};

}  // namespace talvesk
