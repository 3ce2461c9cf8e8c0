#include "app/ToolTips.h"

#include <QLabel>
#include <QTextDocument>
#include <QWidget>

namespace talvesk {

void wrapToolTips(QWidget& dialog) {
  for (QWidget* field : dialog.findChildren<QWidget*>()) {
    const QString tip = field->toolTip();
    if (tip.isEmpty() || Qt::mightBeRichText(tip)) continue;
    field->setToolTip(QStringLiteral("<qt>%1</qt>").arg(tip.toHtmlEscaped()));
  }
  for (QLabel* label : dialog.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr && label->toolTip().isEmpty()) {
      label->setToolTip(label->buddy()->toolTip());
    }
  }
}

}  // namespace talvesk
