#pragma once

#include "base/Status.h"
#include "model/GeoTransformer.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>
#include <string>
#include <vector>

namespace talvesk {

/// A KML 2.2 document that is put together in memory and written in one go.
class KmlDocument {
 public:
  /// A corner of a shape; altitude above ground, metres.
  struct Vertex {
    LonLat place;
    double altitude = 0.0;
  };

  KmlDocument(const std::string& name, const std::string& description);

  /// A mark with the icon of that colour ("d32f2f": red, green, blue).
  void addMark(const QString& name, const LonLat& place, const QString& iconColor);
  /// A filled shape without an outline. \param ring its corners, each once
  /// \param color "aabbggrr"
  void addShape(const std::vector<Vertex>& ring, const QString& color);

  /// A line with a name. \param color "aabbggrr" \param width pixels
  void addLine(const std::string& name, const std::vector<Vertex>& points, const QString& color,
               double width);

  /// Closes the document and replaces the file, whole or not at all.
  Status write(const std::string& path);

 private:
  QByteArray mBytes;
  QXmlStreamWriter mXml;
};

/// Ten significant digits, a millimetre or so on the globe.
QString kmlNumber(double value);

}  // namespace talvesk
