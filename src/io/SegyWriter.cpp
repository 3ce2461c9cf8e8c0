#include "io/SegyWriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

namespace talvesk {
namespace {

constexpr std::size_t kTextBytes = 3200;
constexpr std::size_t kFileHeaderBytes = 3600;
constexpr std::size_t kTraceHeaderBytes = 240;
constexpr std::size_t kMostSamples = 65535;
constexpr double kMicroseconds = 1e6;
constexpr double kMilliseconds = 1e3;

void put(std::string& bytes, std::size_t offset, std::int64_t value, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    bytes[offset + count - 1 - i] = static_cast<char>((value >> (8 * i)) & 0xff);
  }
}

/// A blank for what EBCDIC has elsewhere or not at all.
char ebcdic(char c) {
  constexpr std::string_view kPlain = " .<(+&$*);-/,%_>?:#@'=\"";
  constexpr unsigned char kCodes[] = {0x40, 0x4B, 0x4C, 0x4D, 0x4E, 0x50, 0x5B, 0x5C,
                                      0x5D, 0x5E, 0x60, 0x61, 0x6B, 0x6C, 0x6D, 0x6E,
                                      0x6F, 0x7A, 0x7B, 0x7C, 0x7D, 0x7E, 0x7F};
  if (c >= '0' && c <= '9') return static_cast<char>(0xF0 + (c - '0'));
  const int letter = (c | 0x20) - 'a';
  if (letter >= 0 && letter < 26 && c >= 'A') {
    const int base = c >= 'a' ? 0x80 : 0xC0;
    const int row = letter < 9    ? 0x01 + letter
                    : letter < 18 ? 0x11 + letter - 9
                                  : 0x22 + letter - 18;
    return static_cast<char>(base + row);
  }
  const std::size_t at = kPlain.find(c);
  return static_cast<char>(at == std::string_view::npos ? 0x40 : kCodes[at]);
}

/// Forty lines of eighty characters, each headed by "C" and its number.
std::string textHeader() {
  constexpr std::size_t kLines = 40;
  constexpr std::size_t kWidth = 80;
  std::array<std::string_view, kLines> lines{};
  lines[0] = "RECORDS OF A REFRACTION SURVEY, WRITTEN BY TALVESK";
  lines[1] = "BIG-ENDIAN IEEE FLOATS. FIELD RECORD AND ENERGY SOURCE POINT: NUMBER OF THE SHOT";
  lines[2] = "X OF SOURCE AND GROUP ALONG THE LINE, Y 0, ELEVATIONS: METRES AFTER THEIR SCALARS";
  lines[3] = "DELAY: START OF THE RECORD AFTER THE SHOT, MS AFTER THE SCALAR OF BYTES 215-216";
  lines[38] = "SEG Y REV1";
  lines[39] = "END TEXTUAL HEADER";
  std::string text;
  for (std::size_t i = 0; i < kLines; ++i) {
    std::string line = std::to_string(i + 1);
    line = "C" + std::string(2 - line.size(), ' ') + line + ' ' + std::string(lines[i]);
    line.resize(kWidth, ' ');
    text += line;
  }
  std::transform(text.begin(), text.end(), text.begin(), ebcdic);
  return text;
}

/// How many parts of a metre a number of a header counts.
int divisorFor(const std::vector<double>& values) {
  constexpr std::array<int, 4> kDivisors = {1, 100, 1000, 10000};
  const auto fits = [&](int divisor) {
    return std::all_of(values.begin(), values.end(), [&](double value) {
      return std::fabs(value * divisor) <= std::numeric_limits<std::int32_t>::max();
    });
  };
  const auto isExact = [&](int divisor) {
    constexpr double kNothing = 1e-9;  // of a metre
    return std::all_of(values.begin(), values.end(), [&](double value) {
      return std::fabs(std::round(value * divisor) / divisor - value) < kNothing;
    });
  };
  int finest = 1;
  for (const int divisor : kDivisors) {
    if (!fits(divisor)) break;
    finest = divisor;
    if (isExact(divisor)) break;
  }
  return finest;
}

std::int64_t scaled(double value, int divisor) {
  constexpr double kMost = std::numeric_limits<std::int32_t>::max();
  return std::llround(std::clamp(value * divisor, -kMost, kMost));
}

std::int64_t scalarOf(int divisor) {
  return divisor == 1 ? 1 : -divisor;
}

/// The start of a record as a number of milliseconds, or of parts of one.
struct Start {
  std::int64_t number = 0;
  int divisor = 1;
};

bool startOf(double seconds, Start& start) {
  for (const int divisor : {1, 10, 100, 1000}) {
    constexpr double kNothing = 1e-6;  // of a millisecond
    const double number = seconds * kMilliseconds * divisor;
    if (std::fabs(number) > std::numeric_limits<std::int16_t>::max()) return false;
    start = {std::llround(number), divisor};
    if (std::fabs(std::round(number) - number) < kNothing * divisor) return true;
  }
  return false;
}

class SegyBytes {
 public:
  explicit SegyBytes(const std::vector<WrittenShot>& shots) : mShots(shots) {
    std::vector<double> distances;
    std::vector<double> elevations;
    for (const WrittenShot& shot : shots) {
      add(shot.source, distances, elevations);
      for (const Point2D& receiver : shot.receivers) add(receiver, distances, elevations);
      mSamples = std::max(mSamples, longest(shot));
      mTraces = std::max(mTraces, shot.traces.size());
    }
    mAlong = divisorFor(distances);
    mUp = divisorFor(elevations);
  }

  std::string bytes() {
    std::string file = textHeader();
    file.resize(kFileHeaderBytes, '\0');
    putBinaryHeader(file);
    std::int64_t number = 0;
    for (const WrittenShot& shot : mShots) {
      for (std::size_t trace = 0; trace < shot.traces.size(); ++trace) {
        appendTrace(shot, trace, ++number, file);
      }
    }
    return file;
  }

 private:
  static void add(const Point2D& point, std::vector<double>& distances,
                  std::vector<double>& elevations) {
    distances.push_back(point.x);
    elevations.push_back(point.z);
  }

  static std::size_t longest(const WrittenShot& shot) {
    std::size_t samples = 0;
    for (const auto& trace : shot.traces) samples = std::max(samples, trace.size());
    return samples;
  }

  static std::int64_t intervalOf(const WrittenShot& shot) {
    return std::llround(shot.sampleInterval * kMicroseconds);
  }

  void putBinaryHeader(std::string& file) const {
    const std::int64_t interval = mShots.empty() ? 0 : intervalOf(mShots.front());
    put(file, 3204, 1, 4);                                    // job
    put(file, 3208, 1, 4);                                    // line
    put(file, 3212, static_cast<std::int64_t>(mTraces), 2);   // traces per record
    put(file, 3216, interval, 2);                             // as written
    put(file, 3218, interval, 2);                             // as recorded
    put(file, 3220, static_cast<std::int64_t>(mSamples), 2);  // as written
    put(file, 3222, static_cast<std::int64_t>(mSamples), 2);  // as recorded
    put(file, 3224, 5, 2);                                    // IEEE floats
    put(file, 3226, 1, 2);                                    // fold
    put(file, 3228, 1, 2);                                    // as recorded, not sorted
    put(file, 3254, 1, 2);                                    // metres
    put(file, 3296, 0x01020304, 4);                           // order of the bytes
    put(file, 3500, 0x0100, 2);                               // revision 1
    put(file, 3502, 1, 2);                                    // all traces are as long
  }

  void appendTrace(const WrittenShot& shot, std::size_t trace, std::int64_t number,
                   std::string& file) const {
    const std::size_t at = file.size();
    const Point2D receiver = shot.receivers[trace];
    const bool dead = trace < shot.dead.size() && shot.dead[trace];
    Start start;
    startOf(shot.delay, start);
    file.resize(at + kTraceHeaderBytes, '\0');
    put(file, at, number, 4);           // in the line
    put(file, at + 4, number, 4);       // in the file
    put(file, at + 8, shot.number, 4);  // field record
    put(file, at + 12, static_cast<std::int64_t>(trace + 1), 4);
    put(file, at + 16, shot.number, 4);                            // energy source point
    put(file, at + 28, dead ? 2 : 1, 2);                           // dead, or seismic data
    put(file, at + 30, 1, 2);                                      // traces summed
    put(file, at + 32, 1, 2);                                      // traces stacked
    put(file, at + 34, 1, 2);                                      // production
    put(file, at + 36, scaled(receiver.x - shot.source.x, 1), 4);  // offset, whole metres
    put(file, at + 40, scaled(receiver.z, mUp), 4);
    put(file, at + 44, scaled(shot.source.z, mUp), 4);
    put(file, at + 68, scalarOf(mUp), 2);
    put(file, at + 70, scalarOf(mAlong), 2);
    put(file, at + 72, scaled(shot.source.x, mAlong), 4);
    put(file, at + 80, scaled(receiver.x, mAlong), 4);
    put(file, at + 88, 1, 2);  // coordinates are lengths
    put(file, at + 108, start.number, 2);
    put(file, at + 114, static_cast<std::int64_t>(mSamples), 2);
    put(file, at + 116, intervalOf(shot), 2);
    put(file, at + 214, scalarOf(start.divisor), 2);
    appendSamples(shot.traces[trace], file);
  }

  void appendSamples(const std::vector<float>& samples, std::string& file) const {
    std::size_t at = file.size();
    file.resize(at + mSamples * sizeof(float), '\0');
    for (const float sample : samples) {
      std::uint32_t bits = 0;
      std::memcpy(&bits, &sample, sizeof bits);
      put(file, at, bits, sizeof bits);
      at += sizeof bits;
    }
  }

  const std::vector<WrittenShot>& mShots;
  std::size_t mSamples = 0;
  std::size_t mTraces = 0;
  int mAlong = 1;  ///< parts of a metre that distances are counted in
  int mUp = 1;     ///< the same of elevations
};

}  // namespace

Status fitsSegy(const WrittenShot& shot) {
  const double interval = shot.sampleInterval * kMicroseconds;
  constexpr double kNothing = 1e-6;  // of a microsecond
  constexpr double kMostMicroseconds = 65535.0;
  if (!(interval >= 1.0 - kNothing) || interval > kMostMicroseconds ||
      std::fabs(interval - std::round(interval)) > kNothing) {
    return Status::failure(
        Message::tr("its sample interval of %1 ms is no whole number of microseconds up to 65535, "
                    "which is all that SEG-Y can hold; write SEG-2")
            .arg(shot.sampleInterval * kMilliseconds));
  }
  Start start;
  if (!startOf(shot.delay, start)) {
    return Status::failure(
        Message::tr("it begins %1 ms after the shot, which SEG-Y cannot hold; write SEG-2")
            .arg(shot.delay * kMilliseconds));
  }
  for (const auto& trace : shot.traces) {
    if (trace.size() <= kMostSamples) continue;
    return Status::failure(Message::tr("its traces have %1 samples; a file holds %2")
                               .arg(trace.size())
                               .arg(kMostSamples));
  }
  return {};
}

std::string formatSegy(const std::vector<WrittenShot>& shots) {
  return SegyBytes(shots).bytes();
}

}  // namespace talvesk
