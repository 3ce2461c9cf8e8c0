#include "app/presenters/AnnotationsPresenter.h"

#include "app/dialogs/AnnotationsDialog.h"
#include "app/dialogs/MarkedIsolinesDialog.h"
#include "io/Survey.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/section/SectionView.h"

#include <cmath>

namespace talvesk {
namespace {

/// Who draws wants to see it.
void showAnnotations(Desk& desk) {
  desk.showSection();
  if (desk.section().annotations) return;
  desk.session.setView([](SectionViewSettings& section) { section.annotations = true; });
}

/// A pixel is not known finer than a centimetre.
Point2D byMouse(const Point2D& p) {
  return {std::round(100.0 * p.x) / 100.0, std::round(100.0 * p.z) / 100.0};
}

}  // namespace

AnnotationsPresenter::AnnotationsPresenter(Desk& desk) : mDesk(desk) {
  connect(desk.ui.vtk_widget, &SectionView::annotationDrawn, this, &AnnotationsPresenter::drawn);
  connect(desk.ui.vtk_widget, &SectionView::annotationMoved, this, &AnnotationsPresenter::moved);
}

void AnnotationsPresenter::markIsolines() {
  const std::vector<MarkedIsoline>& before = mDesk.document().annotations->isolines;
  MarkedIsolinesDialog dialog(before, &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  showAnnotations(mDesk);
  if (dialog.isolines() == before) return;
  mDesk.edit(Edit::kMarkedIsolines, [&](Survey& survey) {
    survey.document.annotations.edit().isolines = dialog.isolines();
  });
}

void AnnotationsPresenter::edit() {
  ask(nullptr);
}

void AnnotationsPresenter::drawn(AnnotationKind kind, const std::vector<Point2D>& points) {
  Annotation item;
  item.kind = kind;
  for (const Point2D& p : points) item.points.push_back(byMouse(p));
  ask(&item);
}

void AnnotationsPresenter::moved(std::size_t item, const Annotation& before,
                                 const std::vector<Point2D>& points) {
  if (mDesk.inversionRuns) return tellToWait();
  const std::vector<Annotation>& items = mDesk.document().annotations->items;
  // The survey may be ahead of the picture that the mouse was on.
  if (item >= items.size() || !(items[item] == before) || before.points.size() != points.size()) {
    return;
  }
  Annotation there = before;
  for (std::size_t i = 0; i < points.size(); ++i) {
    // A corner that stayed keeps its bits.
    if (!(points[i] == there.points[i])) there.points[i] = byMouse(points[i]);
  }
  if (there == items[item] || !faultOf(there).empty()) return;
  mDesk.edit(Edit::kAnnotations,
             [&](Survey& survey) { survey.document.annotations.edit().items[item] = there; });
}

void AnnotationsPresenter::tellToWait() {
  mDesk.tell(tr("Annotations wait for the inversion to end."));
}

void AnnotationsPresenter::ask(const Annotation* begun) {
  const SectionScene* scene = mDesk.ui.vtk_widget->scene();
  if (scene == nullptr) return;
  // Nothing can be drawn while an inversion is about to replace the survey.
  if (mDesk.inversionRuns) return tellToWait();
  const Point2D low = scene->lowerLeft();
  const Point2D high = scene->upperRight();
  AnnotationsDialog dialog(mDesk.document().annotations->items,
                           {0.5 * (low.x + high.x), 0.5 * (low.z + high.z)},
                           {0.1 * (high.x - low.x), 0.1 * (high.z - low.z)}, &mDesk.window);
  if (begun != nullptr) dialog.begin(*begun);
  if (dialog.exec() != QDialog::Accepted) return;
  showAnnotations(mDesk);
  if (dialog.items() == mDesk.document().annotations->items) return;
  mDesk.edit(Edit::kAnnotations,
             [&](Survey& survey) { survey.document.annotations.edit().items = dialog.items(); });
}

}  // namespace talvesk
