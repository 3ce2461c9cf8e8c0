#include "io/XmlShape.h"

#include <algorithm>

namespace talvesk {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == ':' || c == '-' || c == '.';
}

/// Walks over the markup; what stands between tags is of no interest.
class Walk {
 public:
  Walk(std::string_view xml, std::size_t mostLevels) : mRest(xml), mMostLevels(mostLevels) {}

  /// What is wrong with the document; empty: nothing.
  Message fault() {
    if (mRest.find('\0') != std::string_view::npos) {
      return Message::tr("it holds bytes that no text holds");
    }
    bool any = false;
    while (nextMarkup()) {
      if (Message found = markup(); !found.empty()) return found;
      any = true;
    }
    if (!any) return Message::tr("it holds no XML");
    return mLevel == 0 ? Message() : cutShort();
  }

 private:
  static Message cutShort() { return Message::tr("it ends within an element"); }
  static Message malformed() { return Message::tr("it has a malformed tag"); }

  bool nextMarkup() {
    const std::size_t at = mRest.find('<');
    mRest.remove_prefix(std::min(at, mRest.size()));
    return !mRest.empty();
  }

  bool take(std::string_view text) {
    if (mRest.substr(0, text.size()) != text) return false;
    mRest.remove_prefix(text.size());
    return true;
  }

  Message takeUntil(std::string_view end) {
    const std::size_t at = mRest.find(end);
    if (at == std::string_view::npos) return cutShort();
    mRest.remove_prefix(at + end.size());
    return {};
  }

  void skipBlanks() {
    mRest.remove_prefix(std::min(mRest.find_first_not_of(kBlanks), mRest.size()));
  }

  bool takeName() {
    const auto end = std::find_if_not(mRest.begin(), mRest.end(), isNameCharacter);
    const auto length = static_cast<std::size_t>(end - mRest.begin());
    mRest.remove_prefix(length);
    return length > 0;
  }

  Message markup() {
    if (take("<!--")) return takeUntil("-->");
    if (take("<?")) return takeUntil("?>");
    if (take("<!")) {
      return Message::tr("it has a document type or raw data, which no file of this kind has");
    }
    if (take("</")) return closingTag();
    take("<");
    return openingTag();
  }

  Message closingTag() {
    if (!takeName()) return malformed();
    skipBlanks();
    if (!take(">")) return malformed();
    if (mLevel == 0) return Message::tr("it closes an element that it has not opened");
    --mLevel;
    return {};
  }

  Message openingTag() {
    if (!takeName()) return malformed();
    for (;;) {
      skipBlanks();
      // Where a parser enters an element that is empty it is as deep as in any other.
      if (mLevel == mMostLevels) return Message::tr("its elements are nested too deeply");
      if (take("/>")) return {};
      if (take(">")) {
        ++mLevel;
        return {};
      }
      if (!takeAttribute()) return malformed();
    }
  }

  bool takeAttribute() {
    if (!takeName()) return false;
    skipBlanks();
    if (!take("=")) return false;
    skipBlanks();
    const std::string_view quote = mRest.substr(0, 1);
    if (quote != "\"" && quote != "'") return false;
    mRest.remove_prefix(1);
    const std::size_t end = mRest.find(quote);
    if (mRest.substr(0, end).find('<') != std::string_view::npos) return false;
    return takeUntil(quote).empty();
  }

  std::string_view mRest;
  std::size_t mMostLevels;
  std::size_t mLevel = 0;
};

}  // namespace

Status checkXmlShape(std::string_view xml, const std::string& name, std::size_t mostLevels) {
  const Message fault = Walk(xml, mostLevels).fault();
  return fault.empty() ? Status()
                       : Status::failure(Message::tr("%1 cannot be read: %2").arg(name).arg(fault));
}

}  // namespace talvesk
