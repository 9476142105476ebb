// The small geometric routines that objects, picking, shadow, car and particles share.
#pragma once

#include <cstdint>

#include "level/collision_plane.h"
#include "platform/values.h"

namespace maths {

float Distance(const Vector3& a, const Vector3& b);

/// The ray through the point (x, y) of a viewport width × height in the same units; fov is the
/// vertical field of view in radians, the same along both axes. Writes the points at nearDist and
/// farDist in front of the eye, in world space. Throws std::overflow_error for an empty viewport.
void GetPickRay(float x, float y, float fov, int32_t width, int32_t height, Vector3& nearPoint,
                Vector3& farPoint, float nearDist, float farDist);

/// Where the line start + t·dir meets the plane. True when the segment from start to start + dir
/// crosses or touches it. A parallel line gives false and leaves hit unchanged.
bool IntersectRayPlane(const CollisionPlane& plane, const Vector3& start, const Vector3& dir,
                       Vector3& hit);

/// Three points clockwise as seen from the side that the plane faces.
void PlaneFromPoints(CollisionPlane& plane, const Vector3& p1, const Vector3& p2,
                     const Vector3& p3);
void FaceNormal(const Vector3& p1, const Vector3& p2, const Vector3& p3, Vector3& n);

/// v times m with the perspective division; r stays unchanged where |w| < 0.001.
void TransformCoord(Vector3& r, const Vector3& v, const Matrix4& m);
void MakeTranslationMatrix(Matrix4& m, const Vector3& v);

/// The 32 bits of f.
int32_t FloatToLong(float f);

/// Whether p lies inside the quad, whose corners run clockwise in the projection chosen by its
/// normal; a triangle repeats its first corner as the fourth. A point on an edge is outside.
bool PointInQuad(const Vector3& c1, const Vector3& c2, const Vector3& c3, const Vector3& c4,
                 const Vector3& p);

/// The same for a quad that may also run the other way round: strictly inside by either winding.
bool PointInQuadEitherWay(const Vector3& c1, const Vector3& c2, const Vector3& c3,
                          const Vector3& c4, const Vector3& p);

}  // namespace maths
