#pragma once

#include "app/BackgroundCheck.h"
#include "doctor/Finding.h"
#include "session/TakeProposals.h"

#include <QDialog>
#include <memory>
#include <vector>

class QPushButton;

namespace talvesk {

namespace Ui {
class CheckDialog;
}

/// Lists what is doubtful about the recordings, draws what shows it, and asks which of the proposed
/// mends to take. It changes nothing itself.
class CheckDialog : public QDialog {
  Q_OBJECT

 public:
  explicit CheckDialog(QWidget* parent = nullptr);
  ~CheckDialog() override;

  /// Looks through a survey and lists what is found; the dialog answers meanwhile. What the user
  /// has left out before, and is found again, stays left out. None is under way.
  /// \param outcome what to say above the list, of what was carried out before
  void check(const TomoDocument& document, const QString& outcome = {});

  std::vector<TakenProposal> taken() const;  ///< altered as the user has them

 signals:
  void carryOutWanted();
  void shotWanted(int shot);  ///< from 0, to be shown in the window

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Row;

  void connectAll();
  void listFindings();
  void takeOver(std::vector<doctor::Finding> findings);
  void fillTable();
  void fillRow(int row);
  void showFinding();
  void showFigure();
  void alterFigure(double value);
  void toggleSelected();
  void summarize();
  Row* current();

  std::unique_ptr<Ui::CheckDialog> mUi;
  BackgroundCheck mCheck;
  std::vector<Row> mRows;  ///< as the table has them
  QPushButton* mCarryOut;
  QString mOutcome;
};

}  // namespace talvesk
