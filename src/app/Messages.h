#pragma once

#include <QString>

class QWidget;

namespace talvesk {

/// A box that tells of a failure: what happened in `text`, which file and why in `details`.
void showError(QWidget* parent, const QString& title, const QString& text,
               const QString& details = QString());

/// A box for what the user should look after.
void showWarning(QWidget* parent, const QString& title, const QString& text,
                 const QString& details = QString());

/// A box for what the user should know although nothing went wrong.
void showNote(QWidget* parent, const QString& title, const QString& text,
              const QString& details = QString());

/// The buttons Yes and No.
bool askYesNo(QWidget* parent, const QString& title, const QString& text, const QString& details,
              bool yesIsDefault);

enum class SaveAnswer { kSave, kDiscard, kCancel };

/// What to do with a survey that was changed and not saved.
SaveAnswer askToSave(QWidget* parent);

enum class RecoveryAnswer { kOpen, kDiscard, kLater };

/// What to do with a survey that a program left behind that ended without saving it.
/// \param details what survey, and of when
RecoveryAnswer askToRecover(QWidget* parent, const QString& details);

/// The style sheet of a label that warns: a red that can be read on the ground of the widget.
QString warningStyle(const QWidget& widget);

/// At most `limit` lines of a list; the rest as one line that counts it.
QString shortList(const QStringList& lines, int limit = 8);

}  // namespace talvesk
