// Renderer library functions the parameter layer calls (filled in with the parameter layer).
