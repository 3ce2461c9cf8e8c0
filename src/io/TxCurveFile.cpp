#include "io/TxCurveFile.h"

#include <algorithm>
#include <map>
#include <utility>

namespace talvesk {
namespace {

/// Elevation at a distance, linear between the points and level beyond them.
double elevationAlong(std::vector<Point2D> points, double x) {
  if (points.empty()) return 0.0;
  std::stable_sort(points.begin(), points.end(),
                   [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  const auto right = std::lower_bound(points.begin(), points.end(), x,
                                      [](const Point2D& point, double at) { return point.x < at; });
  if (right == points.begin()) return points.front().z;
  if (right == points.end()) return points.back().z;
  const Point2D& left = *(right - 1);
  // In the wider type the differences of any two coordinates neither overflow nor vanish.
  const long double from = left.x;
  const long double part = (x - from) / (right->x - from);
  return static_cast<double>(left.z * (1.0L - part) + right->z * part);
}

struct FromLeft {
  bool operator()(const std::vector<Point2D>& a, const std::vector<Point2D>& b) const {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const Point2D& p, const Point2D& q) { return p.x != q.x ? p.x < q.x : p.z < q.z; });
  }
};

class TxCurveReader : private PickReader {
 public:
  explicit TxCurveReader(std::string_view bytes) : PickReader(bytes) {}

  std::optional<Refusal> read(TravelTimeData& data) {
    const bool whole = readHead() && readShots();
    if (whole) warnOfRest();
    return finish(whole, data);
  }

 private:
  bool readHead() {
    if (!lineBeginsWith("TX_CURVE") || !lineBeginsWith("VERSION:")) return false;
    std::string_view line;
    std::string_view word;
    do {
      if (!mText.nextLine(line)) return refuse(Message::tr("the line \"INFO\" is missing"));
      word = {};
      TextCursor(line).nextWord(word);
    } while (word != "INFO");
    int flag = 0;
    if (!readCount("ELEVATION", flag)) return false;
    mWithElevations = flag != 0;
    return readCount("TOTAL_NUMBER_OF_SHOTS", mShotCount);
  }

  bool lineBeginsWith(std::string_view keyword) {
    std::string_view line;
    std::string_view word;
    mText.nextLine(line);
    TextCursor(line).nextWord(word);
    if (word == keyword) return true;
    return refuse(Message::tr("the line begins with %1 where %2 must stand")
                      .arg(quoted(word))
                      .arg(quoted(keyword)));
  }

  /// The rest of the next line that is not blank and must begin with the keyword.
  bool readKeyword(std::string_view keyword, TextCursor& rest, std::string_view& second) {
    std::string_view line;
    mText.skipToText();
    if (!mText.nextLine(line)) {
      return refuse(Message::tr("the line %1 is missing").arg(quoted(keyword)));
    }
    rest = TextCursor(line);
    std::string_view word;
    rest.nextWord(word);
    if (word != keyword) {
      return refuse(Message::tr("the line begins with %1 where %2 must stand")
                        .arg(quoted(word))
                        .arg(quoted(keyword)));
    }
    return rest.nextWord(second) ||
           refuse(Message::tr("%1 stands without a value").arg(quoted(keyword)));
  }

  bool readCount(std::string_view keyword, int& count) {
    TextCursor rest({});
    std::string_view word;
    if (!readKeyword(keyword, rest, word) || !readWholeInt(keyword, word, count)) return false;
    return count >= 0 || refuse(Message::tr("the %1 is negative").arg(std::string(keyword)));
  }

  bool readShots() {
    for (int i = 0; i < mShotCount; ++i) {
      if (!readShot(i)) return false;
    }
    mData.strings.resize(mStrings.size());
    while (!mStrings.empty()) {
      auto string = mStrings.extract(mStrings.begin());
      mData.strings[static_cast<std::size_t>(string.mapped())] = std::move(string.key());
    }
    return true;
  }

  bool readShot(int index) {
    TextCursor rest({});
    std::string_view word;
    // The name of the shot file is of no use here: the survey is read without its shot files.
    if (!readKeyword("SEISMIC_DATA_FILE_NAME", rest, word)) return false;
    TravelTime record;
    record.traceSetID = index;
    if (!readKeyword("SHOT_LOCATION", rest, word)) return false;
    if (!readNumber("shot distance", word, record.shotPos2d.x)) return false;
    const bool hasElevation = rest.nextWord(word);
    if (hasElevation && !readNumber("shot elevation", word, record.shotPos2d.z)) return false;
    int receivers = 0;
    if (!readCount("NUMBER_OF_RECEIVERS", receivers)) return false;
    std::vector<Point2D> geophones;
    for (int i = 0; i < receivers; ++i) {
      if (!readReceiver(geophones, record.ttMisurati.edit())) return false;
    }
    if (!mWithElevations) {
      record.shotPos2d.z = 0.0;
    } else if (!hasElevation) {
      record.shotPos2d.z = elevationAlong(geophones, record.shotPos2d.x);
    }
    record.ttCalcolati.edit().assign(record.ttMisurati.size(), kNoTime);
    const int next = static_cast<int>(mStrings.size());
    record.indexStesa = mStrings.emplace(std::move(geophones), next).first->second;
    mData.records.push_back(std::move(record));
    return true;
  }

  bool readReceiver(std::vector<Point2D>& geophones, std::vector<double>& times) {
    std::string_view line;
    if (!mText.nextLine(line)) {
      return refuse(Message::tr("the file ends before its last receiver line"));
    }
    constexpr std::size_t kValues = 4;
    const char* const names[kValues] = {"receiver number", "receiver distance",
                                        "receiver elevation", "first-break time"};
    double values[kValues] = {};
    TextCursor rest(line);
    std::string_view word;
    for (std::size_t i = 0; i < kValues; ++i) {
      if (!rest.nextWord(word)) {
        return refuse(
            Message::tr("the receiver line holds %1 instead of 4").arg(counted(i, "value")));
      }
      if (!readNumber(names[i], word, values[i])) return false;
    }
    if (rest.nextWord(word)) {
      return refuse(Message::tr("the receiver line holds more than 4 values"));
    }
    geophones.push_back({values[1], mWithElevations ? values[2] : 0.0});
    times.push_back(values[3] / kMillisecondsPerSecond);
    return true;
  }

  bool mWithElevations = true;
  int mShotCount = 0;
  std::map<std::vector<Point2D>, int, FromLeft> mStrings;  ///< and their numbers, by appearance
};

}  // namespace

std::optional<Refusal> readTxCurves(std::string_view bytes, TravelTimeData& data) {
  return TxCurveReader(bytes).read(data);
}

}  // namespace talvesk
