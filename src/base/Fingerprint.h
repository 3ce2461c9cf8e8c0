#pragma once

#include <cstdint>
#include <cstring>

namespace talvesk {

/// Values in one number: FNV-1a, the hash of Fowler, Noll and Vo, 64 bits wide, over eight bytes of
/// each, the lowest first. The same on every machine, so it can be kept in files.
class Fingerprint {
 public:
  void take(std::uint64_t value) {
    for (int byte = 0; byte < 8; ++byte) {
      mValue = (mValue ^ (value >> 8 * byte & 0xff)) * 0x100000001b3;
    }
  }
  void take(double value) {
    std::uint64_t bits = 0;
    static_assert(sizeof bits == sizeof value);
    std::memcpy(&bits, &value, sizeof bits);
    take(bits);
  }
  /// Never 0, which stands for one that is not known.
  std::uint64_t value() const { return mValue == 0 ? 1 : mValue; }

 private:
  std::uint64_t mValue = 0xcbf29ce484222325;
};

}  // namespace talvesk
