#include "platform/gl/program.h"

namespace gl {
namespace {

// A negative layer means: no texture.
constexpr const char* kVertexText = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec4 colour;
layout(location = 2) in vec2 texel;
layout(location = 3) in int layer;
uniform mat4 toClip;
out vec4 passedColour;
out vec2 passedTexel;
flat out int passedLayer;
#ifdef POINTS
uniform mat4 toEye;
uniform vec4 sizing;
uniform vec2 sizeRange;
#endif
void main() {
  vec4 clip = toClip * vec4(position, 1.0);
  gl_Position = vec4(clip.xy, 2.0 * clip.z - clip.w, clip.w);  // depth 0..1 to -1..1
  passedColour = colour;
  passedTexel = texel;
  passedLayer = layer;
#ifdef POINTS
  float d = length((toEye * vec4(position, 1.0)).xyz);
  float divisor = max(sizing.y + d * (sizing.z + d * sizing.w), 1e-12);
  gl_PointSize = clamp(sizing.x / sqrt(divisor), sizeRange.x, sizeRange.y);
#endif
}
)";

constexpr const char* kFragmentText = R"(
in vec4 passedColour;
in vec2 passedTexel;
flat in int passedLayer;
out vec4 result;
uniform sampler2DArray picture;
#ifdef POINTS
uniform bool sprites;
#endif
void main() {
  vec2 place = passedTexel;
#ifdef POINTS
  if (sprites) place = gl_PointCoord;
#endif
  vec4 sampled = texture(picture, vec3(place, float(max(passedLayer, 0))));
  result = passedLayer < 0 ? passedColour : vec4(sampled.rgb * passedColour.rgb, sampled.a);
}
)";

}  // namespace

Program::Program(Shape shape)
    : program_(shape == Shape::Points ? "#define POINTS\n" : "", kVertexText, kFragmentText),
      toClip_(program_.Uniform("toClip")),
      toEye_(program_.Uniform("toEye")),
      sizing_(program_.Uniform("sizing")),
      sprites_(program_.Uniform("sprites")) {
  std::array<GLfloat, 2> range{};
  glGetFloatv(GL_POINT_SIZE_RANGE, range.data());
  program_.Use();
  glUniform1i(program_.Uniform("picture"), 0);
  glUniform2f(program_.Uniform("sizeRange"), range[0], range[1]);
}

void Program::ToClip(const UniformMatrix& matrix) const {
  glUniformMatrix4fv(toClip_, 1, GL_FALSE, matrix.data());
}

void Program::ToEye(const UniformMatrix& matrix) const {
  glUniformMatrix4fv(toEye_, 1, GL_FALSE, matrix.data());
}

void Program::Points(const PointSizing& sizing, bool sprites) const {
  glUniform4f(sizing_, sizing.base, sizing.a, sizing.b, sizing.c);
  glUniform1i(sprites_, sprites ? 1 : 0);
}

}  // namespace gl
