#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <vector>

namespace talvesk {

class LayeredModel;
struct PlannedImage;

/// Pictures and reports.
class ReportPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  ReportPresenter(Desk& desk, LayeredModel& layered) : mDesk(desk), mLayered(layered) {}

  // Each asks what and where to, and tells what became of it.

  void writePictures();
  void takeScreenshot();  ///< of the section as it is seen
  void writePdf();
  void writeOdt();
  void writeWebPage();

 private:
  bool mayOverwrite(const std::vector<PlannedImage>& images);
  void writeImages(const std::vector<PlannedImage>& images);
  void writeReportAs(const QString& title, const QString& filter, const char* suffix);
  void tellReport(const Status& written, const QString& file);
  std::vector<SectionLine> refractors() const;

  Desk& mDesk;
  LayeredModel& mLayered;
};

}  // namespace talvesk
