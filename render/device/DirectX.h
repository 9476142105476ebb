// The one rendering device of the program: its start, its camera, and the record constructors.
#pragma once

#include <memory>

#include "platform/graphics.h"
#include "platform/values.h"

namespace DirectX {

inline std::unique_ptr<PlatformRoot> DX;      ///< root object, made first
inline std::unique_ptr<GraphicsAdapter> D3D;  ///< adapter queries and device creation
inline std::unique_ptr<Device> D3DDevice;     ///< every draw goes through it
inline std::unique_ptr<d3dx::Library> D3DX;   ///< texture and mesh loading
inline bool AntialiasAvailable = false;       ///< the device was created with multisampling

inline Vector3 CameraPosition;  ///< eye point
inline Vector3 CameraTarget;    ///< point looked at
inline Matrix4 MatWorld, MatView, MatProj;

/// Inner size of the picture area that the device draws into, pixels.
inline int ViewportWidth = 0, ViewportHeight = 0;

inline constexpr float kFieldOfView = 0.7853982F;  ///< vertical, radians

/// Starts the device on the picture area. Shows its own message and returns false on failure.
bool InitDirect3D(PictureArea& viewport);
/// Whether adapter 0 has a hardware rendering device.
bool CheckHardwareDevice();
/// Builds the three transforms from the camera and sets them.
void ApplyCamera();
/// Looks along the track from its start: eye (0, 25, -18), target (0, 8, 0).
void ResetCamera();
/// Drops the four objects.
void ReleaseDirectX();

Vertex MakeVertex(float x, float y, float z, uint32_t colour, uint32_t specular, float tu,
                  float tv);
ScreenVertex MakeScreenVertex(float x, float y, float z, float rhw, uint32_t colour,
                              uint32_t specular, float tu, float tv);
Vector3 MakeVector(float x, float y, float z);
ColourValue MakeColourValue(int16_t a, int16_t r, int16_t g, int16_t b);

}  // namespace DirectX
