#include "io/PickWords.h"

#include <string>

namespace talvesk {

Message inWords(std::string_view what) {
  const Message known[] = {
      Message::tr("geophone distance"),
      Message::tr("geophone elevation"),
      Message::tr("shot distance"),
      Message::tr("shot elevation"),
      Message::tr("receiver number"),
      Message::tr("receiver distance"),
      Message::tr("receiver elevation"),
      Message::tr("distance"),
      Message::tr("elevation"),
      Message::tr("shot"),
      Message::tr("receiver"),
      Message::tr("time"),
      Message::tr("first-break time"),
      Message::tr("number"),
      Message::tr("value"),
      Message::tr("position"),
      Message::tr("number of positions"),
      Message::tr("number of measurements"),
      Message::tr("number of points of topography"),
      Message::tr("format constant 2"),
      Message::tr("number of geophone strings"),
      Message::tr("string of the record"),
      Message::tr("trace set of the record"),
  };
  for (const Message& words : known) {
    if (words.english() == what) return words;
  }
  return std::string(what);
}

Message counted(std::size_t count, std::string_view noun) {
  struct Noun {
    std::string_view english;
    Message one, many;
  };
  const Noun known[] = {
      {"geophone", Message::tr("%1 geophone"), Message::tr("%1 geophones")},
      {"receiver", Message::tr("%1 receiver"), Message::tr("%1 receivers")},
      {"shot", Message::tr("%1 shot"), Message::tr("%1 shots")},
      {"shot position", Message::tr("%1 shot position"), Message::tr("%1 shot positions")},
      {"geophone distance", Message::tr("%1 geophone distance"),
       Message::tr("%1 geophone distances")},
      {"shot distance", Message::tr("%1 shot distance"), Message::tr("%1 shot distances")},
      {"elevation", Message::tr("%1 elevation"), Message::tr("%1 elevations")},
      {"time", Message::tr("%1 time"), Message::tr("%1 times")},
      {"record", Message::tr("%1 record"), Message::tr("%1 records")},
      {"string", Message::tr("%1 string"), Message::tr("%1 strings")},
      {"number", Message::tr("%1 number"), Message::tr("%1 numbers")},
      {"value", Message::tr("%1 value"), Message::tr("%1 values")},
  };
  for (const Noun& words : known) {
    if (words.english == noun) return Message(count == 1 ? words.one : words.many).arg(count);
  }
  return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

}  // namespace talvesk
