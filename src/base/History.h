#pragma once

#include <string>

namespace talvesk {

/// The folder that file dialogs open in: one line of text in the working folder.
class History {
 public:
  explicit History(std::string path) : mPath(std::move(path)) {}

  /// The remembered folder; the home directory when the file cannot be opened.
  std::string readHistory() const;
  void saveHistory(const std::string& folder) const;

 private:
  std::string mPath;
};

}  // namespace talvesk
