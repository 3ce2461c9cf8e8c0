#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace talvesk::testing {

/// A folder that goes away with the test.
class TestFolder {
 public:
  TestFolder() { EXPECT_TRUE(mFolder.isValid()); }

  std::string path() const { return mFolder.path().toStdString(); }
  std::string file(const std::string& name) const { return path() + "/" + name; }

  std::string put(const std::string& name, const std::string& bytes) const {
    std::ofstream stream(file(name), std::ios::binary);
    stream << bytes;
    stream.close();
    EXPECT_TRUE(stream) << name;
    return file(name);
  }
  static std::string get(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  /// How many files and folders lie in it.
  int entries() const {
    return static_cast<int>(QDir(mFolder.path())
                                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                                .size());
  }

 private:
  QTemporaryDir mFolder;
};

}  // namespace talvesk::testing
