#pragma once
#include <string>
#include <vector>

#include "RenderOptions.h"

namespace xrvell {

// The directories used when neither an option nor the environment names any.
struct DefaultPaths {
    std::string plugins;
    std::string rendererPlugins;
};

// Reads xrvell-render's options, in the manner of Maya's batch renderer.
class CommandLine {
public:
    enum class Outcome { Render, Help, Error };

    // args without the program name; getEnv looks up environment variables (null: unset).
    CommandLine(const std::vector<std::string>& args, const DefaultPaths& defaults,
                const char* (*getEnv)(const char*));

    Outcome outcome() const { return result; }
    const RenderOptions& options() const { return parsed; }
    const std::string& error() const { return errorText; }
    static const char* usage();
    // Why a frame range cannot be rendered, or nothing.
    static std::string rangeProblem(const vrayrender::RenderSettings& settings);

    static const char* const kPluginPathVariable;
    static const char* const kRendererPluginPathVariable;

private:
    bool parse(const std::vector<std::string>& args);
    bool option(const std::string& name, const std::string& value);
    bool number(const std::string& name, const std::string& value, double* target);
    bool check();
    bool fail(const std::string& text);
    static std::vector<std::string> searchPath(const std::string* option, const char* variable,
                                               const std::string& fallback,
                                               const char* (*getEnv)(const char*));

    Outcome result = Outcome::Error;
    RenderOptions parsed;
    std::string errorText;
};

}  // namespace xrvell
