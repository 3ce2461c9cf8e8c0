#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <vector>

namespace talvesk {

/// The files of the user guide: a folder for each language, and what they share beside them.
/// Nothing outside of it is ever read.
class GuideFolder {
 public:
  GuideFolder() = default;  ///< holds nothing
  /// \param page the path of any page of it
  explicit GuideFolder(const QString& page);

  /// The file that an address stands for, without what follows a "#": itself, or the one of that
  /// name in English where its language has none. Empty for what is no file of the guide.
  QString fileOf(const QUrl& address) const;

  /// Empty when it cannot be read. \param file as fileOf() gives it
  static QByteArray read(const QString& file);

  /// A page as the window shows it: without the line of links above it, for which the window has
  /// buttons, and with divisions of the classes "figure" and "figcaption" for elements of these
  /// names. \param file as fileOf() gives it
  static QString page(const QString& file);

 private:
  QString mRoot;  ///< canonical, ends in "/"
};

/// A page of the guide on which a text was found.
struct GuideHit {
  QString title;
  QString file;
  int count = 0;  ///< how often, 1 at least
};

/// The pages of a language in which a text stands, whatever its case; those where it stands most
/// often come first.
/// \param page the path of any page of that language
std::vector<GuideHit> searchGuide(const QString& page, const QString& text);

}  // namespace talvesk
