#include "platform/ReportInbox.h"

namespace {

constexpr int kReportsPerTurn = 8;
constexpr size_t kMostWaiting = 65'536;

}  // namespace

void ReportInbox::Put(const Report& report) {
    const std::lock_guard lock(mutex_);
    if (closed_) return;
    if (waiting_.size() == kMostWaiting) waiting_.pop_back();
    waiting_.push_back(report);
    CallTurn();
}

void ReportInbox::Close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    waiting_.clear();
}

// Needs the lock.
void ReportInbox::CallTurn() {
    if (called_ || waiting_.empty()) return;
    called_ = true;
    loop_.Post([self = shared_from_this()] { self->TakeTurn(); });
}

void ReportInbox::TakeTurn() {
    {
        const std::lock_guard lock(mutex_);
        called_ = false;
    }
    const auto end = SteadyClock::now() + turn_;
    for (int i = 0; i < kReportsPerTurn && SteadyClock::now() < end && TakeNext(); ++i) {
    }
}

// False when none waits.
bool ReportInbox::TakeNext() {
    Report report{};
    {
        const std::lock_guard lock(mutex_);
        if (waiting_.empty()) return false;
        report = waiting_.front();
        waiting_.pop_front();
        // Before the call: it may let messages run.
        CallTurn();
    }
    take_(report);
    return true;
}
