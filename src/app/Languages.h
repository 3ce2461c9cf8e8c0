#pragma once

#include <QString>
#include <QTranslator>
#include <memory>
#include <vector>

namespace talvesk {

class Log;

/// One translation of the user interface.
struct Language {
  QString code;  ///< locale code, "it"
  QString file;  ///< name of its file, "talvesk_it.qm"

  /// The language in its own words, "Italiano".
  QString name() const;
};

/// The translations that the program carries, and the one in use. A language is added by its .ts
/// file alone. Lives on the user-interface thread.
class Languages {
 public:
  /// Reads the list from the resource folder ":/languages/".
  Languages();
  ~Languages();
  Languages(const Languages&) = delete;
  Languages& operator=(const Languages&) = delete;

  const std::vector<Language>& list() const { return mList; }
  int current() const { return mCurrent; }  ///< index in the list, -1 before any was chosen
  int indexOf(const QString& code) const;   ///< -1 when there is no such language

  /// Translates the program into a language of the list; widgets are told by a LanguageChange
  /// event. False, with an error in the log and the language as before, when its file is no
  /// translation.
  bool use(int index, Log& log);

 private:
  std::vector<Language> mList;
  int mCurrent = -1;
  std::unique_ptr<QTranslator> mTexts;    ///< the program's own texts
  std::unique_ptr<QTranslator> mQtTexts;  ///< Qt's, where the system has them
};

/// "it" of "talvesk_it.qm": what stands between the first "_" and the last ".".
QString localeCodeOf(const QString& fileName);

}  // namespace talvesk
