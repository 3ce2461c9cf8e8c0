#pragma once

#include <QObject>

namespace talvesk {

/// Keeps dialogs, while it lives, from opening larger than what the screen has left beside panels
/// and a title bar, for forms are drawn on large screens, and their boxes from opening narrower
/// than their texts.
class DialogRoom : public QObject {
 public:
  explicit DialogRoom(QObject* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace talvesk
