#pragma once

#include "app/presenters/Desk.h"
#include "export/campaign/CampaignPage.h"

#include <QObject>
#include <QStringList>

namespace talvesk {

class CampaignDialog;
class CampaignPlace;
class StoppingProgress;
struct LoadedProject;

/// A web page of each of several projects, and one on all of them. The survey stays as it is.
class CampaignPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit CampaignPresenter(Desk& desk) : mDesk(desk) {}

  /// Asks for the projects and the file, and tells what became of them: one that fails does not
  /// stop the others.
  void write();

 private:
  /// What is told at the end, a line for each.
  struct Notes {
    QStringList failures;
    QStringList repairs;
  };

  void addTo(CampaignDialog& dialog);
  QString askForPage();
  bool mayOverwrite(const CampaignPlace& place, const std::vector<std::string>& files);
  bool mayReplace(const QStringList& existing);
  void writeAll(const QStringList& projects, const QString& page, const CampaignTexts& texts);
  CampaignLine writeLine(const QString& project, const std::string& name, const std::string& file,
                         const CampaignPlace& place, const CampaignTexts& texts,
                         StoppingProgress& progress, Notes& notes);
  Status read(const QString& file, const StoppingProgress& progress, LoadedProject& project,
              Notes& notes);
  void tell(const Notes& notes, bool saved);  ///< saved: the campaign page

  Desk& mDesk;
};

}  // namespace talvesk
