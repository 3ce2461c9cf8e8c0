#pragma once

#include "model/GeometryCheck.h"
#include "model/SurveyGeometry.h"

#include <QObject>
#include <vector>

namespace talvesk {

/// The geometry that a dialog edits, with the steps back and forth, the string that is in view, and
/// what is wrong with it all.
class GeometrySession : public QObject {
  Q_OBJECT

 public:
  explicit GeometrySession(SurveyGeometry geometry, QObject* parent = nullptr);

  const SurveyGeometry& geometry() const { return mNow; }
  const std::vector<GeometryMistake>& mistakes() const { return mMistakes; }

  int currentString() const { return mCurrent; }  ///< from 0; -1 without any
  void setCurrentString(int string);
  const GeophoneString& string() const;  ///< in view; empty without any

  /// One step: the edit gets a copy that then becomes the geometry.
  template <typename Edit>
  void edit(Edit change) {
    SurveyGeometry next = mNow;
    change(next);
    take(std::move(next));
  }
  bool canUndo() const { return !mBack.empty(); }
  bool canRedo() const { return !mForth.empty(); }
  void undo();
  void redo();

 signals:
  void changed();  ///< geometry or string in view

 private:
  void take(SurveyGeometry next);
  void show(SurveyGeometry geometry);

  SurveyGeometry mNow;
  std::vector<SurveyGeometry> mBack;
  std::vector<SurveyGeometry> mForth;
  std::vector<GeometryMistake> mMistakes;
  int mCurrent = -1;
};

}  // namespace talvesk
