#include "render/frame/frame_steps.h"

#include "level/globals.h"

void RunFrame(const FrameSteps& steps) {
  steps.poll();
  if (Document.EditorMode == PlayMode) {
    play::Update(steps.restoreTrack);
    if (steps.updated) steps.updated();
  }
  RenderFrame(steps.additions);
  if (!Document.PlatformsPaused) MovePlatforms();
}

void MovePlatforms() {
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    platform.move();
  }
}
