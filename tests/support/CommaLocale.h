#pragma once

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <locale>
#include <string>
#include <system_error>

namespace talvesk::testing {

/// A process-wide locale of streams with decimal commas and grouped digits, while it lives.
class CommaStreams {
 public:
  CommaStreams() : mBefore(std::locale::global({std::locale::classic(), new Punctuation})) {}
  ~CommaStreams() { std::locale::global(mBefore); }
  CommaStreams(const CommaStreams&) = delete;
  CommaStreams& operator=(const CommaStreams&) = delete;

 private:
  struct Punctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  std::locale mBefore;
};

/// A C locale with decimal commas: one that the machine has, or one that is built for the test.
class CommaNumbers {
 public:
  CommaNumbers() : mBefore(std::setlocale(LC_ALL, nullptr)) {
    for (const char* name : {"de_DE.UTF-8", "de_DE", "it_IT.UTF-8", "it_IT", "fr_FR.UTF-8"}) {
      if (use(name)) return;
    }
    char folder[] = "/tmp/talvesk-locale-XXXXXX";
    if (mkdtemp(folder) == nullptr) return;
    mFolder = folder;
    // A character set of one byte is built several times faster than UTF-8.
    const std::string make =
        "localedef -i de_DE -f ISO-8859-1 " + mFolder + "/de_DE.ISO-8859-1 >/dev/null 2>&1";
    if (std::system(make.c_str()) != 0) return;
    setenv("LOCPATH", folder, 1);
    use("de_DE.ISO-8859-1");
  }
  ~CommaNumbers() {
    std::setlocale(LC_ALL, mBefore.c_str());
    if (mFolder.empty()) return;
    unsetenv("LOCPATH");
    std::error_code ignored;
    std::filesystem::remove_all(mFolder, ignored);
  }
  CommaNumbers(const CommaNumbers&) = delete;
  CommaNumbers& operator=(const CommaNumbers&) = delete;

  bool found() const { return mFound; }

 private:
  bool use(const char* name) {
    mFound = std::setlocale(LC_ALL, name) != nullptr && *std::localeconv()->decimal_point == ',';
    return mFound;
  }

  std::string mBefore;
  std::string mFolder;  ///< of the locale built here; empty without one
  bool mFound = false;
};

}  // namespace talvesk::testing
