#pragma once

#include <locale.h>

namespace talvesk {

/// The "C" locale for conversions that must not follow the user's own. Never freed.
inline locale_t cLocale() {
  static const locale_t instance = newlocale(LC_ALL_MASK, "C", nullptr);
  return instance;
}

}  // namespace talvesk
