#include "core/AircraftBinding.h"

#include <utility>

void AircraftBinding::BindAircraft(std::string title) {
    cOFFSET retractable(session_.Fsuipc, 0x060C, 2);
    retractable.DirectRead(true);
    session_.GearIsRetractable = retractable.Data() != 0;
    currentAircraft_ = std::move(title);
}
