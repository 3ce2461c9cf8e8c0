#pragma once

#include "export/campaign/CampaignPage.h"

#include <QDialog>
#include <QStringList>
#include <functional>
#include <memory>

class QSettings;

namespace talvesk {

namespace Ui {
class CampaignDialog;
}

/// Asks which projects a page tells of, and what stands over it.
class CampaignDialog : public QDialog {
  Q_OBJECT

 public:
  explicit CampaignDialog(QWidget* parent = nullptr);
  ~CampaignDialog() override;

  /// Behind those that are there; one that is among them already stays where it is.
  void add(const QStringList& projects);
  QStringList projects() const;  ///< paths, in the order of the page
  CampaignTexts texts() const;   ///< but for date and language

  /// Title, client, site and author, from one campaign to the next.
  void remember(QSettings& settings) const;
  void recall(const QSettings& settings);

  std::function<void()> addWanted;  ///< asked for more projects

 private:
  void remove();
  void refresh();

  std::unique_ptr<Ui::CampaignDialog> mUi;
};

}  // namespace talvesk
