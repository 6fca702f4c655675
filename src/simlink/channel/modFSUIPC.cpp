#include "simlink/channel/modFSUIPC.h"

#include <cstring>

#include "base/Bytes.h"

namespace {

constexpr uint32_t kBlockSize = 32768;
constexpr int64_t kLargestBatch = 32512;  // records and the word that ends them
constexpr uint32_t kReadHeader = 16;
constexpr uint32_t kWriteHeader = 12;
constexpr uint32_t kEndWord = 4;
constexpr uint16_t kReadRecord = 1;
constexpr uint16_t kWriteRecord = 2;

constexpr uint32_t kMessageFlags = 1;  // blocks the thread: no message is handled meanwhile
constexpr uint32_t kMessageTimeoutMs = 2000;
constexpr int kRepeats = 10;
constexpr uint32_t kRepeatPauseMs = 60;

constexpr int kVersionPasses = 5;
constexpr uint32_t kVersionPauseMs = 60;
constexpr int32_t kLowestVersion = 0x19980005;
constexpr uint32_t kCheckPattern = 0xFADE;
constexpr uint32_t kErrorAlreadyExists = 183;

const std::string kChannelName = "FSASMLIB:IPC";

std::string UpperHex(uint32_t value) {
    std::string out;
    do {
        out.insert(out.begin(), "0123456789ABCDEF"[value % 16]);
        value /= 16;
    } while (value != 0);
    return out;
}

}  // namespace

modFSUIPC::modFSUIPC(IpcChannel& channel, Clock& clock) : channel_(channel), clock_(clock) {
    records_.reserve(kLargestBatch / kWriteHeader);
}

void modFSUIPC::FSUIPC_Initialize() {
    window_ = 0;
    message_ = 0;
    atom_ = 0;
    mapping_ = 0;
    view_ = nullptr;
    next_ = 0;
    records_.clear();
}

bool modFSUIPC::FSUIPC_Open(uint32_t requestedSimulator, int32_t& result) {
    if (view_) {
        result = kFsuipcAlreadyOpen;
        return false;
    }
    FSUIPC_Version = 0;
    FSUIPC_FS_Version = 0;
    bool secondClass = false;
    opening_ = true;
    const bool answered = OpenChannel(result, secondClass) && ReadVersions(result);
    opening_ = false;
    if (!answered) {
        FSUIPC_Close();
        return false;
    }
    if (FSUIPC_Version < kLowestVersion || FSUIPC_FS_Version >> 16 != kCheckPattern) {
        result = secondClass ? kFsuipcWrongVersionFs98 : kFsuipcWrongVersionUipc;
        FSUIPC_Close();
        return false;
    }
    FSUIPC_FS_Version &= 0xFFFF;
    if (requestedSimulator != 0 && requestedSimulator != FSUIPC_FS_Version) {
        result = kFsuipcWrongSimulator;
        FSUIPC_Close();
        return false;
    }
    result = kFsuipcOk;
    return true;
}

bool modFSUIPC::OpenChannel(int32_t& result, bool& secondClass) {
    const auto failed = [&result](FsuipcResult code) {
        result = code;
        return false;
    };
    window_ = channel_.FindWindowExA("UIPCMAIN");
    if (!window_) {
        secondClass = true;
        window_ = channel_.FindWindowExA("FS98MAIN");
    }
    if (!window_) return failed(kFsuipcNoServer);

    message_ = channel_.RegisterWindowMessageA(kChannelName);
    if (!message_) return failed(kFsuipcNoMessage);

    const std::string name = kChannelName + ":" + UpperHex(channel_.GetCurrentProcessId()) + ":1";
    atom_ = static_cast<int16_t>(channel_.GlobalAddAtomA(name));
    if (!atom_) return failed(kFsuipcNoAtom);

    mapping_ = channel_.CreateFileMappingA(name, kBlockSize);
    if (channel_.GetLastError() == kErrorAlreadyExists) return failed(kFsuipcMappingExists);

    view_ = channel_.MapViewOfFile(mapping_);
    return view_ || failed(kFsuipcNoView);
}

bool modFSUIPC::ReadVersions(int32_t& result) {
    for (int pass = 0; pass < kVersionPasses; ++pass) {
        if (FSUIPC_Version != 0 && FSUIPC_FS_Version != 0) break;
        if (!FSUIPC_Read(0x3304, 4, &FSUIPC_Version, result)) return false;
        if (!FSUIPC_Read(0x3308, 4, &FSUIPC_FS_Version, result)) return false;
        if (!FSUIPC_Write(0x330A, 2, &FSUIPC_Lib_Version, result) && pass == 0) return false;
        if (!FSUIPC_Process(result)) return false;
        clock_.Sleep(kVersionPauseMs);
    }
    return true;
}

void modFSUIPC::FSUIPC_Close() {
    window_ = 0;
    message_ = 0;
    next_ = 0;
    records_.clear();
    if (atom_) channel_.GlobalDeleteAtom(static_cast<uint16_t>(atom_));
    atom_ = 0;
    if (view_) channel_.UnmapViewOfFile(view_);
    view_ = nullptr;
    if (mapping_) channel_.CloseHandle(mapping_);
    mapping_ = 0;
}

bool modFSUIPC::Queue(uint16_t identifier, uint32_t headerSize, int32_t offset, int32_t count,
                      int32_t& result) {
    if (!view_) {
        result = kFsuipcNotOpen;
        return false;
    }
    if (count < 0 || int64_t{count} + next_ + headerSize + kEndWord > kLargestBatch) {
        result = kFsuipcBatchFull;
        return false;
    }
    uint8_t* record = view_ + next_;
    StoreLE32(record, identifier);
    StoreLE32(record + 4, static_cast<uint32_t>(offset));
    StoreLE32(record + 8, static_cast<uint32_t>(count));
    next_ += headerSize + static_cast<uint32_t>(count);
    records_.push_back({identifier, static_cast<uint32_t>(count), nullptr, nullptr, 0});
    result = kFsuipcOk;
    return true;
}

bool modFSUIPC::FSUIPC_Read(int32_t offset, int32_t count, void* destination, int32_t& result,
                            PlaceSet* changes, size_t place) {
    uint8_t* const record = view_ + next_;
    if (!Queue(kReadRecord, kReadHeader, offset, count, result)) return false;
    records_.back().destination = destination;
    records_.back().changes = changes;
    records_.back().place = place;
    StoreLE32(record + 12, destination ? static_cast<uint32_t>(records_.size()) : 0);
    WithSize(static_cast<size_t>(count),
             [&](auto size) { std::memset(record + kReadHeader, 0, size); });
    return true;
}

bool modFSUIPC::FSUIPC_Write(int32_t offset, int32_t count, const void* source, int32_t& result) {
    uint8_t* const record = view_ + next_;
    if (!Queue(kWriteRecord, kWriteHeader, offset, count, result)) return false;
    if (count > 0) std::memcpy(record + kWriteHeader, source, static_cast<size_t>(count));
    return true;
}

bool modFSUIPC::FSUIPC_Process(int32_t& result) { return Exchange(result, false); }

bool modFSUIPC::ProcessForEvent(int32_t& result) {
    if (answers_) return Exchange(result, true);
    result = kFsuipcNoAnswer;
    return false;
}

bool modFSUIPC::Exchange(int32_t& result, bool keepWrites) {
    allRead_ = false;
    taken_ = false;
    const bool done = SendBatch(result) && UnpackReplies();
    if (done) result = kFsuipcOk;
    if (!taken_ && keepWrites) {
        KeepWrites();
    } else {
        EmptyBatch();
    }
    if (taken_) Taken.Raise();
    return done;
}

bool modFSUIPC::SendBatch(int32_t& result) {
    if (!view_ || next_ == 0) {
        result = view_ ? kFsuipcEmptyBatch : kFsuipcNotOpen;
        return false;
    }
    StoreLE32(view_ + next_, 0);
    uintptr_t reply = 0;
    answers_ = SendMessages(reply, result);
    if (!answers_) return false;
    if (reply != 1) result = kFsuipcBadReply;
    return reply == 1;
}

void modFSUIPC::EmptyBatch() {
    next_ = 0;
    records_.clear();
}

// The destinations of reads don't outlive their event.
void modFSUIPC::KeepWrites() {
    const uint8_t* from = view_;
    uint8_t* to = view_;
    for (const Record& record : records_) {
        const bool read = record.identifier == kReadRecord;
        const uint32_t size = (read ? kReadHeader : kWriteHeader) + record.count;
        if (!read) {
            std::memmove(to, from, size);
            to += size;
        }
        from += size;
    }
    next_ = static_cast<uint32_t>(to - view_);
    std::erase_if(records_, [](const Record& each) { return each.identifier == kReadRecord; });
}

bool modFSUIPC::SendMessages(uintptr_t& reply, int32_t& result) {
    const auto send = [&] {
        return channel_.SendMessageTimeoutA(window_, message_,
                                            static_cast<uintptr_t>(static_cast<uint32_t>(atom_)), 0,
                                            kMessageFlags, kMessageTimeoutMs, reply) != 0;
    };
    bool answered = send();
    int repeats = 0;
    while (!answered && repeats < kRepeats && !(opening_ && channel_.UserWaits())) {
        ++repeats;
        clock_.Sleep(kRepeatPauseMs);
        answered = send();
    }
    taken_ = answered && reply == 1;
    // A simulator that answers only at the last repeat is too slow to fly with.
    if (answered && repeats < kRepeats) return true;
    result = channel_.GetLastError() != 0 ? kFsuipcNoAnswerError : kFsuipcNoAnswer;
    return false;
}

void modFSUIPC::Take(const Record& read, const uint8_t* bytes) {
    const bool changed = WithSize(read.count, [&](auto size) {
        if (std::memcmp(read.destination, bytes, size) == 0) return false;
        std::memcpy(read.destination, bytes, size);
        return true;
    });
    if (changed && read.changes) read.changes->Add(read.place);
}

// Each reply must be the record of the batch that stood in its place: so no position, length or
// destination is ever taken from the block. The simulator may write to it meanwhile: each word is
// read once. What a reply that ends early leaves out keeps its value.
bool modFSUIPC::UnpackReplies() {
    const uint8_t* reply = view_;
    size_t i = 0;
    while (const uint16_t identifier = LoadLE16(reply)) {
        if (i == records_.size()) return false;
        const Record& sent = records_[i++];
        if (identifier != sent.identifier || LoadLE32(reply + 8) != sent.count) return false;
        if (sent.identifier == kReadRecord) {
            const uint32_t token = sent.destination ? static_cast<uint32_t>(i) : 0;
            if (LoadLE32(reply + 12) != token) return false;
            if (sent.destination) Take(sent, reply + kReadHeader);
            reply += kReadHeader + sent.count;
        } else {
            reply += kWriteHeader + sent.count;
        }
    }
    allRead_ = i == records_.size();
    return true;
}
