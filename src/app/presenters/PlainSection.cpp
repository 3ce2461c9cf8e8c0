#include "app/presenters/PlainSection.h"

namespace talvesk {

std::optional<SectionScene> plainSection(const TomoDocument& document, SectionQuantity quantity) {
  SectionSceneOptions options;
  options.quantity = quantity;
  options.coverageLimit = false;
  SectionScene scene;
  if (!buildSectionScene(document, options, scene).ok()) return std::nullopt;
  return scene;
}

}  // namespace talvesk
