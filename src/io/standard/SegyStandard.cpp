#include "io/standard/SegyStandard.h"

#include "io/ByteReader.h"
#include "io/standard/SegyLayout.h"
#include "io/standard/SegyShots.h"
#include "io/standard/SegyText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace talvesk {
namespace {

constexpr std::uint64_t kHeaderBytes = 3600;
constexpr std::uint32_t kOrderConstant = 0x01020304;
constexpr std::uint32_t kPairSwappedConstant = 0x02010403;
constexpr std::int64_t kMostTextHeaders = 1000;
constexpr std::uint64_t kMostTrailers = 16;     ///< looked for where their number is not told
constexpr std::uint32_t kMostExtensions = 100;  ///< of a trace header
constexpr double kMetresPerFoot = 0.3048;
constexpr double kLongestInterval = 1e9;  ///< microseconds

/// The binary header, and the fields of later revisions only where the file is of one.
struct BinaryHeader {
  std::uint64_t samples = 0;  ///< per trace
  double interval = 0.0;      ///< microseconds
  std::int16_t code = 0;
  std::int16_t sorting = 0;
  std::int16_t lengthUnits = 0;  ///< 1 metres, 2 feet
  std::uint32_t orderConstant = 0;
  int revision = 0;
  // Revision 1.
  bool fixed = false;
  std::int16_t textHeaders = 0;  ///< behind the binary header; -1: up to a stanza that ends them
  // Revision 2.
  std::uint32_t extensions = 0;  ///< most headers that follow that of a trace
  std::uint64_t first = 0;       ///< where the traces begin; 0 when not told
  std::int32_t trailers = 0;     ///< behind the traces; -1: as many as there are
};

/// Bytes 3501 and 3502 are major and minor revision. Some writers swap them, and before revision 1
/// anything may stand there.
int revisionOf(ByteReader& reader) {
  const int revision = std::max(reader.u8(3500), reader.u8(3501));
  return revision <= 2 ? revision : 0;
}

BinaryHeader binaryHeader(std::string_view bytes, ByteOrder order) {
  ByteReader reader(bytes);
  BinaryHeader header;
  header.interval = reader.u16(3216, order);
  header.samples = reader.u16(3220, order);
  header.code = reader.i16(3224, order);
  header.sorting = reader.i16(3228, order);
  header.lengthUnits = reader.i16(3254, order);
  header.orderConstant = reader.u32(3296, order);
  header.revision = revisionOf(reader);
  if (header.revision >= 1) {
    header.fixed = reader.i16(3502, order) == 1;
    header.textHeaders = reader.i16(3504, order);
  }
  if (header.revision < 2) return header;
  if (const std::uint32_t samples = reader.u32(3268, order); samples != 0) header.samples = samples;
  const double interval = reader.f64(3272, order);
  if (interval > 0.0 && interval < kLongestInterval) header.interval = interval;
  const std::uint32_t extensions = reader.u32(3506, order);
  if (extensions <= kMostExtensions) header.extensions = extensions;
  header.first = reader.u64(3520, order);
  header.trailers = reader.i32(3528, order);
  return header;
}

/// Where the extended textual headers end.
std::uint64_t endOfTextHeaders(std::string_view bytes, const BinaryHeader& header,
                               std::vector<Message>& warnings) {
  const std::uint64_t size = bytes.size();
  if (header.textHeaders >= 0) {
    const std::uint64_t end =
        kHeaderBytes + static_cast<std::uint64_t>(header.textHeaders) * kSegyTextBytes;
    if (end + kSegyTraceHeaderBytes <= size) return end;
  } else {
    std::uint64_t at = kHeaderBytes;
    for (std::int64_t i = 0; i < kMostTextHeaders && at + kSegyTextBytes <= size; ++i) {
      const std::string_view block = bytes.substr(static_cast<std::size_t>(at), kSegyTextBytes);
      at += kSegyTextBytes;
      if (segyStanza(block).find("((SEG:ENDTEXT))") != std::string::npos) return at;
    }
  }
  warnings.push_back(
      Message::tr("its extended textual headers do not end in the file; it was read "
                  "as if there were none"));
  return kHeaderBytes;
}

class SegyReader {
 public:
  SegyReader(std::string_view bytes, ByteOrder order)
      : mBytes(bytes), mHeader(binaryHeader(bytes, order)) {
    mLayout.order = order;
    mLayout.samples = mHeader.samples;
    mLayout.interval = mHeader.interval;
    mLayout.fixed = mHeader.fixed;
    mLayout.extensions = mHeader.extensions;
    const SegySampleCode* const code = segySampleCode(mHeader.code);
    if (code != nullptr) mLayout.width = code->width;
    mLayout.first = firstTrace();
    mLayout.end = endOfTraces();
  }

  const BinaryHeader& header() const { return mHeader; }

  /// How much speaks for this byte order.
  int plausibility() const {
    int points = 0;
    if (isSegySampleCode(mHeader.code)) points += 4;
    if (mHeader.orderConstant == kOrderConstant) points += 4;
    if (mHeader.interval > 0.0 && mHeader.interval <= 32000.0) ++points;
    if (mHeader.sorting >= -1 && mHeader.sorting <= 9) ++points;
    if (mHeader.lengthUnits >= 0 && mHeader.lengthUnits <= 2) ++points;
    const SegyTraceHeader first = segyTraceHeader(mBytes, mLayout.first, mLayout.order);
    if (first.kind >= -1 && first.kind <= 255) ++points;
    if (first.samples != 0 && first.samples == mHeader.samples) ++points;
    if (fitOf(mBytes, mLayout).whole) points += 2;
    return points;
  }

  Status find(SegyTraces& found) {
    found.format = "segy";
    found.order = mLayout.order;
    found.code = segySampleCode(mHeader.code);
    if (found.code == nullptr) return refusal();
    found.revision = mHeader.revision;
    found.hasTimeScalars = mHeader.revision >= 1;
    found.hasLaterKinds = mHeader.revision >= 1;
    // 2 midpoint, 3 single fold, 4 stacked, 7 common offset, 8 and 9 midpoint, conversion point.
    const std::int16_t sorting = mHeader.sorting;
    found.sortedOtherwise = (sorting >= 2 && sorting <= 4) || (sorting >= 7 && sorting <= 9);
    found.warnings = std::move(mWarnings);
    if (mHeader.lengthUnits == 2) {
      found.metresPerUnit = kMetresPerFoot;
      found.warnings.push_back(
          Message::tr("its lengths are in feet (bytes 3255 and 3256) and were taken to metres"));
    }
    found.traces = findSegyTraces(mBytes, mLayout, found.warnings);
    const bool none = std::all_of(found.traces.begin(), found.traces.end(),
                                  [](const SegyTrace& trace) { return trace.samples == 0; });
    if (none) return Status::failure(Message::tr("its headers tell no number of samples"));
    return {};
  }

 private:
  Status refusal() const {
    if (mHeader.code == kSegyFixedPointWithGain) {
      return Status::failure(
          Message::tr("its samples have the data format code 4 (fixed point with gain), which is "
                      "not read; have the recording software export another one"));
    }
    return Status::failure(
        Message::tr("its samples have the data format code %1, which the standard does not know; "
                    "the file is damaged or no SEG-Y file")
            .arg(mHeader.code));
  }

  std::uint64_t firstTrace() {
    if (mHeader.first == 0) return endOfTextHeaders(mBytes, mHeader, mWarnings);
    const bool inFile =
        mHeader.first >= kHeaderBytes && mHeader.first <= mBytes.size() - kSegyTraceHeaderBytes;
    if (inFile) return mHeader.first;
    mWarnings.push_back(
        Message::tr("the place of the first trace in its header (bytes 3521 to "
                    "3528) is not in the file and was not believed"));
    return endOfTextHeaders(mBytes, mHeader, mWarnings);
  }

  /// Stanzas may follow the traces; where their number is not told they begin where the traces
  /// before them fit.
  std::uint64_t endOfTraces() const {
    const std::uint64_t size = mBytes.size();
    const std::uint64_t room = (size - mLayout.first) / kSegyTextBytes;
    if (mHeader.trailers >= 0) {
      const auto trailers = static_cast<std::uint64_t>(mHeader.trailers);
      return trailers <= room ? size - trailers * kSegyTextBytes : size;
    }
    SegyLayout layout = mLayout;
    const std::uint64_t most = std::min<std::uint64_t>(room, kMostTrailers);
    for (std::uint64_t i = 1; i <= most; ++i) {
      layout.end = size - i * kSegyTextBytes;
      const std::string_view block = mBytes.substr(static_cast<std::size_t>(layout.end));
      if (beginsSegyStanza(block) && fitOf(mBytes, layout).whole) return layout.end;
    }
    return size;
  }

  std::string_view mBytes;
  BinaryHeader mHeader;
  SegyLayout mLayout;
  std::vector<Message> mWarnings;
};

bool isLongEnough(std::size_t size) {
  return size >= kHeaderBytes + kSegyTraceHeaderBytes;
}

SegyReader likelier(std::string_view bytes) {
  SegyReader big(bytes, ByteOrder::kBig);
  SegyReader little(bytes, ByteOrder::kLittle);
  return little.plausibility() > big.plausibility() ? little : big;
}

}  // namespace

Likelihood likelihoodOfSegy(std::string_view head, std::size_t fileSize) {
  if (!isLongEnough(head.size()) || !isLongEnough(fileSize)) return Likelihood::kNo;
  for (const ByteOrder order : {ByteOrder::kBig, ByteOrder::kLittle}) {
    const BinaryHeader header = binaryHeader(head, order);
    if (!isSegySampleCode(header.code)) continue;
    const bool ordered = header.orderConstant == kOrderConstant;
    if (ordered || isSegyText(head.substr(0, kSegyTextBytes))) return Likelihood::kYes;
    const SegyTraceHeader first = segyTraceHeader(head, kHeaderBytes, order);
    const bool told = header.samples > 0 && header.interval > 0.0;
    if (told && first.samples == header.samples) return Likelihood::kYes;
    if (told || first.samples > 0) return Likelihood::kPerhaps;
  }
  return Likelihood::kNo;
}

Status findSegyByStandard(std::string_view bytes, SegyTraces& found) {
  if (!isLongEnough(bytes.size())) {
    return Status::failure(Message::tr("it is too short for a SEG-Y file with a trace"));
  }
  ByteReader reader(bytes);
  for (const ByteOrder order : {ByteOrder::kBig, ByteOrder::kLittle}) {
    if (reader.u32(3296, order) == kPairSwappedConstant) {
      return Status::failure(Message::tr("its bytes are swapped in pairs, which is not read"));
    }
  }
  return likelier(bytes).find(found);
}

Status readSegyByStandard(std::string_view bytes, StandardReading& reading) {
  SegyTraces found;
  if (Status status = findSegyByStandard(bytes, found); !status.ok()) return status;
  return readSegyShots(bytes, std::move(found), reading);
}

}  // namespace talvesk
