#include "simlink/channel/cOFFSET.h"

#include <algorithm>

#include "base/Bytes.h"
#include "base/Number.h"

namespace {

constexpr int32_t kSizes[] = {0, 1, 2, 2, 4, 4, 8, 4, 8, 256};
constexpr int32_t kString = 9;

int32_t StorageSize(int32_t dataType) {
    return dataType >= 1 && dataType <= kString ? kSizes[dataType] : 0;
}

}  // namespace

cOFFSET::cOFFSET(modFSUIPC& fsuipc, int32_t offset, int32_t dataType) : fsuipc_(fsuipc) {
    Offset = offset;
    SetDataType(dataType);
}

void* cOFFSET::DataPtr() {
    switch (dataType_) {
        case 1:
            return &byte_;
        case 2:
            return &integer16_;
        case 3:
            return word_.data();
        case 4:
            return &integer32_;
        case 5:
            return raw_.data();
        case 6:
            return &integer64_;
        case 7:
            return &float32_;
        case 8:
            return &float64_;
        case 9:
            return string_.data();
        default:
            return nullptr;
    }
}

int32_t cOFFSET::TransferLenght() const { return std::clamp(Lenght, 0, StorageSize(dataType_)); }

double cOFFSET::Data() const {
    switch (dataType_) {
        case 1:
            return byte_;
        case 2:
            return integer16_;
        case 3:
            return LoadLE16(word_.data());
        case 4:
            return integer32_;
        case 5:
            return static_cast<int32_t>(raw_[0] + 256U * raw_[1] + 655536U * raw_[2] +
                                        16777216U * raw_[3]);
        case 6:
            return static_cast<double>(integer64_);
        case 7:
            return float32_;
        case 8:
            return float64_;
        default:
            return 0;
    }
}

void cOFFSET::SetData(double value) {
    switch (dataType_) {
        case 1:
            byte_ = RoundTo<uint8_t>(value);
            break;
        case 2:
            integer16_ = RoundTo<int16_t>(value);
            break;
        case 3:
            StoreLE16(word_.data(), static_cast<uint16_t>(RoundHalfEven(value)));
            break;
        case 4:
            integer32_ = RoundTo<int32_t>(value);
            break;
        case 5:
            StoreLE32(raw_.data(), static_cast<uint32_t>(RoundHalfEven(value)));
            break;
        case 6:
            integer64_ = RoundHalfEven(value);
            break;
        case 7:
            float32_ = static_cast<float>(value);
            break;
        case 8:
            float64_ = value;
            break;
        default:
            break;
    }
}

std::string_view cOFFSET::Text() const {
    if (dataType_ != kString) return {};
    const auto end = string_.begin() + TransferLenght();
    return {string_.begin(), std::find(string_.begin(), end, '\0')};
}

void cOFFSET::SetText(std::string_view text) {
    if (dataType_ != kString) return;
    text = text.substr(0, string_.size() - 1);
    *std::copy(text.begin(), text.end(), string_.begin()) = '\0';
}

void cOFFSET::SetDataType(int32_t dataType) {
    dataType_ = dataType;
    Lenght = dataType == kString ? 0 : StorageSize(dataType);
}

uint8_t cOFFSET::ByteN(int32_t ByteNumber) const {
    const auto index = static_cast<size_t>(ByteNumber);
    if (ByteNumber < 0 || ByteNumber > 3) return 0;
    if (dataType_ == 5 || ByteNumber > 1) return raw_[index];
    return dataType_ == 3 ? word_[index] : uint8_t{0};
}

int32_t cOFFSET::Bcd(const uint8_t* bytes) {
    return (bytes[0] & 15) + 10 * (bytes[0] >> 4) + 100 * (bytes[1] & 15) + 1000 * (bytes[1] >> 4);
}

void cOFFSET::SetBcd(int32_t Value) { StoreLE16(word_.data(), DecimalToBCD(Value)); }

void cOFFSET::DirectWrite(bool Immediate) {
    fsuipc_.FSUIPC_Write(Offset, TransferLenght(), DataPtr(), dwResult);
    // What isn't taken at once goes with the next exchange.
    if (Immediate) static_cast<void>(fsuipc_.ProcessForEvent(dwResult));
}

bool cOFFSET::DirectRead(bool Immediate) {
    if (Immediate && !fsuipc_.Answers()) {
        dwResult = kFsuipcNoAnswer;
        return false;
    }
    const bool queued = fsuipc_.FSUIPC_Read(Offset, TransferLenght(), DataPtr(), dwResult);
    if (!queued || !Immediate) return queued;
    return fsuipc_.ProcessForEvent(dwResult) && fsuipc_.AllRead();
}
