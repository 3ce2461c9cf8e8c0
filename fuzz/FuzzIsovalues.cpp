// Throws any bytes at the reader of isovalue files; the first byte chooses the separator.
#include "Demand.h"
#include "base/Console.h"
#include "io/IsovalueFile.h"

#include <cmath>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace talvesk;
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  if (size == 0) return 0;
  static const char* const separators[] = {";", ",", "(blank space)", ""};
  const std::string_view text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  const IsovalueRead read = parseIsovalues(text, "a.csv", separators[bytes[0] % 4]);
  demand(read.status.ok() == read.status.message().empty(), "a message with every failure");
  demand(read.invalidLine == 0 || !read.status.ok(), "a failure with every wrong line");
  demand(read.values.size() <= kMostIsovalues, "bounded values");
  for (const double value : read.values) demand(std::isfinite(value), "finite values");
  return 0;
}
