#pragma once

#include "figures/ShotPairFigure.h"
#include "view/ShotPair.h"

#include <QDialog>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QComboBox;

namespace talvesk {

namespace Ui {
class ShotPairDialog;
}

/// Two shots laid over each other, with their difference and their sum. It stays open beside the
/// traces, and changes nothing itself.
class ShotPairDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ShotPairDialog(QWidget* parent = nullptr);
  ~ShotPairDialog() override;

  /// Another state of the survey. The shots stay chosen where they still are.
  void setSurvey(const TomoDocument& document);
  /// The first is a blow of that shot, from 0, the second what goes with it.
  void chooseShot(std::size_t shot);

  bool hasPair() const { return mHasPair; }
  const ShotPair& pair() const { return mPair; }
  ShotPairLook look() const;     ///< of the picture, on the screen
  ShotPair::Set wanted() const;  ///< difference or sum, to be added or saved

  std::function<void()> addWanted;
  std::function<void()> saveShotWanted;
  std::function<void()> savePictureWanted;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  class Sheet;

  void connectAll();
  void fillChoosers();
  void compute();
  void redraw();
  QString nameOf(const Blow& blow) const;
  static std::optional<Blow> chosen(const QComboBox& box, const std::vector<Blow>& blows);
  void choose(QComboBox& box, const Blow& blow);

  std::unique_ptr<Ui::ShotPairDialog> mUi;
  Sheet* mSheet;
  TomoDocument mDocument;
  std::vector<Blow> mBlows;
  ShotPair mPair;
  bool mHasPair = false;
  QTimer mSoon;  ///< computes; who walks through a list by keys waits for the last shot only
};

}  // namespace talvesk
