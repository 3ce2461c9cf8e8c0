#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

class QAction;
class QMenuBar;
class QObject;

namespace talvesk {

/// A command of the menus, as it is looked for.
struct IndexedCommand {
  QPointer<QAction> action;
  QString key;      ///< by which it is remembered in any language
  QString text;     ///< without mnemonic
  QString english;  ///< the same in English; empty where nobody knows it
  QString words;    ///< what else it is called
  QString englishWords;
  QString path;      ///< of its menu: "File > Export"
  QString shortcut;  ///< as the desktop writes it; empty without one
  QString toolTip;
  QString whyNot;  ///< a sentence; empty where it can work
};

/// Keeps the texts that the commands of a window have now as the English ones. To be called before
/// the window speaks another language.
void rememberEnglishTexts(QObject& window);

/// All commands below a menu bar, in the order of the menus, enabled or not.
/// \param but a command to leave out, may be null
std::vector<IndexedCommand> commandsOf(const QMenuBar& menus, const QAction* but);

/// A text as it is compared: without case, accents and what is neither letter nor digit.
QString folded(const QString& text);

/// The commands that fit what somebody typed, best first: every word of it, in any order, is in the
/// text, the English text, what the command is called besides, the menu or the tool tip: whole, as
/// a beginning, with letters left out, or, from five letters on, with one of them wrong, lacking,
/// too many or exchanged with the next. Of equals, and of all where nothing is typed, those come
/// first that were used last. \param recent keys, the last one first \return indices
std::vector<std::size_t> findCommands(const std::vector<IndexedCommand>& commands,
                                      const QString& typed, const QStringList& recent);

}  // namespace talvesk
