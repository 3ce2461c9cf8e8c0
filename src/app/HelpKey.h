#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QWidget;

namespace talvesk {

/// Page of the user guide ("filter.html") on the dialog that a widget belongs to, or on the one
/// that opened that; for a message of the main window the page on messages. Empty where there is
/// none. Dialogs are known by their class.
QString guidePageOf(const QWidget* widget);

/// Opens the page of the user guide on a dialog when F1 is pressed in it, for the menu, which has
/// that key too, is out of reach behind a dialog; and puts a button for the same into every dialog.
/// Watches the application as long as it lives.
class HelpKey : public QObject {
 public:
  /// \param open is given the page's file name
  explicit HelpKey(std::function<void(const QString&)> open, QObject* parent = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void addHelpButton(QWidget& dialog);
  static bool pressHelp(QWidget& focus);

  std::function<void(const QString&)> mOpen;
};

}  // namespace talvesk
