#pragma once

#include <string>
#include <utility>

namespace talvesk {

/// Outcome of an operation that can fail: 0 is success, anything else a failure whose message says
/// what happened, to which file or value, and what to do. Rooms return it instead of throwing.
class [[nodiscard]] Status {
 public:
  Status() = default;  ///< success
  static Status failure(std::string message, int code = 1) { return {code, std::move(message)}; }

  bool ok() const { return mCode == 0; }
  int code() const { return mCode; }
  const std::string& message() const { return mMessage; }

 private:
  Status(int code, std::string message) : mCode(code), mMessage(std::move(message)) {}

  int mCode = 0;
  std::string mMessage;
};

}  // namespace talvesk
