#pragma once

#include <cstdint>

#include "panels/multi/cMultiPanelActionsHolder.h"
#include "toolkit/ComboBox.h"
#include "toolkit/Frame.h"
#include "toolkit/Picture.h"
#include "ui/Ties.h"

// What the Multi Panel's buttons do in the NGX: a list of the add-on's functions for each button
// and click. An entry's place in a list is its row of NGXEventTable.
class NGXFunctionsFrame : public Frame {
  public:
    explicit NGXFunctionsFrame(Container* parent);

    // Ties each list with its button's function.
    void Tie(Ties& ties, cMultiPanelActionsHolder& actions);

    Label labShort{this};
    Label labLong{this};
    Label labAP{this};
    ComboBox cmbAPshort{this}, cmbAPlong{this};
    Label labHDG{this};
    ComboBox cmbHDGshort{this}, cmbHDGlong{this};
    Label labNAV{this};
    ComboBox cmbNAVshort{this}, cmbNAVlong{this};
    Label labIAS{this};
    ComboBox cmbIASshort{this}, cmbIASlong{this};
    Label labALT{this};
    ComboBox cmbALTshort{this}, cmbALTlong{this};
    Label labVS{this};
    ComboBox cmbVSshort{this}, cmbVSlong{this};
    Label labAPR{this};
    ComboBox cmbAPRshort{this}, cmbAPRlong{this};
    Label labREV{this};
    ComboBox cmbREVshort{this}, cmbREVlong{this};

  private:
    struct Row {
        const char* button;
        Label& label;
        ComboBox& shortClick;
        ComboBox& longClick;
    };

    // In the order of the buttons' numbers.
    const Row rows_[8] = {
        {"AP", labAP, cmbAPshort, cmbAPlong},     {"HDG", labHDG, cmbHDGshort, cmbHDGlong},
        {"NAV", labNAV, cmbNAVshort, cmbNAVlong}, {"IAS", labIAS, cmbIASshort, cmbIASlong},
        {"ALT", labALT, cmbALTshort, cmbALTlong}, {"VS", labVS, cmbVSshort, cmbVSlong},
        {"APR", labAPR, cmbAPRshort, cmbAPRlong}, {"REV", labREV, cmbREVshort, cmbREVlong},
    };
};
