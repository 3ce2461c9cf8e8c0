#include "export/KmlDocument.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"

namespace talvesk {
namespace {

constexpr int kDigits = 10;

/// Characters that no XML document may hold, not even escaped, become the replacement character.
QString xmlText(const std::string& utf8) {
  QString text;
  const QString source = QString::fromStdString(utf8);
  for (const uint character : source.toUcs4()) {
    const bool allowed = character == 0x9 || character == 0xA || character == 0xD ||
                         (character >= 0x20 && character <= 0xD7FF) ||
                         (character >= 0xE000 && character <= 0xFFFD) || character >= 0x10000;
    const uint shown = allowed ? character : 0xFFFD;
    text += QString::fromUcs4(&shown, 1);
  }
  return text;
}

/// The icon of map marks that globe viewers draw in any colour.
QString iconAddress(const QString& color) {
  return QStringLiteral("https://earth.google.com/earth/document/icon?color=%1&id=2000&scale=4")
      .arg(color);
}

QString lonLat(const LonLat& place) {
  return kmlNumber(place.longitude) + QLatin1Char(',') + kmlNumber(place.latitude);
}

QString coordinatesOf(const KmlDocument::Vertex& vertex) {
  return lonLat(vertex.place) + QLatin1Char(',') + kmlNumber(vertex.altitude) + QLatin1Char('\n');
}

}  // namespace

QString kmlNumber(double value) {
  return QString::fromStdString(formatDouble(value, kDigits));
}

KmlDocument::KmlDocument(const std::string& name, const std::string& description) : mXml(&mBytes) {
  mXml.setAutoFormatting(true);
  mXml.setAutoFormattingIndent(1);
  mXml.writeStartDocument();
  mXml.writeStartElement(QStringLiteral("kml"));
  mXml.writeDefaultNamespace(QStringLiteral("http://www.opengis.net/kml/2.2"));
  mXml.writeStartElement(QStringLiteral("Document"));
  mXml.writeTextElement(QStringLiteral("name"), xmlText(name));
  mXml.writeTextElement(QStringLiteral("description"), xmlText(description));
}

void KmlDocument::addMark(const QString& name, const LonLat& place, const QString& iconColor) {
  mXml.writeStartElement(QStringLiteral("Placemark"));
  mXml.writeTextElement(QStringLiteral("name"), name);
  mXml.writeStartElement(QStringLiteral("Style"));
  mXml.writeStartElement(QStringLiteral("IconStyle"));
  mXml.writeTextElement(QStringLiteral("scale"), QStringLiteral("0.8"));
  mXml.writeStartElement(QStringLiteral("Icon"));
  mXml.writeTextElement(QStringLiteral("href"), iconAddress(iconColor));
  mXml.writeEndElement();  // Icon
  mXml.writeEndElement();  // IconStyle
  mXml.writeEndElement();  // Style
  mXml.writeStartElement(QStringLiteral("Point"));
  mXml.writeTextElement(QStringLiteral("altitudeMode"), QStringLiteral("relativeToGround"));
  // The plus behind the altitude has always been there, and viewers read past it.
  mXml.writeTextElement(QStringLiteral("coordinates"), lonLat(place) + QStringLiteral(",0.0+"));
  mXml.writeEndElement();  // Point
  mXml.writeEndElement();  // Placemark
}

void KmlDocument::addShape(const std::vector<Vertex>& ring, const QString& color) {
  QString coordinates(QLatin1Char('\n'));
  for (const Vertex& vertex : ring) coordinates += coordinatesOf(vertex);
  if (!ring.empty()) coordinates += coordinatesOf(ring.front());

  mXml.writeStartElement(QStringLiteral("Placemark"));
  mXml.writeStartElement(QStringLiteral("Style"));
  mXml.writeStartElement(QStringLiteral("PolyStyle"));
  mXml.writeTextElement(QStringLiteral("color"), color);
  mXml.writeTextElement(QStringLiteral("colorMode"), QStringLiteral("normal"));
  mXml.writeTextElement(QStringLiteral("fill"), QStringLiteral("1"));
  mXml.writeTextElement(QStringLiteral("outline"), QStringLiteral("0"));
  mXml.writeEndElement();  // PolyStyle
  mXml.writeEndElement();  // Style
  mXml.writeStartElement(QStringLiteral("Polygon"));
  mXml.writeTextElement(QStringLiteral("altitudeMode"), QStringLiteral("relativeToGround"));
  mXml.writeStartElement(QStringLiteral("outerBoundaryIs"));
  mXml.writeStartElement(QStringLiteral("LinearRing"));
  mXml.writeTextElement(QStringLiteral("coordinates"), coordinates);
  mXml.writeEndElement();  // LinearRing
  mXml.writeEndElement();  // outerBoundaryIs
  mXml.writeEndElement();  // Polygon
  mXml.writeEndElement();  // Placemark
}

void KmlDocument::addLine(const std::string& name, const std::vector<Vertex>& points,
                          const QString& color, double width) {
  QString coordinates(QLatin1Char('\n'));
  for (const Vertex& point : points) coordinates += coordinatesOf(point);
  mXml.writeStartElement(QStringLiteral("Placemark"));
  mXml.writeTextElement(QStringLiteral("name"), xmlText(name));
  mXml.writeStartElement(QStringLiteral("Style"));
  mXml.writeStartElement(QStringLiteral("LineStyle"));
  mXml.writeTextElement(QStringLiteral("color"), color);
  mXml.writeTextElement(QStringLiteral("width"), kmlNumber(width));
  mXml.writeEndElement();  // LineStyle
  mXml.writeEndElement();  // Style
  mXml.writeStartElement(QStringLiteral("LineString"));
  mXml.writeTextElement(QStringLiteral("altitudeMode"), QStringLiteral("relativeToGround"));
  mXml.writeTextElement(QStringLiteral("coordinates"), coordinates);
  mXml.writeEndElement();  // LineString
  mXml.writeEndElement();  // Placemark
}

Status KmlDocument::write(const std::string& path) {
  mXml.writeEndDocument();
  if (mXml.hasError()) {
    return Status::failure(
        Message::tr("Cannot write %1: its text could not be put together").arg(path));
  }
  return writeFileAtomically(path, {mBytes.constData(), static_cast<std::size_t>(mBytes.size())});
}

}  // namespace talvesk
