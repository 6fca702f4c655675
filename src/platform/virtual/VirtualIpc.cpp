#include "platform/virtual/VirtualIpc.h"

#include <algorithm>

#include "base/Text.h"

namespace {

constexpr uint32_t kAccessDenied = 5;
constexpr uint32_t kInvalidHandle = 6;
constexpr uint32_t kInvalidParameter = 87;
constexpr uint32_t kAlreadyExists = 183;
constexpr uint32_t kInvalidWindow = 1400;
constexpr size_t kLongestAtom = 255;
constexpr char kServedMessage[] = "fsasmlib:ipc";

}  // namespace

VirtualIpc::VirtualIpc(VirtualClock& clock, OffsetServer& server)
    : clock_(clock), server_(server) {}

uintptr_t VirtualIpc::FindWindowExA(const std::string& className) {
    if (Begin(IpcCall::FindWindowExA)) return Fail(kAccessDenied);
    for (const auto& [window, name] : windows_) {
        if (EqualNoCase(name, className)) return window;
    }
    return 0;
}

uint32_t VirtualIpc::RegisterWindowMessageA(const std::string& name) {
    if (Begin(IpcCall::RegisterWindowMessageA)) return static_cast<uint32_t>(Fail(kAccessDenied));
    const auto [entry, isNew] = messages_.try_emplace(ToLower(name), nextMessage_);
    if (isNew) ++nextMessage_;
    return entry->second;
}

uint32_t VirtualIpc::GetCurrentProcessId() {
    lastError_ = 0;
    return kProcessId;
}

uint16_t VirtualIpc::GlobalAddAtomA(const std::string& name) {
    if (Begin(IpcCall::GlobalAddAtomA)) return static_cast<uint16_t>(Fail(kAccessDenied));
    if (name.empty() || name.size() > kLongestAtom) {
        return static_cast<uint16_t>(Fail(kInvalidParameter));
    }
    for (auto& [atom, entry] : atoms_) {
        if (!EqualNoCase(entry.name, name)) continue;
        ++entry.references;
        return atom;
    }
    const uint16_t atom = nextAtom_++;
    atoms_[atom] = {name, 1};
    return atom;
}

void VirtualIpc::GlobalDeleteAtom(uint16_t atom) {
    if (Begin(IpcCall::GlobalDeleteAtom)) {
        Fail(kAccessDenied);
        return;
    }
    const auto found = atoms_.find(atom);
    if (found == atoms_.end()) {
        Fail(kInvalidHandle);
    } else if (--found->second.references == 0) {
        atoms_.erase(found);
    }
}

uintptr_t VirtualIpc::CreateFileMappingA(const std::string& name, uint32_t size) {
    if (Begin(IpcCall::CreateFileMappingA)) return Fail(kAccessDenied);
    if (size == 0) return Fail(kInvalidParameter);
    auto memory = FindMemory(name);
    if (memory) {
        lastError_ = kAlreadyExists;
    } else {
        memory = std::make_shared<Memory>(size);
    }
    const uintptr_t handle = nextHandle_++;
    mappings_[handle] = {name, std::move(memory)};
    return handle;
}

uint8_t* VirtualIpc::MapViewOfFile(uintptr_t mapping) {
    const bool refused = Begin(IpcCall::MapViewOfFile);
    const auto found = mappings_.find(mapping);
    if (refused || found == mappings_.end()) {
        Fail(refused ? kAccessDenied : kInvalidHandle);
        return nullptr;
    }
    uint8_t* view = found->second.memory->data();
    views_.emplace(view, found->second.memory);
    return view;
}

void VirtualIpc::UnmapViewOfFile(uint8_t* view) {
    const bool refused = Begin(IpcCall::UnmapViewOfFile);
    const auto found = views_.find(view);
    if (refused || found == views_.end()) {
        Fail(refused ? kAccessDenied : kInvalidParameter);
        return;
    }
    views_.erase(found);
}

void VirtualIpc::CloseHandle(uintptr_t handle) {
    if (Begin(IpcCall::CloseHandle)) {
        Fail(kAccessDenied);
    } else if (mappings_.erase(handle) == 0) {
        Fail(kInvalidHandle);
    }
}

uintptr_t VirtualIpc::SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                          intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                          uintptr_t& reply) {
    if (keepLog_) {
        sent_.push_back({window, message, wParam, lParam, flags, timeoutMs, clock_.Elapsed()});
    }
    if (Begin(IpcCall::SendMessageTimeoutA)) return Fail(kAccessDenied);
    if (!windows_.contains(window)) return Fail(kInvalidWindow);
    if (odd_.Take(Odd::TimeOut)) {
        clock_.Sleep(timeoutMs);
        return Fail(timeOutError_);
    }
    const auto served = messages_.find(kServedMessage);
    const bool known = served != messages_.end() && served->second == message;
    reply = known && ServeBlockOf(static_cast<uint16_t>(wParam)) ? 1 : 0;
    if (odd_.Take(Odd::Reply)) reply = oddReply_;
    return 1;
}

uintptr_t VirtualIpc::AddWindow(const std::string& className) {
    const uintptr_t window = nextHandle_++;
    windows_[window] = className;
    return window;
}

void VirtualIpc::TimeOut(int times, uint32_t error) {
    odd_.Refuse(Odd::TimeOut, times);
    timeOutError_ = error;
}

void VirtualIpc::AnswerWith(uintptr_t reply, int times) {
    odd_.Refuse(Odd::Reply, times);
    oddReply_ = reply;
}

bool VirtualIpc::Begin(IpcCall call) {
    ++calls_[static_cast<size_t>(call)];
    lastError_ = 0;
    return faults_.Take(call);
}

uintptr_t VirtualIpc::Fail(uint32_t error) {
    lastError_ = error;
    return 0;
}

// A mapping without a handle has lost its name, even while a view keeps its memory.
std::shared_ptr<VirtualIpc::Memory> VirtualIpc::FindMemory(const std::string& name) const {
    for (const auto& [handle, mapping] : mappings_) {
        if (mapping.name == name) return mapping.memory;
    }
    return nullptr;
}

bool VirtualIpc::ServeBlockOf(uint16_t atom) {
    const auto named = atoms_.find(atom);
    if (named == atoms_.end()) return false;
    const auto memory = FindMemory(named->second.name);
    if (!memory) return false;
    const bool served = server_.Serve(*memory);
    if (hook_) hook_(*memory);
    return served;
}
