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
  const auto refuse = [&](const std::string& reason) {
    return Status::failure(name + ", line " + std::to_string(cursor.line()) + ": " + reason);
  };
  const std::size_t shots = document.ttArray.size();
  LayerMarks read;
  for (std::string_view line; cursor.nextLine(line);) {
    if (isBlank(line)) continue;
    if (read.size() == shots) {
      return refuse("there are only " + std::to_string(shots) + " shots");
    }
    const std::size_t traces = document.ttArray[read.size()].ttMisurati.size();
    read.emplace_back();
    FieldCursor fields(line, ';');
    for (std::string_view field; fields.next(field);) {
      if (read.back().size() == traces) break;
      if (!readLayer(field, read.back().emplace_back())) {
        return refuse("'" + std::string(field.substr(0, 20)) +
                      "' is not a layer number: 0 for none, 1, 2 or 3");
      }
    }
    if (fields.count() != traces) {
      return refuse("shot " + std::to_string(read.size()) + " has " + std::to_string(traces) +
                    " traces, which is not how many layer numbers there are");
    }
  }
  if (read.size() != shots) {
    return Status::failure(name + ": it holds layers of " + std::to_string(read.size()) +
                           " shots, and there are " + std::to_string(shots));
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
