#pragma once

#include "base/Status.h"

#include <string>
#include <vector>

namespace talvesk {

/// Where the page of a campaign lies; those of its lines lie in the same folder.
class CampaignPlace {
 public:
  /// A name that ends in .html is that of the page; any other one is a folder, made if need be, in
  /// which the page is "index.html". Fails, with `place` as it was, where the folder cannot be
  /// made.
  static Status find(const std::string& path, CampaignPlace& place);

  std::string page() const { return file(mName); }
  std::string file(const std::string& name) const;  ///< in the folder
  /// Names of the pages of lines: see campaignFileNames().
  std::vector<std::string> linePages(const std::vector<std::string>& names) const;
  /// Fails for a file in the folder that is no page of this program: it is somebody's.
  Status mayReplace(const std::string& name) const;

 private:
  std::string mFolder;
  std::string mName;
};

/// What the lines of projects are called: as their files, without folder and suffix.
std::vector<std::string> campaignLineNames(const std::vector<std::string>& projects);

/// Why a line failed, without the folder of its file: who reads the page need not know the folders
/// of who wrote it.
Message withoutFolder(const Status& status, const std::string& path);

}  // namespace talvesk
