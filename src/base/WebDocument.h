#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace talvesk::web {

/// A page in one file, which loads nothing: its policy lets scripts run that it has itself, and
/// pictures that stand in it or that its scripts have made.
struct Document {
  QString language;  ///< ISO code
  QString title;
  QString author;    ///< empty: none
  QByteArray style;  ///< CSS
  QByteArray bodyClass;
  QString skip;                     ///< what the link over all else says, which leads to `#content`
  QByteArray body;                  ///< HTML, with an element `content`
  QByteArray data;                  ///< JSON that scripts find by the id `data`; empty: none
  std::vector<QByteArray> scripts;  ///< without "</script"
};

QByteArray documentBytes(const Document& document);

}  // namespace talvesk::web
