#pragma once

#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "processing/ShotFilters.h"
#include "processing/Spectrum.h"

#include <QDialog>
#include <cstdint>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class doFilteringDialog;
}
struct TraceViewOptions;

/// Filters the traces of a shot, and shows spectrum and traces before and after. It works on a copy
/// of the traces; "Apply" filters that copy and puts the result into the document.
class doFilteringDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog \param shot trace set, from 0, that exists
  /// \param alsoShots get the same filter, each relative to its own spectrum; the shot itself may
  /// be among them
  doFilteringDialog(TomoDocument& document, std::int32_t shot,
                    const std::vector<std::int32_t>& alsoShots = {}, QWidget* parent = nullptr);
  ~doFilteringDialog() override;

  /// How the traces are drawn; what concerns filtered copies and picks is the dialog's own.
  void setTraceOptions(const TraceViewOptions& options);

  /// Whether traces of the document have a new filtered copy.
  bool changedDocument() const { return mChangedDocument; }
  /// The frequency that corners are relative to, Hz.
  double highestFrequency() const { return mHighest.value(); }

 private slots:
  void on_button_apply_filter_clicked();

 private:
  void connectControls();
  void describeShot();
  TraceSet& workingTraces() { return mCopy.recordings.edit().traceSets.front(); }
  void makeWorkingCopy();
  void showWorkingCopy();
  void showCorners();
  BandFilter filter() const;
  bool mayFilter(const BandFilter& wanted);
  void noteStep(const BandFilter& wanted);  ///< in what the project remembers of the copies
  FilterOutcome filterOthers(const BandFilter& wanted);
  void copyBack(const TraceSet& traces, std::int32_t shot);
  void showFiltered();

  std::unique_ptr<Ui::doFilteringDialog> mUi;
  TomoDocument& mDocument;
  std::int32_t mShot;
  std::vector<std::int32_t> mOthers;
  TomoDocument mCopy;  ///< of the shot alone, so that the trace view can show it
  HighestFrequency mHighest;
  bool mChangedDocument = false;
};

}  // namespace talvesk
