#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/BuildProfiles.h"
#include "refraction/LayeredFit.h"
#include "refraction/MarkEdits.h"
#include "refraction/ShotArrivals.h"
#include "refraction/SurveyProposal.h"

#include <QDialog>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QUndoStack;

namespace talvesk {

namespace Ui {
class RefractionProcessingDialog;
}
class BackgroundFit;
class TomoDocument;
struct MethodComparison;
struct ProfileErrors;

/// Turns picks into layers: marks on the travel-time curves, phantom arrivals, tV and tG,
/// velocities and the section of layers. It works on a copy of the interpretation, which the caller
/// takes when the dialog was accepted.
class RefractionProcessingDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog
  RefractionProcessingDialog(const TomoDocument& document,
                             const refractionDataStructure::Interpretation& interpretation,
                             QWidget* parent = nullptr);
  ~RefractionProcessingDialog() override;

  const refractionDataStructure::Interpretation& interpretation() const { return mWork; }
  QUndoStack* undoStack() const { return mUndo; }
  bool profileBuilt() const { return mBuilt; }  ///< since the dialog was opened
  /// Of the profile as it is shown; null where none were found.
  std::shared_ptr<const ProfileErrors> profileErrors() const;
  /// Whether marks differ from those that it was opened with, or curves or a profile were built.
  bool hasChanges() const;

  /// Asked to write the layers by several methods that are shown.
  std::function<void(const MethodComparison&)> methodsPictureWanted;
  std::function<void(const MethodComparison&)> methodsTableWanted;

 public slots:
  /// Escape and closing the window: asks when marks, curves or a profile would be lost. The button
  /// Cancel does not ask.
  void reject() override;

 private slots:
  void on_proposeButton_clicked();
  void on_proposeSurveyButton_clicked();
  void on_clearButton_clicked();
  void on_enabledCheck_clicked(bool checked);
  void on_pushAutoPhantButton_clicked();
  void on_buildButton_clicked();
  void on_profileCombo_activated(int index);
  void on_methodsButton_clicked();
  void on_refractorCombo_activated(int index);
  void on_xyCombo_activated(int index);

 private:
  using Marks = std::vector<refractionDataStructure::layerStruct>;

  // Set-up
  void nameThings();
  void fillChoosers();
  void connectCurves();

  // Marks
  void chooseShot(int shot);
  void mark(const std::vector<TraceRef>& picks, int layer);
  void changeMarks(const QString& text, const Marks& after);
  void marksChanged();
  bool marksAreProposed() const;  ///< those of the last proposal over the survey
  void showProposal();
  void showReading(const BranchReading* reading);
  void refreshShot();

  // Results
  bool build(std::vector<RefractionWarning> told);
  void findFit();
  void showFit();
  void showNotes();
  void tell(const std::vector<RefractionWarning>& warnings,
            const std::vector<RefractionWarning>& known);
  void showPhantoms();
  void showShifts();
  void showFunctions();
  void fillXY(std::uint32_t refractor);
  void takeXY(double xy);
  void followErrors();
  void showProfile();
  void showResults();

  // A profile that is fitted to all picks
  bool wantsFitted() const;
  void chooseFitted(bool fitted);
  bool buildFitted();
  void showStale();
  void showEmptyTexts();

  std::unique_ptr<Ui::RefractionProcessingDialog> mUi;
  const TomoDocument& mDocument;
  refractionDataStructure::Interpretation mWork;
  std::vector<ShotArrivals> mShots;
  std::vector<RefractionWarning> mWarnings;  ///< of the last build
  std::optional<SurveyProposal> mProposal;   ///< that the marks were last replaced by
  std::optional<SurveyProposal> mJudge;      ///< whose waves the fit of the profile is held against
  LayeredFit mFit;  ///< of the profiles as they were built or opened; empty until it is found
  BackgroundFit* mFitting;
  QUndoStack* mUndo;
  bool mBuilt = false;
  bool mPhantomed = false;  ///< the curves are not those that it was opened with
  bool mStale = false;      ///< marks are not those that the results were built from
};

}  // namespace talvesk
