#include "app/TableTexts.h"

#include "app/Messages.h"
#include "base/TableText.h"

#include <QCoreApplication>
#include <QStringList>

namespace talvesk {
namespace {

class TableTexts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::TableTexts)
};

}  // namespace

QString headingText(const TableRemarks& remarks) {
  if (!remarks.skippedHeading) return {};
  return TableTexts::tr("The first line, \"%1\", was taken for a heading and skipped.")
      .arg(QString::fromStdString(remarks.heading));
}

void warnOfZeros(QWidget* parent, const QString& file, const TableRemarks& remarks) {
  if (remarks.zeroCount == 0) return;
  QStringList fields;
  for (const TableRemarks::Zero& zero : remarks.zeros) {
    fields
        << TableTexts::tr("line %1: \"%2\"").arg(zero.line).arg(QString::fromStdString(zero.field));
  }
  const auto count = static_cast<int>(remarks.zeroCount);
  if (count > fields.size()) {
    fields << TableTexts::tr("and %n more", nullptr, count - fields.size());
  }
  showWarning(
      parent, TableTexts::tr("Warning"),
      TableTexts::tr("%n field(s) of %1 that are no number were taken as 0.", nullptr, count)
          .arg(file),
      fields.join(QLatin1Char('\n')));
}

}  // namespace talvesk
