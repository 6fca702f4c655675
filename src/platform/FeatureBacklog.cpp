#include "platform/FeatureBacklog.h"

#include <algorithm>

namespace {

// A panel that takes longer for a report, or has one waiting for longer, has fallen behind: two
// ticks have come meanwhile.
constexpr std::chrono::milliseconds kBehind{20};
// More than any show writes at once.
constexpr size_t kMostWaiting = 64;

}  // namespace

bool FeatureBacklog::Add(std::span<const uint8_t> report, SteadyClock::time_point now) {
    if (report.empty() || report.size() > FeatureBytes::kLongest) return false;
    Waiting& added = waiting_.emplace_back();
    std::ranges::copy(report, added.report.bytes.begin());
    added.report.size = report.size();
    added.since = now;
    if (now - waiting_.front().since > kBehind || waiting_.size() > kMostWaiting) KeepLatest();
    return true;
}

FeatureBytes FeatureBacklog::Take(SteadyClock::duration lastTook) {
    if (lastTook > kBehind) KeepLatest();
    const FeatureBytes first = waiting_.front().report;
    waiting_.erase(waiting_.begin());
    return first;
}

void FeatureBacklog::KeepLatest() {
    for (size_t i = waiting_.size(); i-- > 0;) {
        const uint8_t id = waiting_[i].report.bytes[0];
        const auto end = waiting_.begin() + static_cast<std::ptrdiff_t>(i);
        const auto older = std::remove_if(waiting_.begin(), end, [id](const Waiting& each) {
            return each.report.bytes[0] == id;
        });
        i -= static_cast<size_t>(end - older);
        waiting_.erase(older, end);
    }
}
