#include "app/FileFolders.h"

#include <QFileInfo>

namespace talvesk {

QString FileFolders::toOpen() const {
  return QString::fromStdString(mHistory.readHistory());
}

QString FileFolders::toSave() const {
  return mSaved.isEmpty() ? toOpen() : mSaved;
}

void FileFolders::opened(const QString& file) {
  mHistory.saveHistory(QFileInfo(file).absolutePath().toStdString());
  mSaved.clear();
}

void FileFolders::saved(const QString& file) {
  mSaved = QFileInfo(file).absolutePath();
}

}  // namespace talvesk
