// A batch of reads queued and its reply walked, beside coding and decoding the same records.
#include "bench/benchmarks/BenchCockpit.h"

namespace {

// Answers at once, and leaves the block as it was sent, which is a whole reply of zeros.
struct Prompt {
    VirtualPlatform machine;
    WatchedChannel channel{machine.ipc};
    modFSUIPC fsuipc{channel, machine.clock};

    Prompt() {
        machine.ipc.AddWindow("UIPCMAIN");
        int32_t result = 0;
        fsuipc.FSUIPC_Open(0, result);
        channel.prompt = true;
    }
};

void Reply(benchmark::State& state) {
    constexpr uint32_t kSizes[] = {4, 2, 1, 2, 4, 2, 8, 4};
    const auto count = static_cast<size_t>(state.range(0));
    Prompt client;
    BareRecords bare;
    std::vector<uint64_t> values(count);
    const auto exchange = [&] {
        int32_t result = 0;
        for (size_t i = 0; i < count; ++i) {
            client.fsuipc.FSUIPC_Read(static_cast<int32_t>(i * 8),
                                      static_cast<int32_t>(kSizes[i % 8]), &values[i], result);
        }
        benchmark::DoNotOptimize(client.fsuipc.FSUIPC_Process(result));
    };
    for (size_t i = 0; i < count; ++i) {
        bare.AddRead(static_cast<uint32_t>(i * 8), kSizes[i % 8]);
    }
    for (auto _ : state) exchange();
    const auto [own, bound] = Cost::OfEach(200, exchange, [&] {
        bare.Code();
        benchmark::ClobberMemory();
        benchmark::DoNotOptimize(bare.Decode());
    });
    state.counters["own_ns"] = own;
    state.counters["bound_ns"] = bound;
    state.counters["ratio"] = own / bound;
}
BENCHMARK(Reply)->Arg(10)->Arg(100)->Arg(1000)->MinTime(0.05);

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
