#include "app/GuideBrowser.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

namespace talvesk {
namespace {

constexpr int kPageMargin = 20;    // pixels
constexpr int kLongestLine = 52;   // in widths of "m", as wide as lines can be and be read
constexpr int kSettled = 150;      // milliseconds after which a width is taken for the last
constexpr int kLeastPicture = 80;  // pixels

/// The style sheet that pages name is for browsers; this one stands beside it.
const QString kStyleSheet = QStringLiteral("../window.css");

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

QTextEdit::ExtraSelection marked(const QTextCursor& where, const QBrush& ground,
                                 const QBrush& text) {
  QTextEdit::ExtraSelection mark;
  mark.cursor = where;
  mark.format.setBackground(ground);
  mark.format.setForeground(text);
  return mark;
}

/// Null it would not do: the document would go and look for the file itself.
const QVariant kNothing = QByteArray("");

}  // namespace

GuideBrowser::GuideBrowser(QWidget* parent) : QTextBrowser(parent) {
  setFrameShape(QFrame::NoFrame);
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  // A bar that came and went would change the width that pictures are made for.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  document()->setDocumentMargin(kPageMargin);
  mResized.setSingleShot(true);
  mResized.setInterval(kSettled);
  connect(&mResized, &QTimer::timeout, this, &GuideBrowser::render);
}

void GuideBrowser::open(const QString& page) {
  mFolder = GuideFolder(page);
  document()->setDefaultStyleSheet(styleOf(page));
  setSource(QUrl::fromLocalFile(page));
}

QString GuideBrowser::page() const {
  return mFolder.fileOf(source());
}

void GuideBrowser::setSource(const QUrl& name) {
  const QUrl address = source().resolved(name);
  if (mFolder.fileOf(address).endsWith(QLatin1String(".html"))) QTextBrowser::setSource(address);
}

QVariant GuideBrowser::loadResource(int type, const QUrl& name) {
  Q_UNUSED(type)
  const QString file = mFolder.fileOf(source().resolved(name));
  if (file.endsWith(QLatin1String(".html"))) return GuideFolder::page(file);
  if (file.endsWith(QLatin1String(".png"))) return picture(file);
  return kNothing;
}

QString GuideBrowser::styleOf(const QString& page) const {
  const QUrl sheet = QUrl::fromLocalFile(page).resolved(QUrl(kStyleSheet));
  // Desktops with a dark palette may leave the colour of links at the dark blue of light ones.
  const QColor link = palette().color(QPalette::Link);
  const bool unreadable = isDark(palette()) && link.lightness() < 140;
  return QString::fromUtf8(GuideFolder::read(mFolder.fileOf(sheet))) +
         QStringLiteral("a { color: %1; }")
             .arg(unreadable ? QStringLiteral("#6ab0ff") : link.name());
}

/// A picture that fits the width, in a thin frame that sets it off from the page.
QImage GuideBrowser::picture(const QString& file) const {
  QImage image = QImage::fromData(GuideFolder::read(file));
  if (image.isNull()) return image;
  const int room = std::max(kLeastPicture, lineWrapColumnOrWidth() - 2 * kPageMargin);
  const qreal scale = devicePixelRatioF();
  const int width = std::min(image.width(), room);
  image = image.scaledToWidth(qRound(width * scale), Qt::SmoothTransformation)
              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(image.rect().adjusted(0, 0, -1, -1));
  painter.end();
  image.setDevicePixelRatio(scale);
  return image;
}

void GuideBrowser::render() {
  if (source().isEmpty()) return;
  const QTextCursor top = cursorForPosition(QPoint(0, 0));
  const int place = top.position();
  const int height = cursorRect(top).top();
  const int current = mMark;
  document()->setDefaultStyleSheet(styleOf(page()));
  {
    // To others it is the page that it was.
    const QSignalBlocker quiet(this);
    reload();
  }
  mark(mMarked);
  mMark = current;
  showMarks();
  QTextCursor same(document());
  same.setPosition(std::min(place, document()->characterCount() - 1));
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + cursorRect(same).top() - height);
}

void GuideBrowser::resizeEvent(QResizeEvent* event) {
  const int before = lineWrapColumnOrWidth();
  const int longest = kLongestLine * fontMetrics().horizontalAdvance(QLatin1Char('m'));
  setLineWrapColumnOrWidth(std::min(viewport()->width(), longest + 2 * kPageMargin));
  QTextBrowser::resizeEvent(event);
  if (lineWrapColumnOrWidth() != before) mResized.start();
}

void GuideBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    mResized.start();
  }
}

void GuideBrowser::setTextSize(int points) {
  mTextSize = points;
  QFont larger = QApplication::font(this);
  larger.setPointSizeF(std::max(1.0, larger.pointSizeF() + points));
  setFont(larger);
}

int GuideBrowser::mark(const QString& text) {
  mMarks.clear();
  mMark = 0;
  mMarked = text;
  if (!text.isEmpty()) {
    QTextCursor found(document());
    while (!(found = document()->find(text, found)).isNull()) mMarks.push_back(found);
  }
  showMarks();
  return static_cast<int>(mMarks.size());
}

int GuideBrowser::goToMark(int step) {
  if (mMarks.empty()) return 0;
  const int count = static_cast<int>(mMarks.size());
  mMark = (mMark + step + count) % count;
  showMarks();
  QTextCursor place = mMarks[static_cast<std::size_t>(mMark)];
  place.setPosition(place.selectionStart());
  setTextCursor(place);
  return mMark + 1;
}

void GuideBrowser::showMarks() {
  const QColor ground = isDark(palette()) ? QColor(0x70, 0x5c, 0x00) : QColor(0xff, 0xe8, 0x80);
  QList<QTextEdit::ExtraSelection> shown;
  for (const QTextCursor& where : mMarks) {
    shown << marked(where, ground, palette().brush(QPalette::Text));
  }
  if (!shown.isEmpty()) {
    shown[mMark] =
        marked(mMarks[static_cast<std::size_t>(mMark)], palette().brush(QPalette::Highlight),
               palette().brush(QPalette::HighlightedText));
  }
  setExtraSelections(shown);
}

}  // namespace talvesk
