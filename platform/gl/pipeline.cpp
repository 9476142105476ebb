#include "platform/gl/pipeline.h"

namespace gl {
namespace {

/// A scaled point has its nominal size at the default camera's distance from its target.
constexpr double kNominalDistance = 24.76;

void Enable(GLenum capability, bool on) { (on ? glEnable : glDisable)(capability); }

GLenum Factor(Blend blend) {
  switch (blend) {
    case Blend::Zero:
      return GL_ZERO;
    case Blend::One:
      return GL_ONE;
    case Blend::SourceAlpha:
      return GL_SRC_ALPHA;
    case Blend::InverseSourceAlpha:
      return GL_ONE_MINUS_SRC_ALPHA;
  }
  return GL_ONE;
}

GLint FilterName(Filter filter) { return filter == Filter::Linear ? GL_LINEAR : GL_NEAREST; }

/// What no device state changes, but another user of the context may have.
void SetFixedStates() {
  constexpr GLenum kOff[] = {
      GL_SCISSOR_TEST,      GL_STENCIL_TEST,        GL_DITHER,
      GL_COLOR_LOGIC_OP,    GL_POLYGON_OFFSET_FILL, GL_SAMPLE_ALPHA_TO_COVERAGE,
      GL_SAMPLE_COVERAGE,   GL_FRAMEBUFFER_SRGB,    GL_DEPTH_CLAMP,
      GL_RASTERIZER_DISCARD};
  for (const GLenum off : kOff) glDisable(off);
  glEnable(GL_PROGRAM_POINT_SIZE);
  glPointParameteri(GL_POINT_SPRITE_COORD_ORIGIN, GL_UPPER_LEFT);
  glEnable(GL_CULL_FACE);
  glFrontFace(GL_CW);
  glCullFace(GL_BACK);
  glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  glDepthFunc(GL_LEQUAL);
  glDepthRange(0, 1);
  glBlendEquation(GL_FUNC_ADD);
  glActiveTexture(GL_TEXTURE0);
}

}  // namespace

DrawMode ModeOf(const Command& draw) {
  return {draw.camera, draw.states,
          draw.primitive == Primitive::PointList ? Shape::Points : Shape::Triangles,
          draw.format == VertexFormat::Screen};
}

Pipeline::Pipeline(const TargetSettings& settings)
    : settings_(settings), target_(settings), triangles_(Shape::Triangles), points_(Shape::Points) {
  glSamplerParameteri(sampler_.Name(), GL_TEXTURE_WRAP_S, GL_REPEAT);
  glSamplerParameteri(sampler_.Name(), GL_TEXTURE_WRAP_T, GL_REPEAT);
}

void Pipeline::BeginFrame(const CommandList& frame) {
  frame_ = &frame;
  modeSet_ = false;
  target_.Bind();
  SetFixedStates();
  glBindSampler(0, sampler_.Name());
}

void Pipeline::Clear(const Command& clear) {
  const auto channel = [&](unsigned shift) {
    return static_cast<float>((clear.colour >> shift) & 0xFFU) / 255.0F;
  };
  glDepthMask(GL_TRUE);
  modeSet_ = false;
  glClearColor(channel(16), channel(8), channel(0), channel(24));
  glClearDepth(double{clear.depth});
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void Pipeline::Reopen(const Command& clear) {
  target_.Restore();
  glDepthMask(GL_TRUE);
  modeSet_ = false;
  glClearDepth(double{clear.depth});
  glClear(GL_DEPTH_BUFFER_BIT);
}

void Pipeline::Prepare(const DrawMode& mode) {
  if (modeSet_ && mode == mode_) return;
  if (!modeSet_ || mode.states != mode_.states) SetStates(frame_->states[mode.states]);
  mode_ = mode;
  modeSet_ = true;
  SetProgram(mode);
}

void Pipeline::SetStates(const DeviceStates& states) const {
  Enable(GL_DEPTH_TEST, states.depthTest);
  glDepthMask(states.depthWrite ? GL_TRUE : GL_FALSE);
  Enable(GL_BLEND, states.alphaBlend);
  glBlendFunc(Factor(states.sourceBlend), Factor(states.destinationBlend));
  Enable(GL_MULTISAMPLE, states.multisample);
  glSamplerParameteri(sampler_.Name(), GL_TEXTURE_MAG_FILTER, FilterName(states.magnify));
  glSamplerParameteri(sampler_.Name(), GL_TEXTURE_MIN_FILTER, FilterName(states.minify));
}

void Pipeline::SetProgram(const DrawMode& mode) const {
  const Camera& camera = frame_->cameras[mode.camera];
  const DeviceStates& states = frame_->states[mode.states];
  const Program& program = mode.shape == Shape::Points ? points_ : triangles_;
  program.Use();
  program.ToClip(mode.screen ? ScreenToClip(settings_.width, settings_.height)
                             : AsUniform(WorldToClip(camera)));
  if (mode.shape != Shape::Points) return;
  program.ToEye(AsUniform(camera.view));
  program.Points(SizingOf(states, mode.screen), states.pointSprites);
}

PointSizing Pipeline::SizingOf(const DeviceStates& states, bool screen) const {
  PointSizing sizing;
  if (states.pointScaling && !screen) {
    sizing.base = static_cast<float>(target_.Height()) * states.pointSize;
    sizing.a = 0;
    sizing.c = static_cast<float>(1.0 / (kNominalDistance * kNominalDistance));
  } else {
    sizing.base = static_cast<float>(double{states.pointSize} * settings_.scale);
  }
  return sizing;
}

}  // namespace gl
