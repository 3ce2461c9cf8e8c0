#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// Writes an XML document of the form that the cereal library's XML archive gives its own, element
/// by element: root `cereal`, one tab per level, items of a sequence named value0, value1, ...
/// The library keeps the whole document in memory before it writes, some twenty times the samples
/// of a survey, and prints numbers by the locale of the process; this writer does neither.
class XmlWriter {
 public:
  /// Begins the document. The stream must outlive the writer.
  explicit XmlWriter(std::ostream& stream);
  ~XmlWriter();
  XmlWriter(const XmlWriter&) = delete;
  XmlWriter& operator=(const XmlWriter&) = delete;

  /// An element of further elements. A null name takes the next of value0, value1, ...
  void begin(const char* name);
  void beginSequence(const char* name);  ///< the same, marked as of variable length
  void end();

  void put(const char* name, double value);  ///< 17 significant digits: reads back as it was
  void put(const char* name, bool value);
  void put(const char* name, std::int32_t value) { putInteger(name, value); }
  void put(const char* name, std::uint32_t value) { putInteger(name, value); }
  void put(const char* name, std::uint64_t value) { putInteger(name, value); }
  void put(const char* name, std::int64_t value) { putInteger(name, value); }
  /// Characters that XML cannot hold become blanks.
  void put(const char* name, const std::string& value);

  /// Closes what is open, root included, and says whether the stream took everything.
  bool finish();

 private:
  struct Level {
    std::string name;
    std::size_t counter = 0;
    bool empty = true;
  };

  template <typename Integer>
  void putInteger(const char* name, Integer value);
  void openTag(const char* name);
  void putLeaf(const char* name, const char* attributes, std::string_view text);
  void indent();
  void write(std::string_view text);
  void flush();

  std::ostream& mStream;
  std::string mBuffer;
  std::vector<Level> mLevels;  ///< open elements, the root first
  std::string mName;           ///< of the element that was opened last
};

}  // namespace talvesk
