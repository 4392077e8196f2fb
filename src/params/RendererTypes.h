#pragma once

// Renderer-owned objects that this layer only passes along by reference.
namespace VUtils {

class VRayContext;
class VRayRenderer;
class ShaderSource;
class OCLData;

}  // namespace VUtils
