#include "app/Languages.h"

#include "base/Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace talvesk {
namespace {

const QString kFolder = QStringLiteral(":/languages/");

}  // namespace

QString localeCodeOf(const QString& fileName) {
  const QString base = fileName.left(fileName.lastIndexOf(QLatin1Char('.')));
  return base.mid(base.indexOf(QLatin1Char('_')) + 1);
}

QString Language::name() const {
  // Taken from the language alone: "American English" is too much for "en", and so is the country
  // behind other languages' names.
  QString native =
      code == QLatin1String("en") ? QStringLiteral("English") : QLocale(code).nativeLanguageName();
  native = native.section(QStringLiteral(" de "), 0, 0);
  if (native.isEmpty()) return code;
  native[0] = native[0].toUpper();
  return native;
}

Languages::Languages() {
  const QStringList files =
      QDir(kFolder).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
  for (const QString& file : files) mList.push_back({localeCodeOf(file), file});
}

Languages::~Languages() = default;

int Languages::indexOf(const QString& code) const {
  for (std::size_t i = 0; i < mList.size(); ++i) {
    if (mList[i].code == code) return static_cast<int>(i);
  }
  return -1;
}

bool Languages::use(int index, Log& log) {
  if (index < 0 || static_cast<std::size_t>(index) >= mList.size()) return false;
  const Language& language = mList[static_cast<std::size_t>(index)];
  const std::string message = "Loading language " + language.file.toStdString();
  if (mTexts) QCoreApplication::removeTranslator(mTexts.get());
  if (mQtTexts) QCoreApplication::removeTranslator(mQtTexts.get());
  log.write(message, 0);
  const QLocale before;
  QLocale::setDefault(QLocale(language.code));

  auto texts = std::make_unique<QTranslator>();
  const bool loaded = texts->load(language.file, kFolder);
  if (loaded) {
    mTexts = std::move(texts);
    mCurrent = index;
    mQtTexts = std::make_unique<QTranslator>();
    if (!mQtTexts->load(QLocale(language.code), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
      mQtTexts.reset();
    }
  } else {
    log.write(message, 1);
    QLocale::setDefault(before);
  }
  // The program's own texts go in last: they win over Qt's.
  if (mQtTexts) QCoreApplication::installTranslator(mQtTexts.get());
  if (mTexts) QCoreApplication::installTranslator(mTexts.get());
  return loaded;
}

}  // namespace talvesk
