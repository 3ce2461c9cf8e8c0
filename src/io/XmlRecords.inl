#pragma once

// Records in XML, both ways by one description. A record is described by a function
//   template <class V> void describe(V& fields, Record& record);
// that names its elements in the order in which they are written: fields("x", record.x) for one
// that must be there, fields.optional("x", record.x) for one that older files lack. Elements are
// found by name, whatever their order; unknown ones are passed over.

#include "base/Samples.h"
#include "base/Shared.h"
#include "io/XmlReader.h"
#include "io/XmlWriter.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace talvesk::xml {

template <typename T>
struct IsVector : std::false_type {};
template <typename T>
struct IsVector<std::vector<T>> : std::true_type {};

template <typename T>
struct IsShared : std::false_type {};
template <typename T>
struct IsShared<SharedVector<T>> : std::true_type {};

struct OneOrMany;

class Output {
 public:
  explicit Output(XmlWriter& writer) : mWriter(writer) {}

  template <typename T>
  void operator()(const char* name, T& value) {
    put(name, value);
  }
  template <typename T>
  void optional(const char* name, T& value) {
    put(name, value);
  }

  template <typename T>
  void put(const char* name, const T& value) {
    if constexpr (std::is_same_v<T, Samples>) {
      mWriter.beginSequence(name);
      for (const double sample : value) put(nullptr, sample);
      mWriter.end();
    } else if constexpr (std::is_same_v<T, OneOrMany>) {
      put(name, value.values);
    } else if constexpr (IsShared<T>::value) {
      put(name, *value);
    } else if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>) {
      mWriter.put(name, value);
    } else if constexpr (std::is_enum_v<T>) {
      mWriter.put(name, static_cast<std::int32_t>(value));
    } else if constexpr (IsVector<T>::value) {
      mWriter.beginSequence(name);
      for (const typename T::value_type& item : value) put(nullptr, item);
      mWriter.end();
    } else {
      mWriter.begin(name);
      describe(*this, const_cast<T&>(value));  // the one description serves reading, too
      mWriter.end();
    }
  }

 private:
  XmlWriter& mWriter;
};

template <typename Number>
Number numberOf(std::string_view text, std::string_view element) {
  const auto first = text.find_first_not_of(" \t\r\n");
  text = first == std::string_view::npos ? std::string_view{} : text.substr(first);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const std::string_view rest = text.substr(static_cast<std::size_t>(end - text.data()));
  if (error != std::errc{} || rest.find_first_not_of(" \t\r\n") != std::string_view::npos) {
    throw XmlError(
        Message::tr("\"%1\" is not a number that it can hold").arg(std::string(element)));
  }
  return value;
}

inline bool truthOf(std::string_view text, std::string_view element) {
  const auto first = text.find_first_not_of(" \t\r\n");
  const auto last = text.find_last_not_of(" \t\r\n");
  if (first != std::string_view::npos) text = text.substr(first, last - first + 1);
  if (text == "true" || text == "1") return true;
  if (text == "false" || text == "0") return false;
  throw XmlError(Message::tr("\"%1\" is neither true nor false").arg(std::string(element)));
}

template <typename Record>
std::vector<std::string> readRecord(XmlReader& reader, Record& record);

/// Reads the current element of the reader, and leaves it.
template <typename T>
void read(XmlReader& reader, T& value) {
  const std::string element(reader.name());
  if constexpr (std::is_same_v<T, Samples>) {
    std::vector<double> values;
    read(reader, values);
    value = std::move(values);
  } else if constexpr (std::is_same_v<T, std::string>) {
    value = reader.text();
  } else if constexpr (std::is_same_v<T, bool>) {
    value = truthOf(reader.text(), element);
  } else if constexpr (std::is_arithmetic_v<T>) {
    value = numberOf<T>(reader.text(), element);
  } else if constexpr (std::is_enum_v<T>) {
    value = static_cast<T>(numberOf<std::int32_t>(reader.text(), element));
  } else if constexpr (IsShared<T>::value) {
    read(reader, value.edit());
  } else if constexpr (IsVector<T>::value) {
    reader.countSequence();
    value.clear();
    while (reader.nextChild()) {
      if constexpr (std::is_same_v<typename T::value_type, bool>) {
        bool item = false;
        read(reader, item);
        value.push_back(item);
      } else {
        read(reader, value.emplace_back());
      }
    }
  } else {
    readRecord(reader, value);
  }
}

/// One value, or one per point.
struct OneOrMany {
  std::vector<double>& values;
};

inline void read(XmlReader& reader, OneOrMany& element) {
  if (!reader.holdsText()) return read(reader, element.values);
  double only = 0.0;
  read(reader, only);
  element.values.assign(1, only);
}

/// Hands the current element to the field of its name.
class Match {
 public:
  Match(XmlReader& reader, std::uint64_t& found) : mReader(reader), mFound(found) {}

  template <typename T>
  void operator()(const char* name, T& value) {
    const std::uint64_t bit = std::uint64_t{1} << mIndex++;
    if (mTaken || mReader.name() != name) return;
    if ((mFound & bit) != 0) throw XmlError(Message::tr("\"%1\" is there twice").arg(name));
    mTaken = true;
    mFound |= bit;
    read(mReader, value);
  }
  template <typename T>
  void optional(const char* name, T& value) {
    (*this)(name, value);
  }
  bool taken() const { return mTaken; }

 private:
  XmlReader& mReader;
  std::uint64_t& mFound;
  unsigned mIndex = 0;
  bool mTaken = false;
};

/// Looks for the fields that no element filled.
class Gaps {
 public:
  explicit Gaps(std::uint64_t found) : mFound(found) {}

  template <typename T>
  void operator()(const char* name, T&) {
    if (isMissing()) throw XmlError(Message::tr("\"%1\" is missing").arg(name));
  }
  template <typename T>
  void optional(const char* name, T&) {
    if (isMissing()) missing.emplace_back(name);
  }

  std::vector<std::string> missing;  ///< optional fields, in order

 private:
  bool isMissing() { return (mFound >> mIndex++ & 1) == 0; }

  std::uint64_t mFound;
  unsigned mIndex = 0;
};

/// Reads the elements of the current element and leaves it.
/// \return the optional fields that were not there, in order
template <typename Record>
std::vector<std::string> readRecord(XmlReader& reader, Record& record) {
  std::uint64_t found = 0;
  while (reader.nextChild()) {
    Match match(reader, found);
    describe(match, record);
    if (!match.taken()) reader.skip();
  }
  Gaps gaps(found);
  describe(gaps, record);
  return std::move(gaps.missing);
}

}  // namespace talvesk::xml
