#include "core/PanelUnit.h"

#include "core/EventForwarding.h"
#include "panels/multi/cMultiPanelLogic.h"
#include "panels/multi/ctlMultiPanel.h"

namespace {

// The unit's logic while it is to get events.
template <class Logic>
auto FindLogic(const PanelUnit& unit, const cSession& session) {
    return [&unit, &session]() -> Logic* {
        return session.FSConnected ? static_cast<Logic*>(unit.logic.get()) : nullptr;
    };
}

}  // namespace

std::unique_ptr<PanelUnit> MakePanelUnit(PanelKind kind, int16_t number, Container& parent,
                                         const DeviceServices& services, cSession& session) {
    auto unit = std::make_unique<PanelUnit>(PanelUnit{kind, number, nullptr, nullptr});
    if (kind == PanelKind::Multi) {
        auto control = std::make_unique<ctlMultiPanel>(parent, services);
        ForwardMultiEvents(*control, FindLogic<cMultiPanelLogic>(*unit, session));
        unit->control = std::move(control);
    } else {
        unit->control = std::make_unique<cPanelDevice>(parent, services, kind);
    }
    return unit;
}

void StartLogic(PanelUnit& unit, const LogicServices& services) {
    if (unit.kind == PanelKind::Multi) {
        unit.logic = std::make_unique<cMultiPanelLogic>(
            services, static_cast<ctlMultiPanel&>(*unit.control), unit.number);
    }
    if (unit.logic) unit.logic->StartUp();
}
