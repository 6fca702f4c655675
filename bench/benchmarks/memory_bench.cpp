// What the program holds of the heap after a million ticks, with values that change, knobs that are
// turned, and profiles and sessions that come and go.
#include <malloc.h>

#include "bench/benchmarks/BenchCockpit.h"

namespace {

constexpr int kWarmUp = 50'000;
constexpr int kTicks = 1'000'000;
constexpr double kTolerance = 0.01;

void Fly(BenchCockpit& cockpit, int ticks) {
    OffsetServer& server = cockpit.machine.server;
    for (int i = 0; i < ticks; ++i) {
        if (i % 10 == 0) {
            server.Set<int32_t>(0x07D4, i % 900 * 65536);
            server.Set<uint16_t>(0x0D0C, static_cast<uint16_t>(i));
        }
        if (i % 50 < 4) cockpit.Report(*cockpit.multis[0], i % 2 ? 0x080000 : 0x280000);
        if (i % 50 < 4) cockpit.Report(*cockpit.radios[0], i % 2 ? 0x010200 : 0x010201);
        if (i % 50'000 == 25'000) {
            cockpit.LoseSimulator();
            cockpit.Connect();
        }
        if (i % 10'000 == 5'000) cockpit.SetTitle("Aircraft " + std::to_string(i / 10'000 % 2));
        if (i % 1000 == 0) cockpit.ForgetLogs();
        cockpit.machine.loop.Advance(10);
    }
    cockpit.ForgetLogs();
}

void MillionTicks(benchmark::State& state) {
    BenchCockpit cockpit(4);
    Fly(cockpit, kWarmUp);
    const auto before = static_cast<double>(mallinfo2().uordblks);
    for (auto _ : state) Fly(cockpit, kTicks);
    const auto after = static_cast<double>(mallinfo2().uordblks);
    ExpectFigure("bytes in use after a million ticks", after, before, before * kTolerance);
    state.counters["bytes_before"] = before;
    state.counters["bytes_after"] = after;
}
BENCHMARK(MillionTicks)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
