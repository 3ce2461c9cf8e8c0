#pragma once

#include "figures/ResidualFigures.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

class QAction;

namespace talvesk {

namespace Ui {
class ResidualsDialog;
}
class FigureSheetWidget;

/// How the section explains its picks: shot by geophone, over the offset, per shot and geophone,
/// and along the rays. One pick is current in all of them. It stays open while the user works on
/// the picks, and changes nothing itself.
class ResidualsDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ResidualsDialog(QWidget* parent = nullptr);
  ~ResidualsDialog() override;

  void offerWhereEmpty(const QList<QAction*>& commands);

  /// Shows the residuals of a survey as it is; the current pick stays current.
  /// \param section how the window draws the section
  void showSurvey(const TomoDocument& document, const SectionFigureOptions& section);

  // What is shown, for who saves it.
  const TomoDocument& document() const { return mDocument; }
  const ResidualTable& table() const { return mTable; }
  const SectionFigureOptions& section() const { return mSection; }
  ResidualView view() const;
  ResidualLook look() const;  ///< as on paper

 signals:
  void pickWanted(int shot, int trace);  ///< from 0, to be shown in the window
  void pictureWanted();
  void tableWanted();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void connectAll();
  void fillShots();
  void showHead();
  void showViews();
  void showGroups(const ResidualLook& look);
  void showSection();
  void setCurrent(std::size_t pick);
  void goTo(std::size_t pick);
  void copyPicture();
  ResidualLook screenLook() const;
  static QString emptyText();
  QString cellText(std::size_t row, std::size_t column) const;
  QString spreadText(const QString& name, const ResidualSpread& spread) const;

  std::unique_ptr<Ui::ResidualsDialog> mUi;
  FigureSheetWidget* mSheet;
  TomoDocument mDocument;
  ResidualTable mTable;
  SectionFigureOptions mSection;
  std::vector<ResidualSpread> mShots;
  std::vector<ResidualSpread> mGeophones;
  std::size_t mCurrent = ResidualTable::kNone;  ///< pick of the table
};

}  // namespace talvesk
