#pragma once

#include "base/Status.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Which layer every trace belongs to: a vector of layer numbers (0 none, 1 to 3) per shot.
using LayerMarks = std::vector<std::vector<std::uint32_t>>;

/// Reads marks for the shots of a document: a line per shot, a layer number per trace, separated by
/// ";". Fails, with `marks` unchanged, when the file cannot be read, holds anything else, or does
/// not have a line for every shot and a number for every trace.
Status readLayerMarks(const std::string& path, const TomoDocument& document, LayerMarks& marks);

/// The same from the bytes of a file, in any encoding of tableText(). \param name for messages
Status parseLayerMarks(std::string_view bytes, const std::string& name,
                       const TomoDocument& document, LayerMarks& marks);

}  // namespace talvesk
