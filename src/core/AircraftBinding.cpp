#include "core/AircraftBinding.h"

void AircraftBinding::BindAircraft(std::string_view title) {
    cOFFSET retractable(session_.Fsuipc, 0x060C, 2);
    retractable.DirectRead(true);
    session_.GearIsRetractable = retractable.Data() != 0;
    currentAircraft_ = title;
}
