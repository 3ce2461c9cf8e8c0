#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// Tables of numbers as text editors and spreadsheets save them: in several encodings, and with a
/// row of words above the numbers.

/// The text of a file as UTF-8 without a byte order mark. UTF-16 of either byte order is known by
/// its mark, or, as a table begins with an ASCII character, by which of the first two bytes is 0.
/// Other bytes stay as they are.
std::string tableText(std::string_view bytes);

/// Whether a field begins with a number, blanks and a quotation mark aside: "12 m" and ",5" do, and
/// so does "nan"; "x (m)" and "information" do not.
bool beginsAsNumber(std::string_view field);

/// Whether the fields of a first line are a heading: words, and none that begins as a number.
bool isHeading(const std::vector<std::string_view>& fields);

/// What a reader of a table did to its text, for the user to be told.
struct TableRemarks {
  /// A field that is no number and was taken as 0.
  struct Zero {
    std::size_t line = 0;  ///< from 1
    std::string field;     ///< what stands there; may be empty
  };

  bool skippedHeading = false;  ///< the first line
  std::string heading;          ///< what it says
  std::vector<Zero> zeros;      ///< the first of them, kNamedZeros at most
  std::size_t zeroCount = 0;

  static constexpr std::size_t kNamedZeros = 20;
  // These cut what they quote to a length and to characters that a message can hold.
  void skipHeading(std::string_view line);
  void addZero(std::size_t line, std::string_view field);
};

/// The remarks as sentences, of which none ends in a point: at most one on each kind.
std::vector<std::string> describe(const TableRemarks& remarks);

}  // namespace talvesk
