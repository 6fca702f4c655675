#include "simlink/EventOutput.h"

#include <array>

#include "base/Bytes.h"

void SendControl(modFSUIPC& fsuipc, int32_t Control, int32_t Parameter) {
    std::array<uint8_t, 8> data;
    StoreLE32(&data[0], static_cast<uint32_t>(Control));
    StoreLE32(&data[4], static_cast<uint32_t>(Parameter));
    int32_t result = 0;
    fsuipc.FSUIPC_Write(0x3110, static_cast<int32_t>(data.size()), data.data(), result);
}
