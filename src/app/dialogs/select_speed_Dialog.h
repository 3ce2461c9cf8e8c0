#pragma once

#include "grid/SharpLayers.h"

#include <QDialog>
#include <memory>
#include <vector>

class QListWidgetItem;

namespace talvesk {

class TomoDocument;

namespace Ui {
class select_speed_Dialog;
}
class setVelocityWidget;

/// Edits the layers of the starting model and, on OK, puts the model into the grid. Until then the
/// document is as it was. OK on layers that nobody changed is a rejection, unless the grid has
/// other velocities and the user, when asked, wants it to get those of the layers.
class select_speed_Dialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog; its layers are shown, one over the whole grid when there
  /// is none
  explicit select_speed_Dialog(TomoDocument& document, QWidget* parent = nullptr);
  ~select_speed_Dialog() override;

  /// What the rows say, those that make no layer left out.
  std::vector<VelocityLayer> layers() const;
  LayerFill fill() const;  ///< how they get into the grid

  /// Builds the grid. Where the layers make no model it says why and stays open; where only the
  /// spline makes none it offers sharp layers.
  void accept() override;

 public slots:
  void onLineeditmod();

 private:
  void setDocument();
  void connectFill();
  Status check(const std::vector<VelocityLayer>& layers) const;
  bool sharpWouldDo(const std::vector<VelocityLayer>& layers) const;
  Status apply();
  bool isAsItWas() const;
  bool wantsLayersAgain();
  std::vector<VelocityLayer> takeLayers() const;  ///< the same, each one told on the console
  void showModel(const std::vector<VelocityLayer>& layers);
  setVelocityWidget* row(int index) const;
  bool isMarked(int index) const;
  void addRow(const VelocityLayer& layer);
  void orderTabs();
  void addLayer();
  void removeLayers();
  void showRemovable();
  double gridDepth() const;

  std::unique_ptr<Ui::select_speed_Dialog> mUi;
  TomoDocument& mDocument;
  std::vector<VelocityLayer> mAtFirst;
  LayerFill mFillAtFirst;
};

}  // namespace talvesk
