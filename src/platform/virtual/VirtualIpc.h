#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/IpcChannel.h"
#include "platform/virtual/Faults.h"
#include "platform/virtual/OffsetServer.h"
#include "platform/virtual/VirtualClock.h"

enum class IpcCall : uint8_t {
    FindWindowExA,
    RegisterWindowMessageA,
    GlobalAddAtomA,
    GlobalDeleteAtom,
    CreateFileMappingA,
    MapViewOfFile,
    UnmapViewOfFile,
    CloseHandle,
    SendMessageTimeoutA,
};

// The FSUIPC channel in memory: windows that a test opens and shuts, behind all of them one offset
// server that reads the block which the message's atom names.
class VirtualIpc : public IpcChannel {
  public:
    struct Sent {
        uintptr_t window = 0;
        uint32_t message = 0;
        uintptr_t wParam = 0;
        intptr_t lParam = 0;
        uint32_t flags = 0;
        uint32_t timeoutMs = 0;
        uint64_t elapsed = 0;  // the clock's Elapsed at sending
    };

    static constexpr uint32_t kProcessId = 0x1A2B;

    VirtualIpc(VirtualClock& clock, OffsetServer& server);

    uintptr_t FindWindowExA(const std::string& className) override;
    uint32_t RegisterWindowMessageA(const std::string& name) override;
    uint32_t GetCurrentProcessId() override;
    uint16_t GlobalAddAtomA(const std::string& name) override;
    void GlobalDeleteAtom(uint16_t atom) override;
    uintptr_t CreateFileMappingA(const std::string& name, uint32_t size) override;
    uint8_t* MapViewOfFile(uintptr_t mapping) override;
    void UnmapViewOfFile(uint8_t* view) override;
    void CloseHandle(uintptr_t handle) override;
    uintptr_t SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                  intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                  uintptr_t& reply) override;
    bool UserWaits() override { return userWaits_; }
    uint32_t GetLastError() override { return lastError_; }

    uintptr_t AddWindow(const std::string& className);
    void RemoveWindow(uintptr_t window) { windows_.erase(window); }
    void RemoveWindows() { windows_.clear(); }

    // A refused call gives 0 and the error 5; one without a result does nothing.
    void Refuse(IpcCall call, int times = Faults<IpcCall>::kAlways) { faults_.Refuse(call, times); }
    // The next `times` messages get no answer: the clock moves by the time-out, nothing is served,
    // and the last error is `error` (0 for none).
    void TimeOut(int times, uint32_t error = 1460);
    // The next `times` messages are served, but answered with `reply`.
    void AnswerWith(uintptr_t reply, int times = Faults<IpcCall>::kAlways);
    void LetUserWait(bool waits) { userWaits_ = waits; }
    // Called with the whole block after it was served, to damage it. An empty one ends that.
    void AfterServing(std::function<void(std::span<uint8_t>)> hook) { hook_ = std::move(hook); }

    const std::vector<Sent>& SentMessages() const { return sent_; }
    void ForgetSentMessages() { sent_.clear(); }
    // Whether messages are kept, as they are from the start: a million of them are too many.
    void KeepLog(bool keep) { keepLog_ = keep; }
    // Calls so far, refused ones included.
    size_t CallCount(IpcCall call) const { return calls_[static_cast<size_t>(call)]; }

    // What a client that closes in order leaves at 0.
    size_t OpenAtoms() const { return atoms_.size(); }
    size_t OpenMappings() const { return mappings_.size(); }
    size_t OpenViews() const { return views_.size(); }

  private:
    using Memory = std::vector<uint8_t>;
    struct Atom {
        std::string name;
        int references;
    };
    struct Mapping {
        std::string name;
        std::shared_ptr<Memory> memory;
    };
    enum class Odd : uint8_t { TimeOut, Reply };

    // Counts the call and clears the last error; true when it is to be refused.
    bool Begin(IpcCall call);
    // 0, with the error.
    uintptr_t Fail(uint32_t error);
    std::shared_ptr<Memory> FindMemory(const std::string& name) const;
    bool ServeBlockOf(uint16_t atom);

    VirtualClock& clock_;
    OffsetServer& server_;
    std::map<uintptr_t, std::string> windows_;
    std::map<std::string, uint32_t> messages_;
    std::map<uint16_t, Atom> atoms_;
    std::map<uintptr_t, Mapping> mappings_;
    std::multimap<uint8_t*, std::shared_ptr<Memory>> views_;
    uintptr_t nextHandle_ = 0x100;
    uint16_t nextAtom_ = 0xC000;
    uint32_t nextMessage_ = 0xC000;
    uint32_t lastError_ = 0;
    bool userWaits_ = false;

    Faults<IpcCall> faults_;
    Faults<Odd> odd_;
    uint32_t timeOutError_ = 0;
    uintptr_t oddReply_ = 0;
    std::function<void(std::span<uint8_t>)> hook_;
    std::vector<Sent> sent_;
    bool keepLog_ = true;
    std::array<size_t, 9> calls_{};
};
