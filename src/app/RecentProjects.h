#pragma once

#include <QString>
#include <QStringList>

namespace talvesk {

/// The projects that were opened or saved last, remembered in a settings file between runs.
class RecentProjects {
 public:
  static constexpr int kMost = 8;

  /// \param file of the settings, which may hold other things, too
  explicit RecentProjects(QString file) : mFile(std::move(file)) {}

  QStringList list() const;          ///< absolute paths, the latest first
  void add(const QString& project);  ///< to the front, once
  void remove(const QString& project);
  void clear();

 private:
  void write(const QStringList& projects);

  QString mFile;
};

}  // namespace talvesk
