#include "bench/benchmarks/BenchCockpit.h"

#include <iterator>

namespace {

// Where the selectors of a Radio Panel stand, as bytes of its state word: COM1 and NAV1, ADF and
// DME, XPDR and COM2, NAV2 and ADF.
constexpr uint8_t kRadioPositions[][2] = {{0x01, 0x02}, {0x10, 0x10}, {0x40, 0x01}, {0x08, 0x08}};
// That of a Multi Panel: ALT, VS, IAS, HDG, CRS.
constexpr uint8_t kMultiPositions[] = {0x08, 0x01, 0x04, 0x10, 0x02};

}  // namespace

uintptr_t WatchedChannel::SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                              intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                              uintptr_t& reply) {
    ++exchanges;
    reply = 1;
    if (prompt) return 1;
    window_ = window;
    message_ = message;
    atom_ = wParam;
    const Uncounted uncounted;
    const auto begin = measures ? BenchClock::now() : BenchClock::time_point{};
    const uintptr_t answered =
        channel_.SendMessageTimeoutA(window, message, wParam, lParam, flags, timeoutMs, reply);
    if (measures) served += BenchClock::now() - begin;
    return answered;
}

void WatchedChannel::SendAgain() {
    uintptr_t reply = 0;
    channel_.SendMessageTimeoutA(window_, message_, atom_, 0, 1, 2000, reply);
    benchmark::DoNotOptimize(reply);
}

std::unique_ptr<PanelLink> DirectDeckhub::CreateLink() {
    auto link = std::make_unique<Link>();
    links_.push_back(link.get());
    return link;
}

PanelLink& DirectDeckhub::LinkTo(const VirtualDevice& device) {
    return **std::ranges::find_if(
        links_, [&](const Link* link) { return link->DeviceAddress == device.path; });
}

BenchCockpit::BenchCockpit(int panels, const std::string& mode) {
    machine.ipc.KeepLog(false);
    PutProfile("Default", BenchProfile(panels, mode));
    for (int number = 1; number <= panels; ++number) {
        const auto& [high, low] =
            kRadioPositions[static_cast<size_t>(number - 1) % std::size(kRadioPositions)];
        radios.push_back(&Plug(PanelKind::Radio, number));
        radios.back()->positions = {0, high, low, 0};
        multis.push_back(&Plug(PanelKind::Multi, number));
        multis.back()->positions = {
            0, kMultiPositions[static_cast<size_t>(number - 1) % std::size(kMultiPositions)], 0, 0};
        switches.push_back(&Plug(PanelKind::Switch, number));
        Plug(PanelKind::BIP, number);
    }
    PutOptions("Splash=0\r\n");
    Platform ports = machine.Ports();
    program = std::make_unique<modMain>(
        Platform{ports.clock, loop, channel, hid, deckhub, ports.ini, ports.registry, ports.process,
                 ports.screen, ports.tray, ports.files, ports.keyboard},
        ui);
    program->Main();
    Connect();
    machine.loop.Advance(1000);
}

BareRecords BenchCockpit::RecordsOfATick() {
    BareRecords records;
    const ScopedConnection reading = machine.server.Reading.Connect(
        [&](uint32_t offset, uint32_t count) { records.AddRead(offset, count); });
    RunTick();
    return records;
}

void BenchCockpit::Report(const VirtualDevice& device, int32_t state) {
    PanelLink& link = deckhub.LinkTo(device);
    link.ReportClock = machine.clock.GetTickCount();
    link.RawInput.Raise(0, static_cast<uint8_t>(state >> 16), static_cast<uint8_t>(state >> 8),
                        static_cast<uint8_t>(state));
}

std::string BenchProfile(int panels, const std::string& mode) {
    std::string text = "[Common]\r\nSpecialMode=" + mode + "\r\n";
    size_t function = 0;
    for (int panel = 1; panel <= panels; ++panel) {
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
