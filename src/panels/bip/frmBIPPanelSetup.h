#pragma once

#include <cstdint>
#include <deque>

#include "panels/bip/BIPPanelPicture.h"
#include "panels/bip/TileEditor.h"
#include "panels/bip/cBIPPanelActionHolder.h"
#include "panels/bip/ctlBIPPanel.h"
#include "toolkit/Frame.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/Slider.h"
#include "toolkit/TabStrip.h"
#include "ui/PanelSetupForm.h"
#include "ui/TabPages.h"

// The setup window of a BIP Panel. The panel's own tiles stand still while the window exists, and
// are dark when it goes; the next tick lights them by what is set up then.
class frmBIPPanelSetup : public PanelSetupForm {
  public:
    // `panel` is the device object of the panel, and must outlive it.
    frmBIPPanelSetup(const SetupServices& services, ctlBIPPanel& panel);
    ~frmBIPPanelSetup() override;

    cBIPPanelActionHolder BPActions;
    TileEditor Editor{BPActions};

    Picture picPanel;
    BIPPanelPicture OnScreen;
    Label labNote;

    TabStrip tabCat;
    Container frameTileCat[8];             // the pages, by tab
    std::deque<OptionButton> optFunction;  // by row of the catalogue

    Frame frameColor;
    OptionButton optTileColor[3];
    Frame frameThreshold;
    Slider sliderThreshold;
    Label labThreshold;
    CommandButton cmbClear;
    CommandButton cmdClearAll;
    Frame frameDescription;
    Label lblDescription;

    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    void PlaceAll();
    void AddFunctions();
    void FollowUser();
    void ShowTile(int16_t tile);
    void ShowSelected();
    void ShowThreshold();

    ctlBIPPanel& panel_;
    size_t framedTile_ = 0;
    size_t shownFunction_ = 0;
    TabPages pages_;
};
