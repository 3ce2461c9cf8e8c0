#include "app/dialogs/progressDialog.h"

#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "ui_progressDialog.h"

#include <QThread>

namespace talvesk {
namespace {

constexpr int kSavingSteps = 6;
constexpr int kLoadingSteps = 6;

}  // namespace

progressDialog::progressDialog(const QString& title, const QString& file, int steps,
                               QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      mUi(std::make_unique<Ui::progressDialog>()) {
  mUi->setupUi(this);
  setWindowTitle(title);
  setModal(true);
  mUi->fileLabel->setText(file);
  mUi->progressBar->setMaximum(steps);
}

progressDialog::progressDialog(const ProjectWriter& writer, const QString& file, QWidget* parent)
    : progressDialog(tr("Saving project"), file, kSavingSteps, parent) {
  connect(&writer, &ProjectWriter::saved_tomo_xml, this, &progressDialog::write_saved_xml);
  connect(&writer, &ProjectWriter::saved_grid, this, &progressDialog::write_saved_grid);
  connect(&writer, &ProjectWriter::saved_traces, this, &progressDialog::write_saved_traces);
  connect(&writer, &ProjectWriter::saved_palettes, this, &progressDialog::write_saved_palettes);
  connect(&writer, &ProjectWriter::saved_compressed, this, &progressDialog::write_saved_compressed);
  connect(&writer, &ProjectWriter::saved_completed, this, &progressDialog::write_saved_completed);
}

progressDialog::progressDialog(const projectReader& reader, const QString& file, QWidget* parent)
    : progressDialog(tr("Loading project"), file, kLoadingSteps, parent) {
  connect(&reader, &projectReader::read_compressed, this, &progressDialog::write_loaded_compressed);
  connect(&reader, &projectReader::read_tomo_xml, this, &progressDialog::write_loaded_xml);
  connect(&reader, &projectReader::read_grid, this, &progressDialog::write_loaded_grid);
  connect(&reader, &projectReader::read_traces, this, &progressDialog::write_loaded_traces);
  connect(&reader, &projectReader::read_palettes, this, &progressDialog::write_loaded_palettes);
}

progressDialog::~progressDialog() = default;

void progressDialog::run(const std::function<void()>& work) {
  const std::unique_ptr<QThread> thread(QThread::create(work));
  connect(thread.get(), &QThread::finished, this, &QDialog::accept);
  thread->start();
  exec();
  thread->wait();
}

void progressDialog::reject() {}

void progressDialog::write(const QStringList& lines, int step) {
  for (const QString& line : lines) mUi->textBrowser->append(line);
  mUi->progressBar->setValue(step);
}

void progressDialog::write_saved_xml() {
  write({tr("SAVED XML"), tr("Saving grid...")}, 1);
}

void progressDialog::write_saved_grid() {
  write({tr("SAVED GRID"), tr("Saving traces...")}, 2);
}

void progressDialog::write_saved_traces() {
  write({tr("SAVED TRACES"), tr("Saving palettes...")}, 3);
}

void progressDialog::write_saved_palettes() {
  write({tr("SAVED PALETTES"), tr("Compressing...")}, 4);
}

void progressDialog::write_saved_compressed() {
  write({tr("COMPRESSED"), tr("Removing temporary files...")}, 5);
}

void progressDialog::write_saved_completed() {
  write({tr("COMPLETED")}, 6);
}

void progressDialog::write_loaded_compressed() {
  write({tr("Extracted"), tr("Loading XML")}, 1);
}

void progressDialog::write_loaded_xml() {
  write({tr("Loaded XML"), tr("Loading grid...")}, 2);
}

void progressDialog::write_loaded_grid() {
  write({tr("Loaded GRID"), tr("Loading traces...")}, 3);
}

void progressDialog::write_loaded_traces() {
  write({tr("Loaded TRACES"), tr("Loading palettes...")}, 4);
}

void progressDialog::write_loaded_palettes() {
  write({tr("Loaded PALETTES")}, 5);
}

void progressDialog::write_tracing_rays() {
  write({tr("Tracing rays...")}, 5);
}

}  // namespace talvesk
