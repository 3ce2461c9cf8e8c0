#pragma once

#include "app/GuideFolder.h"

#include <QTextBrowser>
#include <QTextCursor>
#include <QTimer>
#include <vector>

namespace talvesk {

/// Shows pages of the user guide in the colours of the desktop. Loads nothing but files of the
/// guide; links that lead elsewhere do nothing. Pictures fit the width.
class GuideBrowser : public QTextBrowser {
  Q_OBJECT
 public:
  explicit GuideBrowser(QWidget* parent = nullptr);

  /// \param page path of a page of the guide
  void open(const QString& page);

  /// The page that is shown, or empty.
  QString page() const;

  /// Marks every place where a text stands, whatever its case.
  /// \return how many there are
  int mark(const QString& text);
  /// Goes to a mark: 0 for the current one, which is the first one at the beginning, 1 for the next
  /// and -1 for the one before, around the ends.
  /// \return its number from 1, 0 when nothing is marked
  int goToMark(int step);

  /// Points by which the text is larger than the desktop's.
  int textSize() const { return mTextSize; }
  void setTextSize(int points);

  /// Follows a link; one that does not lead to a page of the guide leads nowhere.
  void setSource(const QUrl& name) override;
  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void render();  ///< the page anew, at the same place
  QImage picture(const QString& file) const;
  QString styleOf(const QString& page) const;
  void showMarks();

  GuideFolder mFolder;
  QTimer mResized;
  int mTextSize = 0;
  QString mMarked;  ///< what is looked for
  std::vector<QTextCursor> mMarks;
  int mMark = 0;  ///< the current one
};

}  // namespace talvesk
