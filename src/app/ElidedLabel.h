#pragma once

#include <QLabel>

namespace talvesk {

/// One line of text that says by "..." where it had no room, and shows all of itself as a tool tip
/// then. It asks for no room of its own.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isCut() const;
};

}  // namespace talvesk
