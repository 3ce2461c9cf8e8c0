#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace talvesk {

/// A box that tells of a failure: what happened in `text`, which file and why in `details`.
void showError(QWidget* parent, const QString& title, const QString& text,
               const QString& details = QString());

/// The same for several files. \param reasons one for each, that names it; those beyond the first
/// few are unfolded by a button
void showErrors(QWidget* parent, const QString& title, const QString& text,
                const QStringList& reasons);

/// A box for what the user should look after.
void showWarning(QWidget* parent, const QString& title, const QString& text,
                 const QString& details = QString());

/// The same with its text in red: nothing can go on before it is put right.
void showUrgentWarning(QWidget* parent, const QString& title, const QString& text);

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

inline constexpr int kShortList = 8;  ///< lines that a box shows at once

/// At most `limit` lines of a list; the rest as one line that counts it.
QString shortList(const QStringList& lines, int limit = kShortList);

}  // namespace talvesk
