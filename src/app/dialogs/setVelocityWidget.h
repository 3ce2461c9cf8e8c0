#pragma once

#include "grid/VelocityLayers.h"

#include <QWidget>
#include <memory>

namespace talvesk {

namespace Ui {
class setVelocityWidget;
}

/// One layer of the starting model as a row of fields. Velocities are whole numbers of the
/// unit shown.
class setVelocityWidget : public QWidget {
  Q_OBJECT

 public:
  /// \param layer shown; velocities are truncated where metres are shown
  explicit setVelocityWidget(const VelocityLayer& layer, QWidget* parent = nullptr);
  ~setVelocityWidget() override;

  void setLayer(const VelocityLayer& layer);
  VelocityLayer layer() const;
  bool isMarked() const;

  /// Puts the fields behind a widget in the order of the Tab key; returns the last of them.
  QWidget* followInTabOrder(QWidget* previous);
  void focusFirstField();

 signals:
  void lineEditModified();
  void markChanged();

 private:
  std::unique_ptr<Ui::setVelocityWidget> mUi;
};

}  // namespace talvesk
