#pragma once

#include "base/Status.h"
#include "export/campaign/CampaignLine.h"

#include <QByteArray>
#include <QString>
#include <string>
#include <vector>

namespace talvesk {

/// What stands over the table. Texts are UTF-8; empty ones are left out.
struct CampaignTexts {
  std::string title;  ///< empty: "Campaign"
  std::string client;
  std::string site;
  std::string author;
  std::string date;                         ///< as it is to be read
  QString language = QStringLiteral("en");  ///< ISO code of that which the program speaks
};

/// A page on many lines: a table that can be sorted, the sections
/// in small by one scale of colours, a map where places are known, and the reason where a line
/// failed. It has all that it needs inside and loads nothing; its links lead to files beside it.
QByteArray campaignPage(const std::vector<CampaignLine>& lines, const CampaignTexts& texts);

/// Replaces the file at `path` by it, whole or not at all.
Status writeCampaignPage(const std::string& path, const std::vector<CampaignLine>& lines,
                         const CampaignTexts& texts);

/// Names for files of lines, in a folder that they cannot leave: what a file name may have of the
/// name of a line, without suffix, each another one on every system.
/// \param taken names that none of them gets
std::vector<std::string> campaignFileNames(const std::vector<std::string>& names,
                                           const std::vector<std::string>& taken = {});

}  // namespace talvesk
