// The motion sample parameter as the renderer drives it: keyframes appended per sample, cleared
// per frame, and read as a list. Reached through the plug-in binary, as the renderer does.
#include <benchmark/benchmark.h>
#include <mayahost/Host.h>
#include <mayahost/Renderer.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <new>

#include "GeomRequest.h"
#include "params/AnimatedParameterInterface.h"
#include "params/VRayPluginParameter.h"
#include "vray/VRayParameterList.h"

namespace {

std::atomic<long> allocations{0};

// One bridge node translated once; its "sampleGenerator" parameter as the renderer holds it.
struct Bridge {
    VUtils::PluginRegistry registry;
    int counter = 0;
    vrayrender::GeomRequest request{&registry, true, &counter};
    VUtils::VRayPluginParameter* samples = nullptr;
    VUtils::AnimatedParameterInterface* keys = nullptr;

    Bridge() {
        mayahost::reset();
        if (!mayahost::loadPlugin(XRVELL_PLUGIN_PATH)) std::abort();
        registry.loadDirectories({FUR_VRAY_DIR});
        MObject node = mayahost::createNode("xrVellMayaVRay");
        mayahost::setAddress(mayahost::findPlug(node, "vrayGeomInfo"), &request);
        mayahost::findPlug(node, "vrayGeomResult").asInt();
        mayahost::setAddress(mayahost::findPlug(node, "vrayGeomInfo"), nullptr);
        samples = request.current()->getParameterList()->getParam("sampleGenerator");
        keys = static_cast<VUtils::AnimatedParameterInterface*>(
            samples->newInterface(EXT_ANIMATEDPARAM));
    }
};

Bridge& bridge() {
    static Bridge* instance = new Bridge;
    return *instance;
}

// Appending n samples, then the end-of-render clear; per sample cost must not grow with n.
void BM_CreateKeyFrame(benchmark::State& state) {
    Bridge& b = bridge();
    const long n = state.range(0);
    for (auto _ : state) {
        for (long i = 0; i < n; ++i) b.keys->createKeyFrame(static_cast<double>(i), 0);
        state.PauseTiming();
        b.keys->clearKeyFrames(1e30, 0);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_CreateKeyFrame)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

// Trimming half of n samples: one pass over the list. Refilling the list goes through the
// node and costs far more than the trim, so only the trim is timed, over a fixed number of runs.
void BM_ClearKeyFrames(benchmark::State& state) {
    Bridge& b = bridge();
    const long n = state.range(0);
    for (auto _ : state) {
        b.keys->clearKeyFrames(1e30, 0);
        for (long i = 0; i < n; ++i) b.keys->createKeyFrame(static_cast<double>(i % 2), 0);
        const auto start = std::chrono::steady_clock::now();
        b.keys->clearKeyFrames(1.0, 0);
        const std::chrono::duration<double> trim = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(trim.count());
    }
    state.SetComplexityN(n);
}
BENCHMARK(BM_ClearKeyFrames)
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->UseManualTime()
    ->Iterations(20)
    ->Complexity();

void BM_GetFloatList(benchmark::State& state) {
    Bridge& b = bridge();
    b.keys->clearKeyFrames(1e30, 0);
    for (int i = 0; i < 3; ++i) b.keys->createKeyFrame(i, 0);
    const long before = allocations.load();
    for (auto _ : state) benchmark::DoNotOptimize(b.samples->getFloatList(0.0));
    state.counters["allocations_per_call"] =
        static_cast<double>(allocations.load() - before) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_GetFloatList);

}  // namespace

// Counting every allocation of the process; the pairs below match each other by construction.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size ? size : 1)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

BENCHMARK_MAIN();
