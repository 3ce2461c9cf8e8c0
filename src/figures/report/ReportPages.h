#pragma once

#include "base/Status.h"
#include "figures/report/ReportContent.h"

#include <functional>
#include <memory>

class QByteArray;
class QImage;
class QPainter;

namespace talvesk {

/// A report laid out on pages. Headings and captions stay with what follows them; tables that go
/// on over a page repeat their headings. Needs the QApplication and its thread.
class ReportPages {
 public:
  explicit ReportPages(const ReportContent& content);
  ~ReportPages();
  ReportPages(const ReportPages&) = delete;
  ReportPages& operator=(const ReportPages&) = delete;

  int count() const;  ///< at least 1
  /// \param page from 0
  QImage image(int page, double dpi) const;
  /// \param goOn asked after every page with the number done; false ends the work
  Status pdf(const std::function<bool(int done)>& goOn, QByteArray& bytes) const;

  /// Text of the blocks of a page, in order. Those of figures are empty.
  QStringList textsOf(int page) const;

 private:
  struct State;
  void paint(QPainter& painter, int page) const;

  std::unique_ptr<State> mState;
};

/// Status code of work that was ended by who watched it.
inline constexpr int kReportCancelled = 2;

}  // namespace talvesk
