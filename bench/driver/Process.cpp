#include "bench/driver/Process.h"

#include <chrono>

namespace bench {

namespace {

// One end of each pipe goes to the child, the other must not.
bool MakePipe(HANDLE& read, HANDLE& write, bool childReads) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    if (!CreatePipe(&read, &write, &inherited, 0)) return false;
    return SetHandleInformation(childReads ? write : read, HANDLE_FLAG_INHERIT, 0) != 0;
}

}  // namespace

Process::Process(const std::string& commandLine, const std::string& folder) {
    HANDLE childInput = nullptr;
    HANDLE output = nullptr;
    HANDLE childOutput = nullptr;
    if (!MakePipe(childInput, input_, true) || !MakePipe(output, childOutput, false)) return;

    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = childInput;
    startup.hStdOutput = childOutput;
    startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION information{};
    std::string line = commandLine;
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(),
                       &startup, &information)) {
        CloseHandle(information.hThread);
        process_ = information.hProcess;
        id_ = information.dwProcessId;
    }
    CloseHandle(childInput);
    CloseHandle(childOutput);
    reader_ = std::thread([this, output] { ReadLines(output); });
}

Process::~Process() {
    Kill();
    if (reader_.joinable()) reader_.join();
    if (input_) CloseHandle(input_);
    if (process_) CloseHandle(process_);
}

bool Process::IsRunning() const { return process_ && !WaitForEnd(0); }

std::optional<DWORD> Process::WaitForEnd(uint32_t milliseconds) const {
    DWORD code = 0;
    if (!process_ || WaitForSingleObject(process_, milliseconds) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process_, &code)) {
        return std::nullopt;
    }
    return code;
}

void Process::Kill() const {
    if (!IsRunning()) return;
    TerminateProcess(process_, 1);
    WaitForSingleObject(process_, 5000);
}

std::string Process::Ask(const std::string& line, uint32_t milliseconds) {
    const std::string text = line + "\n";
    DWORD written = 0;
    if (!WriteFile(input_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr)) {
        return "error: the program is gone";
    }
    std::unique_lock hold(lock_);
    changed_.wait_for(hold, std::chrono::milliseconds(milliseconds),
                      [this] { return !lines_.empty() || outputEnded_; });
    if (lines_.empty()) return "error: no answer to '" + line + "'";
    std::string answer = lines_.front();
    lines_.pop_front();
    return answer;
}

void Process::ReadLines(HANDLE output) {
    std::string line;
    char buffer[4096];
    DWORD count = 0;
    while (ReadFile(output, buffer, sizeof buffer, &count, nullptr) && count > 0) {
        for (DWORD i = 0; i < count; ++i) {
            if (buffer[i] == '\r') continue;
            if (buffer[i] != '\n') {
                line += buffer[i];
                continue;
            }
            const std::lock_guard hold(lock_);
            lines_.push_back(line);
            line.clear();
            changed_.notify_all();
        }
    }
    CloseHandle(output);
    const std::lock_guard hold(lock_);
    outputEnded_ = true;
    changed_.notify_all();
}

}  // namespace bench
