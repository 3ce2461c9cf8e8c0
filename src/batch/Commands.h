#pragma once

#include "batch/Options.h"

namespace talvesk {

// The commands. Each returns an ExitCode and has told on standard error what went wrong. Output
// files appear whole or not at all.

int run(const InfoOptions& options);
int run(const PickOptions& options);
int run(const CheckOptions& options);
int run(const InvertOptions& options);
int run(const EnsembleRunOptions& options);
int run(const RefractOptions& options);
int run(const ElasticBatchOptions& options);
int run(const ExportOptions& options);
int run(const ConvertOptions& options);
int run(const RecordsOptions& options);
int run(const DemoOptions& options);

}  // namespace talvesk
