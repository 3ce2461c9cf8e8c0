#pragma once

#include "io/TravelTimeData.h"

#include <string>
#include <vector>

/// One small valid file of each travel-time format: two shots into three receivers.
namespace talvesk::testing {

inline const std::string kOtte =
    "otte\n1.0\n2\n1\n"
    "0;5;10;\n100;101;102;\n"
    "-2.5;12.5;\n99;102.5;\n"
    "0\n0\n5.5;10.25;-99000;\n"
    "0\n1\n30;20;0;\n";

inline const std::string kTxCurves =
    "TX_CURVE\nVERSION: 1.0\nmade by hand\nINFO none\nELEVATION 1\nTOTAL_NUMBER_OF_SHOTS 2\n"
    "\r\n"
    "SEISMIC_DATA_FILE_NAME one.dat\nSHOT_LOCATION -2.5 99\nNUMBER_OF_RECEIVERS 3\n"
    "1 0 100 5.5\n2 5 101 10.25\n3 10 102 -99000\n"
    "\r\n"
    "SEISMIC_DATA_FILE_NAME two.dat\nSHOT_LOCATION 12.5 102.5\nNUMBER_OF_RECEIVERS 3\n"
    "1 0 100 30\n2 5 101 20\n3 10 102 0\n";

inline const std::string kPickTable =
    "Shot number, Shot elevation\n7 3\n102.5 99\n"
    "Shot number, Shot distance\n3 7\n-2.5 12.5\n"
    "Receiver number, receiver distance\n1 2 3\n0 5 10\n"
    "Receiver number, receiver elevation\n3 1 2\n102 100 101\n"
    "FBP times\n5.5 10.25 -99000\n30 20 0\n";

inline const std::string kCsv =
    ";;0;5;10\n;;100;101;102\n-2.5;99;5.5;10.25;-99000\n12.5;102.5;30;20;0\n";

/// Of all traces, record by record; 0 where there is none.
inline std::vector<std::vector<double>> errorsOf(const TravelTimeData& data) {
  std::vector<std::vector<double>> errors;
  for (const TravelTime& record : data.records) {
    std::vector<double>& row = errors.emplace_back();
    for (std::size_t j = 0; j < record.ttMisurati.size(); ++j) row.push_back(record.errorOf(j));
  }
  return errors;
}

/// Every occurrence of `from` replaced.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

}  // namespace talvesk::testing
