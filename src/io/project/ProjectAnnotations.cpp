#include "io/project/ProjectAnnotations.h"

#include "base/PlainText.h"
#include "model/TomoDocument.h"

#include <utility>

namespace talvesk {
namespace {

void mendText(std::string& text) {
  text = beginningOf(withoutControls(std::move(text)), Annotations::kLongestText);
}

}  // namespace

std::optional<AnnotationsMember> annotationsOf(const TomoDocument& document) {
  if (document.annotations->empty()) return std::nullopt;
  return AnnotationsMember{*document.annotations};
}

Status mendAnnotations(Annotations& annotations) {
  for (MarkedIsoline& isoline : annotations.isolines) mendText(isoline.name);
  for (Annotation& item : annotations.items) mendText(item.text);
  Message fault = faultOf(annotations);
  return fault.empty() ? Status() : Status::failure(std::move(fault));
}

Status installAnnotations(AnnotationsMember member, TomoDocument& document) {
  Status status = mendAnnotations(member.annotations);
  if (status.ok()) document.annotations = std::move(member.annotations);
  return status;
}

}  // namespace talvesk
