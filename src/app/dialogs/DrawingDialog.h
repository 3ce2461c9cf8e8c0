#pragma once

#include "export/SectionDxf.h"

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

namespace talvesk {

namespace Ui {
class DrawingDialog;
}

/// Asks for the isolines of a drawing or a map and, of a drawing, where its lines lie. Accepted
/// only with velocities that can be.
class DrawingDialog : public QDialog {
  Q_OBJECT

 public:
  struct Start {
    std::vector<double> isovalues;  ///< to begin with, m/s
    bool section = true;            ///< whether there is one to have isolines
    bool asksPlace = true;          ///< on the map otherwise
    bool onMap = true;              ///< whether the line has a place there
    QString note;                   ///< what else the user should know; may be empty
  };

  explicit DrawingDialog(const Start& start, QWidget* parent = nullptr);
  ~DrawingDialog() override;

  std::vector<double> isovalues() const;  ///< ascending, each once, m/s
  DrawingPlace place() const;

 private:
  std::optional<double> valueOf(const QString& field) const;  ///< m/s
  QString problem() const;
  void check();

  std::unique_ptr<Ui::DrawingDialog> mUi;
  std::vector<double> mProposed;  ///< m/s
};

}  // namespace talvesk
