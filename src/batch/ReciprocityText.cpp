#include "batch/ReciprocityText.h"

#include "model/TomoDocument.h"

#include <cmath>
#include <ostream>
#include <string>

namespace talvesk {
namespace {

using doctor::ReciprocalTimes;
using doctor::ReciprocityTable;
using doctor::ShotReciprocity;

constexpr std::size_t kWorst = 5;
constexpr double kMilliseconds = 1e3;

/// With two places, for columns of them; not -0.00.
std::string milliseconds(double seconds) {
  const double hundredths = std::round(seconds * kMilliseconds * 100.0) + 0.0;
  const std::string digits = std::to_string(static_cast<long long>(std::fabs(hundredths)));
  const std::string padded = std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
  return (hundredths < 0.0 ? "-" : "") + padded.substr(0, padded.size() - 2) + "." +
         padded.substr(padded.size() - 2);
}

std::string pairCount(std::size_t pairs) {
  return std::to_string(pairs) + (pairs == 1 ? " pair" : " pairs");
}

void tellShot(std::size_t shot, const ShotReciprocity& own, std::ostream& out) {
  out << "  shot " << shot + 1 << ": " << pairCount(own.pairs);
  if (own.pairs > 0) out << ", RMS " << milliseconds(own.rms) << " ms";
  if (own.standsOut()) {
    out << "; the record is " << milliseconds(std::fabs(own.shift))
        << (own.shift > 0.0 ? " ms late" : " ms early") << " by " << own.agreeing
        << " of them, give or take " << milliseconds(own.shiftError) << " ms: a time shift of "
        << milliseconds(*own.mend) << " ms mends it";
  }
  out << '\n';
}

void tellPair(const ReciprocalTimes& pair, std::ostream& out) {
  out << "  shots " << pair.first + 1 << " and " << pair.second + 1 << ": there "
      << milliseconds(pair.there) << " ms, back " << milliseconds(pair.back) << " ms, difference "
      << milliseconds(pair.difference()) << " ms\n";
}

Json pairJson(const ReciprocalTimes& pair) {
  Json json = Json::object();
  json["shots"] = {pair.first, pair.second};
  json["traces"] = {pair.thereTrace, pair.backTrace};
  json["there_ms"] = kMilliseconds * pair.there;
  json["back_ms"] = kMilliseconds * pair.back;
  json["difference_ms"] = kMilliseconds * pair.difference();
  json["error_ms"] = pair.error > 0.0 ? Json(kMilliseconds * pair.error) : Json(nullptr);
  return json;
}

Json shotJson(std::size_t shot, const ShotReciprocity& own) {
  const bool known = own.shiftError > 0.0;
  Json json = Json::object();
  json["shot"] = shot;
  json["pairs"] = own.pairs;
  json["rms_ms"] = own.pairs > 0 ? Json(kMilliseconds * own.rms) : Json(nullptr);
  json["shift_ms"] = known ? Json(kMilliseconds * own.shift) : Json(nullptr);
  json["shift_error_ms"] = known ? Json(kMilliseconds * own.shiftError) : Json(nullptr);
  json["mend_ms"] = own.mend ? Json(kMilliseconds * *own.mend) : Json(nullptr);
  return json;
}

}  // namespace

void tellReciprocity(const ReciprocityTable& table, const TomoDocument& document,
                     std::ostream& out) {
  if (table.pairs.empty()) {
    out << "Reciprocity: " << doctor::whyNoPairs(document) << '\n';
    return;
  }
  out << "Reciprocity: " << pairCount(table.pairs.size()) << " of shots, RMS "
      << milliseconds(table.rms) << " ms\n";
  for (std::size_t i = 0; i < table.shots.size(); ++i) tellShot(i, table.shots[i], out);
  out << "  largest differences:\n";
  for (const std::size_t pair : table.worstPairs(kWorst)) tellPair(table.pairs[pair], out);
}

Json reciprocityJson(const ReciprocityTable& table) {
  Json shots = Json::array();
  for (std::size_t i = 0; i < table.shots.size(); ++i) {
    shots.push_back(shotJson(i, table.shots[i]));
  }
  Json pairs = Json::array();
  for (const ReciprocalTimes& pair : table.pairs) pairs.push_back(pairJson(pair));
  Json json = Json::object();
  json["rms_ms"] = table.pairs.empty() ? Json(nullptr) : Json(kMilliseconds * table.rms);
  json["shots"] = std::move(shots);
  json["pairs"] = std::move(pairs);
  return json;
}

}  // namespace talvesk
