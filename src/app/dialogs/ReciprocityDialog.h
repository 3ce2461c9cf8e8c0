#pragma once

#include "doctor/ReciprocityTable.h"

#include <QDialog>
#include <memory>
#include <optional>

class QAction;

namespace talvesk {

namespace Ui {
class ReciprocityDialog;
}
class ReciprocityModel;
class TomoDocument;

/// How the picks go with each other there and back: a table of all pairs of shots beside a picture
/// of their differences, and what the pairs say of each shot. It stays open while the user works on
/// the picks, and changes nothing itself.
class ReciprocityDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ReciprocityDialog(QWidget* parent = nullptr);
  ~ReciprocityDialog() override;

  void offerWhereEmpty(const QList<QAction*>& commands);

  /// Compares the picks anew and shows what comes of it; the chosen pair stays chosen.
  void showSurvey(const TomoDocument& document);
  const doctor::ReciprocityTable& table() const;

 signals:
  void pickWanted(int shot, int trace);  ///< from 0, to be shown in the window
  void mendWanted(const talvesk::doctor::Finding& finding);
  void saveWanted();

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void connectAll();
  void fillShots();
  void fillShot(int row);
  void summarize(const TomoDocument& document);
  void goTo(std::size_t from, std::size_t to);
  void showPick(bool back);
  void choosePair(std::size_t shot, std::size_t other);
  void followTable();
  void enableButtons();
  QString mendText(std::size_t shot) const;

  std::unique_ptr<Ui::ReciprocityDialog> mUi;
  ReciprocityModel* mModel;
  std::vector<std::optional<doctor::Finding>> mLate;  ///< per shot
};

}  // namespace talvesk
