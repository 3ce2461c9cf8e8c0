#include "io/PickHeaders.h"
#include "io/standard/SegyStandard.h"
#include "io/standard/SuStandard.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace talvesk {
namespace {

constexpr std::size_t kPickAt = 232;  ///< bytes 233 to 236
constexpr double kMicrosecond = 1e-6;

struct Word {
  std::size_t at = 0;
  std::uint32_t value = 0;
};

std::uint32_t wordAt(const std::string& bytes, std::size_t at, ByteOrder order) {
  return order == ByteOrder::kBig ? assembled<ByteOrder::kBig, std::uint32_t>(&bytes[at])
                                  : assembled<ByteOrder::kLittle, std::uint32_t>(&bytes[at]);
}

void putWord(std::string& bytes, const Word& word, ByteOrder order) {
  for (std::size_t i = 0; i < 4; ++i) {
    const std::size_t shift = order == ByteOrder::kLittle ? i : 3 - i;
    bytes[word.at + i] = static_cast<char>((word.value >> (8 * shift)) & 0xffU);
  }
}

}  // namespace

Status putPicksIntoSegy(std::string& bytes, SegyKind kind, const HeaderPicks& picks,
                        std::size_t& replaced) {
  SegyTraces found;
  Status status =
      kind == SegyKind::kSu ? findSuByStandard(bytes, found) : findSegyByStandard(bytes, found);
  if (!status.ok()) return status;
  if (found.revision >= 2) {
    return Status::failure(
        Message::tr("it is SEG-Y of revision 2, whose trace headers have no bytes to spare"));
  }
  if (found.traces.size() != picks.size()) {
    return Status::failure(Message::tr("it has %1 traces, the survey %2 of them")
                               .arg(found.traces.size())
                               .arg(picks.size()));
  }
  std::vector<Word> words;
  for (std::size_t i = 0; i < picks.size(); ++i) {
    const std::uint64_t header = found.traces[i].dataAt - kSegyTraceHeaderBytes;
    const double time = std::round(picks[i].value_or(0.0) / kMicrosecond);
    constexpr double kMost = std::numeric_limits<std::int32_t>::max();
    if (header + kSegyTraceHeaderBytes > bytes.size() || !(std::fabs(time) <= kMost)) {
      return Status::failure(
          Message::tr("the header of trace %1 has no room for a pick").arg(i + 1));
    }
    words.push_back({static_cast<std::size_t>(header) + kPickAt,
                     static_cast<std::uint32_t>(static_cast<std::int32_t>(time))});
  }
  for (const Word& word : words) {
    const std::uint32_t before = wordAt(bytes, word.at, found.order);
    if (before != 0 && before != word.value) ++replaced;
    putWord(bytes, word, found.order);
  }
  return {};
}

}  // namespace talvesk
