#include "render/device/DirectX.h"

#include <bit>

#include "platform/dialogs.h"

namespace DirectX {
namespace {

constexpr float kNearPlane = 1.0F;
constexpr float kFarPlane = 500.0F;
constexpr float kPointSize = 0.03F;

PresentSettings ChoosePresentSettings() {
  PresentSettings settings;
  settings.backBuffer = D3D->GetDisplayMode();
  AntialiasAvailable = D3D->CheckMultisample(settings.backBuffer, 2);
  if (AntialiasAvailable) {
    settings.samples = D3D->CheckMultisample(settings.backBuffer, 4) ? 4 : 2;
  }
  return settings;
}

/// The states that hold for the whole run.
void SetFixedStates() {
  D3DDevice->SetRenderState(RenderState::Lighting, false);
  D3DDevice->SetTextureStageState(StageState::MagFilter, Filter::Linear);
  D3DDevice->SetTextureStageState(StageState::MinFilter, Filter::Linear);
  if (AntialiasAvailable) D3DDevice->SetRenderState(RenderState::MultisampleAntialias, true);
  D3DDevice->SetRenderState(RenderState::DepthTest, true);
  D3DDevice->SetRenderState(RenderState::PointSprite, true);
  D3DDevice->SetRenderState(RenderState::PointScale, true);
  D3DDevice->SetPointSize(std::bit_cast<int32_t>(kPointSize));
}

}  // namespace

bool InitDirect3D(PictureArea& viewport) {
  try {
    DX = createPlatformRoot();
    D3D = DX->CreateD3D();
    D3DX = DX->CreateD3DX();
    if (!CheckHardwareDevice()) {
      dialogs::ShowMessage("Error, no 3D card detected");
      return false;
    }
    ViewportWidth = viewport.ScaleWidth();
    ViewportHeight = viewport.ScaleHeight();
    D3DDevice = D3D->CreateDevice(viewport, ChoosePresentSettings());
    SetFixedStates();
    ResetCamera();
    return true;
  } catch (const PlatformError&) {
    dialogs::ShowMessage("Error when communicating with DirectX");
    return false;
  }
}

bool CheckHardwareDevice() {
  try {
    D3D->GetDeviceCaps();
  } catch (const PlatformError& failure) {
    if (failure.code() == kErrorNotAvailable) return false;
  }
  return true;
}

void ApplyCamera() {
  MatWorld = d3dx::Identity();
  D3DDevice->SetTransform(Transform::World, MatWorld);
  MatView = d3dx::LookAtLH(CameraPosition, CameraTarget, {0, 1, 0});
  D3DDevice->SetTransform(Transform::View, MatView);
  MatProj = d3dx::PerspectiveFovLH(kFieldOfView, 1.0F, kNearPlane, kFarPlane);
  D3DDevice->SetTransform(Transform::Projection, MatProj);
}

void ResetCamera() {
  CameraPosition = {0, 25, -18};
  CameraTarget = {0, 8, 0};
  ApplyCamera();
}

void ReleaseDirectX() {
  D3DX.reset();
  D3DDevice.reset();
  D3D.reset();
  DX.reset();
}

Vertex MakeVertex(float x, float y, float z, uint32_t colour, uint32_t specular, float tu,
                  float tv) {
  return {x, y, z, colour, specular, tu, tv};
}

ScreenVertex MakeScreenVertex(float x, float y, float z, float rhw, uint32_t colour,
                              uint32_t specular, float tu, float tv) {
  return {x, y, z, rhw, colour, specular, tu, tv};
}

Vector3 MakeVector(float x, float y, float z) { return {x, y, z}; }

ColourValue MakeColourValue(int16_t a, int16_t r, int16_t g, int16_t b) {
  return {static_cast<float>(r), static_cast<float>(g), static_cast<float>(b),
          static_cast<float>(a)};
}

}  // namespace DirectX
