#include "io/XmlReader.h"

#include <istream>

namespace talvesk {
namespace {

bool isBlank(int c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool belongsToName(int c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '-' || c == '.' || c == ':' || c >= 0x80;
}

void appendUtf8(std::string& text, char32_t c) {
  const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

}  // namespace

XmlReader::XmlReader(std::istream& stream, std::string_view root) : mStream(stream) {
  mNames.resize(kMostLevels);
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (peek() == 0xEF) expectWord(kByteOrderMark);
  for (;;) {
    skipBlanks();
    expect('<');
    if (!skipMarkup()) break;
  }
  openElement();
  if (name() != root) {
    throw XmlError(Message::tr("the root element is not \"%1\"").arg(std::string(root)));
  }
}

int XmlReader::refill() {
  if (!mStream.good()) return kEnd;
  mStream.read(mBuffer.data(), static_cast<std::streamsize>(mBuffer.size()));
  mFilled = static_cast<std::size_t>(mStream.gcount());
  mAt = 0;
  return mFilled == 0 ? kEnd : static_cast<unsigned char>(mBuffer[0]);
}

void XmlReader::expect(char c) {
  const int got = take();
  if (got == static_cast<unsigned char>(c)) return;
  if (got == kEnd) throw XmlError(Message::tr("the document ends too early"));
  throw XmlError(Message::tr("a '%1' is missing").arg(std::string(1, c)));
}

void XmlReader::expectWord(std::string_view word) {
  for (const char c : word) expect(c);
}

void XmlReader::skipBlanks() {
  while (isBlank(peek())) ++mAt;
}

void XmlReader::skipUntil(std::string_view end) {
  // The last bytes read are compared as a whole: the end may begin within a false start, as in
  // "--->".
  std::string last;
  while (last != end) {
    const int c = take();
    if (c == kEnd) throw XmlError(Message::tr("the document ends too early"));
    if (last.size() == end.size()) last.erase(0, 1);
    last += static_cast<char>(c);
  }
}

bool XmlReader::skipMarkup() {
  if (peek() == '?') {
    skipUntil("?>");
    return true;
  }
  if (peek() != '!') return false;
  ++mAt;
  if (peek() != '-') throw XmlError(Message::tr("it declares a document type or a data section"));
  expectWord("--");
  skipUntil("-->");
  return true;
}

void XmlReader::readName(std::string& name) {
  name.clear();
  while (belongsToName(peek())) {
    if (name.size() == kLongestName) throw XmlError(Message::tr("an element has too long a name"));
    name += static_cast<char>(take());
  }
  if (name.empty()) throw XmlError(Message::tr("an element has no name"));
}

void XmlReader::readAttributes() {
  for (;;) {
    skipBlanks();
    const int c = peek();
    if (c == '>' || c == '/') return;
    readName(mEndName);
    skipBlanks();
    expect('=');
    skipBlanks();
    const int quote = take();
    if (quote != '"' && quote != '\'') throw XmlError(Message::tr("an attribute has no quotes"));
    for (int inner = take(); inner != quote; inner = take()) {
      if (inner == kEnd || inner == '<') throw XmlError(Message::tr("an attribute does not end"));
    }
  }
}

void XmlReader::openElement() {
  if (mOpen == kMostLevels) throw XmlError(Message::tr("its elements are nested too deep"));
  readName(mNames[mOpen]);
  readAttributes();
  mSelfClosed = peek() == '/';
  if (mSelfClosed) ++mAt;
  expect('>');
  ++mOpen;
}

void XmlReader::closeElement() {
  readName(mEndName);
  skipBlanks();
  expect('>');
  if (mEndName != name()) {
    throw XmlError(
        Message::tr("\"%1\" ends where \"%2\" should").arg(mEndName).arg(std::string(name())));
  }
  leave();
}

void XmlReader::leave() {
  --mOpen;
  mSelfClosed = false;
  if (mOpen > 0) return;
  for (skipBlanks(); peek() != kEnd; skipBlanks()) {
    expect('<');
    if (!skipMarkup()) throw XmlError(Message::tr("something follows the root element"));
  }
}

std::string_view XmlReader::name() const {
  return mOpen == 0 ? std::string_view{} : std::string_view(mNames[mOpen - 1]);
}

bool XmlReader::nextChild() {
  if (mSelfClosed) {
    leave();
    return false;
  }
  for (;;) {
    skipBlanks();
    if (peek() != '<' && peek() != kEnd) {
      throw XmlError(
          Message::tr("there is text in \"%1\", which holds elements").arg(std::string(name())));
    }
    expect('<');
    if (peek() == '/') {
      ++mAt;
      closeElement();
      return false;
    }
    if (skipMarkup()) continue;
    openElement();
    return true;
  }
}

char32_t XmlReader::entity() {
  std::string word;
  for (int c = take(); c != ';'; c = take()) {
    if (c == kEnd || word.size() > 8) throw XmlError(Message::tr("an entity does not end"));
    word += static_cast<char>(c);
  }
  if (word == "lt") return '<';
  if (word == "gt") return '>';
  if (word == "amp") return '&';
  if (word == "quot") return '"';
  if (word == "apos") return '\'';
  const bool isHex = word.size() > 1 && word[1] == 'x';
  char32_t code = 0;
  if (word.size() < 2 + (isHex ? 1U : 0U) || word[0] != '#') {
    throw XmlError(Message::tr("an unknown entity"));
  }
  for (const char c : std::string_view(word).substr(isHex ? 2 : 1)) {
    const bool digit = c >= '0' && c <= '9';
    const char lower = static_cast<char>(c | 0x20);
    if (!digit && !(isHex && lower >= 'a' && lower <= 'f')) {
      throw XmlError(Message::tr("an unknown entity"));
    }
    const auto value = static_cast<char32_t>(digit ? c - '0' : lower - 'a' + 10);
    code = code * (isHex ? 16 : 10) + value;
    if (code > 0x10FFFF) throw XmlError(Message::tr("a character that does not exist"));
  }
  if (code == 0 || (code >= 0xD800 && code < 0xE000)) {
    throw XmlError(Message::tr("a character that does not exist"));
  }
  return code;
}

std::string_view XmlReader::text() {
  mText.clear();
  if (mSelfClosed) {
    leave();
    return mText;
  }
  for (;;) {
    int c = take();
    if (c == kEnd) throw XmlError(Message::tr("the document ends too early"));
    if (c == 0) throw XmlError(Message::tr("a byte of value 0"));
    if (c == '<') {
      if (peek() != '/') {
        if (skipMarkup()) continue;
        throw XmlError(Message::tr("there is an element in \"%1\", which holds text")
                           .arg(std::string(name())));
      }
      ++mAt;
      closeElement();
      return mText;
    }
    if (mText.size() >= kLongestText) throw XmlError(Message::tr("a text is too long"));
    if (c == '&') {
      appendUtf8(mText, entity());
    } else {
      mText += static_cast<char>(c);
    }
  }
}

bool XmlReader::holdsText() {
  if (mSelfClosed) return false;
  skipBlanks();
  return peek() != '<' && peek() != kEnd;
}

void XmlReader::countSequence() {
  if (++mSequences > kMostSequences) throw XmlError(Message::tr("it holds too many sequences"));
}

void XmlReader::skip() {
  const std::size_t outside = mOpen - 1;
  if (mSelfClosed) {
    leave();
    return;
  }
  while (mOpen > outside) {
    const int c = take();
    if (c == kEnd) throw XmlError(Message::tr("the document ends too early"));
    if (c != '<') continue;
    if (peek() == '/') {
      ++mAt;
      closeElement();
    } else if (!skipMarkup()) {
      openElement();
      if (mSelfClosed) leave();
    }
  }
}

}  // namespace talvesk
