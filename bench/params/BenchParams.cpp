// Per-call cost of the operations the renderer makes on parameters, each beside a
// plain virtual call that returns a field. Prints each one's ratio to that baseline.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "BenchObjects.h"
#include "params/VRaySettableParamInterface.h"
#include "vray/VRayContext.h"

using benchobjects::Baseline;
using VUtils::DefParamBase;
using VUtils::VRayPluginParameter;

namespace {

// Hides where the pointer came from, so each call stays a virtual dispatch.
template <class T>
T* opaque(T* pointer) {
    benchmark::DoNotOptimize(pointer);
    return pointer;
}

template <class Iface>
Iface* interfaceOf(DefParamBase& param, unsigned long id) {
    return opaque(static_cast<Iface*>(param.newInterface(id)));
}

void BM_Baseline(benchmark::State& state) {
    std::unique_ptr<Baseline> object(benchobjects::newBaseline(1.5f));
    const Baseline* b = opaque(object.get());
    for (auto _ : state) {
        benchmark::DoNotOptimize(b->value());
    }
}

void BM_GetFloat(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newFloatParam(1.5f));
    VRayPluginParameter* p = opaque(static_cast<VRayPluginParameter*>(param.get()));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->getFloat(0, 0.0));
    }
}

void BM_GetInt(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newIntParam(3));
    VRayPluginParameter* p = opaque(static_cast<VRayPluginParameter*>(param.get()));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->getInt(0, 0.0));
    }
}

void BM_GetVector(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newVectorParam());
    VRayPluginParameter* p = opaque(static_cast<VRayPluginParameter*>(param.get()));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->getVector(0, 0.0));
    }
}

void BM_GetTexFloat(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newFloatParam(1.5f));
    auto* texture = interfaceOf<VUtils::TextureFloatInterface>(*param, EXT_TEXTURE_FLOAT);
    const VUtils::VRayContext context{};
    for (auto _ : state) {
        benchmark::DoNotOptimize(texture->getTexFloat(context));
    }
}

void BM_GetTexVector(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newVectorParam());
    auto* texture = interfaceOf<VUtils::TextureVectorInterface>(*param, EXT_TEXTURE_VECTOR);
    const VUtils::VRayContext context{};
    for (auto _ : state) {
        benchmark::DoNotOptimize(texture->getTexVector(context));
    }
}

void BM_GetString(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newStringParam("fur.0001.cache"));
    VRayPluginParameter* p = opaque(static_cast<VRayPluginParameter*>(param.get()));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->getString(0, 0.0));
    }
}

void BM_GetFloatList(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newFloatListParam(5));
    VRayPluginParameter* p = opaque(static_cast<VRayPluginParameter*>(param.get()));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->getFloatList(0.0));
    }
}

void BM_NewInterfaceHit(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newFloatParam(1.5f));
    PluginBase* p =
        opaque(static_cast<PluginBase*>(static_cast<VRayPluginParameter*>(param.get())));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->newInterface(EXT_TEXTURE_FLOAT));
    }
}

void BM_NewInterfaceMiss(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newFloatParam(1.5f));
    PluginBase* p =
        opaque(static_cast<PluginBase*>(static_cast<VRayPluginParameter*>(param.get())));
    for (auto _ : state) {
        benchmark::DoNotOptimize(p->newInterface(EXT_ANIMATEDPARAM));
    }
}

void BM_SetFloatAppend(benchmark::State& state) {
    std::unique_ptr<DefParamBase> param(benchobjects::newFloatListParam(0));
    auto* settable = interfaceOf<VUtils::VRaySettableParamInterface>(*param, EXT_SETTABLE_PARAM);
    // Restarting the list keeps its storage, so appends measure the steady state.
    const int restartEvery = 4096;
    settable->reserve(restartEvery, 0.0);
    int appended = 0;
    for (auto _ : state) {
        settable->setFloat(1.0f, -1, 0.0);
        if (++appended == restartEvery) {
            settable->setCount(0, 0.0);
            appended = 0;
        }
    }
}

BENCHMARK(BM_Baseline);
BENCHMARK(BM_GetFloat);
BENCHMARK(BM_GetInt);
BENCHMARK(BM_GetVector);
BENCHMARK(BM_GetTexFloat);
BENCHMARK(BM_GetTexVector);
BENCHMARK(BM_GetString);
BENCHMARK(BM_GetFloatList);
BENCHMARK(BM_NewInterfaceHit);
BENCHMARK(BM_NewInterfaceMiss);
BENCHMARK(BM_SetFloatAppend);

// Console output plus a closing table of each benchmark's time over the baseline's,
// from the medians when repetitions are run.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration) {
                single[run.run_name.function_name] = run.GetAdjustedCPUTime();
            } else if (run.aggregate_name == "median") {
                median[run.run_name.function_name] = run.GetAdjustedCPUTime();
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        const std::map<std::string, double>& times = median.empty() ? single : median;
        const auto baseline = times.find("BM_Baseline");
        if (baseline == times.end() || baseline->second <= 0.0) {
            return;
        }
        std::printf("\nCPU time over BM_Baseline (%s)\n",
                    median.empty() ? "single run" : "medians");
        for (const auto& entry : times) {
            std::printf("%-24s %6.2f\n", entry.first.c_str(), entry.second / baseline->second);
        }
    }

private:
    std::map<std::string, double> single;
    std::map<std::string, double> median;
};

// Repeated, interleaved runs keep a busy machine from favouring one benchmark;
// arguments given on the command line override these.
std::vector<char*> withDefaults(int argc, char** argv) {
    static char repetitions[] = "--benchmark_repetitions=9";
    static char interleave[] = "--benchmark_enable_random_interleaving=true";
    static char aggregates[] = "--benchmark_display_aggregates_only=true";
    std::vector<char*> args{argv[0], repetitions, interleave, aggregates};
    args.insert(args.end(), argv + 1, argv + argc);
    return args;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<char*> args = withDefaults(argc, argv);
    int count = static_cast<int>(args.size());
    benchmark::Initialize(&count, args.data());
    if (benchmark::ReportUnrecognizedArguments(count, args.data())) {
        return 1;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
