#pragma once

#include "base/Log.h"
#include "model/RefractionDataStructure.h"
#include "model/TomoDocument.h"
#include "support/ConsoleCapture.h"
#include "support/TestSurveys.h"
#include "tomo/TomographyRun.h"

#include <gtest/gtest.h>

namespace talvesk::testing {

// What reports tell of a line of 13 geophones, 2 m apart.

/// With a section of two iterations below it.
inline TomoDocument inverted(TomoDocument line) {
  const ConsoleCapture console;
  putGrid(line, 10.0, 1.0);
  TomographyParameters few;
  few.externalIterations = 2;
  few.solverIterations = 2;
  Log log;
  EXPECT_TRUE(runInversion(line, few, log).status.ok());
  return line;
}

/// A refractor of 1800 m/s and a little more from geophone to geophone.
/// \param v1 of the layer above, m/s \param depth metres
inline refractionDataStructure::Interpretation oneRefractor(double v1, double depth) {
  refractionDataStructure::Interpretation interpretation;
  refractionDataStructure::computedData refractor;
  for (int i = 0; i < 13; ++i) {
    refractor.x.push_back(2.0 * i);
    refractor.elevation.push_back(100.0);
    refractor.depth.push_back(depth);
    refractor.velocity.push_back(1800.0 + i);
  }
  interpretation.refractData.v1 = v1;
  interpretation.refractData.cData = {refractor};
  interpretation.refractData.v2 = refractor.velocity;
  return interpretation;
}

}  // namespace talvesk::testing
