#pragma once

#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"
#include "params/RendererSymbol.h"
#include "params/RendererTypes.h"

namespace VUtils {

// A texture that can describe itself as GPU shader source.
class RTTexInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_RTTEX; }
    const char* getInterfaceName() const override { return "EXT_RTTEX"; }
    virtual bool getSource(const char* a, const char* b, const char* descriptorKind,
                           ShaderSource& shaderSource, const OCLData& oclData) = 0;

    // Defined by the renderer library.
    static XRVELL_RENDERER_SYMBOL double getFrameTimeFromOCLData(const OCLData& oclData);
    static XRVELL_RENDERER_SYMBOL void printShaderSourceString(ShaderSource& shaderSource,
                                                               const char* format, ...)
        __attribute__((format(printf, 2, 3)));
};

}  // namespace VUtils
