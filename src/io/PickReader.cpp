#include "io/PickReader.h"

#include "base/TextNumber.h"
#include "model/PickLimits.h"

#include <QString>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kQuotedBytes = 256;
constexpr std::size_t kWarnings = 20;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool startsWithMark(std::string_view bytes) {
  return bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark;
}

}  // namespace

std::string quotable(std::string_view text) {
  // Through UTF-16 and back: bytes that are no UTF-8 become the replacement character, so that a
  // message can go into a window, a log or JSON.
  const std::string_view front = text.substr(0, kQuotedBytes);
  std::string result =
      QString::fromUtf8(front.data(), static_cast<int>(front.size())).toStdString();
  std::replace_if(
      result.begin(), result.end(),
      [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
  if (text.size() > kQuotedBytes) result += "...";
  return result;
}

PickReader::PickReader(std::string_view bytes)
    : mText(startsWithMark(bytes) ? bytes.substr(kByteOrderMark.size()) : bytes) {
  if (startsWithMark(bytes)) {
    warn(Message::tr("the byte order mark before the first line was ignored"));
  }
}

PickReader::Fault PickReader::convert(std::string_view field, double& value) {
  double number = 0.0;
  const NumberError error = parseDouble(field, number);
  if (error == NumberError::kNotANumber) return Fault::kNotANumber;
  if (error == NumberError::kOutOfRange) return Fault::kOutOfRange;
  if (!std::isfinite(number)) return Fault::kNotFinite;
  value = number;
  return Fault::kNone;
}

bool PickReader::refuse(Message reason) {
  if (!mRefusal) mRefusal = Refusal{mText.line(), std::move(reason), {}};
  return false;
}

bool PickReader::refuseWith(const Message& message, const Message& details) {
  if (!mRefusal) {
    mRefusal = Refusal{mText.line(), details.empty() ? message : joined(message, details), message};
  }
  return false;
}

bool PickReader::refuseNumber(std::string_view what, std::string_view field, Fault fault) {
  Message complaint = fault == Fault::kNotANumber   ? Message::tr("the %1 %2 is not a number")
                      : fault == Fault::kOutOfRange ? Message::tr("the %1 %2 is out of range")
                                                    : Message::tr("the %1 %2 is not finite");
  return refuse(std::move(complaint).arg(inWords(what)).arg(quoted(field)));
}

bool PickReader::readNumber(std::string_view what, std::string_view field, double& value) {
  const Fault fault = convert(field, value);
  return fault == Fault::kNone || refuseNumber(what, field, fault);
}

bool PickReader::readWholeInt(std::string_view what, std::string_view word, int& value) {
  const std::size_t sign = !word.empty() && (word[0] == '-' || word[0] == '+') ? 1 : 0;
  const bool digits =
      word.size() > sign &&
      std::all_of(word.begin() + sign, word.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!digits) {
    return refuse(
        Message::tr("the %1 %2 is not a whole number").arg(inWords(what)).arg(quoted(word)));
  }
  if (parseInt(word, value) == NumberError::kNone) return true;
  return refuseNumber(what, word, Fault::kOutOfRange);
}

void PickReader::warn(const Message& text) {
  if (takesWarnings()) mData.warnings.push_back(text);
  if (mData.warnings.size() == kWarnings) {
    mData.warnings.push_back(Message::tr("and more of this kind"));
  }
}

bool PickReader::takesWarnings() const {
  return mData.warnings.size() < kWarnings;
}

void PickReader::warnOfRest() {
  if (mText.skipToText()) {
    warn(Message::tr("line %1 and what follows it was ignored").arg(mText.line()));
  }
}

std::optional<Refusal> PickReader::finish(bool read, TravelTimeData& data) {
  if (!read) return mRefusal;
  if (mData.records.empty()) warn(Message::tr("the file holds no shot"));
  // Not one of the notes that can become too many.
  const Message dropped = dropImpossiblePicks(mData.records, {});
  if (!dropped.empty()) mData.warnings.push_back(dropped);
  data = std::move(mData);
  return std::nullopt;
}

}  // namespace talvesk
