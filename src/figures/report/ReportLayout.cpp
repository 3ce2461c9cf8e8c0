#include "figures/report/ReportLayout.h"

#include "figures/FigureOutput.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QTextTable>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kTextPoints = 10.0;
constexpr double kTablePoints = 8.5;
constexpr double kTitleMm = 60.0;  ///< of blank paper above the title
constexpr int kFigureObject = QTextFormat::UserObject + 1;
constexpr int kFigureIndex = QTextFormat::UserProperty + 1;
constexpr int kStaysWithNext = QTextFormat::UserProperty + 2;

/// Lengths of formats count in pixels of the screen; the layout turns them into its device's.
double length(double mm) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double dpi = screen != nullptr ? std::round(screen->logicalDotsPerInchY()) : 96.0;
  return mm / kMmPerInch * dpi;
}

/// Paints the figures where they stand in the text, as shapes and not as pixels.
class FigureObject : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  FigureObject(const ReportContent& content, QObject* parent)
      : QObject(parent), mContent(content) {}

  QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override {
    const FigureSheet& sheet = figureOf(format).sheet;
    return QSizeF(sheet.widthMm, sheet.heightMm) * (kReportDpi / kMmPerInch);
  }

  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                  const QTextFormat& format) override {
    const FigureDrawing& figure = figureOf(format);
    // The figure measures its lines and letters by the device it is painted on.
    const double perMm = painter->device()->logicalDpiX() / kMmPerInch;
    const QRectF sheet(0.0, 0.0, figure.sheet.widthMm * perMm, figure.sheet.heightMm * perMm);
    painter->save();
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / sheet.width(), rect.height() / sheet.height());
    painter->setClipRect(sheet, Qt::IntersectClip);
    figure.paint(*painter, sheet);
    painter->restore();
  }

 private:
  const FigureDrawing& figureOf(const QTextFormat& format) const {
    return mContent.items[static_cast<std::size_t>(format.intProperty(kFigureIndex))].figure;
  }

  const ReportContent& mContent;
};

struct BlockLook {
  double points = kTextPoints;
  bool bold = false;
  double aboveMm = 0.0;
  double belowMm = 2.5;
  bool staysWithNext = false;
};

BlockLook lookOf(ReportItem::Kind kind) {
  switch (kind) {
    case ReportItem::Kind::kTitle:
      return {24.0, true, 0.0, 4.0, false};
    case ReportItem::Kind::kSubtitle:
      return {14.0, false, 0.0, 18.0, false};
    case ReportItem::Kind::kHeading:
      return {15.0, true, 9.0, 3.0, true};
    case ReportItem::Kind::kSubheading:
      return {11.5, true, 5.0, 2.0, true};
    case ReportItem::Kind::kTable:
      return {9.0, true, 4.0, 1.5, true};
    case ReportItem::Kind::kFigure:
      return {9.0, false, 0.0, 5.0, false};
    default:
      return {};
  }
}

class Filler {
 public:
  Filler(const ReportContent& content, QTextDocument& document)
      : mContent(content), mCursor(&document) {}

  void fill() {
    mCursor.beginEditBlock();  // laid out once, not after every cell
    for (std::size_t i = 0; i < mContent.items.size(); ++i) {
      const ReportItem& item = mContent.items[i];
      if (item.kind == ReportItem::Kind::kBreak) {
        mBreak = true;
        continue;
      }
      if (item.kind == ReportItem::Kind::kFigure) addFigure(i);
      if (!item.text.isEmpty()) addText(item);
      if (item.kind != ReportItem::Kind::kTable) continue;
      // Of margins that meet at a table the layout takes the table's.
      const bool last = i + 1 == mContent.items.size();
      const auto above = item.text.isEmpty() && i > 0 ? mContent.items[i - 1].kind : item.kind;
      addTable(item.table, lookOf(above).belowMm,
               last ? 0.0 : lookOf(mContent.items[i + 1].kind).aboveMm);
    }
    mCursor.endEditBlock();
  }

 private:
  void addText(const ReportItem& item) {
    // The layout takes no margin above the first block, so a blank one stands over the title.
    if (item.kind == ReportItem::Kind::kTitle) begin({kTextPoints, false, 0.0, kTitleMm, false});
    mCursor.insertText(item.text, begin(lookOf(item.kind)));
  }

  void addFigure(std::size_t index) {
    begin({kTextPoints, false, 2.0, 1.0, true});
    QTextCharFormat figure;
    figure.setObjectType(kFigureObject);
    figure.setProperty(kFigureIndex, static_cast<int>(index));
    mCursor.insertText(QString(QChar::ObjectReplacementCharacter), figure);
  }

  QTextCharFormat begin(const BlockLook& look) {
    QTextBlockFormat block;
    block.setTopMargin(length(look.aboveMm));
    block.setBottomMargin(length(look.belowMm));
    block.setProperty(kStaysWithNext, look.staysWithNext);
    if (mBreak) block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    mBreak = false;
    QTextCharFormat letters;
    letters.setFont(figureFont(look.points, look.bold));
    letters.setForeground(Qt::black);
    begin(block, letters);
    return letters;
  }

  /// The first block of a document is there already, and so is one behind a table.
  void begin(const QTextBlockFormat& block, const QTextCharFormat& letters) {
    if (mCursor.block().text().isEmpty() && (mFresh || mAfterTable)) {
      mCursor.setBlockFormat(block);
      mCursor.setBlockCharFormat(letters);
    } else {
      mCursor.insertBlock(block, letters);
    }
    mFresh = mAfterTable = false;
  }

  void addTable(const ReportTable& table, double aboveMm, double belowMm) {
    const bool headings = table.hasHeadings();
    const int columns = static_cast<int>(table.columns.size());
    const int rows = static_cast<int>(table.rows.size()) + (headings ? 1 : 0);
    if (rows == 0) return;
    QTextTableFormat format;
    format.setHeaderRowCount(headings ? 1 : 0);
    format.setBorder(0.0);
    format.setCellSpacing(0.0);
    format.setCellPadding(length(0.8));
    format.setTopMargin(length(aboveMm));
    format.setBottomMargin(length(std::max(belowMm, 4.0)));
    QVector<QTextLength> widths;
    double whole = 0.0;
    for (const double mm : table.columnWidthsMm(ReportSheet(mContent.paper).textWidthMm())) {
      widths.append(QTextLength(QTextLength::FixedLength, length(mm)));
      whole += mm;
    }
    format.setWidth(length(whole));
    format.setColumnWidthConstraints(widths);
    QTextTable* grid = mCursor.insertTable(rows, columns, format);
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < columns; ++column) {
        const ReportTable::Column& kind = table.columns[static_cast<std::size_t>(column)];
        const bool heading = headings && row == 0;
        const QString text =
            heading ? kind.title
                    : table.rows[static_cast<std::size_t>(headings ? row - 1 : row)][column];
        addCell(grid->cellAt(row, column), text, kind.number, heading, row % 2 == 0);
      }
    }
    mCursor.movePosition(QTextCursor::End);
    mAfterTable = true;
  }

  static void addCell(QTextTableCell cell, const QString& text, bool number, bool heading,
                      bool shaded) {
    QTextTableCellFormat look;
    look.setVerticalAlignment(heading ? QTextCharFormat::AlignBottom : QTextCharFormat::AlignTop);
    if (heading) {
      look.setBackground(QColor(214, 221, 229));
    } else if (shaded) {
      look.setBackground(QColor(243, 245, 247));
    }
    // Of the first block of a cell, the format of its letters is that of the cell.
    look.setFont(figureFont(kTablePoints, heading));
    look.setForeground(Qt::black);
    cell.setFormat(look);
    QTextCursor cursor = cell.firstCursorPosition();
    QTextBlockFormat block;
    block.setAlignment(number ? Qt::AlignRight : Qt::AlignLeft);
    cursor.setBlockFormat(block);
    QTextCharFormat letters;
    letters.setFont(look.font());
    letters.setForeground(Qt::black);
    cursor.insertText(text, letters);
  }

  const ReportContent& mContent;
  QTextCursor mCursor;
  bool mFresh = true;
  bool mAfterTable = false;
  bool mBreak = false;
};

/// The block that must be on the page of one that stays with what follows. Of a small table that is
/// the last one, of a large table the first below its headings.
QTextBlock companionOf(const QTextBlock& block) {
  const QTextBlock next = block.next();
  if (!next.isValid()) return next;
  const QTextTable* table = QTextCursor(next).currentTable();
  if (table == nullptr) return next;
  const bool small = table->rows() <= ReportTable::kRowsThatStay;
  const int row = small ? table->rows() - 1 : table->format().headerRowCount();
  return table->cellAt(std::min(row, table->rows() - 1), 0).firstCursorPosition().block();
}

bool staysWithNext(const QTextBlock& block) {
  return block.isValid() && block.blockFormat().boolProperty(kStaysWithNext);
}

}  // namespace

void fillReport(const ReportContent& content, QTextDocument& document) {
  document.documentLayout()->registerHandler(kFigureObject, new FigureObject(content, &document));
  document.setUndoRedoEnabled(false);
  document.setDocumentMargin(0.0);
  QTextOption wrapping = document.defaultTextOption();
  wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);  // paths are long words
  document.setDefaultTextOption(wrapping);
  QTextFrameFormat frame = document.rootFrame()->frameFormat();
  frame.setMargin(length(ReportSheet::kMarginMm));
  document.rootFrame()->setFrameFormat(frame);
  Filler(content, document).fill();
}

int pageOf(const QTextDocument& document, const QTextBlock& block) {
  // A line that has no room left moves to the next page, but its block begins where it began.
  double top = document.documentLayout()->blockBoundingRect(block).top();
  if (block.layout()->lineCount() > 0) top += block.layout()->lineAt(0).y();
  // A hair down: a block at the very top of a page is on it.
  return static_cast<int>((top + 1.0) / document.pageSize().height());
}

void keepTogether(QTextDocument& document) {
  // A break moves what follows, so pages are settled from the first on; every round settles one.
  const int most = document.blockCount();
  for (int round = 0; round < most; ++round) {
    QTextBlock first;  // of a run of blocks that stay with their next
    QTextBlock broken;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      if (!staysWithNext(block)) {
        first = QTextBlock();
        continue;
      }
      if (!first.isValid()) first = block;
      const QTextBlock companion = companionOf(block);
      if (companion.isValid() && pageOf(document, companion) != pageOf(document, first)) {
        broken = first;
        break;
      }
    }
    if (!broken.isValid()) return;
    QTextBlockFormat format = broken.blockFormat();
    if (format.pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore) return;  // taller than one
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(broken).setBlockFormat(format);
  }
}

}  // namespace talvesk

#include "ReportLayout.moc"
