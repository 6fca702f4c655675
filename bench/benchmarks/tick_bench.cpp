// What a steady tick costs, against copying the bytes that it reads once.
#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>

#include "bench/sim/AircraftModel.h"
#include "bench/virtual/VirtualCockpit.h"

namespace {

std::atomic<size_t> allocations = 0;

// Where the selectors of each Radio Panel stand, as bytes of its state word: COM1 and NAV1, ADF and
// DME, XPDR and COM2, NAV2 and ADF.
constexpr uint8_t kRadioPositions[][2] = {{0x01, 0x02}, {0x10, 0x10}, {0x40, 0x01}, {0x08, 0x08}};
// Values of the Multi Panels in the standard mode and of the Radio Panels, the power switches and
// the title.
constexpr size_t kBytesRead = 8 * 4 + 3 * 4 + 5 * 2 + 20 * 2 + 60;

void CopyOnce(benchmark::State& state) {
    std::array<uint8_t, kBytesRead> from{}, to{};
    for (auto _ : state) {
        benchmark::DoNotOptimize(from.data());
        std::copy(from.begin(), from.end(), to.begin());
        benchmark::DoNotOptimize(to.data());
    }
}
BENCHMARK(CopyOnce);

// Four panels of each kind, in the mode that the profile "Default" names.
void SteadyTick(benchmark::State& state, const std::string& mode) {
    VirtualCockpit cockpit;
    const AircraftModel aircraft(cockpit.machine.server);
    cockpit.machine.files.Put("C:\\Orvo\\Default.ini", "[Common]\r\nSpecialMode=" + mode);
    int number = 0;
    for (const auto& [high, low] : kRadioPositions) {
        cockpit.Plug(PanelKind::Radio, ++number).positions = {0, high, low, 0};
        cockpit.Plug(PanelKind::Multi, number).positions = {0, 0x08, 0, 0};
    }
    cockpit.Start();
    cockpit.Connect();
    cockpit.machine.loop.Advance(1000);
    frmMain& window = cockpit.Window();
    size_t counted = 0;
    for (auto _ : state) {
        const size_t before = allocations;
        window.timerFSUIPC.Tick.Raise();
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
