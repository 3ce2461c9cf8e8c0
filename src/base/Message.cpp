#include "base/Message.h"

#include "base/LengthUnit.h"
#include "base/TextNumber.h"

#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

/// The text with its placeholders filled in one pass, so that a "%1" in an argument is none. A
/// placeholder without an argument stays.
template <class ShowArgument>
std::string filled(const std::string& text, std::size_t arguments, const ShowArgument& show) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char digit = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '\0';
    const std::size_t which = digit >= '1' && digit <= '9' ? std::size_t(digit - '1') : arguments;
    if (which < arguments) {
      out += show(which);
      ++i;
    } else {
      out += text[i];
    }
  }
  return out;
}

/// With all digits before the point, so that no measure has an exponent where more digits come with
/// feet: 3050 m/s to three digits are 10007 ft/s.
std::string measured(double value, int significantDigits) {
  constexpr double kMost = 1e15;  // what is larger, is no measure
  std::string text = formatDouble(value, significantDigits);
  const bool isLarge = std::fabs(value) > 1.0 && std::fabs(value) < kMost;
  if (isLarge && text.find('e') != std::string::npos) text = formatDouble(std::round(value), 15);
  return text;
}

}  // namespace

Message Message::tr(const char* source) {
  Message message(source);
  message.mKind = Kind::kTranslated;
  message.mSource = source;
  return message;
}

Message Message::number(double value, int significantDigits) {
  Message message(formatDouble(value, significantDigits));
  message.mKind = Kind::kNumber;
  return message;
}

Message Message::measure(Kind kind, double metres, int significantDigits, const char* unit) {
  Message message(measured(metres, significantDigits) + ' ' + unit);
  message.mKind = kind;
  message.mMetres = metres;
  message.mDigits = significantDigits;
  return message;
}

Message Message::length(double metres, int significantDigits) {
  return measure(Kind::kLength, metres, significantDigits, "m");
}

Message Message::velocity(double metresPerSecond, int significantDigits) {
  return measure(Kind::kVelocity, metresPerSecond, significantDigits, "m/s");
}

Message Message::arg(Message argument) && {
  mArguments.push_back(std::move(argument));
  fill();
  return std::move(*this);
}

void Message::fill() {
  mEnglish =
      filled(mSource, mArguments.size(), [this](std::size_t i) { return mArguments[i].mEnglish; });
}

Message Message::without(const std::string& text) const {
  Message shorter = *this;
  if (mKind == Kind::kTranslated) {
    for (Message& argument : shorter.mArguments) argument = argument.without(text);
    shorter.fill();
    return shorter;
  }
  std::string& own = shorter.mEnglish;
  for (auto at = own.find(text); at != std::string::npos && !text.empty(); at = own.find(text)) {
    own.erase(at, text.size());
  }
  return shorter;
}

std::string Message::in(const Language& language) const {
  if (mKind == Kind::kPlain) return mEnglish;
  if (mKind == Kind::kNumber) return language.number(mEnglish);
  if (mKind == Kind::kLength || mKind == Kind::kVelocity) {
    const char* unit = mKind == Kind::kLength ? lengthUnitName() : velocityUnitName();
    return language.number(measured(shownLength(mMetres), mDigits)) + ' ' + unit;
  }
  return filled(language.text(mSource), mArguments.size(),
                [&](std::size_t i) { return mArguments[i].in(language); });
}

std::ostream& operator<<(std::ostream& stream, const Message& message) {
  return stream << message.english();
}

Message joined(Message path, Message reason) {
  return Message::tr("%1: %2").arg(std::move(path)).arg(std::move(reason));
}

}  // namespace talvesk
