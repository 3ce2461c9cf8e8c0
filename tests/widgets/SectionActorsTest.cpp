#include "figures/SectionCamera.h"
#include "model/TomographyOutcome.h"
#include "support/SectionDocument.h"
#include "view/SectionScene.h"
#include "widgets/section/SectionActors.h"

#include <gtest/gtest.h>
#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkRenderer.h>

namespace talvesk {
namespace {

SectionScene sceneWithRaysAndContours() {
  TomoDocument document = testing::sectionDocument(
      4, 12, 0.0, [](std::uint32_t row, std::uint32_t) { return 400.0 + 100.0 * row; });
  document.result.edit().rays = {{0, 1, 2}};
  SectionSceneOptions options;
  options.rays = true;
  options.equallySpacedContours = 3;
  SectionScene scene;
  EXPECT_TRUE(buildSectionScene(document, options, scene).ok());
  EXPECT_FALSE(scene.rays.empty());
  return scene;
}

TEST(SectionActors, raysOfAMovingPictureAreExaggeratedAsTheSectionIs) {
  SectionActors actors;
  actors.setScene(sceneWithRaysAndContours());
  SectionCamera camera;
  camera.exaggeration = 3.0;
  for (const bool moving : {false, true}) {
    actors.setMoving(moving);
    actors.setCamera(camera, {400.0, 300.0});
    vtkActorCollection& all = *actors.renderer()->GetActors();
    all.InitTraversal();
    int seen = 0;
    while (vtkActor* actor = all.GetNextActor()) {
      if (actor->GetVisibility() == 0) continue;
      ++seen;
      EXPECT_EQ(actor->GetScale()[1], 3.0) << "moving: " << moving << ", actor " << seen;
    }
    EXPECT_EQ(seen, 3) << "cells, rays and contours";
  }
}

}  // namespace
}  // namespace talvesk
