#pragma once

#include "base/Point2D.h"
#include "base/Status.h"
#include "model/ElevationProfile.h"
#include "model/SurveyGeometry.h"

#include <QDialog>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class DialogSetGeometry;
}
class FileFolders;
class GeometrySession;
class GeophoneTable;
class ShotTable;
struct GeometryMistake;
struct PositionTable;
struct SegyState;
struct WantedPositions;

/// Edits where the geophones and shots of a survey stand, and which recordings S-wave shots are
/// made of, with a plan of the line that follows. It changes a copy: after OK, geometry() is what
/// the caller gives to the document.
class DialogSetGeometry : public QDialog {
  Q_OBJECT

 public:
  struct Context {
    bool interpreted = false;  ///< a layered interpretation hangs on the positions as they are
  };

  /// \param document outlives the dialog, which only reads it; \param state what the readers of
  /// shot files remember between files; \param folders where its file dialogs start, outlives it
  DialogSetGeometry(const TomoDocument& document, SegyState& state, FileFolders& folders,
                    Context context, QWidget* parent = nullptr);
  ~DialogSetGeometry() override;

  const SurveyGeometry& geometry() const;

  /// Refuses what blocks, and asks before results are lost.
  void accept() override;
  void reject() override;

 private:
  // The tables and what goes with them
  void setUpTables();
  void connectCommands();
  void connectPlan();
  void refresh();
  void refreshStrings();
  void proposeAutofill();
  void refreshShots();
  void refreshPlan();
  void refreshMistakes();
  void notice(const QString& text, bool refused = false);
  void show(const GeometryMistake& mistake);
  void showGeophone(int string, int geophone);
  void showShot(int shot);
  int currentShot() const;  ///< -1 none

  // Commands
  void autofillString();
  void addString();
  void removeCurrentString();
  void fillCopyMenu();
  void interpolateGeophones();
  void interpolateShots();

  // Files
  struct PositionsFile;
  QString askForFile(bool save, const QString& filter);
  static QString takePositions(std::size_t count, const Status& read, PositionsFile& file);
  bool askForPositions(const WantedPositions& wanted, const QString& invalid,
                       PositionsFile& chosen);
  void tellLoaded(const QString& text, const PositionsFile& file);
  bool tellsOfGaps(bool shots);
  void saveGeophones();
  void loadGeophones();
  void saveShots();
  void loadShots();
  void loadElevations(ElevationProfile::Course course);
  bool takesPairs() const;
  QStringList askForRecordings(const QString& title, bool several);
  void choosePairOfShot();
  void addPairs();

  bool mayLoseResults();

  std::unique_ptr<Ui::DialogSetGeometry> mUi;
  const TomoDocument& mDocument;
  SegyState& mState;
  FileFolders& mFolders;
  Context mContext;
  GeometrySession* mSession;
  GeophoneTable* mGeophones;
  ShotTable* mShots;
  std::vector<std::function<void()>> mMistakeTargets;
  int mProposedFor = -2;  ///< string that the autofill fields were set for; -1 is none
};

}  // namespace talvesk
