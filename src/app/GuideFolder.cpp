#include "app/GuideFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <algorithm>

namespace talvesk {
namespace {

/// More than any page or picture has.
constexpr qint64 kLargestFile = 4 << 20;

const QString kEnglish = QStringLiteral("en/");

QString textOfPage(const QString& html) {
  return QTextDocumentFragment::fromHtml(html).toPlainText();
}

/// The title, without the name of the guide that ends it.
QString titleOf(const QString& html) {
  static const QRegularExpression heading(QStringLiteral("<h1>(.*?)</h1>"),
                                          QRegularExpression::DotMatchesEverythingOption);
  return textOfPage(heading.match(html).captured(1)).simplified();
}

}  // namespace

GuideFolder::GuideFolder(const QString& page) {
  QDir folder = QFileInfo(page).dir();
  if (folder.cdUp()) mRoot = folder.canonicalPath() + QLatin1Char('/');
}

QString GuideFolder::fileOf(const QUrl& address) const {
  if (mRoot.isEmpty() || !address.isLocalFile()) return {};
  const QString path = QDir::cleanPath(address.toLocalFile());
  for (const QString& wanted : {path, mRoot + kEnglish + QFileInfo(path).fileName()}) {
    if (!wanted.startsWith(mRoot)) return {};
    const QFileInfo file(wanted);
    // A link within the folder may lead out of it.
    if (file.isFile() && file.canonicalFilePath().startsWith(mRoot)) return wanted;
  }
  return {};
}

QByteArray GuideFolder::read(const QString& file) {
  QFile bytes(file);
  return bytes.open(QIODevice::ReadOnly) ? bytes.read(kLargestFile) : QByteArray();
}

QString GuideFolder::page(const QString& file) {
  QString html = QString::fromUtf8(read(file));
  const int begin = html.indexOf(QLatin1String("<nav>"));
  const int end = html.indexOf(QLatin1String("</nav>"), begin);
  const int body = html.indexOf(QLatin1String("<main>"));
  if (begin >= 0 && end > begin && end < body) html.remove(begin, end + 6 - begin);
  // Links beside each other would read as one, for nothing underlines them.
  const int last = html.lastIndexOf(QLatin1String("<nav>"));
  if (last > 0) {
    QString links = html.mid(last);
    links.replace(QLatin1String("</a> <a"), QStringLiteral("</a> &nbsp;\u00B7&nbsp; <a"));
    html = html.left(last) + links;
  }
  // The text documents of the window know no figures.
  for (const char* name : {"figure", "figcaption"}) {
    const QLatin1String tag(name);
    html.replace(QLatin1Char('<') + tag + QLatin1Char('>'),
                 QStringLiteral("<div class=\"%1\">").arg(tag));
    html.replace(QLatin1String("</") + tag + QLatin1Char('>'), QLatin1String("</div>"));
  }
  return html;
}

std::vector<GuideHit> searchGuide(const QString& page, const QString& text) {
  std::vector<GuideHit> hits;
  if (text.isEmpty()) return hits;
  const QFileInfoList files =
      QFileInfo(page).dir().entryInfoList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
  for (const QFileInfo& file : files) {
    const QString html = GuideFolder::page(file.filePath());
    const int count = static_cast<int>(textOfPage(html).count(text, Qt::CaseInsensitive));
    if (count > 0) hits.push_back({titleOf(html), file.filePath(), count});
  }
  std::stable_sort(hits.begin(), hits.end(),
                   [](const GuideHit& a, const GuideHit& b) { return a.count > b.count; });
  return hits;
}

}  // namespace talvesk
