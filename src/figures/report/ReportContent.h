#pragma once

#include "figures/FigureFile.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace talvesk {

enum class ReportPaper { kA4, kLetter };

/// A sheet of a report, and what its margins leave, millimetres.
struct ReportSheet {
  explicit ReportSheet(ReportPaper paper)
      : widthMm(paper == ReportPaper::kA4 ? 210.0 : 215.9),
        heightMm(paper == ReportPaper::kA4 ? 297.0 : 279.4) {}

  static constexpr double kMarginMm = 20.0;

  double textWidthMm() const { return widthMm - 2.0 * kMarginMm; }

  double widthMm;
  double heightMm;
};

/// Rows of cells under a row of headings, or, without one, names at the left of their values.
struct ReportTable {
  struct Column {
    QString title;
    bool number = false;  ///< flush right, so that decimal points stand below each other
  };

  /// Names at the left of their values.
  static ReportTable ofFacts() { return {{{QString()}, {QString()}}, {}}; }

  std::vector<Column> columns;
  std::vector<QStringList> rows;  ///< a text per column each

  bool hasHeadings() const;
  /// Of every column, by what stands in it; together at most the width of the text.
  std::vector<double> columnWidthsMm(double textWidthMm) const;

  /// A table of no more rows, that of the headings included, stays on one page.
  static constexpr int kRowsThatStay = 13;
  bool staysWhole() const { return rows.size() + (hasHeadings() ? 1 : 0) <= kRowsThatStay; }

 private:
  std::vector<double> letters(bool wholeTitles) const;  ///< that each column needs
};

/// What the web page of a report has in place of a still figure, or beside a table.
enum class LiveFigure {
  kNone,
  kSection,
  kTravelTimes,  ///< with the recordings of a shot
  kResiduals,    ///< per shot and per geophone
  kHistory,      ///< misfit per iteration
  kReciprocity,
  kMap
};

/// A part of a report. What is read of it stands in `text`; of tables and figures that is the
/// caption, with its number.
struct ReportItem {
  enum class Kind { kTitle, kSubtitle, kHeading, kSubheading, kParagraph, kTable, kFigure, kBreak };

  Kind kind = Kind::kParagraph;
  QString text;
  ReportTable table;
  FigureDrawing figure;
  LiveFigure live = LiveFigure::kNone;  ///< that takes the place of a figure, or follows a table
};

/// A report as its readers get it, from the first page to the last, without a word on pages. One
/// content becomes a PDF, an ODT, a web page and the pages on the screen.
struct ReportContent {
  ReportPaper paper = ReportPaper::kA4;
  QString title;
  QString author;
  QString language;  ///< ISO code, for spelling
  std::vector<ReportItem> items;
  /// What the live figures show, see figures/web/WebData.h; called where there is a page to write.
  std::function<QJsonObject()> liveData;
};

}  // namespace talvesk
