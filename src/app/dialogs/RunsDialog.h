#pragma once

#include "model/TomoDocument.h"
#include "view/ColorPalette.h"

#include <QDialog>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

class QAction;
class QTableWidgetItem;

namespace talvesk {

namespace Ui {
class RunsDialog;
}
class CommandButtons;

/// Lists the inversions that have been run, the latest first. It changes nothing itself: what the
/// user wants of a run, which it knows by its number, it tells.
class RunsDialog : public QDialog {
  Q_OBJECT

 public:
  explicit RunsDialog(QWidget* parent = nullptr);
  ~RunsDialog() override;

  void offerWhereEmpty(QAction& command);

  /// Lists the runs of a survey; those stay selected that were. \param palette of the thumbnails
  void setRuns(const TomoDocument& document, const ColorPalette& palette);

 signals:
  void useWanted(unsigned number);
  /// Empty: none. Told while the list takes the name in; it can be filled anew afterwards.
  void nameWanted(unsigned number, const QString& name);
  void deleteWanted(const std::vector<unsigned>& numbers);
  void comparisonWanted(unsigned left, unsigned right);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fillRow(int row, std::size_t run);
  void selectNumbers(const std::vector<unsigned>& numbers);
  std::vector<unsigned> selected() const;  ///< numbers, from the top of the list
  void showSelection();
  void use();
  void rename();
  void remove();
  void compare();
  void takeName(QTableWidgetItem* item);

  std::unique_ptr<Ui::RunsDialog> mUi;
  CommandButtons* mWays;  ///< of a list that is empty
  TomoDocument mDocument;
  ColorPalette mPalette;
  unsigned mShown = 0;    ///< number of the run in use; 0: none
  bool mFilling = false;  ///< what changes in the table is no wish of the user
};

}  // namespace talvesk
