#include "model/FilterSteps.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

std::size_t numbersOf(FilterKind kind) {
  switch (kind) {
    case FilterKind::kBand:
      return 4;
    case FilterKind::kNotch:
      return 3;
    case FilterKind::kVelocity:
      return 5;
    default:
      return 0;
  }
}

Message describeBand(const std::vector<double>& numbers) {
  if (numbers[0] > 0.0 && numbers[2] > 0.0) {
    return Message::tr("band-pass from %1 Hz, order %2, to %3 Hz, order %4")
        .arg(numbers[2])
        .arg(numbers[3])
        .arg(numbers[0])
        .arg(numbers[1]);
  }
  return numbers[0] > 0.0
             ? Message::tr("low-pass %1 Hz, order %2").arg(numbers[0]).arg(numbers[1])
             : Message::tr("high-pass %1 Hz, order %2").arg(numbers[2]).arg(numbers[3]);
}

Message describeVelocity(const std::vector<double>& numbers) {
  const Message range = numbers[1] > 0.0
                            ? Message::tr("%1 to %2")
                                  .arg(Message::velocity(numbers[0]))
                                  .arg(Message::velocity(numbers[1]))
                            : Message::tr("%1 and more").arg(Message::velocity(numbers[0]));
  const Message way = numbers[2] > 0.0   ? Message::tr("forth along the line")
                      : numbers[2] < 0.0 ? Message::tr("back along the line")
                                         : Message::tr("both ways");
  return (numbers[3] > 0.0 ? Message::tr("velocities of %1, %2, pass (taper %3 %)")
                           : Message::tr("velocities of %1, %2, are rejected (taper %3 %)"))
      .arg(range)
      .arg(way)
      .arg(numbers[4]);
}

}  // namespace

bool isSound(const FilterStep& step) {
  return step.kind >= FilterKind::kAgc && step.kind <= FilterKind::kVelocity &&
         step.numbers.size() == numbersOf(step.kind) &&
         std::all_of(step.numbers.begin(), step.numbers.end(),
                     [](double number) { return std::isfinite(number); });
}

Message describe(const FilterStep& step) {
  switch (step.kind) {
    case FilterKind::kAgc:
      return Message::tr("AGC");
    case FilterKind::kHushel:
      return Message::tr("Hushel");
    case FilterKind::kBand:
      return describeBand(step.numbers);
    case FilterKind::kNotch:
      return Message::tr("notches at %1 Hz and multiples, %2 in all, quality %3")
          .arg(step.numbers[0])
          .arg(step.numbers[1])
          .arg(step.numbers[2]);
    case FilterKind::kVelocity:
      break;
  }
  return describeVelocity(step.numbers);
}

}  // namespace talvesk
