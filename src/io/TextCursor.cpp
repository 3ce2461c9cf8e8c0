#include "io/TextCursor.h"

#include <algorithm>

namespace talvesk {
namespace {

bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

}  // namespace

bool TextCursor::nextLine(std::string_view& line) {
  mReadLine = mLine;
  if (atEnd()) return false;
  const std::size_t end = std::min(mText.find('\n', mPosition), mText.size());
  line = mText.substr(mPosition, end - mPosition);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  mPosition = std::min(end + 1, mText.size());
  ++mLine;
  return true;
}

bool TextCursor::skipToText() {
  for (; !atEnd() && isBlank(mText[mPosition]); ++mPosition) {
    if (mText[mPosition] == '\n') ++mLine;
  }
  mReadLine = mLine;
  return !atEnd();
}

bool TextCursor::nextWord(std::string_view& word) {
  if (!skipToText()) return false;
  const std::size_t begin = mPosition;
  while (!atEnd() && !isBlank(mText[mPosition])) ++mPosition;
  word = mText.substr(begin, mPosition - begin);
  return true;
}

bool FieldCursor::next(std::string_view& field) {
  if (mRest.empty()) return false;
  const std::size_t length = std::min(mRest.find(mSeparator), mRest.size());
  field = mRest.substr(0, length);
  mRest.remove_prefix(std::min(length + 1, mRest.size()));
  ++mCount;
  return true;
}

}  // namespace talvesk
