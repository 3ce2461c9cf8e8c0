#pragma once

#include "base/Status.h"
#include "base/TableText.h"

#include <string_view>
#include <vector>

namespace talvesk {

/// Numbers as people type them and spreadsheets copy them, unlike those of files, follow the user's
/// own way of writing.

/// Reads one number; blanks around it are skipped. Of a point and a comma, the one that comes last
/// is the decimal mark and the other groups thousands; a mark that comes several times groups. A
/// single point is a decimal mark. A single comma is one too, except where the user's decimal mark
/// is the point and the comma can group ("1,250").
/// \param decimalComma whether the comma is the user's decimal mark
/// \return false, and `value` as it was, when the text is no finite number
bool parseTyped(std::string_view text, bool decimalComma, double& value);

/// Rows of numbers; NaN stands for an empty field. Rows may differ in length.
using TypedTable = std::vector<std::vector<double>>;

/// Reads a block copied from a spreadsheet or a text file. Fields are separated by tabs, else by
/// semicolons, else by blanks, else by commas; where the comma is the user's decimal mark, lines
/// with one comma each and nothing else between their digits are single numbers. A heading with
/// rows below it is skipped, and so are empty lines at the end. \param mostRows that are taken;
/// more are refused \param remarks out: whether there was a heading \return failure that names the
/// line, `table` and `remarks` as they were, when a field is no number
Status parseTypedTable(std::string_view copied, bool decimalComma, std::size_t mostRows,
                       TypedTable& table, TableRemarks& remarks);

}  // namespace talvesk
