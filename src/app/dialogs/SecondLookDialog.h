#pragma once

#include "tomo/SecondLook.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class SecondLookDialog;
}

/// Lists what deserves a second look in a section: picks that it cannot explain, time shifts of
/// shots, ground that rays do not cross and velocities at their limits. It stays beside the window
/// and changes nothing itself.
class SecondLookDialog : public QDialog {
  Q_OBJECT

 public:
  explicit SecondLookDialog(QWidget* parent = nullptr);
  ~SecondLookDialog() override;

  void setLook(SecondLook look);
  std::vector<ShotShift> taken() const;  ///< those that are checked

 signals:
  void pickWanted(int shot, int trace);                ///< from 0, to be shown in the window
  void shotWanted(int shot);                           ///< from 0
  void groundWanted(const talvesk::CellPatch& patch);  ///< to be shown in the section
  void takeOverWanted();

 private:
  void fillSuspects();
  void fillShifts();
  void keepChoice(const std::vector<ShotShift>& before, const std::vector<bool>& chosen);
  void showTexts();
  void showSuspect(int row);
  void showShift(int row);
  void showGround(int row);
  void fillCells();
  void addCells(const CellPatch& patch, const QString& text);
  QString suspectsText() const;

  std::unique_ptr<Ui::SecondLookDialog> mUi;
  SecondLook mLook;
  std::vector<CellPatch> mPatches;  ///< one for each line of the list
};

}  // namespace talvesk
