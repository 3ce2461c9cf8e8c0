#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace talvesk {

/// Page of the user guide ("filter.html") on the dialog that a widget belongs to, or on the one
/// that opened that; empty where there is none. Dialogs are known by their class.
QString guidePageOf(const QObject* widget);

/// Opens the page of the user guide on a dialog when F1 is pressed in it; the menu, which has that
/// key too, is out of reach behind a dialog. Watches the application as long as it lives.
class HelpKey : public QObject {
 public:
  /// \param open is given the page's file name
  explicit HelpKey(std::function<void(const QString&)> open, QObject* parent = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const QString&)> mOpen;
};

}  // namespace talvesk
