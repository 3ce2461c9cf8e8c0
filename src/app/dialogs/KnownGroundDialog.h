#pragma once

#include "model/KnownGround.h"

#include <QDialog>
#include <memory>
#include <vector>

class QLabel;

namespace talvesk {

namespace Ui {
class KnownGroundDialog;
}
class KnownSession;
class KnownTable;
class SpreadsheetView;

/// Edits what is known of the ground from elsewhere than the picks, in three tables that are typed
/// into. It changes a copy; after OK, known() is what the user means.
class KnownGroundDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param remark said above the tables: what the section has to do with it; may be empty
  KnownGroundDialog(const KnownGround& known, const QString& remark, QWidget* parent = nullptr);
  ~KnownGroundDialog() override;

  const KnownGround& known() const { return mKnown; }  ///< of the last accept()
  void take(const KnownGround& known);                 ///< in place of all there is; can be undone
  /// Nothing, with the mistake shown, where what stands there cannot be.
  bool checked();

  void accept() override;  ///< refuses what cannot be
  void reject() override;  ///< asks before edits are lost

 signals:
  void importWanted();
  void exportWanted();

 private:
  void setUpTable(SpreadsheetView& view, int kind);
  void refresh();
  void say(const QString& text, bool refused);
  void addRow();
  void removeRows();

  std::unique_ptr<Ui::KnownGroundDialog> mUi;
  std::unique_ptr<KnownSession> mSession;
  std::vector<KnownTable*> mTables;      ///< as the tabs
  std::vector<SpreadsheetView*> mViews;  ///< the same
  KnownGround mKnown;
};

}  // namespace talvesk
