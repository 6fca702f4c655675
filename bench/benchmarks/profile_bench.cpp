// A change of profile with 16 panels, beside reading the profile's file once; and the list of a
// thousand aircraft, loaded, and saved with one more binding, beside reading and writing its text
// once.
#include "bench/benchmarks/BenchCockpit.h"

namespace {

constexpr int kPanelsOfAKind = 4;
constexpr int kAircraft = 1000;
constexpr char kList[] = "C:\\Orvo\\Orvo.ini";

void ChangeProfile(benchmark::State& state) {
    BenchCockpit cockpit(kPanelsOfAKind);
    cockpit.program->Profiles.AddProfile("Jet");
    cockpit.PutProfile("Jet", BenchProfile(kPanelsOfAKind, "ngx"));
    ComboBox& profiles = cockpit.Window().cmbProfiles;
    profiles.SetItems(cockpit.program->Profiles.ProfileNames());
    int32_t count = 0;
    const auto change = [&] { profiles.SetListIndex(++count % 2); };
    const IniFiles files(cockpit.machine.ini, cockpit.machine.files);
    for (auto _ : state) change();
    const auto [own, bound] =
        Cost::OfEach(4, change, [&] { benchmark::DoNotOptimize(files.Read("C:\\Orvo\\Jet.ini")); });
    state.counters["own_ns"] = own;
    state.counters["bound_ns"] = bound;
    state.counters["ratio"] = own / bound;
}
BENCHMARK(ChangeProfile)->MinTime(0.1)->Unit(benchmark::kMicrosecond);

struct LongList {
    VirtualPlatform machine;
    IniFiles files{machine.ini, machine.files};
    ProfileStore store{machine.ini, machine.files, machine.clock, "C:\\Orvo"};

    LongList() {
        std::string text = "[Profiles]\r\nJet= \r\n[Aircrafts]\r\n";
        for (int i = 0; i < kAircraft; ++i) {
            text += "Aircraft number " + std::to_string(i) + "=Default\r\n";
        }
        machine.files.Put(kList, text);
        Load();
    }
    void Load() {
        store.LoadProfileList();
        store.LoadAircraftList();
    }
};

void LoadAircraft(benchmark::State& state) {
    LongList list;
    for (auto _ : state) list.Load();
    const auto [own, bound] = Cost::OfEach(
        1, [&] { list.Load(); }, [&] { benchmark::DoNotOptimize(list.files.Read(kList)); });
    state.counters["own_ns"] = own;
    state.counters["bound_ns"] = bound;
    state.counters["ratio"] = own / bound;
}
BENCHMARK(LoadAircraft)->MinTime(0.1)->Unit(benchmark::kMicrosecond);

void SaveBinding(benchmark::State& state) {
    LongList list;
    int count = 0;
    const auto bind = [&] {
        list.store.RebindAircraft("Aircraft number 500", ++count % 2 ? "Jet" : "Default");
        ExpectFigure("saves of a binding", list.store.SaveAircraftList() ? 1 : 0, 1);
    };
    for (auto _ : state) bind();
    const auto [own, bound] = Cost::OfEach(1, bind, [&] {
        auto text = list.files.Read(kList);
        list.machine.files.Put("C:\\Orvo\\copy.ini", text->Text());
    });
    state.counters["own_ns"] = own;
    state.counters["bound_ns"] = bound;
    state.counters["ratio"] = own / bound;
}
BENCHMARK(SaveBinding)->MinTime(0.1)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
