#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

class QLabel;
class QLineEdit;

namespace talvesk {

namespace Ui {
class GuideWindow;
}

/// The user guide in a window of its own: contents, back and forward, a search of the page and of
/// all pages, size of the text, and the way into a browser. It stays usable beside a dialog that
/// keeps the user from all other windows. Size, place and text size are remembered when it closes.
class GuideWindow : public QMainWindow {
  Q_OBJECT
 public:
  /// \param locate path of a page of the guide ("filter.html") in the language of the window; empty
  /// when there is no guide
  /// \param stateFile INI file that the size is remembered in
  GuideWindow(std::function<QString(const QString& page)> locate, QString stateFile);
  ~GuideWindow() override;

  /// Shows a page, and the window in front. False when there is no guide.
  bool open(const QString& page);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void addSearchField();
  void connectActions();
  void retranslate();
  void restore();
  void remember();
  void keepOnScreen();
  void followModalWindow();
  void pageChanged();
  void search();
  void showHits();
  void goToMark(int step);
  void showCount(int number);
  void openInBrowser();

  std::unique_ptr<Ui::GuideWindow> mUi;
  std::function<QString(const QString&)> mLocate;
  QString mStateFile;
  QLineEdit* mSearch = nullptr;
  QLabel* mCount = nullptr;
  QTimer mTyped;
  int mMarks = 0;  ///< on the page
};

}  // namespace talvesk
