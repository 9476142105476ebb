#include "render/device/kept_states.h"

KeptStates::KeptStates(Device& device)
    : device_(device), states_(device.States()), world_(device.GetTransform(Transform::World)) {}

KeptStates::~KeptStates() {
  device_.SetRenderState(RenderState::DepthTest, states_.depthTest);
  device_.SetRenderState(RenderState::DepthWrite, states_.depthWrite);
  device_.SetRenderState(RenderState::AlphaBlend, states_.alphaBlend);
  device_.SetBlend(BlendState::Source, states_.sourceBlend);
  device_.SetBlend(BlendState::Destination, states_.destinationBlend);
  device_.SetTransform(Transform::World, world_);
}
