#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QStringList>
#include <functional>

class QAction;

namespace talvesk {

struct Command;

/// The search of commands by their words.
class CommandSearchPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit CommandSearchPresenter(Desk& desk) : mDesk(desk) {}

  /// Lets the user find a command, and gives it.
  void find();

  /// The row of an action; null where it has none. To be set before the first search.
  std::function<const Command*(const QAction&)> rowOf;

 private:
  QString whyNot(const QAction& action) const;
  QStringList recent() const;
  void remember(const QString& key);

  Desk& mDesk;
};

}  // namespace talvesk
