#include "io/project/ProjectCourse.h"

#include "model/MapLine.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <utility>

namespace talvesk {

std::optional<MapCourse> courseMemberOf(const TomoDocument& document) {
  if (courseOf(document).empty()) return std::nullopt;
  return document.line->course;
}

Status installCourse(MapCourse course, TomoDocument& document) {
  if (course.vertices.empty() || !isCourse(course.vertices)) {
    return Status::failure(Message::tr("its vertices are no course of a line"));
  }
  if (!document.map->geoCoord_isSet || !(document.map->geoCoord == course.ends)) {
    return Status::failure(Message::tr("it belongs to another map position"));
  }
  document.line.edit().course = std::move(course);
  return {};
}

}  // namespace talvesk
