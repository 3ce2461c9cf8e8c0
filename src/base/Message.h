#pragma once

#include <iosfwd>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace talvesk {

/// A text for users that can be shown in their language: its English source, in which %1 to %9
/// stand for arguments, and those. The rooms below the window speak English through it, on the
/// console, in the log and in batch; only the window translates it. Texts that no translation is
/// wanted for are plain, and every std::string is one.
///
///   Message::tr("shot %1 has no traces to pick on").arg(shot + 1)
///
/// The tool that collects the texts for translation knows tr() by its name; its parameter must be a
/// literal. There are no plural forms: a text that counts has one source for 1 and one for the
/// rest.
class Message {
 public:
  Message() = default;                                             ///< says nothing
  Message(std::string plain) : mEnglish(std::move(plain)) {}       ///< the same in every language
  Message(const char* plain) : Message(std::string(plain)) {}      ///< the same in every language
  static Message tr(const char* source);                           ///< \param source lives forever
  static Message number(double value, int significantDigits = 6);  ///< decimals as users have them

  /// A length with its unit, "12.5 m". Its English, which is what log and console get, is in
  /// metres; a language shows it in the unit of LengthUnit.h, with as many digits.
  static Message length(double metres, int significantDigits = 6);
  static Message velocity(double metresPerSecond, int significantDigits = 6);  ///< "1500 m/s"

  /// The same text with what stands for its next placeholder, which may be a text to be translated
  /// itself.
  Message arg(Message argument) &&;
  Message arg(double value) && { return std::move(*this).arg(number(value)); }
  template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
  Message arg(Integer value) && {
    return std::move(*this).arg(Message(std::to_string(value)));
  }

  /// The same, with a text cut out of what stands for its placeholders: the folder of a path.
  Message without(const std::string& text) const;

  bool empty() const { return mEnglish.empty(); }
  const std::string& english() const { return mEnglish; }
  operator const std::string&() const { return mEnglish; }  ///< English where a string is wanted

  /// What a language makes of messages.
  class Language {
   public:
    virtual ~Language() = default;
    virtual std::string text(
        const char* source) const = 0;  ///< with the placeholders of its source
    virtual std::string number(const std::string& c) const = 0;  ///< \param c as in the "C" locale
  };
  std::string in(const Language& language) const;

 private:
  enum class Kind { kPlain, kNumber, kLength, kVelocity, kTranslated };

  Kind mKind = Kind::kPlain;
  const char* mSource = nullptr;    ///< of a text to be translated
  std::vector<Message> mArguments;  ///< in the order of the placeholders
  std::string mEnglish;
  double mMetres = 0.0;  ///< of a length or a velocity
  int mDigits = 6;       ///< of these

  static Message measure(Kind kind, double metres, int significantDigits, const char* unit);
  void fill();  ///< the English text with its arguments
};

inline bool operator==(const Message& a, const Message& b) {
  return a.english() == b.english();
}
std::ostream& operator<<(std::ostream& stream, const Message& message);  ///< in English

/// The two joined: "path: reason".
Message joined(Message path, Message reason);

}  // namespace talvesk
