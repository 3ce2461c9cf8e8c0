#pragma once

#include "base/Message.h"
#include "io/PickWords.h"
#include "io/TextCursor.h"
#include "io/TravelTimeData.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace talvesk {

/// All travel-time files hold times in milliseconds.
inline constexpr double kMillisecondsPerSecond = 1000.0;

/// Text of a file for use in a message: cut to a readable length, without control characters.
std::string quotable(std::string_view text);
inline std::string quoted(std::string_view text) {
  return '"' + quotable(text) + '"';
}

/// What the readers of travel-time files share: a cursor over the bytes, what was read so far and
/// the first refusal. The steps of a reader return false once the file is refused.
class PickReader {
 public:
  explicit PickReader(std::string_view bytes);

 protected:
  enum class Fault { kNone, kNotANumber, kOutOfRange, kNotFinite };
  /// A finite number at the front of the field, by the rules of the standard conversion.
  static Fault convert(std::string_view field, double& value);

  bool refuse(Message reason);
  /// Refuses with a message of the format itself.
  bool refuseWith(const Message& message, const Message& details = {});
  bool refuseNumber(std::string_view what, std::string_view field, Fault fault);

  /// \param what names the number in messages ("geophone distance")
  bool readNumber(std::string_view what, std::string_view field, double& value);
  /// A decimal integer that fills the whole word.
  bool readWholeInt(std::string_view what, std::string_view word, int& value);

  /// Notes something repaired or ignored; a file can cause a bounded number of notes only. What may
  /// recur with every field or line asks first whether its text is still worth putting together.
  void warn(const Message& text);
  bool takesWarnings() const;
  void warnOfRest();  ///< when text follows after all that the format knows

  /// Hands the data out, or says why not.
  std::optional<Refusal> finish(bool read, TravelTimeData& data);

  TextCursor mText;
  TravelTimeData mData;

 private:
  std::optional<Refusal> mRefusal;
};

}  // namespace talvesk
