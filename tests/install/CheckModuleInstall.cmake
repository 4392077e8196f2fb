# cmake -DBUILD_DIR=... -DVERSION=... -DSYMBOLS_TEST=... -P CheckModuleInstall.cmake
# Installs the build into a temporary directory, checks the module description line by line,
# finds the plug-in where the description puts it, and runs the exported-symbol tests on it.
cmake_minimum_required(VERSION 3.20)
execute_process(COMMAND mktemp -d OUTPUT_VARIABLE _prefix OUTPUT_STRIP_TRAILING_WHITESPACE)

function(fail message)
  file(REMOVE_RECURSE "${_prefix}")
  message(FATAL_ERROR "${message}")
endfunction()

execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${_prefix}"
  RESULT_VARIABLE _result OUTPUT_QUIET)
if(NOT _result EQUAL 0)
  fail("cmake --install failed: ${_result}")
endif()

set(_expected
  "+ MAYAVERSION:2022 PLATFORM:linux xrVellVRayMaya ${VERSION} ./xrVellVRayMaya"
  "plug-ins: plug-ins"
  "")
file(READ "${_prefix}/xrVellVRayMaya.mod" _text)
string(REPLACE "\n" ";" _lines "${_text}")
list(LENGTH _expected _count)
list(LENGTH _lines _actualCount)
if(NOT _actualCount EQUAL _count)
  fail("xrVellVRayMaya.mod has ${_actualCount} lines, expected ${_count}:\n${_text}")
endif()
math(EXPR _last "${_count} - 1")
foreach(_i RANGE ${_last})
  list(GET _expected ${_i} _want)
  list(GET _lines ${_i} _got)
  if(NOT _got STREQUAL _want)
    math(EXPR _number "${_i} + 1")
    fail("xrVellVRayMaya.mod line ${_number}: \"${_got}\", expected \"${_want}\"")
  endif()
endforeach()

# Where Maya looks: the module folder relative to the .mod, then its plug-ins folder.
list(GET _lines 0 _description)
string(REGEX REPLACE ".* " "" _module "${_description}")
list(GET _lines 1 _plugins)
string(REGEX REPLACE "^plug-ins: " "" _plugins "${_plugins}")
set(_plugin "${_prefix}/${_module}/${_plugins}/xrVellVRayMaya.so")
file(GLOB_RECURSE _installed RELATIVE "${_prefix}" "${_prefix}/*")
list(SORT _installed)
if(NOT _installed STREQUAL "xrVellVRayMaya.mod;xrVellVRayMaya/plug-ins/xrVellVRayMaya.so"
   OR NOT EXISTS "${_plugin}")
  fail("installed ${_installed}; the .mod names ${_plugin}")
endif()

execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env "XRVELL_PLUGIN_UNDER_TEST=${_plugin}"
          "${SYMBOLS_TEST}" "--gtest_filter=ExportedSymbols.*"
  RESULT_VARIABLE _result)
if(NOT _result EQUAL 0)
  fail("the installed plug-in fails the exported-symbol tests")
endif()
file(REMOVE_RECURSE "${_prefix}")
