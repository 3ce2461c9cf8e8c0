#pragma once

#include "io/ShotRecord.h"
#include "model/TomoDocument.h"

#include <QPixmap>
#include <QWidget>
#include <string>

namespace talvesk {

/// The traces of one shot in small, as the figure of a gather draws them.
class GatherPreview : public QWidget {
  Q_OBJECT

 public:
  explicit GatherPreview(QWidget* parent = nullptr);

  /// \param title above the traces, UTF-8
  void setShot(const ShotFileData& shot, const std::string& title);
  /// Says why there are no traces.
  void setNothing(const QString& why);

  QSize sizeHint() const override { return {380, 260}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void draw();

  TomoDocument mDocument;  ///< of that shot alone
  std::string mTitle;
  QString mWhyNot;
  QPixmap mPicture;  ///< of the present size; null before it is drawn
};

}  // namespace talvesk
