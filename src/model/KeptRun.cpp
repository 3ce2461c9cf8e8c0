#include "model/KeptRun.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

std::size_t numbersOf(const std::vector<KeptRun>& runs) {
  std::size_t numbers = 0;
  for (const KeptRun& run : runs) numbers += run.numbers();
  return numbers;
}

}  // namespace

Message KeptRun::title() const {
  return name.empty() ? Message::tr("Run %1").arg(number) : Message(name);
}

SectionMisfit KeptRun::misfit() const {
  return record.sectionHistory.empty() ? SectionMisfit() : record.sectionHistory.back();
}

std::size_t KeptRun::numbers() const {
  std::size_t count = slowness.size() + coorcount.size() + hitCounts.size();
  for (const SharedVector<double>& shot : times) count += shot.size();
  return count;
}

std::vector<Message> addRun(KeptRun run, std::vector<KeptRun>& runs) {
  std::uint32_t last = 0;
  for (const KeptRun& each : runs) last = std::max(last, each.number);
  run.number = last + 1;
  const std::size_t room = kMostRunNumbers - std::min(kMostRunNumbers, run.numbers());
  std::vector<Message> gone;
  while (!runs.empty() && (runs.size() >= kMostRuns || numbersOf(runs) > room)) {
    auto oldest = std::find_if(runs.begin(), runs.end(),
                               [](const KeptRun& each) { return each.name.empty(); });
    if (oldest == runs.end()) oldest = runs.begin();
    gone.push_back(oldest->title());
    runs.erase(oldest);
  }
  runs.push_back(std::move(run));
  return gone;
}

std::optional<std::size_t> findRun(const std::vector<KeptRun>& runs, const std::string& called) {
  const auto last = [&](auto isIt) -> std::optional<std::size_t> {
    for (std::size_t i = runs.size(); i-- > 0;) {
      if (isIt(runs[i])) return i;
    }
    return std::nullopt;
  };
  const auto byNumber =
      last([&](const KeptRun& run) { return std::to_string(run.number) == called; });
  if (byNumber) return byNumber;
  return last([&](const KeptRun& run) { return !called.empty() && run.title() == called; });
}

bool sameCells(const GridSize& a, const GridSize& b) {
  return a.righe == b.righe && a.col == b.col && a.nV == b.nV && a.aLato == b.aLato;
}

}  // namespace talvesk
