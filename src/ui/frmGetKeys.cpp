#include "ui/frmGetKeys.h"

#include "ui/Layout.h"

namespace {

constexpr Color kMarkGround = 0x00FF00;

const MsgBoxRequest kNoAlt = {"ALT and ALT-GROUND keys are not supported", "  ORVO",
                              MsgBoxIcon::Information, MsgBoxButtons::Ok};

}  // namespace

frmGetKeys::frmGetKeys(const WindowServices& services)
    : PlacedForm(services, {&cSetupHolder::GetKeysFormTop, &cSetupHolder::GetKeysFormLeft}),
      labRequest(this),
      labHints{Label(this), Label(this), Label(this)},
      picShift(this),
      picCtrl(this),
      picTab(this),
      labShift_(&picShift),
      labCtrl_(&picCtrl),
      labTab_(&picTab) {
    Caption = "  ORVO - Get Key";
    TakesAllKeys = true;
    PlaceAll();
    ShowMarks();
    KeyDown.Connect([this](int32_t key) { Answer(capture_.KeyDown(key)); });
    KeyPress.Connect([this](uint8_t character) { capture_.KeyPress(character); });
    KeyUp.Connect([this](int32_t key) { Answer(capture_.KeyUp(key)); });
}

void frmGetKeys::PlaceAll() {
    SetContentSize(6600, 3720);
    labRequest.Face = FontFace::Bold;
    labRequest.Align = Alignment::Center;
    PlaceControls({
        {labRequest, 240, 240, 6120, 270, "Press the key you want to bind to this panel function"},
        {labHints[0], 240, 690, 6120, 690,
         "If you want to use a qualifier (SHIFT, CTRL, TAB) press these keys and release them "
         "before pressing the main key. If you need a CTRL-SHIFT-TAB combination please press TAB "
         "before SHIFT and CONTROL"},
        {labHints[1], 240, 1500, 6120, 690,
         "For example, to send SHIFT-CTRL-A  to Flight Simulator: first press and release the "
         "SHIFT KEY, then press and release the CTRL key and finally press the A key."},
        {labHints[2], 240, 2310, 6120, 480,
         "TAB key is used as a qualifier mainly for compatibility whith LevelD aircrafts."},
        {picShift, 1500, 3060, 1080, 390},
        {picCtrl, 2760, 3060, 1080, 390},
        {picTab, 4020, 3060, 1080, 390},
        {labShift_, 0, 90, 1080, 240, "SHIFT"},
        {labCtrl_, 0, 90, 1080, 240, "CTRL"},
        {labTab_, 0, 90, 1080, 240, "TAB"},
    });
    for (Picture* mark : {&picShift, &picCtrl, &picTab}) mark->BackColor = kMarkGround;
    for (Label* label : {&labShift_, &labCtrl_, &labTab_}) {
        label->Face = FontFace::Bold;
        label->Align = Alignment::Center;
    }
}

void frmGetKeys::Answer(KeyCapture::Answer answer) {
    switch (answer) {
        case KeyCapture::Answer::Nothing:
            break;
        case KeyCapture::Answer::MarksChanged:
            ShowMarks();
            break;
        case KeyCapture::Answer::AltRefused:
            Ui().MsgBox(kNoAlt);
            break;
        case KeyCapture::Answer::Captured:
            Unload();
            break;
    }
}

void frmGetKeys::ShowMarks() {
    picShift.Visible = (capture_.Marks() & 1) != 0;
    picCtrl.Visible = (capture_.Marks() & 2) != 0;
    picTab.Visible = (capture_.Marks() & 4) != 0;
}
