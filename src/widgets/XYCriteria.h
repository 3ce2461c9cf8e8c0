#pragma once

#include "refraction/XYChoice.h"

#include <QStringList>
#include <QWidget>
#include <vector>

namespace talvesk {

class PointPlot;

/// How well every XY suits a refractor, as two plots against XY: how rough tV is, and how uneven
/// the velocity. The XY that is chosen and those that the picks propose are marked; a click on any
/// of them, or Ctrl with the arrow keys and Return, asks for it.
class XYCriteria : public QWidget {
  Q_OBJECT

 public:
  explicit XYCriteria(QWidget* parent = nullptr);

  /// \param texts of the XY tried, for the mouse and readers of the screen
  void setChoice(const XYChoice& choice, double chosen, const QStringList& texts);
  void clear();  ///< nothing is built

 signals:
  void xyWanted(double xy);  ///< metres

 private:
  void fill(PointPlot& plot, double XYTried::*figure, double factor, const XYProposal& proposal);

  XYChoice mChoice;
  double mChosen = 0.0;
  QStringList mTexts;
  PointPlot* mRoughness;
  PointPlot* mUnevenness;
};

}  // namespace talvesk
