#include <gtest/gtest.h>
#include <map>
#include <set>

#include "bench/virtual/VirtualCockpit.h"

namespace {

// Whichever kind of panel was there first, the others read its entry.
TEST(SharedOffsetsTest, PanelsAgreeOnTheNamesThatTheyShare) {
    std::set<std::string> names = {"MASTERBATTERY", "MASTERAVIONICS"};
    const auto add = [&](const auto& table) {
        for (const auto& each : table) names.insert(each.name);
    };
    add(kTileOffsets), add(kSwitchOffsets), add(kRadioOffsets);
    for (const auto& each : kMultiOffsets) names.insert(each.name);
    for (const std::string mode : {"", "maddog", "ngx"}) {
        std::map<std::string, std::array<int32_t, 3>> entries;
        int shared = 0;
        for (const PanelIdentity& identity : kPanelIdentities) {
            VirtualCockpit cockpit;
            cockpit.Plug(identity.kind);
            cockpit.PutProfile("Default", "[Common]\nSpecialMode=" + mode);
            cockpit.Start();
            cockpit.Connect();
            for (int32_t i = 0; i < 70 && identity.kind == PanelKind::BIP; ++i) {
                cockpit.BIPLogic().BPActions->SetTileFunction(0, i);
                cockpit.BIPLogic().SetupChanged();
            }
            for (const std::string& name : names) {
                const cOFFSET* entry = cockpit.program->Session.OffsetTable.Item(name);
                if (!entry) continue;
                const std::array now = {entry->Offset, entry->DataType(), entry->Lenght};
                const auto [first, isNew] = entries.try_emplace(name, now);
                EXPECT_EQ(first->second, now) << mode << name;
                shared += !isNew;
            }
        }
        EXPECT_EQ(shared, mode == "ngx" ? 5 : 8);
    }
}

}  // namespace
