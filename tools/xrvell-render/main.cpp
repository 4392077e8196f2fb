// xrvell-render: renders a Maya ASCII scene through the bridge plug-in and writes what the
// xrVellVRay renderer plugin receives as a .vrscene.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "RenderJob.h"
#include "VisibleText.h"

namespace {

const char* environment(const char* name) { return std::getenv(name); }

}  // namespace

int main(int argc, char** argv) {
    // A reader that goes away (a pipe into head) is a write error to report, with the summary,
    // not a signal that ends the program unseen.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        const std::vector<std::string> args(argv + 1, argv + argc);
        const xrvell::CommandLine commandLine(
            args,
            xrvell::DefaultPaths{XRVELL_DEFAULT_PLUGIN_DIR, XRVELL_DEFAULT_RENDERER_PLUGIN_DIR},
            environment);
        switch (commandLine.outcome()) {
            case xrvell::CommandLine::Outcome::Help:
                std::fputs(xrvell::CommandLine::usage(), stdout);
                return 0;
            case xrvell::CommandLine::Outcome::Error:
                std::fprintf(stderr, "xrvell-render: %s\n%s",
                             xrvell::VisibleText::of(commandLine.error()).c_str(),
                             xrvell::CommandLine::usage());
                return 2;
            case xrvell::CommandLine::Outcome::Render:
                break;
        }
        return xrvell::RenderJob(commandLine.options(), stderr).run();
    } catch (const std::bad_alloc&) {
        std::fputs("xrvell-render: out of memory\n", stderr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "xrvell-render: internal error: %s\n", error.what());
    }
    return 1;
}
