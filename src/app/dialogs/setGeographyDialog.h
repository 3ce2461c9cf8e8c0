#pragma once

#include "export/LinePlacement.h"
#include "model/GeographicsCoord.h"

#include <QDialog>
#include <memory>
#include <optional>

class QLabel;

namespace talvesk {

namespace Ui {
class setGeographyDialog;
}

/// Asks where the line lies: easting and northing of its first and last geophone, and the EPSG code
/// of their reference system. The code and the places are checked while they are typed; only a line
/// that can be placed on the globe is accepted.
class setGeographyDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param coordinates what there is already, or none
  /// \param ends of the line, if geophones are known
  setGeographyDialog(const std::optional<geographicsCoord>& coordinates,
                     const std::optional<LineEnds>& ends, QWidget* parent = nullptr);
  ~setGeographyDialog() override;

  geographicsCoord coordinates() const;  ///< once accepted

 private:
  std::optional<std::int32_t> code() const;
  std::optional<geographicsCoord> entered() const;
  void checkSystem();
  void check();
  void showPlace(QLabel& label, const QString& easting, const QString& northing);
  QString problem() const;
  QString systemProblem() const;
  QString lengthNote(double onMap) const;

  std::unique_ptr<Ui::setGeographyDialog> mUi;
  std::optional<LineEnds> mEnds;
  std::shared_ptr<const GeoTransformer> mTransformer;  ///< of the code; none without one
};

}  // namespace talvesk
