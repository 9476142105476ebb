// Flickering faces against the triangles that are drawn.
#include <random>

#include "check/check.h"
#include "tests/play/play_test.h"

namespace {

struct Triangle {
  std::array<Vector3, 3> corners;
  Vector3 normal;  ///< out of its piece
};

Vector3 Minus(const Vector3& a, const Vector3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
float Dot(const Vector3& a, const Vector3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// Those of a piece that the camera may see.
template <typename Piece>
std::vector<Triangle> Drawn(const Piece& piece) {
  const Extent box = piece.Drawn();
  const Vector3 &at = box.corner, &size = box.size;
  const auto placed = [&](double x, double y, double z) {
    return Vector3{static_cast<float>(at.x + x * size.x), static_cast<float>(at.y + y * size.y),
                   static_cast<float>(at.z + z * size.z)};
  };
  const auto vertices = piece.GeometryVertices();
  std::vector<Triangle> triangles;
  for (size_t i = 0; i < vertices.size(); i += 3) {
    Triangle triangle;
    for (size_t k = 0; k < 3; ++k) {
      const Vertex& vertex = vertices[i + k];
      triangle.corners[k] = placed(vertex.x, vertex.y, vertex.z);
    }
    const auto& [a, b, c] = triangle.corners;
    Vector3& n = triangle.normal;
    n = Cross(Minus(b, a), Minus(c, a));
    const float length = std::sqrt(Dot(n, n));
    const bool inwards = Dot(n, Minus(a, placed(0.5, 0.5, 0.5))) < 0;
    for (float Vector3::*axis : {&Vector3::x, &Vector3::y, &Vector3::z}) {
      n.*axis /= inwards ? -length : length;
    }
    if (n.z < 0.99F) triangles.push_back(triangle);
  }
  return triangles;
}

bool Inside(const Triangle& triangle, const Vector3& point) {
  const auto& [a, b, c] = triangle.corners;
  const auto side = [&](const Vector3& from, const Vector3& to) {
    return Dot(Cross(Minus(to, from), Minus(point, from)), triangle.normal) > 0;
  };
  return side(a, b) == side(b, c) && side(b, c) == side(c, a);
}

/// Whether many points of one lie in the other.
bool Share(const Triangle& one, const Triangle& other) {
  const auto& [a, b, c] = one.corners;
  if (Dot(one.normal, other.normal) < 0.9999F) return false;
  if (std::abs(Dot(Minus(other.corners[0], a), one.normal)) > 0.001F) return false;
  constexpr int kSteps = 20;
  for (int i = 0; i < kSteps; ++i) {
    for (int k = 0; i + k < kSteps; ++k) {
      const float u = (static_cast<float>(i) + 0.31F) / kSteps;
      const float v = (static_cast<float>(k) + 0.27F) / kSteps;
      const Vector3 ab = Minus(b, a), ac = Minus(c, a);
      if (Inside(other, {a.x + u * ab.x + v * ac.x, a.y + u * ab.y + v * ac.y,
                         a.z + u * ab.z + v * ac.z})) {
        return true;
      }
    }
  }
  return false;
}

class FlickerTest : public PlayTest {
 protected:
  float Whole(int low, int high) {
    return static_cast<float>(std::uniform_int_distribution(low, high)(random_));
  }
  /// A block or a ramp in a small space; its triangles.
  std::vector<Triangle> AddPiece() {
    const Vector3 at{Whole(-2, 1), Whole(0, 2), Whole(20, 23)};
    const Vector3 size{Whole(1, 3), Whole(1, 3), Whole(1, 3)};
    const float rotation = Whole(-3, 3);
    if (rotation < 0) return Drawn(AddBlock(at, size));
    return Drawn(AddRamp(at, size, static_cast<int>(rotation)));
  }
  std::mt19937 random_{1};
};

TEST_F(FlickerTest, IsWhatDrawnTrianglesShare) {
  int flickers = 0;
  constexpr int kPairs = 20'000;
  for (int pair = 0; pair < kPairs; ++pair) {
    static_cast<PieceCollections&>(Document) = {};
    const std::vector<Triangle> one = AddPiece(), other = AddPiece();
    const bool expected = std::ranges::any_of(one, [&other](const Triangle& a) {
      return std::ranges::any_of(other,
                                 [&a](const Triangle& b) { return Share(a, b) || Share(b, a); });
    });
    const auto findings = check::FindFaultsOfDocument();
    const bool found = std::ranges::any_of(findings, [](const check::Finding& finding) {
      return finding.fault == check::Fault::Flicker || finding.fault == check::Fault::Double;
    });
    ASSERT_EQ(found, expected) << "pair " << pair;
    flickers += found ? 1 : 0;
  }
  EXPECT_TRUE(flickers > kPairs / 20 && flickers < kPairs / 2) << flickers;
}

}  // namespace
