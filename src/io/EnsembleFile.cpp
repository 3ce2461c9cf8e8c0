#include "io/EnsembleFile.h"

#include "base/AtomicFile.h"
#include "base/Fingerprint.h"
#include "tomo/fitted/Ensemble.h"

#include <QFile>
#include <cstring>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace talvesk {
namespace {

// A word that tells the kind of file, a fingerprint of all that follows, and then the fields of the
// state in their order: lists with their length before them, whole numbers seven bits a byte with
// the lowest first and the sign in the lowest bit, start values as eight bytes each.
constexpr std::string_view kMagic = "TVSKMEM1";
constexpr std::size_t kHead = 16;
constexpr std::size_t kLargest = std::size_t{1} << 30;
constexpr int kShareOfTime = 20;

std::uint64_t wordAt(std::string_view bytes) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < bytes.size() && i < 8; ++i) {
    word |= std::uint64_t{static_cast<std::uint8_t>(bytes[i])} << 8 * i;
  }
  return word;
}

std::uint64_t fingerprintOf(std::string_view bytes) {
  Fingerprint print;
  print.take(std::uint64_t{bytes.size()});
  for (std::size_t at = 0; at < bytes.size(); at += 8) print.take(wordAt(bytes.substr(at, 8)));
  return print.value();
}

class Output {
 public:
  void word(std::uint64_t value) {
    for (int i = 0; i < 8; ++i) mBytes.push_back(static_cast<char>(value >> 8 * i & 0xff));
  }
  void number(std::int64_t value) {
    auto rest = static_cast<std::uint64_t>(value) << 1 ^ static_cast<std::uint64_t>(value >> 63);
    for (; rest >= 0x80; rest >>= 7) mBytes.push_back(static_cast<char>((rest & 0x7f) | 0x80));
    mBytes.push_back(static_cast<char>(rest));
  }
  template <typename T>
  void list(const std::vector<T>& values) {
    number(static_cast<std::int64_t>(values.size()));
    for (const T value : values) {
      if constexpr (std::is_floating_point_v<T>) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        word(bits);
      } else {
        number(value);
      }
    }
  }
  std::string take() { return std::move(mBytes); }

 private:
  std::string mBytes;
};

/// Reads no further than the bytes go; what is read after an end is 0.
class Input {
 public:
  explicit Input(std::string_view bytes) : mBytes(bytes) {}

  std::uint64_t word() {
    if (mBytes.size() < 8) return fail();
    const std::uint64_t value = wordAt(mBytes);
    mBytes.remove_prefix(8);
    return value;
  }
  std::int64_t number() {
    std::uint64_t value = 0;
    for (int shift = 0; shift < 64 && !mBytes.empty(); shift += 7) {
      const auto byte = static_cast<std::uint8_t>(mBytes.front());
      mBytes.remove_prefix(1);
      value |= std::uint64_t{byte & 0x7fU} << shift;
      if (byte < 0x80) {
        return static_cast<std::int64_t>(value >> 1) ^ -static_cast<std::int64_t>(value & 1);
      }
    }
    return static_cast<std::int64_t>(fail());
  }
  template <typename T>
  void list(std::vector<T>& values) {
    const std::int64_t count = number();
    // A value takes a byte at least, so that no list outgrows its file.
    if (count < 0 || static_cast<std::uint64_t>(count) > mBytes.size()) {
      fail();
      return;
    }
    values.clear();
    values.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count && mSound; ++i) values.push_back(value<T>());
  }
  bool sound() const { return mSound && mBytes.empty(); }

 private:
  template <typename T>
  T value() {
    if constexpr (std::is_floating_point_v<T>) {
      const std::uint64_t bits = word();
      T value = 0;
      std::memcpy(&value, &bits, sizeof bits);
      return value;
    } else {
      const std::int64_t read = number();
      const auto value = static_cast<T>(read);
      if (static_cast<std::int64_t>(value) != read) fail();
      return value;
    }
  }
  std::uint64_t fail() {
    mSound = false;
    mBytes = {};
    return 0;
  }

  std::string_view mBytes;
  bool mSound = true;
};

Status refuse(const std::string& path, Message why) {
  return Status::failure(joined(path, std::move(why)));
}

}  // namespace

Status writeEnsemble(const std::string& path, const EnsembleState& state) {
  Output out;
  out.word(state.key);
  out.list(state.start);
  out.list(state.members);
  out.list(state.bins);
  out.list(state.sums);
  out.list(state.squares);
  out.list(state.touched);
  const std::string body = out.take();
  Output head;
  head.word(fingerprintOf(body));
  return writeFileAtomically(path, std::string(kMagic) + head.take() + body);
}

Status readEnsemble(const std::string& path, EnsembleState& state) {
  std::string bytes;
  if (Status status = readWholeFile(path, bytes, kLargest); !status.ok()) return status;
  const std::string_view all = bytes;
  if (all.substr(0, kMagic.size()) != kMagic) {
    return refuse(path, Message::tr("this is no file with the members of an ensemble"));
  }
  const bool whole = all.size() > kHead &&
                     wordAt(all.substr(kMagic.size(), 8)) == fingerprintOf(all.substr(kHead));
  Input in(whole ? all.substr(kHead) : std::string_view());
  EnsembleState read;
  read.key = in.word();
  in.list(read.start);
  in.list(read.members);
  in.list(read.bins);
  in.list(read.sums);
  in.list(read.squares);
  in.list(read.touched);
  if (!in.sound()) {
    return refuse(path, Message::tr("its members cannot be read: the file is damaged"));
  }
  state = std::move(read);
  return {};
}

Status addMembers(const std::string& path, std::uint64_t key, Ensemble& ensemble) {
  EnsembleState state;
  if (Status status = readEnsemble(path, state); !status.ok()) return status;
  if (state.key != key) {
    return refuse(path, Message::tr("its members are those of another ensemble: another survey or "
                                    "section, other settings or another seed"));
  }
  int kept = 0;
  std::optional<int> twice;
  for (std::size_t k = 0; k < state.members.size(); ++k) {
    const auto number = static_cast<int>(k);
    if (state.members[k] == EnsembleState::kOpen) continue;
    ++kept;
    if (ensemble.doneOf({number, number + 1}) == 0) continue;
    --kept;
    if (!twice) twice = number + 1;
  }
  if (kept == 0) return {};  // all of them are there, as when a run goes on that took them before
  if (twice) {
    return refuse(path, Message::tr("its member %1 is done already, others are not; only sets of "
                                    "members that share none can be put together")
                            .arg(*twice));
  }
  if (ensemble.add(state)) return {};
  return refuse(path, Message::tr("its members cannot be those of this ensemble"));
}

EnsembleKeeper::EnsembleKeeper(std::string path, std::uint64_t key)
    : mPath(std::move(path)), mKey(key) {}

Status EnsembleKeeper::load(Ensemble& ensemble) const {
  if (mPath.empty() || !QFile::exists(QString::fromStdString(mPath))) return {};
  return addMembers(mPath, mKey, ensemble);
}

void EnsembleKeeper::keep(const Ensemble& ensemble) {
  if (mPath.empty() || Clock::now() < mNext || ensemble.done() == 0) return;
  const Clock::time_point begin = Clock::now();
  static_cast<void>(save(ensemble));  // status() tells
  const Clock::time_point end = Clock::now();
  mNext = end + (kShareOfTime - 1) * (end - begin);
}

Status EnsembleKeeper::save(const Ensemble& ensemble) {
  if (mPath.empty()) return {};
  EnsembleState state = ensemble.state();
  state.key = mKey;
  mStatus = writeEnsemble(mPath, state);
  return mStatus;
}

void EnsembleKeeper::remove() {
  if (!mPath.empty()) QFile::remove(QString::fromStdString(mPath));
}

}  // namespace talvesk
