#include "core/PanelUnit.h"

#include "core/EventForwarding.h"
#include "panels/bip/cBIPPanelLogic.h"
#include "panels/bip/ctlBIPPanel.h"
#include "panels/multi/cMultiPanelLogic.h"
#include "panels/multi/ctlMultiPanel.h"
#include "panels/radio/cRadioPanelLogic.h"
#include "panels/radio/ctlRadioPanel.h"
#include "panels/switch/cSwitchPanelLogic.h"
#include "panels/switch/ctlSwitchPanel.h"

namespace {

// The unit's logic while a session is up, or while none is.
template <class Logic>
auto FindLogic(const PanelUnit& unit, const cSession& session, bool connected) {
    return [&unit, &session, connected]() -> Logic* {
        if (session.FSConnected != connected) return nullptr;
        return static_cast<Logic*>(unit.logic.get());
    };
}

template <class Control, class Logic, class Forward>
void MakeControl(PanelUnit& unit, Container& parent, const DeviceServices& services,
                 cSession& session, Forward forward) {
    auto control = std::make_unique<Control>(parent, services);
    forward(*control, FindLogic<Logic>(unit, session, true),
            FindLogic<Logic>(unit, session, false));
    unit.control = std::move(control);
}

template <class Control, class Logic, class... More>
void MakeLogic(PanelUnit& unit, const LogicServices& services, More&... more) {
    unit.logic = std::make_unique<Logic>(services, static_cast<Control&>(*unit.control),
                                         unit.number, more...);
    unit.logic->StartUp();
}

}  // namespace

std::unique_ptr<PanelUnit> MakePanelUnit(PanelKind kind, int16_t number, Container& parent,
                                         const DeviceServices& services, cSession& session) {
    auto unit = std::make_unique<PanelUnit>(PanelUnit{kind, number, nullptr, nullptr});
    switch (kind) {
        case PanelKind::Radio:
            MakeControl<ctlRadioPanel, cRadioPanelLogic>(
                *unit, parent, services, session,
                [](auto& control, auto find, auto) { ForwardRadioEvents(control, find); });
            break;
        case PanelKind::Multi:
            MakeControl<ctlMultiPanel, cMultiPanelLogic>(
                *unit, parent, services, session, [](auto& control, auto find, auto away) {
                    ForwardMultiEvents(control, find, away);
                });
            break;
        case PanelKind::Switch:
            MakeControl<ctlSwitchPanel, cSwitchPanelLogic>(
                *unit, parent, services, session, [](auto& control, auto find, auto away) {
                    ForwardSwitchEvents(control, find, away);
                });
            break;
        case PanelKind::BIP:
            unit->control = std::make_unique<ctlBIPPanel>(parent, services);
            break;
    }
    return unit;
}

void StartLogic(PanelUnit& unit, const LogicServices& services, const WindowState& windows) {
    switch (unit.kind) {
        case PanelKind::Radio:
            MakeLogic<ctlRadioPanel, cRadioPanelLogic>(unit, services);
            break;
        case PanelKind::Multi:
            MakeLogic<ctlMultiPanel, cMultiPanelLogic>(unit, services);
            break;
        case PanelKind::Switch:
            MakeLogic<ctlSwitchPanel, cSwitchPanelLogic>(unit, services);
            break;
        case PanelKind::BIP:
            MakeLogic<ctlBIPPanel, cBIPPanelLogic>(unit, services, windows);
            break;
    }
}
