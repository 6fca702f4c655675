#include "bench/panels/PipeDevice.h"

#include <algorithm>
#include <utility>

namespace bench {

namespace {

constexpr int kSeats = 8;
constexpr DWORD kInput = 512 * sizeof(VirtualPanel::Report);
constexpr DWORD kOutput = 4096;
constexpr std::chrono::milliseconds kLook{50};
constexpr size_t kLongestRequest = 256;

struct Work : OVERLAPPED {
    Work() : OVERLAPPED{} { hEvent = CreateEventA(nullptr, TRUE, FALSE, nullptr); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() { CloseHandle(hEvent); }
};

}  // namespace

PipeDevice::PipeDevice(std::shared_ptr<VirtualPanel> panel, std::string path)
    : panel_(std::move(panel)),
      path_(std::move(path)),
      stop_(CreateEventA(nullptr, TRUE, FALSE, nullptr)) {
    for (int i = 0; i < kSeats; ++i) {
        auto& seat = *seats_.emplace_back(std::make_unique<Seat>());
        seat.thread = std::thread([this, &seat] { Run(seat); });
    }
}

PipeDevice::~PipeDevice() {
    SetEvent(stop_);
    for (const auto& seat : seats_) seat->thread.join();
    CloseHandle(stop_);
}

int PipeDevice::Send(const VirtualPanel::Report& report) {
    const std::lock_guard hold(lock_);
    int refused = 0;
    for (const auto& seat : seats_) {
        if (!seat->reading) continue;
        Work work;
        DWORD count = 0;
        if (WriteFile(seat->pipe, report.data(), static_cast<DWORD>(report.size()), nullptr, &work))
            continue;
        if (GetLastError() == ERROR_IO_PENDING) CancelIoEx(seat->pipe, &work);
        refused += GetOverlappedResult(seat->pipe, &work, &count, TRUE) ? 0 : 1;
    }
    return refused;
}

int PipeDevice::Readers() {
    const std::lock_guard hold(lock_);
    int readers = 0;
    for (const auto& seat : seats_) readers += seat->reading ? 1 : 0;
    return readers;
}

void PipeDevice::Run(Seat& seat) {
    while (WaitForSingleObject(stop_, 0) == WAIT_TIMEOUT) {
        const HANDLE pipe =
            CreateNamedPipeA(path_.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED,
                             PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE | PIPE_WAIT,
                             PIPE_UNLIMITED_INSTANCES, kInput, kOutput, 0, nullptr);
        if (pipe == INVALID_HANDLE_VALUE) return;
        seat.pipe = pipe;
        Work connecting;
        DWORD count = 0;
        const bool connected =
            ConnectNamedPipe(pipe, &connecting) || GetLastError() == ERROR_PIPE_CONNECTED;
        if (connected || Finish(pipe, connecting, false, count)) Talk(seat);
        const std::lock_guard hold(lock_);
        seat.reading = false;
        CloseHandle(pipe);
    }
}

void PipeDevice::Talk(Seat& seat) {
    std::vector<uint8_t> request(kLongestRequest);
    for (;;) {
        DWORD count = 0;
        Work reading;
        request.resize(kLongestRequest);
        const bool read = ReadFile(seat.pipe, request.data(), kLongestRequest, nullptr, &reading);
        if (!Finish(seat.pipe, reading, read, count) || count == 0) return;
        request.resize(count);

        const bool isFeature = request[0] == 'F' || request[0] == 'G';
        if (isFeature && !AwaitAnswerTime(seat.pipe)) return;

        // Under the lock, so that no report comes between a reader's request and its answer.
        const std::lock_guard hold(lock_);
        const std::vector<uint8_t> answer = Handle(seat, request);
        Work writing;
        const bool written = WriteFile(seat.pipe, answer.data(), static_cast<DWORD>(answer.size()),
                                       nullptr, &writing);
        if (!Finish(seat.pipe, writing, written, count)) return;
    }
}

// False when the device is to go, or whoever asked is gone.
bool PipeDevice::AwaitAnswerTime(HANDLE pipe) const {
    using std::chrono::steady_clock;
    const auto began = steady_clock::now();
    for (;;) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(began + answerTime_.load() -
                                                                       steady_clock::now());
        if (rest.count() <= 0) return true;
        const auto wait = static_cast<DWORD>(std::min(rest, kLook).count());
        if (WaitForSingleObject(stop_, wait) == WAIT_OBJECT_0) return false;
        if (!PeekNamedPipe(pipe, nullptr, 0, nullptr, nullptr, nullptr)) return false;
    }
}

std::vector<uint8_t> PipeDevice::Handle(Seat& seat, const std::vector<uint8_t>& request) {
    std::vector<uint8_t> answer{'K'};
    switch (request[0]) {
        case 'S':
            seat.reading = true;
            break;
        case 'F':
            panel_->TakeFeature(std::span(request).subspan(1));
            break;
        case 'G': {
            const std::vector<uint8_t> positions = panel_->Positions();
            answer.insert(answer.end(), positions.begin(), positions.end());
            break;
        }
        default:
            answer[0] = 'N';
    }
    return answer;
}

// Waits for a piece of work that was begun, or is done already; false when it failed or the device
// is to go.
bool PipeDevice::Finish(HANDLE pipe, OVERLAPPED& work, bool begun, DWORD& count) const {
    if (!begun && GetLastError() != ERROR_IO_PENDING) return false;
    const HANDLE waits[] = {work.hEvent, stop_};
    if (WaitForMultipleObjects(2, waits, FALSE, INFINITE) != WAIT_OBJECT_0) {
        CancelIoEx(pipe, &work);
        GetOverlappedResult(pipe, &work, &count, TRUE);
        return false;
    }
    return GetOverlappedResult(pipe, &work, &count, FALSE) != 0;
}

}  // namespace bench
