#include "app/dialogs/StartLayersDialog.h"

#include "app/MessageText.h"
#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "app/WaitCursor.h"
#include "app/dialogs/FigureSheetWidget.h"
#include "app/dialogs/ParameterField.h"
#include "figures/SectionFigure.h"
#include "model/TomographyOutcome.h"
#include "tomo/LayeredProfile.h"
#include "ui_StartLayersDialog.h"

#include <QPushButton>
#include <vector>

namespace talvesk {

StartLayersDialog::StartLayersDialog(const TomoDocument& document,
                                     const refractionDataStructure::processingData& results,
                                     const SectionFigureOptions& look, QWidget* parent)
    : QDialog(parent),
      mUi(std::make_unique<Ui::StartLayersDialog>()),
      mDocument(document),
      mResults(results),
      mLook(look),
      mSheet(new FigureSheetWidget) {
  mUi->setupUi(this);
  showUnits(*this);
  wrapToolTips(*this);
  mSheet->putInto(*mUi->sheetArea);
  setUpField(*mUi->thicknessEdit, parameters::kGrading);
  mUi->limitsLabel->setText(limitsOf(*mUi->thicknessEdit));
  connect(mUi->sharpRadio, &QRadioButton::toggled, this, &StartLayersDialog::fill);
  connect(mUi->thicknessEdit, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          &StartLayersDialog::fill);
  fill();
}

StartLayersDialog::~StartLayersDialog() = default;

double StartLayersDialog::thickness() const {
  return mUi->gradedRadio->isChecked() ? mUi->thicknessEdit->value() : 0.0;
}

void StartLayersDialog::fill() {
  mFilled = mDocument;
  std::vector<Message> notes;
  const Status status =
      whileWaiting([&] { return startFromProfile(mFilled, mResults, thickness(), notes); });
  mUi->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(status.ok());
  QStringList lines;
  if (!status.ok()) lines << textOf(status.text());
  for (const Message& note : notes) lines << textOf(note);
  if (status.ok() && mDocument.result->has_tomographic_info) {
    lines << tr("The results of the last inversion will be removed (Undo brings them back).");
  }
  mUi->notesLabel->setText(lines.join(QLatin1Char('\n')));
  if (!status.ok()) return mSheet->setNothing(textOf(status.text()));
  mSheet->setFigure([this](double widthMm, FigureDrawing& drawing) {
    SectionFigureOptions look = mLook;
    look.widthMm = widthMm;
    return prepareSectionFigure(mFilled, look, drawing);
  });
}

}  // namespace talvesk
