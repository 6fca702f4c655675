// What a steady tick costs, for so many panels of each kind and in each mode: all of it, without
// the virtual server's share, and beside coding and decoding the same records once.
#include <algorithm>
#include <thread>
#include <vector>

#include "bench/benchmarks/Allocations.h"
#include "bench/benchmarks/BenchCockpit.h"

namespace {

constexpr const char* kModes[] = {"none", "ngx", "maddog"};
constexpr int kTicks = 500;
constexpr int kColdTicks = 150;
constexpr auto kTickInterval = std::chrono::milliseconds(10);

void CountTicks(BenchCockpit& cockpit) {
    const size_t exchanges = cockpit.channel.exchanges;
    const size_t allocations = Allocations();
    for (int i = 0; i < kTicks; ++i) cockpit.RunTick();
    ExpectFigure("allocations in steady ticks", static_cast<double>(Allocations() - allocations),
                 0);
    ExpectFigure("exchanges per tick",
                 static_cast<double>(cockpit.channel.exchanges - exchanges) / kTicks, 1);
}

void Tick(benchmark::State& state, const char* mode) {
    BenchCockpit cockpit(static_cast<int>(state.range(0)), mode);
    BareRecords records = cockpit.RecordsOfATick();
    for (auto _ : state) cockpit.RunTick();
    CountTicks(cockpit);
    const auto [tick, server, bound] = Cost::OfEach(
        kTicks, [&] { cockpit.RunTick(); }, [&] { cockpit.channel.SendAgain(); },
        [&] {
            records.Code();
            benchmark::ClobberMemory();
            benchmark::DoNotOptimize(records.Decode());
        });
    state.counters["records"] = static_cast<double>(records.Count());
    state.counters["tick_ns"] = tick;
    state.counters["server_ns"] = server;
    state.counters["own_ns"] = tick - server;
    state.counters["bound_ns"] = bound;
    state.counters["ratio"] = (tick - server) / bound;
}

// A tick in which values of each panel have changed, so that all of them send a report.
void ChangingTick(benchmark::State& state) {
    BenchCockpit cockpit(static_cast<int>(state.range(0)));
    OffsetServer& server = cockpit.machine.server;
    uint32_t count = 0;
    const auto change = [&] {
        ++count;
        server.Set<int32_t>(0x07D4, static_cast<int32_t>(count % 1000) * 65536);   // altitude
        server.Set<uint16_t>(0x0300, static_cast<uint16_t>(count % 9000));         // DME
        server.Set<uint16_t>(0x0330, static_cast<uint16_t>(16000 + count % 500));  // altimeter
        server.Set<uint16_t>(0x034E, count % 2 ? 0x1810 : 0x1850);                 // COM1
        server.Set<uint16_t>(0x0D0C, static_cast<uint16_t>(count));                // lights
    };
    for (auto _ : state) {
        change();
        cockpit.RunTick();
    }
    const size_t reports = cockpit.hid.reports;
    const size_t allocations = Allocations();
    for (int i = 0; i < kTicks; ++i) {
        change();
        cockpit.RunTick();
    }
    ExpectFigure("allocations in ticks with changes",
                 static_cast<double>(Allocations() - allocations), 0);
    state.counters["reports"] = static_cast<double>(cockpit.hid.reports - reports) / kTicks;
    const auto [tick, share] = Cost::OfEach(
        kTicks, [&] { change(), cockpit.RunTick(); },
        [&] { change(), cockpit.channel.SendAgain(); });
    state.counters["own_ns"] = tick - share;
}

// One tick every 10 ms, as in flight: between two of them the caches and the processor do something
// else.
void ColdTick(benchmark::State& state, const char* mode) {
    BenchCockpit cockpit(static_cast<int>(state.range(0)), mode);
    BareRecords records = cockpit.RecordsOfATick();
    cockpit.channel.measures = true;
    std::vector<double> own;
    std::vector<double> bound;
    for (auto _ : state) {
        for (int i = 0; i < kColdTicks; ++i) {
            std::this_thread::sleep_for(kTickInterval);
            cockpit.channel.served = {};
            const auto begin = BenchClock::now();
            cockpit.RunTick();
            own.push_back(Nanoseconds(BenchClock::now() - begin - cockpit.channel.served));
        }
        for (int i = 0; i < kColdTicks; ++i) {
            std::this_thread::sleep_for(kTickInterval);
            const auto begin = BenchClock::now();
            records.Code();
            benchmark::DoNotOptimize(records.Decode());
            bound.push_back(Nanoseconds(BenchClock::now() - begin));
        }
    }
    const auto median = [](std::vector<double>& times) {
        std::ranges::nth_element(times, times.begin() + std::ssize(times) / 2);
        return times[times.size() / 2];
    };
    const double tick = median(own);
    const double least = median(bound);
    state.counters["own_ns"] = tick;
    state.counters["bound_ns"] = least;
    state.counters["ratio"] = tick / least;
}

void RegisterAll() {
    for (const char* mode : kModes) {
        auto* const tick =
            benchmark::RegisterBenchmark((std::string("Tick/") + mode).c_str(), Tick, mode);
        tick->MinTime(0.05);
        if (mode != kModes[0]) {
            tick->Arg(4);
        } else {
            tick->RangeMultiplier(2)->Range(1, 16);
        }
    }
    benchmark::RegisterBenchmark("ChangingTick/none", ChangingTick)->Arg(4)->MinTime(0.05);
    for (const int panels : {1, 4, 16}) {
        benchmark::RegisterBenchmark("ColdTick/none", ColdTick, kModes[0])
            ->Arg(panels)
            ->Iterations(1);
    }
}

}  // namespace

int main(int argc, char** argv) {
    RegisterAll();
    return RunFigures(argc, argv);
}
