// What a steady tick costs, against copying the bytes that it reads once.
#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "bench/sim/AircraftModel.h"
#include "bench/virtual/VirtualCockpit.h"

namespace {

std::atomic<size_t> allocations = 0;

// Where the selectors of each Radio Panel stand, as bytes of its state word: COM1 and NAV1, ADF and
// DME, XPDR and COM2, NAV2 and ADF.
constexpr uint8_t kRadioPositions[][2] = {{0x01, 0x02}, {0x10, 0x10}, {0x40, 0x01}, {0x08, 0x08}};
constexpr int kPanels = static_cast<int>(std::size(kRadioPositions));

// Every function there is, one after the other and again from the first, on the tiles of all
// panels.
std::string AllTiles() {
    std::string text;
    size_t function = 0;
    for (int panel = 1; panel <= kPanels; ++panel) {
        text += "[BIPPanel" + std::to_string(panel) + "]\r\n";
        for (int tile = 0; tile < kBIPTiles; ++tile) {
            do {
                function = (function + 1) % TileFunctions.size();
            } while (TileFunctions[function].Name.empty());
            text.append("T").append(std::to_string(tile)).append("=");
            text.append(TileFunctions[function].Key.Text()).append("\r\n");
        }
    }
    return text;
}

// Four panels of each kind, in the mode that the profile "Default" names, connected for a second.
struct SteadyCockpit : VirtualCockpit {
    explicit SteadyCockpit(const std::string& mode) {
        PutProfile("Default", "[Common]\r\nSpecialMode=" + mode + "\r\n" + AllTiles());
        int number = 0;
        for (const auto& [high, low] : kRadioPositions) {
            Plug(PanelKind::Radio, ++number).positions = {0, high, low, 0};
            Plug(PanelKind::Multi, number).positions = {0, 0x08, 0, 0};
            Plug(PanelKind::Switch, number);
            Plug(PanelKind::BIP, number);
        }
        Start();
        Connect();
        machine.loop.Advance(1000);
    }
    void RunTick() { Window().timerFSUIPC.Tick.Raise(); }
    size_t BytesOfATick() {
        size_t bytes = 0;
        const ScopedConnection reading =
            machine.server.Reading.Connect([&](uint32_t, uint32_t count) { bytes += count; });
        RunTick();
        return bytes;
    }

  private:
    const bench::AircraftModel aircraft_{machine.server};
};

// What the tick of this mode reads.
void CopyOnce(benchmark::State& state, const std::string& mode) {
    const std::vector<uint8_t> from(SteadyCockpit(mode).BytesOfATick());
    std::vector<uint8_t> to(from.size());
    for (auto _ : state) {
        benchmark::DoNotOptimize(from.data());
        std::copy(from.begin(), from.end(), to.begin());
        benchmark::DoNotOptimize(to.data());
    }
    state.counters["bytes"] = static_cast<double>(from.size());
}
BENCHMARK_CAPTURE(CopyOnce, standard, std::string("none"));
BENCHMARK_CAPTURE(CopyOnce, ngx, std::string("ngx"));
BENCHMARK_CAPTURE(CopyOnce, maddog, std::string("maddog"));

void SteadyTick(benchmark::State& state, const std::string& mode) {
    SteadyCockpit cockpit(mode);
    size_t counted = 0;
    for (auto _ : state) {
        const size_t before = allocations;
        cockpit.RunTick();
        counted += allocations - before;
        state.PauseTiming();
        cockpit.machine.ipc.ForgetSentMessages();
        state.ResumeTiming();
    }
    state.counters["allocations/tick"] =
        static_cast<double>(counted) / static_cast<double>(state.iterations());
}
BENCHMARK_CAPTURE(SteadyTick, standard, std::string("none"))->Iterations(10000);
BENCHMARK_CAPTURE(SteadyTick, ngx, std::string("ngx"))->Iterations(10000);
BENCHMARK_CAPTURE(SteadyTick, maddog, std::string("maddog"))->Iterations(10000);

}  // namespace

void* operator new(size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, size_t) noexcept { std::free(memory); }

BENCHMARK_MAIN();
