#include "panels/multi/NGXFunctionsFrame.h"

#include "panels/multi/MultiPanelNumber.h"
#include "simlink/channel/NGXEventTable.h"
#include "ui/Layout.h"

NGXFunctionsFrame::NGXFunctionsFrame(Container* parent) : Frame(parent) {
    constexpr int32_t kPitch = 330, kWidth = 2400;
    constexpr int32_t kShortLeft = 780, kLongLeft = 3360;
    Caption = "NGX Special Mode Configuration";
    PlaceControls({
        {labShort, kShortLeft, 300, kWidth, 210, "Short Click Function"},
        {labLong, kLongLeft, 300, kWidth, 210, "Long Click Function"},
    });
    int32_t top = 525;
    for (const Row& row : rows_) {
        PlaceControls({
            {row.label, 180, top + 45, 540, 240, row.button},
            {row.shortClick, kShortLeft, top, kWidth, 300},
            {row.longClick, kLongLeft, top, kWidth, 300},
        });
        for (const char* name : NGXFunctionNames) {
            row.shortClick.AddItem(name);
            row.longClick.AddItem(name);
        }
        top += kPitch;
    }
}

void NGXFunctionsFrame::Tie(Ties& ties, cMultiPanelActionsHolder& actions) {
    using Holder = cMultiPanelActionsHolder;
    int32_t button = MultiButton::kAP;
    for (const Row& row : rows_) {
        const auto number = [button] { return button; };
        ties.Add(row.shortClick,
                 NumberedPlace<int32_t>(actions, &Holder::NGXGetShortButtonsActions,
                                        &Holder::NGXSetShortButtonsActions, number));
        ties.Add(row.longClick, NumberedPlace<int32_t>(actions, &Holder::NGXGetLongButtonsActions,
                                                       &Holder::NGXSetLongButtonsActions, number));
        ++button;
    }
}
