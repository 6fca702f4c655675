#include "platform/win32/Win32PanelWriter.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

#include "platform/FeatureBacklog.h"
#include "platform/win32/Win32HidLibrary.h"

using SteadyClock = FeatureBacklog::SteadyClock;

namespace {

// So long a panel may be waited for, and a request that hangs in all.
constexpr std::chrono::milliseconds kPatience{1500};
constexpr std::chrono::milliseconds kCancelPatience{200};

Win32Handle MakeEvent() { return Win32Handle(CreateEventW(nullptr, FALSE, FALSE, nullptr)); }

}  // namespace

// What the program's thread and the panel's share.
struct Win32PanelWriter::Traffic {
    Traffic(Win32Handle opened, std::shared_ptr<const Win32HidLibrary> functions)
        : device(std::move(opened)), library(std::move(functions)) {}

    enum class Reading { None, Wanted, Read, Failed };

    void Run();
    void DoNext(std::unique_lock<std::mutex>& lock);
    bool Call(bool reads, FeatureBytes& report) const;
    template <class Condition>
    bool Await(std::unique_lock<std::mutex>& lock, Condition holds,
               std::chrono::milliseconds patience = kPatience);

    bool Idle() const { return !busySince && backlog.Empty() && reading != Reading::Wanted; }

    const Win32Handle device;
    const std::shared_ptr<const Win32HidLibrary> library;
    const Win32Handle work = MakeEvent();
    const Win32Handle progress = MakeEvent();

    std::mutex mutex;
    FeatureBacklog backlog;
    FeatureBytes read;
    Reading reading = Reading::None;
    std::optional<SteadyClock::time_point> busySince;
    SteadyClock::duration lastTook{};
    bool ending = false;
    bool ended = false;
    Win32Handle self;  // the thread
};

void Win32PanelWriter::Traffic::Run() {
    std::unique_lock lock(mutex);
    self = Win32Handle(OpenThread(THREAD_TERMINATE, FALSE, GetCurrentThreadId()));
    while (!ending || !Idle()) {
        if (Idle()) {
            lock.unlock();
            WaitForSingleObject(work.Get(), INFINITE);
            lock.lock();
        } else {
            DoNext(lock);
        }
    }
    ended = true;
    SetEvent(progress.Get());
}

void Win32PanelWriter::Traffic::DoNext(std::unique_lock<std::mutex>& lock) {
    const bool reads = backlog.Empty();
    FeatureBytes report = reads ? read : backlog.Take(lastTook);
    busySince = SteadyClock::now();
    lock.unlock();
    const bool done = Call(reads, report);
    lock.lock();
    lastTook = SteadyClock::now() - *busySince;
    busySince.reset();
    if (reads && reading == Reading::Wanted) {
        read = report;
        reading = done ? Reading::Read : Reading::Failed;
    }
    SetEvent(progress.Get());
}

bool Win32PanelWriter::Traffic::Call(bool reads, FeatureBytes& report) const {
    const auto function = reads ? library->getFeature : library->setFeature;
    return function &&
           function(device.Get(), report.bytes.data(), static_cast<ULONG>(report.size)) != 0;
}

// False when the time is up. A request that hangs has its patience once, however often it is
// waited for.
template <class Condition>
bool Win32PanelWriter::Traffic::Await(std::unique_lock<std::mutex>& lock, Condition holds,
                                      std::chrono::milliseconds patience) {
    const auto begin = SteadyClock::now();
    while (!holds()) {
        const auto end = std::min(begin, busySince.value_or(begin)) + patience;
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - SteadyClock::now());
        if (rest.count() <= 0) return false;
        lock.unlock();
        WaitForSingleObject(progress.Get(), static_cast<DWORD>(rest.count()));
        lock.lock();
    }
    return true;
}

Win32PanelWriter::Win32PanelWriter(Win32Handle device,
                                   std::shared_ptr<const Win32HidLibrary> library)
    : traffic_(std::make_shared<Traffic>(std::move(device), std::move(library))),
      thread_([traffic = traffic_] { traffic->Run(); }) {}

Win32PanelWriter::~Win32PanelWriter() {
    Traffic& traffic = *traffic_;
    std::unique_lock lock(traffic.mutex);
    traffic.Await(lock, [&] { return traffic.Idle(); });
    traffic.ending = true;
    traffic.backlog.Clear();
    SetEvent(traffic.work.Get());
    if (traffic.busySince) {
        CancelSynchronousIo(traffic.self.Get());
        traffic.busySince = SteadyClock::now();  // of the cancelling
    }
    if (traffic.Await(
            lock, [&] { return traffic.ended; }, kCancelPatience)) {
        lock.unlock();
        thread_.join();
    } else {
        thread_.detach();
    }
}

uintptr_t Win32PanelWriter::Number() const { return ToNumber(traffic_->device.Get()); }

bool Win32PanelWriter::SetFeature(std::span<const uint8_t> report) {
    Traffic& traffic = *traffic_;
    const std::lock_guard lock(traffic.mutex);
    const bool wasIdle = traffic.Idle();
    if (!traffic.backlog.Add(report, SteadyClock::now())) return false;
    if (wasIdle) SetEvent(traffic.work.Get());
    return true;
}

bool Win32PanelWriter::GetFeature(std::span<uint8_t> report) {
    Traffic& traffic = *traffic_;
    if (report.empty() || report.size() > FeatureBytes::kLongest) return false;
    std::unique_lock lock(traffic.mutex);
    if (!traffic.Await(lock, [&] { return traffic.Idle(); })) return false;
    std::ranges::copy(report, traffic.read.bytes.begin());
    traffic.read.size = report.size();
    traffic.reading = Traffic::Reading::Wanted;
    SetEvent(traffic.work.Get());
    traffic.Await(lock, [&] { return traffic.Idle(); });
    const bool read =
        std::exchange(traffic.reading, Traffic::Reading::None) == Traffic::Reading::Read;
    if (read) std::ranges::copy(traffic.read.Span(), report.begin());
    return read;
}
