#pragma once

#include "base/Shared.h"
#include "io/TemporaryFolder.h"
#include "io/project/OwnMembers.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"
#include "view/ColorPalette.h"
#include "view/SectionViewSettings.h"

namespace talvesk {

/// All that a project keeps: the document, and what was made of it beside the document. A copy
/// costs some pointers; what it consists of is shared until one of the copies edits it.
struct Survey {
  TomoDocument document;
  Shared<refractionDataStructure::Interpretation> interpretation;  ///< the layered one
  Shared<ColorPaletteList> palettes;
  SectionViewSettings section;
  /// Where the shot files lie that the document of a loaded project names. They are gone with the
  /// last owner, so it stays as long as the document does.
  SharedFolder folder;
  OwnMembers own;  ///< what else its project held, for the next save
};

}  // namespace talvesk
