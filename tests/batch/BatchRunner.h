#pragma once

#include <QTemporaryDir>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

namespace talvesk::batchtest {

/// What a run of the program left behind. A program that was killed has the code -1.
struct Outcome {
  int code = -1;
  std::string out;
  std::string err;
};

using Environment = std::vector<std::pair<std::string, std::string>>;

/// Runs talvesk-batch with these arguments, no shell in between, and waits for it.
Outcome runBatch(const std::vector<std::string>& arguments, const Environment& environment = {});

/// Runs a shell script of the examples with the program that was built.
Outcome runExample(const std::string& script, const std::vector<std::string>& arguments);

/// Runs it and sends it a signal as soon as it writes `trigger` to standard error.
Outcome interruptBatch(const std::vector<std::string>& arguments, const std::string& trigger,
                       int signal = SIGINT);

/// A folder that goes away with the test.
class Folder {
 public:
  std::string operator/(const std::string& name) const;
  std::string write(const std::string& name, const std::string& bytes) const;  ///< returns the path
  bool holds(const std::string& name) const;
  std::size_t fileCount() const;  ///< hidden ones too

 private:
  QTemporaryDir mDir;
};

std::string contentsOf(const std::string& path);

/// A survey of 13 geophones every 2 m and 3 shots over a ground of 600 m/s above 1800 m/s, as the
/// text of an exchange file. Small enough to be inverted in a moment with cells of 1 m.
std::string smallLine();

}  // namespace talvesk::batchtest
