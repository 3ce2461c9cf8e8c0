#pragma once

#include "figures/BlowPairFigure.h"
#include "view/BlowPair.h"

#include <QDialog>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QComboBox;

namespace talvesk {

namespace Ui {
class BlowPairDialog;
}

/// Two shots laid over each other, with their difference and their sum. It stays open beside the
/// traces, and changes nothing itself.
class BlowPairDialog : public QDialog {
  Q_OBJECT

 public:
  explicit BlowPairDialog(QWidget* parent = nullptr);
  ~BlowPairDialog() override;

  /// Another state of the survey. The shots stay chosen where they still are.
  void setSurvey(const TomoDocument& document);
  /// The first is a blow of that shot, from 0, the second what goes with it.
  void chooseShot(std::size_t shot);

  bool hasPair() const { return mHasPair; }
  const BlowPair& pair() const { return mPair; }
  BlowPairLook look() const;     ///< of the picture, on the screen
  BlowPair::Set wanted() const;  ///< difference or sum, to be added or saved

  std::function<void()> addWanted;
  std::function<void()> saveShotWanted;
  std::function<void()> savePictureWanted;

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Sheet;

  void connectAll();
  void fillChoosers();
  void compute();
  void refreshNotices();
  void refreshButtons();
  void redraw();
  QString nameOf(const Blow& blow) const;
  static std::optional<Blow> chosen(const QComboBox& box, const std::vector<Blow>& blows);
  void choose(QComboBox& box, const Blow& blow);

  std::unique_ptr<Ui::BlowPairDialog> mUi;
  Sheet* mSheet;
  TomoDocument mDocument;
  std::vector<Blow> mBlows;
  BlowPair mPair;
  bool mHasPair = false;
  QTimer mSoon;  ///< computes; who walks through a list by keys waits for the last shot only
};

}  // namespace talvesk
