#include "Samples.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "support/ConsoleCapture.h"

#include <chrono>
#include <cmath>
#include <random>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;

const std::pair<const char*, std::string> kSamples[] = {
    {"a.otte", kOtte}, {"a.txt", kTxCurves}, {"a.xyz", kPickTable}, {"a.csv", kCsv}};

/// Whatever the bytes were, what is accepted can be used without a further check.
void expectSaneOrRefused(const std::string& path, const std::string& text) {
  TravelTimeData data;
  const Status status = parseTravelTimes(text, path, data);
  if (!status.ok()) {
    EXPECT_FALSE(status.message().empty());
    EXPECT_LT(status.message().size(), 2000u);
    EXPECT_TRUE(data.records.empty() && data.strings.empty());
    return;
  }
  EXPECT_LE(data.warnings.size(), 21u);
  for (const TravelTime& record : data.records) {
    ASSERT_GE(record.indexStesa, 0);
    ASSERT_LT(static_cast<std::size_t>(record.indexStesa), data.strings.size());
    EXPECT_LE(record.ttMisurati.size(),
              data.strings[static_cast<std::size_t>(record.indexStesa)].size());
    EXPECT_EQ(record.ttCalcolati.size(), record.ttMisurati.size());
    EXPECT_GE(record.traceSetID, 0);
    EXPECT_TRUE(isFinite(record.shotPos2d));
    for (const double time : record.ttMisurati) EXPECT_TRUE(std::isfinite(time));
  }
  for (const auto& string : data.strings) {
    for (const Point2D& p : string) EXPECT_TRUE(isFinite(p));
  }
}

TEST(HostileFiles, endAnywhere) {
  const ConsoleCapture console;
  for (const auto& [path, text] : kSamples) {
    for (std::size_t length = 0; length < text.size(); ++length) {
      expectSaneOrRefused(path, text.substr(0, length));
    }
  }
}

TEST(HostileFiles, neverLoseAShotByEndingEarly) {
  const ConsoleCapture console;
  for (const auto& [path, text] : kSamples) {
    if (std::string(path) == "a.csv") continue;  // its end is all that says how many shots it has
    for (std::size_t length = 0; length < text.size(); ++length) {
      TravelTimeData data;
      if (!parseTravelTimes(text.substr(0, length), path, data).ok()) continue;
      EXPECT_EQ(data.records.size(), 2u) << path << " cut at " << length;
    }
  }
}

TEST(HostileFiles, haveAnyByteAnywhere) {
  const ConsoleCapture console;
  std::mt19937 random(7);
  const char bytes[] = {'\0', ';', ' ', '\n', '\r', '-', '9', 'e', '\xff', '\x80'};
  for (const auto& [path, text] : kSamples) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      for (const char byte : bytes) {
        std::string broken = text;
        broken[at] = byte;
        expectSaneOrRefused(path, broken);
        broken[random() % broken.size()] = static_cast<char>(random() % 256);
        expectSaneOrRefused(path, broken);
        expectSaneOrRefused(path, text.substr(0, at) + byte + text.substr(at));
      }
    }
  }
}

TEST(HostileFiles, areAnotherFormatOrNoneAtAll) {
  const ConsoleCapture console;
  std::string noise(4096, '\0');
  std::mt19937 random(3);
  for (char& c : noise) c = static_cast<char>(random() % 256);
  for (const auto& [path, own] : kSamples) {
    for (const std::string& text : {kOtte, kTxCurves, kPickTable, kCsv, noise, own + noise,
                                    std::string(100000, '\n'), std::string(100000, ';')}) {
      expectSaneOrRefused(path, text);
    }
  }
}

TEST(HostileFiles, quoteLittleOfALongLineAndNoControlCharacters) {
  const ConsoleCapture console;
  TravelTimeData data;
  const std::string line = "\x1b[31m\xff" + std::string(1 << 20, 'x');
  for (const char* path : {"a.otte", "a.txt", "a.xyz", "a.csv"}) {
    const Status status = parseTravelTimes(line + "\n", path, data);
    EXPECT_LT(status.message().size(), 1000u);
    EXPECT_EQ(status.message().find('\x1b'), std::string::npos);
    EXPECT_EQ(status.message().find('\xff'), std::string::npos);
  }
}

TEST(HostileFiles, withAMillionFieldsAreReadInAMoment) {
  std::string row;
  std::string blanks;
  for (int i = 0; i < 1000000; ++i) {
    row += "1;";
    blanks += "1 ";
  }
  const std::string shots = "1;\n1;\n0\n0\n";
  const ConsoleCapture console;
  const auto start = std::chrono::steady_clock::now();
  TravelTimeData data;
  ASSERT_TRUE(parseTravelTimes("otte\n1.0\n2\n1\n" + row + "\n" + row + "\n" + shots + row + "\n",
                               "a.otte", data)
                  .ok());
  EXPECT_EQ(data.records[0].ttMisurati.size(), 1000000u);
  expectSaneOrRefused("a.xyz", "Shot number, Shot elevation\n" + blanks + "\n" + blanks + "\n");
  expectSaneOrRefused("a.csv", row + "\n");
  expectSaneOrRefused("a.txt", "TX_CURVE\nVERSION:\n" + replaced(row, ";", "\n"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(HostileFiles, withManySpreadsAreReadInAMoment) {
  constexpr int kShots = 50000;
  std::string text = "TX_CURVE\nVERSION:\nINFO\nELEVATION 1\nTOTAL_NUMBER_OF_SHOTS " +
                     std::to_string(kShots) + "\n";
  for (int i = 0; i < kShots; ++i) {
    text += "SEISMIC_DATA_FILE_NAME a\nSHOT_LOCATION 0\nNUMBER_OF_RECEIVERS 1\n1 " +
            std::to_string(i) + " 0 1\n";
  }
  const auto start = std::chrono::steady_clock::now();
  TravelTimeData data;
  ASSERT_TRUE(parseTravelTimes(text, "a.txt", data).ok());
  EXPECT_EQ(data.strings.size(), static_cast<std::size_t>(kShots));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace talvesk
