#include "render/frame/RenderFrame.h"

#include "level/globals.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"
#include "render/device/clsParticles.h"

void RenderFrame() {
  Device& device = *DirectX::D3DDevice;
  device.Clear(0, 1.0F);
  device.BeginScene();
  Document.Background.draw();
  for (clsblock& block : Live(Document.Blocks, Document.BlockCount)) block.draw();
  for (clsRamp& ramp : Live(Document.Ramps, Document.RampCount)) ramp.draw();
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    platform.draw();
  }
  for (clsStar& star : Live(Document.Stars, Document.StarCount)) star.draw();
  if (Document.EditorMode == PlayMode) Player.draw();
  Particles.draw();
  device.EndScene();
  device.Present();
}
