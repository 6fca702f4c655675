#include "simlink/devices/cPanelLogic.h"

// What a panel shows may rest on what it showed before, whoever sent that.
cPanelLogic::cPanelLogic(cSession& session, cPanelDevice& control)
    : session_(session), sent_(control.ReportSent.Connect([this] { NoteChange(); })) {}

void cPanelLogic::RefreshData() {
    const bool asBefore = !changed_ && PresentBasis() == basis_;
    if (asBefore && !ValuesChanged()) return;
    changed_ = false;
    Refresh();
    basis_ = PresentBasis();
}

bool cPanelLogic::ValuesChanged() {
    const cOffsetTable& table = session_.OffsetTable;
    if (shape_ != table.Shape()) {
        shape_ = table.Shape();
        places_.Clear();
        AddPlaces(places_);
    }
    return table.Changes().Meets(places_);
}

void cPanelLogic::SetupChanged() {
    NoteChange();
    ApplySetup();
}

void cPanelLogic::LoadSetup() {
    NoteChange();
    ReadSetup();
}
