#pragma once

#include "toolkit/CheckBox.h"
#include "toolkit/ComboBox.h"
#include "toolkit/Frame.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/Slider.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextBox.h"
#include "ui/DialogForm.h"
#include "ui/TabPages.h"
#include "ui/Ties.h"

// The window of the general options. It works on the options themselves: each control writes its
// field as it changes, OK saves them, Cancel loads the file over them.
class frmGeneralSetup : public DialogForm {
  public:
    explicit frmGeneralSetup(const WindowServices& services);

    TabStrip tabMain;
    Container picMain[2];  // the pages, by tab

    CheckBox chkAutoStart;
    CheckBox chkAutoQuit;
    Frame frameNewAircraft;
    OptionButton optManprofile[2];
    Frame frameClickThreshold;
    Slider sliderClickThreshold;  // before the labels, none of which names it
    Label labShortest;
    Label labLongest;
    Label labSeconds;

    Frame frameOrvo;
    Label labOrvoPriority;
    ComboBox cmbOrvoPriority;
    Label labOrvoAffinity;
    OptionButton optOrvoAffinity[2];
    TextBox txtOrvoAffinity;
    Frame frameDeckhub;
    Label labDeckhubPriority;
    ComboBox cmbDeckhubPriority;
    Label labDeckhubAffinity;
    OptionButton optDeckhubAffinity[2];
    TextBox txtDeckhubAffinity;
    Label labAttention[3];

    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    void PlaceAll();
    void TieControls();
    void TieProcess(ComboBox& priorities, int32_t& priority, OptionButton (&options)[2],
                    TextBox& mask, int32_t& affinity);
    SaveResult Save() override;
    void Revert() override;

    Ties ties_;
    TabPages pages_;
};
