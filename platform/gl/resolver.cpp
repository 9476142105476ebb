#include "platform/gl/resolver.h"

namespace gl {
namespace {

// One triangle over everything.
constexpr const char* kVertexText = R"(
void main() {
  gl_Position = vec4(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0, 0.0, 1.0);
}
)";

constexpr const char* kFragmentText = R"(
#if SAMPLES > 1
uniform sampler2DMS drawn;
#else
uniform sampler2D drawn;
#endif
uniform int height;
out vec4 result;
void main() {
  ivec2 place = ivec2(int(gl_FragCoord.x), height - 1 - int(gl_FragCoord.y));
  vec3 sum = vec3(0.0);
  for (int i = 0; i < SAMPLES; ++i) sum += texelFetch(drawn, place, i).bgr;
  result = vec4(sum * (1.0 / float(SAMPLES)), 1.0);
}
)";

}  // namespace

Resolver::Resolver(int samples)
    : kind_(samples > 1 ? GL_TEXTURE_2D_MULTISAMPLE : GL_TEXTURE_2D),
      program_("#define SAMPLES " + std::to_string(samples) + "\n", kVertexText, kFragmentText),
      height_(program_.Uniform("height")) {
  program_.Use();
  glUniform1i(program_.Uniform("drawn"), 0);
}

void Resolver::Draw(const TextureName& colours, int width, int height) const {
  for (const GLenum off :
       {GL_SCISSOR_TEST, GL_DEPTH_TEST, GL_BLEND, GL_CULL_FACE, GL_MULTISAMPLE}) {
    glDisable(off);
  }
  glViewport(0, 0, width, height);
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  program_.Use();
  glUniform1i(height_, height);
  glActiveTexture(GL_TEXTURE0);
  glBindSampler(0, 0);
  glBindTexture(kind_, colours.Name());
  glBindVertexArray(noVertices_.Name());
  glDrawArrays(GL_TRIANGLES, 0, 3);
}

}  // namespace gl
