#pragma once

#include <clocale>
#include <locale>
#include <string>

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

/// A C locale with decimal commas, where the machine has one installed.
class CommaNumbers {
 public:
  CommaNumbers() : mBefore(std::setlocale(LC_ALL, nullptr)) {
    for (const char* name : {"de_DE.UTF-8", "de_DE", "it_IT.UTF-8", "it_IT", "fr_FR.UTF-8"}) {
      if (std::setlocale(LC_ALL, name) && *std::localeconv()->decimal_point == ',') {
        mFound = true;
        return;
      }
    }
  }
  ~CommaNumbers() { std::setlocale(LC_ALL, mBefore.c_str()); }
  CommaNumbers(const CommaNumbers&) = delete;
  CommaNumbers& operator=(const CommaNumbers&) = delete;

  bool found() const { return mFound; }

 private:
  std::string mBefore;
  bool mFound = false;
};

}  // namespace talvesk::testing
