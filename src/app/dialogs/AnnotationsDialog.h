#pragma once

#include "model/Annotations.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class AnnotationsDialog;
}

/// Edits what is drawn on the section: a row for each annotation, and below the points of the one
/// that is selected. It changes a copy; after OK, items() is what the user means.
class AnnotationsDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param middle of the section, where new ones begin, metres
  /// \param reach how far they go from there, metres along the line and up
  AnnotationsDialog(const std::vector<Annotation>& items, const Point2D& middle,
                    const Point2D& reach, QWidget* parent = nullptr);
  ~AnnotationsDialog() override;

  const std::vector<Annotation>& items() const { return mItems; }
  /// Adds one as if it had been there from the beginning, ready to be named.
  void begin(const Annotation& item);

  void accept() override;  ///< refuses what cannot be, and shows it
  void reject() override;  ///< asks before edits are lost

 private:
  void add(AnnotationKind kind);
  void removeItem();
  void moveUp();
  void addPoint();
  void removePoint();
  void showItems();
  void showItem(int row);
  void showPoints();
  void takeText(int row, int column);
  void takePoint(int row, int column);
  void changed();
  int current() const;
  Annotation* currentItem();

  std::unique_ptr<Ui::AnnotationsDialog> mUi;
  std::vector<Annotation> mItems;
  std::vector<Annotation> mBefore;
  Point2D mMiddle;
  Point2D mReach;
  bool mShowing = false;  ///< the tables change because of what they show, not of the user
};

}  // namespace talvesk
