#pragma once

#include <QDialog>
#include <functional>
#include <memory>

namespace talvesk {

namespace Ui {
class progressDialog;
}
class ProjectWriter;
class projectReader;

/// Shows how far the saving or loading of a project is. It cannot be closed: it goes by itself when
/// the work is done.
class progressDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param file name of the project, to be shown
  progressDialog(const ProjectWriter& writer, const QString& file, QWidget* parent);
  progressDialog(const projectReader& reader, const QString& file, QWidget* parent);
  ~progressDialog() override;

  /// Does the work on a thread of its own and returns when both it and the dialog are done. The
  /// work must not throw.
  void run(const std::function<void()>& work);

 public slots:
  void write_saved_xml();
  void write_saved_grid();
  void write_saved_traces();
  void write_saved_palettes();
  void write_saved_compressed();
  void write_saved_completed();
  void write_loaded_compressed();
  void write_loaded_xml();
  void write_loaded_grid();
  void write_loaded_traces();
  void write_loaded_palettes();
  void write_tracing_rays();  ///< after loading, for a project with an inversion
  void reject() override;     ///< not before the work is done

 private:
  progressDialog(const QString& title, const QString& file, int steps, QWidget* parent);
  void write(const QStringList& lines, int step);

  std::unique_ptr<Ui::progressDialog> mUi;
};

}  // namespace talvesk
