// From a raw report through device object and logic to the write that is queued or sent, beside
// coding and decoding that write; and what is allocated on the way, ticks included.
#include "bench/benchmarks/Allocations.h"
#include "bench/benchmarks/BenchCockpit.h"

namespace {

constexpr int kReports = 2000;

// One step of a control: the reports that make it, over and over, and what it writes.
struct Step {
    std::vector<VirtualDevice*> BenchCockpit::*panels;
    std::vector<int32_t> states;
    uint32_t writtenSize;
};
const Step kMultiKnob = {&BenchCockpit::multis, {0x280000, 0x080000, 0x280000, 0x080000}, 2};
const Step kMultiWheel = {&BenchCockpit::multis, {0x080008, 0x080000, 0x080008, 0x080000}, 2};
const Step kRadioKnob = {&BenchCockpit::radios, {0x010201, 0x010200, 0x010201, 0x010200}, 2};
const Step kSwitch = {&BenchCockpit::switches, {0x010000, 0x000000}, 1};

void Take(BenchCockpit& cockpit, const Step& step) {
    for (const int32_t state : step.states) cockpit.Report(*(cockpit.*step.panels)[0], state);
}

// A report every 10 ms, each with a tick behind it.
void Allocated(benchmark::State& state, const Step& step) {
    BenchCockpit cockpit(1);
    const auto fly = [&](int reports) {
        for (int i = 0; i < reports; ++i) {
            const auto which = static_cast<size_t>(i) % step.states.size();
            cockpit.Report(*(cockpit.*step.panels)[0], step.states[which]);
            cockpit.machine.loop.Advance(10);
        }
    };
    fly(100);
    const size_t before = Allocations();
    for (auto _ : state) fly(kReports);
    const auto allocations = static_cast<double>(Allocations() - before);
    ExpectFigure("allocations in events of a control", allocations, 0);
    state.counters["allocations"] = allocations;
}
BENCHMARK_CAPTURE(Allocated, MultiKnob, kMultiKnob)->Iterations(1);
BENCHMARK_CAPTURE(Allocated, MultiWheel, kMultiWheel)->Iterations(1);
BENCHMARK_CAPTURE(Allocated, RadioKnob, kRadioKnob)->Iterations(1);
BENCHMARK_CAPTURE(Allocated, Switch, kSwitch)->Iterations(1);

void Input(benchmark::State& state, const Step& step) {
    BenchCockpit cockpit(1);
    cockpit.channel.prompt = true;
    modFSUIPC& fsuipc = cockpit.program->Session.Fsuipc;
    // What is queued goes out now and then, as the batch has room for so many.
    uint32_t taken = 0;
    const auto take = [&] {
        Take(cockpit, step);
        int32_t result = 0;
        if (++taken % 64 == 0) static_cast<void>(fsuipc.FSUIPC_Process(result));
    };
    BareRecords bare;
    bare.AddWrite(0x0100, step.writtenSize);
    for (auto _ : state) take();
    const auto [own, bound] = Cost::OfEach(kReports, take, [&] {
        bare.Code();
        benchmark::ClobberMemory();
        benchmark::DoNotOptimize(bare.Decode());
    });
    const auto reports = static_cast<double>(step.states.size());
    state.counters["step_ns"] = own;
    state.counters["report_ns"] = own / reports;
    state.counters["bound_ns"] = bound;
    state.counters["ratio"] = own / bound;
}
BENCHMARK_CAPTURE(Input, MultiKnob, kMultiKnob)->MinTime(0.05);
BENCHMARK_CAPTURE(Input, MultiWheel, kMultiWheel)->MinTime(0.05);
BENCHMARK_CAPTURE(Input, RadioKnob, kRadioKnob)->MinTime(0.05);
BENCHMARK_CAPTURE(Input, Switch, kSwitch)->MinTime(0.05);

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
