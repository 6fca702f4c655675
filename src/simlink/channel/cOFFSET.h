#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "base/Number.h"
#include "simlink/channel/modFSUIPC.h"

// One typed value at one offset of the simulator, with its own storage, into which a read copies
// the simulator's bytes as they are. The address of the storage stays valid for the object's life.
//
// DataType: 1 unsigned 8-bit, 2 signed 16-bit, 3 unsigned 16-bit or BCD, 4 signed 32-bit, 5 32-bit
// raw or two BCD words, 6 signed 64-bit, 7 32-bit float, 8 64-bit float, 9 string. Any other has no
// storage: its value is 0 or empty, and nothing is transferred.
class cOFFSET {
  public:
    explicit cOFFSET(modFSUIPC& fsuipc) : fsuipc_(fsuipc) {}
    cOFFSET(modFSUIPC& fsuipc, int32_t offset, int32_t dataType);
    cOFFSET(const cOFFSET&) = delete;
    cOFFSET& operator=(const cOFFSET&) = delete;

    int32_t Lenght = 0;  // bytes transferred, at most those of the storage
    int32_t Offset = 0;
    int32_t dwResult = 0;  // result of this object's last transfer

    // Storage of the present type, nullptr without one.
    void* DataPtr();
    // Lenght, held to what the storage can take.
    int32_t TransferLenght() const;

    // The value as a number; every type's numbers are exact in it. A string gives 0. The third byte
    // of type 5 weighs 655536: the levels that are compared with it are in that scale.
    double Data() const;
    int32_t IntegerData() const { return RoundTo<int32_t>(Data()); }
    // Converted to the type: rounded half to even and held to its range; of types 3 and 5 the low
    // bytes. Strings and unknown types ignore it.
    void SetData(double value);

    // A string's characters up to the first NUL, at most Lenght of them. Empty for other types.
    std::string_view Text() const;
    // Stores at most 255 characters and a NUL behind them. Other types ignore it.
    void SetText(std::string_view text);

    int32_t DataType() const { return dataType_; }
    // Sets Lenght to the type's size too; 0 for a string.
    void SetDataType(int32_t dataType);

    // Byte 0 to 3 of a type 5 value, 0 or 1 of a type 3 one; 0 otherwise.
    uint8_t ByteN(int32_t ByteNumber) const;

    // BCD digits: four of type 3; of type 5 the low or the high word.
    int32_t GetBCD() const { return Bcd(&word_[0]); }
    int32_t GetBCDLow() const { return Bcd(&raw_[0]); }
    int32_t GetBCDHigh() const { return Bcd(&raw_[2]); }
    // MHz of a type 3 frequency, which is held without its leading 1: 0x2345 gives 123.45.
    float GetFreq() const { return static_cast<float>(GetBCD()) / 100.0F + 100.0F; }
    // Four digits into type 3; 0 to 9999, values beyond are held to that.
    void SetBcd(int32_t Value);

    // Queue a transfer; with Immediate the batch is sent at once, as for an event
    // (ProcessForEvent), and what was read is there. A read gives false when it couldn't be queued,
    // or the simulator hasn't given the value: then nothing may be written that rests on it.
    void DirectWrite(bool Immediate);
    [[nodiscard]] bool DirectRead(bool Immediate);

  private:
    static int32_t Bcd(const uint8_t* bytes);

    modFSUIPC& fsuipc_;
    int32_t dataType_ = 0;
    // One slot for each type, so that a change of type finds the value it left.
    uint8_t byte_ = 0;
    int16_t integer16_ = 0;
    std::array<uint8_t, 2> word_{};
    int32_t integer32_ = 0;
    std::array<uint8_t, 4> raw_{};
    int64_t integer64_ = 0;
    float float32_ = 0;
    double float64_ = 0;
    std::array<char, 256> string_{};
};
