#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "simlink/channel/cSession.h"
#include "simlink/devices/PanelIdentity.h"
#include "simlink/devices/cPanelDevice.h"
#include "simlink/devices/cPanelLogic.h"
#include "ui/WindowState.h"

// One panel: its device object and its logic, which bear the same number.
struct PanelUnit {
    PanelKind kind;
    int16_t number;  // from 1, within the kind
    std::unique_ptr<cPanelDevice> control;
    std::unique_ptr<cPanelLogic> logic;  // none before StartLogic and after the window has closed
};

// Makes the device object of a panel, and connects its events with the logic that the unit holds
// while a session is up.
std::unique_ptr<PanelUnit> MakePanelUnit(PanelKind kind, int16_t number, Container& parent,
                                         const DeviceServices& services, cSession& session);

// Makes the unit's logic and starts it.
void StartLogic(PanelUnit& unit, const LogicServices& services, const WindowState& windows);

// All panels, by kind and number.
class PanelLists {
  public:
    using List = std::vector<std::unique_ptr<PanelUnit>>;

    List& operator[](PanelKind kind) { return lists_[static_cast<size_t>(kind)]; }
    const List& operator[](PanelKind kind) const { return lists_[static_cast<size_t>(kind)]; }

    // Calls for every logic, in the order Radio, Multi, Switch, BIP and of their numbers.
    template <class Function>
    void ForEachLogic(Function call) const {
        for (const List& list : lists_) ForEachLogicOf(list, call);
    }
    template <class Function>
    static void ForEachLogicOf(const List& list, Function call) {
        for (const auto& unit : list) {
            if (unit->logic) call(*unit->logic);
        }
    }

  private:
    std::array<List, kPanelIdentities.size()> lists_;
};
