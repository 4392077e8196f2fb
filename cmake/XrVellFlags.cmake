# Compile settings shared by everything that goes into the plug-in: C++14 (Maya 2022's
# toolchain), warning-free, and hidden by default so only the entry points leave the library.
function(xrvell_plugin_code target)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 14 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${target} PRIVATE -Wall -Wextra)
  if(XRVELL_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()

# Stand-ins, tools and tests.
function(xrvell_host_code target)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra)
endfunction()
