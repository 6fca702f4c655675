#include "bench/panels/PipeDevice.h"

#include <utility>

namespace bench {

namespace {

constexpr int kSeats = 8;
constexpr DWORD kBuffer = 65536;
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

void PipeDevice::Send(const VirtualPanel::Report& report) {
    const std::lock_guard hold(lock_);
    for (const auto& seat : seats_) {
        if (!seat->reading) continue;
        Work work;
        WriteFile(seat->pipe, report.data(), static_cast<DWORD>(report.size()), nullptr, &work);
        CancelIoEx(seat->pipe, &work);
        DWORD count = 0;
        GetOverlappedResult(seat->pipe, &work, &count, TRUE);
    }
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
                             PIPE_UNLIMITED_INSTANCES, kBuffer, kBuffer, 0, nullptr);
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

        // Under the lock, so that no report comes between a reader's request and its answer.
        const std::lock_guard hold(lock_);
        const std::vector<uint8_t> answer = Handle(seat, request);
        Work writing;
        const bool written = WriteFile(seat.pipe, answer.data(), static_cast<DWORD>(answer.size()),
                                       nullptr, &writing);
        if (!Finish(seat.pipe, writing, written, count)) return;
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
