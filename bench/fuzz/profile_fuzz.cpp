// A hand-made profile: whatever is in it, the bindings of all panels load, and a save, an import
// and a load give the same.
#include <cstdint>
#include <string>

#include "bench/fuzz/Require.h"
#include "config/ProfileImport.h"
#include "panels/bip/cBIPPanelActionHolder.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "panels/radio/cRadioPanelActionsHolder.h"
#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "platform/virtual/VirtualPlatform.h"

namespace {

void CheckImport(const std::string& text) {
    VirtualPlatform machine;
    machine.files.Put("C:\\Orvo\\Source.ini", text);
    machine.files.Put("C:\\Orvo\\Target.ini", "[Old]\nk=1\n");
    const ProfileFiles files(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    const ProfileImport import(files, "Source", "Target");
    const auto sections = import.Sections().value();
    Require(bool(import.Copy(sections)));
    for (const std::string& section : sections) {
        Require(files.Read("Target")->Written(section) == files.Read("Source")->Written(section));
    }
}

// Two holders say the same when they make the same file.
template <class Holder>
void CheckBindings(const std::string& section, const std::string& text) {
    VirtualPlatform machine;
    // What stands before the first section of the text is the panel's.
    machine.files.Put("C:\\Orvo\\Default.ini", '[' + section + "]\n" + text);
    ProfileStore profiles(machine.ini, machine.files, machine.clock, "C:\\Orvo");
    Holder holder(profiles), again(profiles);
    holder.Index = again.Index = 1;
    holder.LoadSetup();
    Require(bool(holder.SaveSetup()));
    again.LoadSetup();
    profiles.CurrentProfile = "Loaded";
    Require(bool(holder.SaveSetup()));
    profiles.CurrentProfile = "Again";
    Require(bool(again.SaveSetup()));
    Require(machine.files.Look("C:\\Orvo\\Loaded.ini") ==
            machine.files.Look("C:\\Orvo\\Again.ini"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(data, data + size);
    CheckImport(text);
    CheckBindings<cMultiPanelActionsHolder>("MultiPanel1", text);
    CheckBindings<cRadioPanelActionsHolder>("RadioPanel1", text);
    CheckBindings<cSwitchPanelActionsHolder>("SwitchPanel1", text);
    CheckBindings<cBIPPanelActionHolder>("BIPPanel1", text);
    return 0;
}
