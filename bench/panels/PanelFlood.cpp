#include "bench/panels/PanelFlood.h"

#include <chrono>
#include <utility>

namespace bench {

PanelFlood::PanelFlood(PanelBus& bus, std::shared_ptr<VirtualPanel> panel, const Settings& settings)
    : bus_(bus), panel_(std::move(panel)), thread_([this, settings] { Run(settings); }) {}

PanelFlood::~PanelFlood() {
    stop_ = true;
    thread_.join();
}

void PanelFlood::Run(const Settings& settings) {
    using std::chrono::steady_clock;
    const uint64_t all = uint64_t{settings.perSecond} * settings.seconds;
    const auto began = steady_clock::now();
    for (uint64_t i = 0; i < all && !stop_; ++i) {
        // Goes by the beginning: one that wakes late sends all that is due by then.
        std::this_thread::sleep_until(
            began + std::chrono::microseconds(i * 1'000'000 / settings.perSecond));
        refused_ += static_cast<uint64_t>(bus_.Send(*panel_, Next(settings.control)));
        ++sent_;
    }
    bus_.Send(*panel_, panel_->Change(0, settings.control ? settings.control->mask : 0));
    running_ = false;
}

VirtualPanel::Report PanelFlood::Next(const PanelControl* control) {
    if (control) return panel_->Change(sent_ % 2 == 0 ? control->bits : 0, control->mask);
    VirtualPanel::Report report{};
    for (uint8_t& byte : report) {
        random_ = random_ * 1'664'525 + 1'013'904'223;
        byte = static_cast<uint8_t>(random_ >> 24);
    }
    return report;
}

}  // namespace bench
