# Provides VRay::SDK: what the plug-in needs of the renderer library.
#
# With VRAY_SDK_LOCATION set to a V-Ray for Maya SDK (include/, lib/) it is the real library;
# without it, the stand-in built in platform/vray (target vray_standin).
include(FindPackageHandleStandardArgs)

if(VRAY_SDK_LOCATION)
  find_path(VRay_INCLUDE_DIR vraybase.h PATHS "${VRAY_SDK_LOCATION}/include" NO_DEFAULT_PATH)
  find_library(VRay_LIBRARY NAMES vray PATHS "${VRAY_SDK_LOCATION}/lib" NO_DEFAULT_PATH)
  find_package_handle_standard_args(VRay REQUIRED_VARS VRay_INCLUDE_DIR VRay_LIBRARY)
  if(NOT TARGET VRay::SDK)
    add_library(VRay::SDK SHARED IMPORTED)
    set_target_properties(VRay::SDK PROPERTIES
      IMPORTED_LOCATION "${VRay_LIBRARY}"
      INTERFACE_INCLUDE_DIRECTORIES "${VRay_INCLUDE_DIR}")
  endif()
else()
  if(NOT TARGET vray_standin)
    message(FATAL_ERROR "VRAY_SDK_LOCATION is not set and the V-Ray stand-in (platform/vray) is not built")
  endif()
  set(VRay_FOUND TRUE)
  if(NOT TARGET VRay::SDK)
    add_library(VRay::SDK INTERFACE IMPORTED)
    set_target_properties(VRay::SDK PROPERTIES INTERFACE_LINK_LIBRARIES vray_standin)
  endif()
endif()
