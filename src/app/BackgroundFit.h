#pragma once

#include "refraction/LayeredFit.h"

#include <QObject>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class QThread;

namespace talvesk {

/// Computes the times of a layered profile on a thread of its own, beside a dialog that goes on
/// answering. Long lines of many shots take seconds.
class BackgroundFit : public QObject {
  Q_OBJECT

 public:
  using FindFit = decltype(&fitOfProfile);

  explicit BackgroundFit(QObject* parent = nullptr);
  /// Waits for what is under way.
  ~BackgroundFit() override;

  /// Begins; found() follows. Of what is under way nothing will be told; it is begun after it.
  /// \param errors pickErrors()
  /// \param findFit fitOfProfile() or what has its shape
  void start(std::vector<ShotArrivals> shots, std::vector<std::vector<double>> errors,
             refractionDataStructure::Interpretation interpretation,
             FindFit findFit = fitOfProfile);

 signals:
  void found(const talvesk::LayeredFit& fit);

 private:
  struct Task {
    std::vector<ShotArrivals> shots;
    std::vector<std::vector<double>> errors;
    refractionDataStructure::Interpretation interpretation;
    FindFit findFit;
    LayeredFit fit;
  };
  void begin();
  void finish();

  std::unique_ptr<Task> mTask;  ///< of the thread
  std::unique_ptr<Task> mNext;  ///< asked for meanwhile
  std::unique_ptr<QThread> mThread;
};

}  // namespace talvesk
