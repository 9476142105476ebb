#include "render/device/clsBackground.h"

#include "render/device/DirectX.h"

using DirectX::D3DDevice;
using DirectX::MakeScreenVertex;

void clsBackground::resetbackground() { Name_.clear(); }

void clsBackground::create(const std::string& file) {
  Texture_ = DirectX::D3DX->CreateTextureFromFile(file);
  Name_ = file;
  const auto w = static_cast<float>(DirectX::ViewportWidth);
  const auto h = static_cast<float>(DirectX::ViewportHeight);
  constexpr uint32_t white = 0xFFFFFF;
  Vertices_ = {
      MakeScreenVertex(0, 0, 1, 1, white, 0, 0, 0), MakeScreenVertex(w, 0, 0, 1, white, 0, 1, 0),
      MakeScreenVertex(0, h, 0, 1, white, 0, 0, 1), MakeScreenVertex(w, h, 0, 1, white, 0, 1, 1)};
  VertexBuffer_ = D3DDevice->CreateVertexBuffer(Vertices_);
}

void clsBackground::draw() const {
  if (!VertexBuffer_) return;
  D3DDevice->SetRenderState(RenderState::DepthWrite, false);
  D3DDevice->SetVertexFormat(VertexFormat::Screen);
  D3DDevice->SetTexture(Texture_);
  D3DDevice->SetStreamSource(VertexBuffer_, sizeof(ScreenVertex));
  D3DDevice->DrawPrimitive(Primitive::TriangleStrip, 0, 2);
  D3DDevice->SetRenderState(RenderState::DepthWrite, true);
}
