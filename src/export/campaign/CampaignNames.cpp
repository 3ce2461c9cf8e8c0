#include "export/campaign/CampaignPage.h"

#include <QRegularExpression>
#include <QSet>
#include <QString>

// Names of files that go by names of lines, which anybody may have chosen.

namespace talvesk {
namespace {

constexpr int kMostCharacters = 60;  ///< of four bytes each, with a number and a suffix behind

bool isDevice(const QString& name) {
  static const QRegularExpression device(QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\.|$)"),
                                         QRegularExpression::CaseInsensitiveOption);
  return device.match(name).hasMatch();
}

/// What every system takes as a name and nobody reads as a path, an option or an address.
QString harmless(const QString& name) {
  QString clean;
  for (const QChar c : name.normalized(QString::NormalizationForm_C)) {
    const bool kept = c.isLetterOrNumber() || c.isMark() || QStringLiteral(" -_.()").contains(c);
    clean += kept ? c : QLatin1Char('_');
  }
  clean = clean.left(kMostCharacters);
  while (!clean.isEmpty() && QStringLiteral(" -.").contains(clean[0])) clean.remove(0, 1);
  while (clean.endsWith(' ') || clean.endsWith('.')) clean.chop(1);
  if (clean.isEmpty()) clean = QStringLiteral("line");
  return isDevice(clean) ? clean + '_' : clean;
}

}  // namespace

std::vector<std::string> campaignFileNames(const std::vector<std::string>& names,
                                           const std::vector<std::string>& taken) {
  QSet<QString> used;
  for (const std::string& name : taken) used.insert(QString::fromStdString(name).toCaseFolded());
  std::vector<std::string> files;
  for (const std::string& name : names) {
    const QString base = harmless(QString::fromStdString(name));
    QString file = base;
    for (int number = 2; used.contains(file.toCaseFolded()); ++number) {
      file = QStringLiteral("%1-%2").arg(base).arg(number);
    }
    used.insert(file.toCaseFolded());
    files.push_back(file.toStdString());
  }
  return files;
}

}  // namespace talvesk
