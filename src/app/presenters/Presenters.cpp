#include "app/presenters/Presenters.h"

namespace talvesk {

Presenters::Presenters(Desk& desk)
    : layered(desk.session),
      settings(desk),
      traces(desk),
      traceMends(desk),
      headers(desk),
      blowPairs(desk),
      checks(desk),
      reciprocity(desk),
      traceOptions(desk),
      curves(desk, layered),
      section(desk),
      annotations(desk),
      styles(desk),
      depthProfile(desk),
      palettes(desk),
      contours(desk),
      projects(desk),
      recovery(desk, projects),
      shotFiles(desk, projects),
      travelTimes(desk, projects),
      survey(desk),
      geometry(desk),
      surveyed(desk),
      models(desk, geometry),
      residuals(desk),
      secondLook(desk),
      inversion(desk, models, secondLook),
      known(desk),
      runs(desk),
      certainty(desk),
      resolution(desk),
      processing(desk),
      review(desk),
      refraction(desk, layered),
      prints(desk, layered, depthProfile),
      layers(desk, models, projects, prints),
      fence(desk, projects),
      exports(desk),
      drawings(desk),
      records(desk),
      reports(desk, layered),
      sheets(desk),
      campaign(desk),
      help(desk),
      guidance(desk),
      search(desk) {
  settings.changed = [this] { traceOptions.refresh(); };
  projects.fileChanged = [this] { survey.refresh(); };
}

void Presenters::retranslate() {
  traces.retranslate();
  headers.retranslate();
  blowPairs.retranslate();
  reciprocity.retranslate();
  residuals.retranslate();
  secondLook.retranslate();
  projects.retranslate();
  section.refresh();
  survey.refresh();
  guidance.retranslate();
}

}  // namespace talvesk
