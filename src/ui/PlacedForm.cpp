#include "ui/PlacedForm.h"

#include "ui/PlaceForm.h"

PlacedForm::PlacedForm(const WindowServices& services, PlaceFields fields)
    : Form(services.ui), services_(services), fields_(fields) {
    QueryUnload.Connect([this] { StorePlace(); });
}

void PlacedForm::Place() {
    const cSetupHolder& setup = services_.generalSetup;
    PlaceForm(*this, setup.*fields_.left, setup.*fields_.top, services_.monitorRects,
              services_.screen);
    placed_ = true;
    if (!setup.IsRead()) placedBlind_ = {Left, Top};
}

// A place that nobody chose isn't saved over the one in a file that couldn't be read.
void PlacedForm::StorePlace() {
    if (!placed_ || placedBlind_ == std::pair<int32_t, int32_t>(Left, Top)) return;
    services_.generalSetup.*fields_.top = Top;
    services_.generalSetup.*fields_.left = Left;
}

void PlacedForm::OpenModally() {
    const ModalWindow open(services_.windows);
    CanMinimize = false;
    Load();
    Place();
    ShowModal(services_.loop);
}
