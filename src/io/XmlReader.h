#pragma once

#include "base/Message.h"

#include <array>
#include <cstddef>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// What is wrong with an XML document or with a value in it. Does not leave the room.
struct XmlError : std::runtime_error {
  explicit XmlError(const Message& why) : std::runtime_error(why.english()), reason(why) {}
  Message reason;
};

/// Walks through an XML document as it comes from a stream, with memory for one value at a time.
/// Takes what archives write: elements, text, attributes (passed over), comments and processing
/// instructions; document types and character data sections are refused. Everything throws XmlError
/// where the document is malformed, nested deeper than kMostLevels, or holds a longer text than
/// kLongestText.
class XmlReader {
 public:
  static constexpr std::size_t kMostLevels = 24;
  static constexpr std::size_t kLongestName = 256;
  static constexpr std::size_t kLongestText = std::size_t{1} << 20;
  /// Of one document. An empty sequence is a few bytes of text and many in memory.
  static constexpr std::size_t kMostSequences = std::size_t{1} << 22;

  /// Enters the root element, which must have that name. The stream must outlive the reader.
  XmlReader(std::istream& stream, std::string_view root);

  /// Enters the next element within the current one, or leaves the current one: false.
  bool nextChild();
  /// Of the current element; empty after the root was left.
  std::string_view name() const;
  /// The text of the current element, which holds no element, and leaves it. Valid until the next
  /// call. Blanks at its ends belong to it.
  std::string_view text();
  /// Whether the current element begins with text other than blanks.
  bool holdsText();
  /// Counts the current element as a sequence.
  void countSequence();
  /// Leaves the current element with all that it holds.
  void skip();

 private:
  static constexpr int kEnd = -1;

  int peek() { return mAt < mFilled ? static_cast<unsigned char>(mBuffer[mAt]) : refill(); }
  int take() {
    const int c = peek();
    if (c != kEnd) ++mAt;
    return c;
  }
  int refill();
  void expect(char c);
  void expectWord(std::string_view word);
  void skipBlanks();
  void skipUntil(std::string_view end);
  bool skipMarkup();  ///< comment or instruction behind "<"; false when it is neither
  void readName(std::string& name);
  void openElement();   ///< behind "<"
  void closeElement();  ///< behind "</"
  void leave();
  void readAttributes();
  char32_t entity();

  std::istream& mStream;
  std::array<char, std::size_t{1} << 16> mBuffer;
  std::size_t mAt = 0;
  std::size_t mFilled = 0;
  std::vector<std::string> mNames;  ///< of open elements; as many as there ever were at once
  std::size_t mOpen = 0;
  std::size_t mSequences = 0;
  bool mSelfClosed = false;  ///< the current element ended in its start tag
  std::string mText;
  std::string mEndName;
};

}  // namespace talvesk
