#pragma once

#include <cstdint>
#include <vector>

#include "base/Event.h"
#include "platform/Clock.h"
#include "platform/IpcChannel.h"
#include "simlink/channel/PlaceSet.h"

// Result codes of the channel's operations.
enum FsuipcResult : int32_t {
    kFsuipcOk = 0,
    kFsuipcAlreadyOpen = 1,
    kFsuipcNoServer = 2,
    kFsuipcNoMessage = 3,
    kFsuipcNoAtom = 4,
    kFsuipcMappingExists = 5,
    kFsuipcNoView = 6,
    kFsuipcWrongVersionUipc = 7,  // found by the first window class
    kFsuipcWrongSimulator = 8,
    kFsuipcNotOpen = 9,
    kFsuipcEmptyBatch = 10,
    kFsuipcNoAnswer = 11,
    kFsuipcNoAnswerError = 12,  // and the platform reports an error
    kFsuipcBadReply = 13,
    kFsuipcWrongVersionFs98 = 14,  // found by the second window class
    kFsuipcBatchFull = 15,
};

// Client of the FSUIPC channel. Reads and writes are queued in the shared block as one batch for
// all callers; FSUIPC_Process sends the batch, blocks until the simulator has answered and copies
// what was read to its destinations. Every operation stores its FsuipcResult in `result`.
class modFSUIPC {
  public:
    modFSUIPC(IpcChannel& channel, Clock& clock);
    modFSUIPC(const modFSUIPC&) = delete;
    modFSUIPC& operator=(const modFSUIPC&) = delete;
    ~modFSUIPC() { FSUIPC_Close(); }

    // Forgets the channel without ending it; for use on a closed one.
    void FSUIPC_Initialize();

    // Opens the channel and checks the versions, within about 300 ms when the simulator answers at
    // once; a simulator that doesn't is given up sooner when the user waits for the program.
    // `requestedSimulator` is its number, 0 for any. After a failure the channel is closed,
    // but for code 1, which leaves it as it was. Go by what it gives: where a reply can't be
    // unpacked, `result` is that of the last record, 0.
    bool FSUIPC_Open(uint32_t requestedSimulator, int32_t& result);
    void FSUIPC_Close();

    // Queues a read of `count` bytes. `destination` is written by a later FSUIPC_Process and must
    // stay valid until then. `changes`, which must too, gets `place` when that writes other bytes
    // than there were.
    bool FSUIPC_Read(int32_t offset, int32_t count, void* destination, int32_t& result,
                     PlaceSet* changes = nullptr, size_t place = 0);

    // Queues a write; the data is copied at once.
    bool FSUIPC_Write(int32_t offset, int32_t count, const void* source, int32_t& result);

    // Sends the batch. Whatever the outcome, the batch is empty afterwards. A reply with a record
    // other than the one that was sent fails with `result` as it was on entry; one that ends early
    // is taken as far as it goes.
    bool FSUIPC_Process(int32_t& result);

    // The same on behalf of an event, between two ticks, after which the session may well go on:
    // writes that the simulator hasn't taken, that is answered with success, stay in the batch for
    // the next exchange. While it doesn't answer nothing is sent, so that the steps of an event
    // don't each wait in vain.
    [[nodiscard]] bool ProcessForEvent(int32_t& result);

    // False when the last exchange ran out of time. The next one may take as long again, so what
    // can do without leaves it to the tick, which ends the session if need be.
    bool Answers() const { return answers_; }
    // Whether the last exchange has brought a reply to every read of its batch.
    bool AllRead() const { return allRead_; }

    Event<> Taken;  // the simulator has taken a batch over

    bool IsOpen() const { return view_ != nullptr; }

    int32_t FSUIPC_Version = 0;      // BCD version in the high word
    uint32_t FSUIPC_FS_Version = 0;  // number of the simulator
    uint16_t FSUIPC_Lib_Version = 0;

  private:
    // A queued record. The block carries the record's place in this list in the place of the
    // destination's address, which may be wider than the block's field.
    struct Record {
        uint16_t identifier;
        uint32_t count;
        void* destination;
        PlaceSet* changes;
        size_t place;
    };

    bool Queue(uint16_t identifier, uint32_t headerSize, int32_t offset, int32_t count,
               int32_t& result);
    bool OpenChannel(int32_t& result, bool& secondClass);
    bool ReadVersions(int32_t& result);
    bool Exchange(int32_t& result, bool keepWrites);
    bool SendBatch(int32_t& result);
    bool SendMessages(uintptr_t& reply, int32_t& result);
    bool UnpackReplies();
    static void Take(const Record& read, const uint8_t* bytes);
    void EmptyBatch();
    void KeepWrites();

    IpcChannel& channel_;
    Clock& clock_;
    uintptr_t window_ = 0;
    uint32_t message_ = 0;
    int32_t atom_ = 0;  // sign-extended from 16 bits
    uintptr_t mapping_ = 0;
    uint8_t* view_ = nullptr;
    uint32_t next_ = 0;  // bytes of records in the batch
    std::vector<Record> records_;
    bool opening_ = false;
    bool answers_ = true;
    bool allRead_ = false;
    bool taken_ = false;
};
