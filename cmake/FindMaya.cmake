# Provides Maya::OpenMaya, Maya::OpenMayaUI, Maya::OpenMayaRender and Maya::Foundation.
#
# With MAYA_LOCATION set to a Maya 2022 devkit (include/maya/*.h, lib/libOpenMaya.so ...)
# they are the real libraries, with the compile settings Maya 2022 uses on Linux.
# Without it they are the stand-in host built in platform/maya (target maya_standin).
include(FindPackageHandleStandardArgs)

set(_maya_components OpenMaya OpenMayaUI OpenMayaRender Foundation)
# Maya 2019 to 2023 on Linux are built with the old libstdc++ string ABI.
set(Maya_LINUX_DEFINITIONS LINUX LINUX_64 _BOOL REQUIRE_IOSTREAM _GLIBCXX_USE_CXX11_ABI=0)

if(MAYA_LOCATION)
  find_path(Maya_INCLUDE_DIR maya/MFnPlugin.h PATHS "${MAYA_LOCATION}/include" NO_DEFAULT_PATH)
  set(_maya_libs)
  foreach(_c IN LISTS _maya_components)
    find_library(Maya_${_c}_LIBRARY ${_c} PATHS "${MAYA_LOCATION}/lib" NO_DEFAULT_PATH)
    list(APPEND _maya_libs Maya_${_c}_LIBRARY)
  endforeach()
  find_package_handle_standard_args(Maya REQUIRED_VARS Maya_INCLUDE_DIR ${_maya_libs})
  foreach(_c IN LISTS _maya_components)
    if(NOT TARGET Maya::${_c})
      add_library(Maya::${_c} SHARED IMPORTED)
      set_target_properties(Maya::${_c} PROPERTIES
        IMPORTED_LOCATION "${Maya_${_c}_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Maya_INCLUDE_DIR}"
        INTERFACE_COMPILE_DEFINITIONS "${Maya_LINUX_DEFINITIONS}"
        # The legacy viewport classes are marked deprecated in Maya 2022 but still work.
        INTERFACE_COMPILE_OPTIONS "-fPIC;-Wno-deprecated-declarations")
    endif()
  endforeach()
else()
  if(NOT TARGET maya_standin)
    message(FATAL_ERROR "MAYA_LOCATION is not set and the Maya stand-in (platform/maya) is not built")
  endif()
  set(Maya_FOUND TRUE)
  foreach(_c IN LISTS _maya_components)
    if(NOT TARGET Maya::${_c})
      add_library(Maya::${_c} INTERFACE IMPORTED)
      set_target_properties(Maya::${_c} PROPERTIES INTERFACE_LINK_LIBRARIES maya_standin)
    endif()
  endforeach()
endif()
