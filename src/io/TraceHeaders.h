#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "io/ShotFileFields.h"
#include "model/TomoDocument.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace talvesk {

/// One column of the table of trace headers.
struct HeaderColumn {
  enum class Kind { kCount, kLength, kMilliseconds, kText };

  std::string name;         ///< in files, with its unit: "geophone_x_m"
  Message title;            ///< on the screen, without its unit
  Kind kind = Kind::kText;  ///< lengths are in metres, times in milliseconds
};

/// What is known of every trace of a survey, a row each, in the order of trace sets and channels:
/// where it is from, where geophone and shot stand, by the survey and by the file, how it is
/// sampled, what was put right of it and where it is picked. Cells are looked up when they are
/// asked for, so that a table of any size is there at once. Keeps a copy of the survey, which costs
/// some pointers.
class TraceHeaders {
 public:
  TraceHeaders() : TraceHeaders(TomoDocument()) {}
  explicit TraceHeaders(TomoDocument document);

  const std::vector<HeaderColumn>& columns() const { return mColumns; }
  std::size_t rows() const { return mStarts.back(); }
  std::size_t setOf(std::size_t row) const;    ///< trace set, from 0
  std::size_t traceOf(std::size_t row) const;  ///< of its set, from 0
  /// rows() where there is no such trace.
  std::size_t rowOf(std::size_t set, std::size_t trace) const;

  /// Of a column that is no text; not a number where it is not known.
  double number(std::size_t row, std::size_t column) const;
  /// Of a column of texts: none where there is nothing to say.
  std::vector<Message> words(std::size_t row, std::size_t column) const;

  /// Reads the shot files again and adds a column for every field that their headers name,
  /// whether or not the readers use it: what instrument, when, gain, stack, notes. \param notes
  /// out, added to: files whose fields are not there, and why
  void addFieldsOfFiles(std::vector<Message>& notes);
  bool hasFieldsOfFiles() const { return !mFields.empty(); }
  /// Which fields have no column, because there are more kinds than a table has room for; empty as
  /// a rule.
  const Message& fieldsLeftOut() const { return mLeftOut; }
  /// Has the fields that another table of the same recordings has read.
  void takeFieldsOfFiles(TraceHeaders other);

 private:
  const std::string& fieldOf(std::size_t set, std::size_t trace, std::size_t column) const;
  std::size_t fieldColumn(const std::string& name, std::map<std::string, std::size_t>& known);

  TomoDocument mDocument;
  std::vector<std::size_t> mRecords;  ///< per set: the first of its records; their number if none
  std::vector<HeaderColumn> mColumns;
  std::vector<std::size_t> mStarts;  ///< first row of every set, and the number of rows
  /// Per set, per trace: its fields, by column after the known ones; shorter where the rest is
  /// empty.
  std::vector<std::vector<std::vector<std::string>>> mFields;
  Message mLeftOut;
};

/// Writes the table with a heading, fields separated by commas, lengths in metres, times in
/// milliseconds; what is not known is empty.
Status writeTraceHeaders(const std::string& path, const TraceHeaders& headers);

}  // namespace talvesk
