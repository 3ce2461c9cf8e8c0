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
  if (startsWithMark(bytes)) warn("the byte order mark before the first line was ignored");
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

bool PickReader::refuse(std::string reason) {
  if (!mRefusal) mRefusal = Refusal{mText.line(), std::move(reason), {}};
  return false;
}

bool PickReader::refuseWith(const std::string& message, const std::string& details) {
  if (!mRefusal) {
    mRefusal = Refusal{mText.line(), details.empty() ? message : message + ": " + details, message};
  }
  return false;
}

bool PickReader::refuseNumber(std::string_view what, std::string_view field, Fault fault) {
  const char* complaint = fault == Fault::kNotANumber   ? " is not a number"
                          : fault == Fault::kOutOfRange ? " is out of range"
                                                        : " is not finite";
  return refuse("the " + std::string(what) + " " + quoted(field) + complaint);
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
    return refuse("the " + std::string(what) + " " + quoted(word) + " is not a whole number");
  }
  if (parseInt(word, value) == NumberError::kNone) return true;
  return refuseNumber(what, word, Fault::kOutOfRange);
}

void PickReader::warn(const std::string& text) {
  if (takesWarnings()) mData.warnings.push_back(text);
  if (mData.warnings.size() == kWarnings) mData.warnings.push_back("and more of this kind");
}

bool PickReader::takesWarnings() const {
  return mData.warnings.size() < kWarnings;
}

void PickReader::warnOfRest() {
  if (mText.skipToText()) {
    warn("line " + std::to_string(mText.line()) + " and what follows it was ignored");
  }
}

std::optional<Refusal> PickReader::finish(bool read, std::string_view format,
                                          TravelTimeData& data) {
  if (!read) return mRefusal;
  if (mData.records.empty()) warn("the file holds no shot");
  // Not one of the notes that can become too many.
  const std::string dropped = dropImpossiblePicks(mData.records, {});
  if (!dropped.empty()) mData.warnings.push_back(dropped);
  mData.format = format;
  data = std::move(mData);
  return std::nullopt;
}

std::string PickReader::counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace talvesk
