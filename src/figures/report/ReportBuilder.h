#pragma once

#include "base/Status.h"
#include "figures/ShownLength.h"
#include "figures/report/ReportOptions.h"

#include <QCoreApplication>
#include <limits>

namespace talvesk {

/// The words of reports.
struct ReportWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Report)
};

/// Appends the parts of a report, numbering headings, tables and figures.
class ReportBuilder {
 public:
  ReportBuilder(const ReportSource& aSource, const ReportOptions& someOptions,
                ReportContent& content)
      : source(aSource), options(someOptions), mContent(content) {}

  const ReportSource source;
  const ReportOptions& options;

  void add(ReportItem::Kind kind, const QString& text);
  void heading(const QString& text);
  void subheading(const QString& text) { add(ReportItem::Kind::kSubheading, text); }
  void paragraph(const QString& text) { add(ReportItem::Kind::kParagraph, text); }
  /// A table without rows is left out. \param caption empty: no number either
  void table(const QString& caption, ReportTable table, LiveFigure live = LiveFigure::kNone);
  void figure(const QString& caption, FigureDrawing drawing, LiveFigure live = LiveFigure::kNone);
  double widthMm() const { return ReportSheet(options.paper).textWidthMm(); }

 private:
  ReportContent& mContent;
  int mHeadings = 0;
  int mTables = 0;
  int mFigures = 0;
};

namespace report {

// The parts, in their order. Each leaves itself out when there is nothing to tell.
void addTitlePage(ReportBuilder& builder);
void addSurvey(ReportBuilder& builder);
void addPosition(ReportBuilder& builder);
void addCourse(ReportBuilder& builder);  ///< nothing where the ends tell it
Status addTravelTimes(ReportBuilder& builder);
void addPickErrors(ReportBuilder& builder);  ///< nothing where none is known
void addReciprocity(ReportBuilder& builder);
void addInversion(ReportBuilder& builder);
Status addSections(ReportBuilder& builder);
Status addMisfit(ReportBuilder& builder);
Status addRefraction(ReportBuilder& builder);
void addLayerFit(ReportBuilder& builder);      ///< nothing where no misfit is known
void addLayerMethods(ReportBuilder& builder);  ///< nothing where only the profile was built
void addMethod(ReportBuilder& builder);

/// How the sections of a report are drawn: as its options say, as far as that is about the
/// quantity.
SectionFigureOptions sectionOptions(const ReportOptions& options, SectionQuantity quantity);

/// A number with as many places, as figureLocale() writes it; "–" for what is no number.
QString number(double value, int places);
/// Two values with "–" between them, or one where both read the same.
QString span(double from, double to, int places);

// The same of metres, or m/s, in the unit that is shown; `places` are those of that unit.
QString length(double metres, int places);
QString lengthSpan(double from, double to, int places);

/// The least and the greatest of values; those that are no finite number count for nothing.
struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void take(double value);
  bool known() const { return low <= high; }  ///< there was a value
};

}  // namespace report
}  // namespace talvesk
