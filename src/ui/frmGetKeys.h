#pragma once

#include "toolkit/Picture.h"
#include "ui/KeyCapture.h"
#include "ui/PlacedForm.h"

// The small modal window in which the user presses the keystroke for an action.
class frmGetKeys : public PlacedForm {
  public:
    explicit frmGetKeys(const WindowServices& services);

    // Empty when the window was closed without a key.
    const CapturedKey& Result() const { return capture_.Result(); }

    Label labRequest;
    Label labHints[3];
    Picture picShift;
    Picture picCtrl;
    Picture picTab;

  private:
    void PlaceAll();
    void Answer(KeyCapture::Answer answer);
    void ShowMarks();

    Label labShift_;
    Label labCtrl_;
    Label labTab_;
    KeyCapture capture_;
};
