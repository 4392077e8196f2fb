// The main job at scale: a generated scene of N fur nodes with their bridges, read, rendered
// with 3 motion-blur samples, and written to a .vrscene file as the frames finish. Over 3 frames
// for many nodes (the 10,000-node run must stay within 12 times the 1,000-node run: linear
// growth), and over many frames for 100 nodes (the throughput in node-frames per second; the peak
// heap must not grow with the frames). Reports the time of each phase and the peak heap in use.
// Run: cmake --build <build> --target bench_render && <build>/bench/render/bench_render
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "OutputFile.h"
#include "RenderJob.h"

namespace {

std::atomic<size_t> heapInUse{0};
std::atomic<size_t> heapPeak{0};

void counted(void* block) {
    if (!block) return;
    const size_t now = heapInUse += malloc_usable_size(block);
    size_t peak = heapPeak.load();
    while (now > peak && !heapPeak.compare_exchange_weak(peak, now)) {
    }
}

// Out of line, so the compiler does not pair this free with the operator new below.
__attribute__((noinline)) void releaseBlock(void* block) {
    if (block) heapInUse -= malloc_usable_size(block);
    std::free(block);
}

}  // namespace

// Every allocation of the process, the plug-ins' included, goes through these.
void* operator new(size_t size) {
    void* block = std::malloc(size ? size : 1);
    if (!block) throw std::bad_alloc();
    counted(block);
    return block;
}
void operator delete(void* block) noexcept { releaseBlock(block); }
void operator delete(void* block, size_t) noexcept { operator delete(block); }

namespace {

// A scene as Maya writes one: per fur node a transform and shape, a bridge beside it, and
// the connections from the fur output and the scene time.
std::string generatedScene(int furNodes) {
    std::string text =
        "//Maya ASCII 2022 scene\nrequires maya \"2022\";\n"
        "requires \"xrVellMaya\" \"1.0\";\nrequires \"xrVellVRayMaya\" \"1.0\";\n"
        "currentUnit -l centimeter -a degree -t film;\n";
    char block[1024];
    for (int i = 0; i < furNodes; ++i) {
        std::snprintf(block, sizeof block,
                      "createNode transform -n \"fur%d\";\n"
                      "\tsetAttr \".t\" -type \"double3\" %d 0 0 ;\n"
                      "createNode xrVellMaya -n \"fur%dShape\" -p \"fur%d\";\n"
                      "\tsetAttr \".rd\" %g;\n\tsetAttr \".vb\" %d;\n"
                      "\tsetAttr \".isp\" -type \"string\" \"/textures/fur%d\";\n"
                      "\tsetAttr \".cfp\" -type \"string\" \"/cache/fur%d.####.xvc\";\n"
                      "createNode transform -n \"bridge%d\";\n"
                      "createNode xrVellMayaVRay -n \"bridge%dShape\" -p \"bridge%d\";\n"
                      "connectAttr \"fur%dShape.od\" \"bridge%dShape.vid\";\n"
                      "connectAttr \":time1.o\" \"bridge%dShape.time\";\n",
                      i, i, i, i, 1.0 + i % 7 * 0.25, i % 3, i, i, i, i, i, i, i, i);
        text += block;
    }
    return text + "select -ne :time1;\n\tsetAttr \".o\" 1;\n";
}

xrvell::RenderOptions benchOptions(int frames) {
    xrvell::RenderOptions options;
    options.scene = "generated.ma";
    options.settings.startFrame = 1;
    options.settings.endFrame = frames;
    options.settings.motionBlur.enabled = true;
    options.settings.motionBlur.geometrySamples = 3;
    options.startGiven = options.endGiven = true;
    options.pluginPath = {PLUGIN_DIR};
    options.rendererPluginPath = {RENDERER_PLUGIN_DIR};
    options.verbosity = 0;
    return options;
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Where the benchmark writes its .vrscene: a fresh directory, so the output goes through the
// temporary file and rename as it does for a user.
std::string scratchDirectory() {
    char name[] = "/tmp/xrvell-bench-XXXXXX";
    return mkdtemp(name) ? name : "";
}

size_t fileSize(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? static_cast<size_t>(status.st_size) : 0;
}

// What one benchmark measures, summed over its runs.
struct Totals {
    double readSeconds = 0, renderSeconds = 0;
    size_t peakBytes = 0, outputBytes = 0;
};

// One run of the job as a user's would go, the output through the temporary file and rename.
void runJob(benchmark::State& state, const std::string& scene, int frames,
            const std::string& vrscene, std::FILE* quiet, Totals& totals) {
    heapPeak = heapInUse.load();
    const size_t before = heapInUse;
    xrvell::RenderJob job(benchOptions(frames), quiet);
    auto start = std::chrono::steady_clock::now();
    if (!job.load(scene)) state.SkipWithError("the generated scene did not load");
    totals.readSeconds += secondsSince(start);
    start = std::chrono::steady_clock::now();
    {
        xrvell::OutputFile output(vrscene);
        std::string error;
        if (!output.open(&error) || !job.render(output) || !output.commit(&error))
            state.SkipWithError("the .vrscene could not be written");
    }
    totals.renderSeconds += secondsSince(start);
    totals.outputBytes = fileSize(vrscene);
    totals.peakBytes = std::max(totals.peakBytes, heapPeak - before);
}

// Renders state.range(0) fur nodes over state.range(1) frames.
void BM_RenderGeneratedScene(benchmark::State& state) {
    const int nodes = static_cast<int>(state.range(0));
    const int frames = static_cast<int>(state.range(1));
    const std::string scene = generatedScene(nodes);
    const std::string directory = scratchDirectory();
    if (directory.empty()) {
        state.SkipWithError("no scratch directory");
        return;
    }
    const std::string vrscene = directory + "/generated.vrscene";
    std::FILE* quiet = std::fopen("/dev/null", "w");
    Totals totals;
    for (auto _ : state) runJob(state, scene, frames, vrscene, quiet, totals);
    std::fclose(quiet);
    std::remove(vrscene.c_str());
    rmdir(directory.c_str());
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const double iterations = static_cast<double>(state.iterations());
    const double renderSeconds = totals.renderSeconds / iterations;
    state.counters["read_s"] = totals.readSeconds / iterations;
    state.counters["render_write_s"] = renderSeconds;
    state.counters["node_frames_per_s"] = static_cast<double>(nodes) * frames / renderSeconds;
    state.counters["peak_heap_MB"] = static_cast<double>(totals.peakBytes) / 1e6;
    state.counters["max_rss_MB"] = static_cast<double>(usage.ru_maxrss) / 1e3;
    state.counters["vrscene_MB"] = static_cast<double>(totals.outputBytes) / 1e6;
}
// The same number of runs for every size, so all pay for first-touched memory alike.
BENCHMARK(BM_RenderGeneratedScene)
    ->ArgNames({"nodes", "frames"})
    ->Args({1000, 3})
    ->Args({10000, 3})
    ->Args({100, 100})
    ->Args({100, 1000})
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
