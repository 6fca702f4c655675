#include "bench/panels/VirtualPanel.h"

#include <utility>

#include "bench/panels/PanelWords.h"

namespace bench {

namespace {

constexpr size_t kLogLimit = 10000;

VirtualPanel::Report ReportOf(uint32_t state) {
    return {0, static_cast<uint8_t>(state >> 16), static_cast<uint8_t>(state >> 8),
            static_cast<uint8_t>(state)};
}

}  // namespace

VirtualPanel::VirtualPanel(const PanelKind& kind, int number)
    : kind_(kind), number_(number), state_(kind.startState) {}

std::string VirtualPanel::Name() const { return std::string(kind_.name) + std::to_string(number_); }

VirtualPanel::Report VirtualPanel::Change(uint32_t bits, uint32_t mask) {
    const std::lock_guard hold(lock_);
    state_ = (state_ & ~mask) | bits;
    return ReportOf(state_);
}

std::vector<uint8_t> VirtualPanel::Positions() const {
    const std::lock_guard hold(lock_);
    const Report report = ReportOf(state_);
    std::vector<uint8_t> positions(report.begin(), report.end());
    positions.resize(kind_.featureSize);
    return positions;
}

void VirtualPanel::TakeFeature(std::span<const uint8_t> report) {
    const std::lock_guard hold(lock_);
    if (features_.size() == kLogLimit) features_.pop_front();
    features_.push_back({std::chrono::steady_clock::now(), {report.begin(), report.end()}});
    if (!report.empty() && report[0] == kind_.shownReport) shown_ = features_.back().report;
}

std::vector<VirtualPanel::Feature> VirtualPanel::TakeFeatures() {
    const std::lock_guard hold(lock_);
    const std::deque<Feature> features = std::exchange(features_, {});
    return {features.begin(), features.end()};
}

std::string VirtualPanel::Show() const {
    const std::lock_guard hold(lock_);
    return shown_.empty() ? "untouched" : DescribeFeature(kind_.name, shown_);
}

}  // namespace bench
