#pragma once

// The plug-in is built with hidden visibility; functions the renderer library
// defines must keep default visibility so the loader binds them to it.
#define XRVELL_RENDERER_SYMBOL __attribute__((visibility("default")))
