#pragma once

#include "base/Console.h"

#include <iostream>
#include <mutex>
#include <ostream>
#include <streambuf>
#include <string>

namespace talvesk::testing {

/// Keeps what the system tells the console while it lives. Workers may print meanwhile: like the
/// standard streams, it mixes what several threads print at once, and loses nothing.
class ConsoleCapture {
 public:
  ConsoleCapture() {
    console::setOut(mOut);
    console::setError(mError);
  }
  ~ConsoleCapture() {
    console::setOut(std::cout);
    console::setError(std::cerr);
  }
  ConsoleCapture(const ConsoleCapture&) = delete;
  ConsoleCapture& operator=(const ConsoleCapture&) = delete;

  std::string out() const { return mOutText.text(); }
  std::string error() const { return mErrorText.text(); }

 private:
  class Buffer : public std::streambuf {
   public:
    std::string text() const {
      const std::lock_guard<std::mutex> lock(mMutex);
      return mText;
    }

   protected:
    int_type overflow(int_type letter) override {
      if (traits_type::eq_int_type(letter, traits_type::eof())) return traits_type::not_eof(letter);
      const std::lock_guard<std::mutex> lock(mMutex);
      mText += traits_type::to_char_type(letter);
      return letter;
    }
    std::streamsize xsputn(const char* letters, std::streamsize count) override {
      const std::lock_guard<std::mutex> lock(mMutex);
      mText.append(letters, static_cast<std::size_t>(count));
      return count;
    }

   private:
    mutable std::mutex mMutex;
    std::string mText;
  };

  Buffer mOutText;
  Buffer mErrorText;
  std::ostream mOut{&mOutText};
  std::ostream mError{&mErrorText};
};

}  // namespace talvesk::testing
