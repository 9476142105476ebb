#include "render/frame/RenderFrame.h"

#include "level/globals.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"
#include "render/device/clsParticles.h"

namespace {

void DrawPlatforms(const FrameAdditions& additions) {
  Device& device = *DirectX::D3DDevice;
  size_t index = 0;
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    if (!additions.platformX) {
      platform.draw();
    } else if (const Extent reach = platform.Reach(); device.MaySee(reach.corner, reach.size)) {
      platform.DrawAt(additions.platformX(index, platform));
    }
    ++index;
  }
}

}  // namespace

void RenderFrame(const FrameAdditions& additions) {
  Device& device = *DirectX::D3DDevice;
  device.Clear(0, 1.0F);
  device.BeginScene();
  Document.Background.draw();
  for (clsblock& block : Live(Document.Blocks, Document.BlockCount)) block.draw();
  for (clsRamp& ramp : Live(Document.Ramps, Document.RampCount)) ramp.draw();
  DrawPlatforms(additions);
  for (clsStar& star : Live(Document.Stars, Document.StarCount)) star.draw();
  if (Document.EditorMode == PlayMode) Player.draw();
  Particles.draw();
  if (additions.afterPieces) additions.afterPieces();
  device.EndScene();
  device.Present();
}
