#include "ui/DialogForm.h"

bool TellUnlessDone(UiBackend& ui, const SaveResult& result) {
    if (result) return true;
    ui.MsgBox({result.Problem(), "  ORVO", MsgBoxIcon::Exclamation, MsgBoxButtons::Ok});
    return false;
}

void DialogForm::UseButtons(CommandButton& cmdOk, CommandButton& cmdCancel) {
    cmdOk.Caption = "OK";
    cmdCancel.Caption = "Cancel";
    DefaultButton = &cmdOk;
    CancelButton = &cmdCancel;
    cmdOk.Click.Connect([this] {
        if (TellUnlessDone(Ui(), Save())) Unload();
    });
    cmdCancel.Click.Connect([this] {
        Revert();
        Unload();
    });
}
