#include "app/presenters/HelpPresenter.h"

#include "app/GuideWindow.h"
#include "app/HelpKey.h"
#include "app/HelpTargets.h"
#include "app/Messages.h"

#include <QDesktopServices>
#include <QMessageBox>

namespace talvesk {
namespace {

const QString kFirstPage = QStringLiteral("index.html");

struct Library {
  const char* name;
  const char* licence;
};

constexpr Library kLibraries[] = {
    {"Qt", "LGPL 3"},
    {"VTK", "BSD 3-Clause"},
    {"Qwt", "Qwt License (LGPL 2.1 with exceptions)"},
    {"PROJ", "MIT"},
    {"libzip", "BSD 3-Clause"},
    {"SQLite", "public domain"},
    {"liquid-dsp", "MIT"},
    {"Eigen", "MPL 2.0"},
    {"cereal", "BSD 3-Clause"},
};

QString libraryTable() {
  QString rows;
  for (const Library& library : kLibraries) {
    rows += QStringLiteral("<tr><td>%1</td><td>&nbsp;&nbsp;%2</td></tr>")
                .arg(QLatin1String(library.name), QLatin1String(library.licence));
  }
  return QStringLiteral("<table>%1</table>").arg(rows);
}

}  // namespace

HelpPresenter::HelpPresenter(Desk& desk) : mDesk(desk) {
  new HelpKey([this](const QString& page) { openPage(page); }, this);
}

HelpPresenter::~HelpPresenter() = default;

void HelpPresenter::closeGuide() {
  if (mGuide != nullptr) mGuide->close();
}

void HelpPresenter::openPage(const QString& page) {
  if (mGuide == nullptr) {
    const auto locate = [this](const QString& wanted) {
      return userGuidePath(QString::fromStdString(mDesk.settings.language), wanted);
    };
    mGuide = std::make_unique<GuideWindow>(locate, mDesk.windowStateFile());
  }
  if (!mGuide->open(page)) {
    showError(&mDesk.window, tr("User guide"), tr("The user guide is not where it was installed."),
              tr("Install Talvesk again to get it back."));
  }
}

void HelpPresenter::openUserGuide() {
  openPage(kFirstPage);
}

void HelpPresenter::openOnlineHelp() {
  const QUrl address(QString::fromLatin1(kOnlineHelpAddress));
  whenHostIsKnown(address, this, [this, address](bool known) {
    if (!known || !QDesktopServices::openUrl(address)) openPage(kFirstPage);
  });
}

void HelpPresenter::showAbout() {
  const QString text =
      tr("<h2>Talvesk 2022.0</h2>"
         "<p>Seismic refraction surveys: from field records to velocity sections.</p>"
         "<p>Talvesk is free software under the MIT licence, without any warranty.</p>"
         "<p>It is built with these libraries, Qt being version %1:</p>")
          .arg(QString::fromLatin1(qVersion())) +
      libraryTable();
  QMessageBox::about(&mDesk.window, tr("About"), text);
}

}  // namespace talvesk
