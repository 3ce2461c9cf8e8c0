#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <memory>

namespace talvesk {

class GuideWindow;

/// The user guide, the page on the web, and what the program is.
class HelpPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit HelpPresenter(Desk& desk);
  ~HelpPresenter() override;

  void openUserGuide();
  void openOnlineHelp();
  void showAbout();
  void closeGuide();

 private:
  void openPage(const QString& page);

  Desk& mDesk;
  std::unique_ptr<GuideWindow> mGuide;  ///< once it was asked for
};

}  // namespace talvesk
