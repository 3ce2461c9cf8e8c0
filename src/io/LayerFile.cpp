#include "io/LayerFile.h"

#include "base/AtomicFile.h"
#include "base/TableText.h"
#include "base/TextNumber.h"
#include "io/TextCursor.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kLargestFile = std::size_t{64} << 20;

bool isBlank(std::string_view line) {
  return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

bool readLayer(std::string_view field, std::uint32_t& layer) {
  double value = 0.0;
  if (parseWholeDouble(field, value) != NumberError::kNone) return false;
  for (std::uint32_t known = 0; known <= refractionDataStructure::kLastLayer; ++known) {
    if (value == known) {
      layer = known;
      return true;
    }
  }
  return false;
}

}  // namespace

Status parseLayerMarks(std::string_view bytes, const std::string& name,
                       const TomoDocument& document, LayerMarks& marks) {
  const std::string text = tableText(bytes);
  TextCursor cursor(text);
  const auto refuse = [&](const Message& reason) {
    return Status::failure(Message::tr("%1, line %2: %3").arg(name).arg(cursor.line()).arg(reason));
  };
  const std::size_t shots = document.ttArray.size();
  LayerMarks read;
  for (std::string_view line; cursor.nextLine(line);) {
    if (isBlank(line)) continue;
    if (read.size() == shots) {
      return refuse(Message::tr("there are only %1 shots").arg(shots));
    }
    const std::size_t traces = document.ttArray[read.size()].ttMisurati.size();
    read.emplace_back();
    FieldCursor fields(line, ';');
    for (std::string_view field; fields.next(field);) {
      if (read.back().size() == traces) break;
      if (!readLayer(field, read.back().emplace_back())) {
        return refuse(Message::tr("'%1' is not a layer number: 0 for none, 1, 2 or 3")
                          .arg(std::string(field.substr(0, 20))));
      }
    }
    if (fields.count() != traces) {
      return refuse(
          Message::tr("shot %1 has %2 traces, which is not how many layer numbers there are")
              .arg(read.size())
              .arg(traces));
    }
  }
  if (read.size() != shots) {
    return Status::failure(Message::tr("%1: it holds layers of %2 shots, and there are %3")
                               .arg(name)
                               .arg(read.size())
                               .arg(shots));
  }
  marks = std::move(read);
  return {};
}

Status readLayerMarks(const std::string& path, const TomoDocument& document, LayerMarks& marks) {
  std::string text;
  if (Status opened = readWholeFile(path, text, kLargestFile); !opened.ok()) return opened;
  return parseLayerMarks(text, path, document, marks);
}

}  // namespace talvesk
