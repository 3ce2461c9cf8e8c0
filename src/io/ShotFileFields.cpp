#include "io/ShotFileFields.h"

#include "base/PlainText.h"
#include "io/ByteReader.h"
#include "io/FileFormats.h"
#include "io/standard/Seg2Header.h"
#include "io/standard/SegyStandard.h"
#include "io/standard/SuStandard.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace talvesk {
namespace {

constexpr std::uint16_t kSeg2File = 0x3A55;
constexpr std::uint16_t kSeg2Trace = 0x4422;
constexpr std::uint64_t kSeg2Descriptor = 32;  ///< bytes in front of pointers, and of strings
/// Fields of one header: more is no header, but samples that were taken for one.
constexpr std::size_t kMostFields = 256;

/// Bytes of no known code as one line of UTF-8: what is no ASCII is taken as Latin 1, which the
/// instruments write, unless all of it is UTF-8.
std::string lineOf(std::string_view bytes) {
  std::string text;
  const bool ascii = std::all_of(bytes.begin(), bytes.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  for (const char c : bytes) {
    const auto code = static_cast<unsigned char>(c);
    if (ascii || code < 0x80) {
      text += c;
    } else {
      text += static_cast<char>(0xC0 | (code >> 6));
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  text = withoutControls(std::move(text));
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  if (text.size() <= kLongestField) return text;
  static const std::string kCut = "\xE2\x80\xA6";
  return beginningOf(std::move(text), kLongestField - kCut.size()) + kCut;
}

class Seg2Fields {
 public:
  explicit Seg2Fields(std::string_view bytes) : mReader(bytes) {}

  bool isSeg2() {
    for (const ByteOrder order : {ByteOrder::kLittle, ByteOrder::kBig}) {
      mLayout.order = order;
      if (mReader.u16(0, order) == kSeg2File) return true;
    }
    return false;
  }

  ShotFileFields read() {
    mLayout.stringEnd = endAt(8);
    mLayout.lineEnd = endAt(11);
    const std::size_t count = mReader.u16(6, mLayout.order);
    const std::uint64_t table =
        kSeg2Descriptor + std::max<std::uint64_t>(mReader.u16(4, mLayout.order), 4 * count);
    std::uint64_t firstTrace = mReader.size();
    ShotFileFields fields;
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint64_t at = mReader.u32(kSeg2Descriptor + 4 * i, mLayout.order);
      fields.traces.emplace_back();
      if (at >= table) firstTrace = std::min(firstTrace, at);  // even where no trace begins there
      if (mReader.u16(at, mLayout.order) != kSeg2Trace) continue;
      const std::uint64_t size = mReader.u16(at + 2, mLayout.order);
      if (size <= kSeg2Descriptor) continue;
      fields.traces.back() = fieldsOf(at + kSeg2Descriptor, size - kSeg2Descriptor);
    }
    if (table < firstTrace) fields.common = fieldsOf(table, firstTrace - table);
    fields.leftOut = std::move(mLeftOut);
    return fields;
  }

 private:
  std::string endAt(std::uint64_t at) {
    const std::size_t size = mReader.u8(at);
    return size > 2 ? std::string() : std::string(mReader.slice(at + 1, size));
  }

  std::vector<FileField> fieldsOf(std::uint64_t at, std::uint64_t size) {
    std::vector<FileField> fields;
    for (const Seg2Line& line : seg2Lines(mReader.slice(at, size), mLayout)) {
      std::string name = lineOf(line.keyword);
      if (name.empty()) continue;
      if (fields.size() == kMostFields) {
        if (mLeftOut.size() < kMostLeftOut) mLeftOut.insert(std::move(name));
        continue;
      }
      fields.push_back({std::move(name), lineOf(line.value)});
    }
    return fields;
  }

  ByteReader mReader;
  Seg2Layout mLayout;
  std::set<std::string> mLeftOut;
};

struct SegyField {
  const char* name;
  std::uint16_t byte;   ///< of the trace header, from 1
  std::uint16_t bytes;  ///< 2 or 4
};

constexpr std::array<SegyField, 71> kSegyFields = {{
    {"trace in line", 1, 4},
    {"trace in file", 5, 4},
    {"field record", 9, 4},
    {"trace in field record", 13, 4},
    {"energy source point", 17, 4},
    {"ensemble", 21, 4},
    {"trace in ensemble", 25, 4},
    {"trace identification code", 29, 2},
    {"vertically summed traces", 31, 2},
    {"horizontally stacked traces", 33, 2},
    {"data use", 35, 2},
    {"offset", 37, 4},
    {"receiver elevation", 41, 4},
    {"source elevation", 45, 4},
    {"source depth", 49, 4},
    {"datum at receiver", 53, 4},
    {"datum at source", 57, 4},
    {"water depth at source", 61, 4},
    {"water depth at receiver", 65, 4},
    {"elevation scalar", 69, 2},
    {"coordinate scalar", 71, 2},
    {"source x", 73, 4},
    {"source y", 77, 4},
    {"receiver x", 81, 4},
    {"receiver y", 85, 4},
    {"coordinate units", 89, 2},
    {"weathering velocity", 91, 2},
    {"subweathering velocity", 93, 2},
    {"uphole time at source", 95, 2},
    {"uphole time at receiver", 97, 2},
    {"source static", 99, 2},
    {"receiver static", 101, 2},
    {"total static", 103, 2},
    {"lag time A", 105, 2},
    {"lag time B", 107, 2},
    {"delay recording time", 109, 2},
    {"mute start", 111, 2},
    {"mute end", 113, 2},
    {"samples in trace", 115, 2},
    {"sample interval in us", 117, 2},
    {"gain type", 119, 2},
    {"gain constant", 121, 2},
    {"initial gain", 123, 2},
    {"correlated", 125, 2},
    {"sweep start frequency", 127, 2},
    {"sweep end frequency", 129, 2},
    {"sweep length", 131, 2},
    {"sweep type", 133, 2},
    {"sweep taper start", 135, 2},
    {"sweep taper end", 137, 2},
    {"taper type", 139, 2},
    {"alias filter frequency", 141, 2},
    {"alias filter slope", 143, 2},
    {"notch filter frequency", 145, 2},
    {"notch filter slope", 147, 2},
    {"low-cut frequency", 149, 2},
    {"high-cut frequency", 151, 2},
    {"low-cut slope", 153, 2},
    {"high-cut slope", 155, 2},
    {"year", 157, 2},
    {"day of year", 159, 2},
    {"hour", 161, 2},
    {"minute", 163, 2},
    {"second", 165, 2},
    {"time basis", 167, 2},
    {"trace weighting factor", 169, 2},
    {"geophone group of roll switch", 171, 2},
    {"geophone group of first trace", 173, 2},
    {"geophone group of last trace", 175, 2},
    {"transduction units", 203, 2},
    {"bytes 233 to 236", 233, 4},  // without a meaning in the standard; copies with picks use them
}};

ShotFileFields segyFields(std::string_view bytes, const SegyTraces& found) {
  ByteReader reader(bytes);
  std::vector<std::array<std::int32_t, kSegyFields.size()>> values(found.traces.size());
  std::array<bool, kSegyFields.size()> filled{};
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::uint64_t header = found.traces[i].dataAt - kSegyTraceHeaderBytes;
    for (std::size_t k = 0; k < kSegyFields.size(); ++k) {
      const std::uint64_t at = header + kSegyFields[k].byte - 1;
      values[i][k] =
          kSegyFields[k].bytes == 2 ? reader.i16(at, found.order) : reader.i32(at, found.order);
      filled[k] = filled[k] || values[i][k] != 0;
    }
  }
  ShotFileFields fields;
  fields.traces.resize(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    for (std::size_t k = 0; k < kSegyFields.size(); ++k) {
      if (!filled[k]) continue;
      fields.traces[i].push_back({kSegyFields[k].name, std::to_string(values[i][k])});
    }
  }
  return fields;
}

}  // namespace

Status readShotFileFields(std::string_view bytes, const std::string& path, ShotFileFields& fields) {
  Seg2Fields seg2(bytes);
  if (seg2.isSeg2()) {
    fields = seg2.read();
    return {};
  }
  const ShotFormat* format = shotFormatOf(path);
  const std::string_view head = bytes.substr(0, std::size_t{8} << 10);
  bool su = format != nullptr && std::string_view(format->id) == "su";
  SegyTraces found;
  if (!su && likelihoodOfSegy(head, bytes.size()) == Likelihood::kNo) {
    su = likelihoodOfSu(head, bytes.size()) != Likelihood::kNo;
    if (!su) return Status::failure(Message::tr("its format names no fields of headers"));
  }
  const Status status = su ? findSuByStandard(bytes, found) : findSegyByStandard(bytes, found);
  if (!status.ok()) return status;
  // Headers of that revision may have extensions between them and their samples.
  if (found.revision >= 2) {
    return Status::failure(Message::tr("fields of SEG-Y revision 2 are not shown"));
  }
  fields = segyFields(bytes, found);
  return {};
}

}  // namespace talvesk
