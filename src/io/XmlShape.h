#pragma once

#include "base/Status.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace talvesk {

/// Looks over an XML document before a parser that recurses into nested elements, and so needs
/// stack for each level, gets to see it. Takes the XML that archives write, and comments; refuses
/// with a message what a parser could understand in another way: document types, tags within tags,
/// attributes without quotes, bytes of value 0, an end that does not come.
/// \param name the file, for the message
/// \param mostLevels deepest nesting of elements that is accepted, 1 for a lone root
Status checkXmlShape(std::string_view xml, const std::string& name, std::size_t mostLevels);

}  // namespace talvesk
