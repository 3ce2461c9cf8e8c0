#pragma once

#include "base/Message.h"

#include <string>
#include <utility>

namespace talvesk {

/// Outcome of an operation that can fail: 0 is success, anything else a failure whose message says
/// what happened, to which file or value, and what to do. Rooms return it instead of throwing.
class [[nodiscard]] Status {
 public:
  Status() = default;  ///< success
  static Status failure(Message text, int code = 1) { return {code, std::move(text)}; }

  bool ok() const { return mCode == 0; }
  int code() const { return mCode; }
  const std::string& message() const { return mText.english(); }  ///< English
  const Message& text() const { return mText; }                   ///< what the window translates

 private:
  Status(int code, Message text) : mCode(code), mText(std::move(text)) {}

  int mCode = 0;
  Message mText;
};

}  // namespace talvesk
