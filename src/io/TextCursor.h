#pragma once

#include <cstddef>
#include <string_view>

namespace talvesk {

/// Walks through the bytes of a text file by lines or by words and knows the line it is on. A line
/// ends in "\n" or "\r\n", neither of which is part of it; the last line may lack its end. The
/// bytes must outlive the cursor and all that it hands out.
class TextCursor {
 public:
  explicit TextCursor(std::string_view text) : mText(text) {}

  /// The rest of the current line. False at the end of the text; nothing follows a last line end.
  bool nextLine(std::string_view& line);
  /// The next run of bytes other than blanks and line ends, on whichever line it stands.
  bool nextWord(std::string_view& word);
  /// False when nothing but blanks and line ends is left, which are then skipped.
  bool skipToText();

  /// Line, from 1, of what was read last, or of what was looked for beyond the end.
  std::size_t line() const { return mReadLine; }
  bool atEnd() const { return mPosition == mText.size(); }

 private:
  std::string_view mText;
  std::size_t mPosition = 0;
  std::size_t mLine = 1;
  std::size_t mReadLine = 1;
};

/// Hands out what stands between separators, one field after the other, without a list of them. The
/// empty rest after a last separator is no field; an empty text has none.
class FieldCursor {
 public:
  FieldCursor(std::string_view text, char separator) : mRest(text), mSeparator(separator) {}

  bool next(std::string_view& field);
  std::size_t count() const { return mCount; }  ///< fields handed out so far

 private:
  std::string_view mRest;
  char mSeparator;
  std::size_t mCount = 0;
};

}  // namespace talvesk
