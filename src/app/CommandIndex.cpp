#include "app/CommandIndex.h"

#include "app/CommandWords.h"
#include "app/StepTexts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <tuple>

namespace talvesk {
namespace {

constexpr char kEnglish[] = "englishText";

// How well a word fits. A beginning in the text that is read beats any hit elsewhere.
constexpr int kWhole = 40;
constexpr int kBeginning = 30;
constexpr int kInside = 20;
constexpr int kMisspelt = 9;
constexpr int kWithGaps = 8;
constexpr int kOfTip = 5;
constexpr int kShortest = 3;  ///< letters that a word must have to be found with gaps, or in a tip
constexpr int kShortestMisspelt = 5;

void take(const QMenu& menu, const QString& path, const QAction* but,
          std::vector<IndexedCommand>& commands) {
  for (QAction* action : menu.actions()) {
    const QString text = plainText(action->text());
    if (action->menu() != nullptr) {
      take(*action->menu(), path + QStringLiteral(" > ") + text, but, commands);
      continue;
    }
    if (action == but || action->isSeparator() || !action->isVisible() || text.isEmpty()) continue;
    IndexedCommand command;
    command.action = action;
    command.key = action->objectName().isEmpty() ? text : action->objectName();
    command.text = text;
    command.english = action->property(kEnglish).toString();
    const CommandWords more = wordsOfCommand(action->objectName());
    command.words = more.words;
    command.englishWords = more.english;
    command.path = path;
    command.shortcut = action->shortcut().toString(QKeySequence::NativeText);
    // Without one of its own an action answers with its text.
    command.toolTip = action->toolTip() == text ? QString() : action->toolTip();
    commands.push_back(std::move(command));
  }
}

/// Whether the letters are in a word in their order, the first one in front.
bool fitsWithGaps(const QString& letters, const QString& word) {
  int at = 0;
  for (const QChar letter : word) {
    if (at < letters.size() && letters[at] == letter) {
      ++at;
    } else if (at == 0) {
      return false;
    }
  }
  return at == letters.size();
}

/// Whether a letter is wrong, lacking or too many, or two neighbours are exchanged. Who has typed
/// the word and goes on means another.
bool isMisspelt(const QString& letters, const QString& word) {
  if (letters.startsWith(word)) return false;
  const int shorter = std::min(letters.size(), word.size());
  int front = 0;
  while (front < shorter && letters[front] == word[front]) ++front;
  int back = 0;
  while (back < shorter - front && *(letters.crbegin() + back) == *(word.crbegin() + back)) ++back;
  const QString typed = letters.mid(front, letters.size() - front - back);
  const QString meant = word.mid(front, word.size() - front - back);
  if (typed.size() <= 1 && meant.size() <= 1) return true;
  return typed.size() == 2 && meant.size() == 2 && typed[0] == meant[1] && typed[1] == meant[0];
}

int fit(const QString& typed, const QString& word) {
  if (word == typed) return kWhole;
  if (word.startsWith(typed)) return kBeginning;
  if (word.contains(typed)) return kInside;
  if (typed.size() >= kShortestMisspelt && isMisspelt(typed, word)) return kMisspelt;
  return typed.size() >= kShortest && fitsWithGaps(typed, word) ? kWithGaps : 0;
}

int fit(const QString& typed, const QStringList& words) {
  int best = 0;
  for (const QString& word : words) best = std::max(best, fit(typed, word));
  return best;
}

/// What a command is called besides is less than its name, and too much to be guessed at by gaps.
int fitBesides(const QString& typed, const QStringList& words) {
  const int best = fit(typed, words);
  return best > kWithGaps ? best * 2 / 3 : 0;
}

QStringList wordsOf(const QString& text) {
  return folded(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// 0 where a word is found nowhere.
int fitOf(const IndexedCommand& command, const QStringList& typed) {
  const QStringList text = wordsOf(command.text);
  const QStringList english = wordsOf(command.english);
  const QStringList besides = wordsOf(command.words) + wordsOf(command.englishWords);
  const QStringList path = wordsOf(command.path);
  const QStringList tip = wordsOf(command.toolTip);
  int sum = 0;
  for (const QString& word : typed) {
    int best = fit(word, text);
    best = std::max(best, fit(word, english) - 2);
    best = std::max(best, fitBesides(word, besides));
    const int inMenu = fit(word, path);
    if (inMenu > kMisspelt) best = std::max(best, inMenu / 3);
    const bool inTip = word.size() >= kShortest &&
                       std::any_of(tip.begin(), tip.end(), [&word](const QString& other) {
                         return other.startsWith(word);
                       });
    if (inTip) best = std::max(best, kOfTip);
    if (best <= 0) return 0;
    sum += best;
  }
  // Of two that begin alike the shorter one is more likely meant.
  return 100 * sum - std::min(99, static_cast<int>(command.text.size()));
}

}  // namespace

void rememberEnglishTexts(QObject& window) {
  for (QAction* action : window.findChildren<QAction*>()) {
    if (!action->text().isEmpty()) action->setProperty(kEnglish, plainText(action->text()));
  }
}

std::vector<IndexedCommand> commandsOf(const QMenuBar& menus, const QAction* but) {
  std::vector<IndexedCommand> commands;
  for (const QAction* top : menus.actions()) {
    if (top->menu() != nullptr) take(*top->menu(), plainText(top->text()), but, commands);
  }
  return commands;
}

QString folded(const QString& text) {
  QString plain;
  for (const QChar letter : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
    if (letter == QChar(0xdf)) {  // sharp s, which the folding leaves
      plain += QStringLiteral("ss");
    } else if (letter.isLetterOrNumber()) {
      plain += letter;
    } else if (!letter.isMark()) {
      plain += QLatin1Char(' ');
    }
  }
  return plain.simplified();
}

std::vector<std::size_t> findCommands(const std::vector<IndexedCommand>& commands,
                                      const QString& typed, const QStringList& recent) {
  const QStringList words = wordsOf(typed);
  std::vector<std::tuple<int, int, std::size_t>> found;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const int fits = fitOf(commands[i], words);
    if (fits == 0 && !words.isEmpty()) continue;
    const int used = recent.indexOf(commands[i].key);
    found.emplace_back(words.isEmpty() ? 0 : -fits, used < 0 ? recent.size() : used, i);
  }
  std::sort(found.begin(), found.end());
  std::vector<std::size_t> indices;
  for (const auto& each : found) indices.push_back(std::get<2>(each));
  return indices;
}

}  // namespace talvesk
