#pragma once

#include "app/presenters/Desk.h"
#include "model/Annotations.h"

#include <QObject>
#include <vector>

namespace talvesk {

/// What the user draws on the section: marked isolines, texts, lines and areas of ground.
class AnnotationsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  /// Takes what the section view draws and moves.
  explicit AnnotationsPresenter(Desk& desk);

  void markIsolines();
  void edit();

 private:
  void drawn(AnnotationKind kind, const std::vector<Point2D>& points);
  void tellToWait();
  void moved(std::size_t item, const Annotation& before, const std::vector<Point2D>& points);
  /// Asks with the dialog. \param begun shown as the last one, to be named; null: none
  void ask(const Annotation* begun);

  Desk& mDesk;
};

}  // namespace talvesk
