// Aircraft with any titles: each is bound once, under the title that the simulator gives, and is
// known with the same profile in the next start.
#include <algorithm>

#include "base/Text.h"
#include "bench/fuzz/Require.h"
#include "bench/virtual/VirtualCockpit.h"
#include "ui/profiles/frmAircraftProfile.h"

namespace {

constexpr size_t kTitleLength = 60;

// As the program gets it: up to a NUL, no longer than it asks for.
std::string Seen(const std::string& title) {
    return title.substr(0, std::min(title.find('\0'), kTitleLength));
}

using Bound = std::vector<std::pair<std::string, std::string>>;

Bound BoundNow(const ProfileStore& profiles) {
    Bound bound;
    for (const std::string& title : profiles.AircraftNames()) {
        bound.emplace_back(title, profiles.ProfileOfAircraft(title));
    }
    return bound;
}

// Flies all of them, and gives what is bound at the end.
Bound Fly(VirtualFiles& files, const std::vector<std::string>& titles, bool ask) {
    VirtualCockpit cockpit;
    cockpit.machine.files = files;
    cockpit.Plug(PanelKind::Switch);
    cockpit.ui.User = [](Form& form) {
        if (auto* window = dynamic_cast<frmAircraftProfile*>(&form)) {
            window->cmbProfiles.Choose(0);
            window->cmdOk.Press();
        }
        form.Unload();
    };
    Require(cockpit.StartWithFiles());
    cockpit.SetTitle("");
    cockpit.Connect();
    for (const std::string& title : titles) {
        cockpit.SetTitle(title);
        cockpit.Tick(), cockpit.Tick();
        const ProfileStore& profiles = cockpit.program->Profiles;
        if (!Seen(title).empty()) {
            Require(profiles.ProfileOfAircraft(Seen(title)) == (ask ? "Jet" : "Default"));
            Require(cockpit.Window().Aircraft.Text.Get() == "Aircraft in use: " + Seen(title));
        }
    }
    const Bound bound = BoundNow(cockpit.program->Profiles);
    cockpit.Window().Unload();
    files = cockpit.machine.files;
    return bound;
}

}  // namespace

// Whether the user is asked, then the titles, one a line.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const bool ask = data[0] % 2 != 0;
    const std::string text(data + 1, data + size);
    std::vector<std::string> titles;
    for (const std::string_view title : Split(text, '\n')) titles.emplace_back(title);
    VirtualFiles files;
    files.Put("C:\\Orvo\\Orvo.ini", std::string("[GeneralSetup]\r\nSplash=0\r\n") +
                                        (ask ? "ManualProfile=1\r\n" : "") +
                                        "[Profiles]\r\nJet= \r\n");
    const Bound bound = Fly(files, titles, ask);
    for (size_t i = 0; i < bound.size(); ++i) {
        for (size_t j = 0; j < i; ++j) Require(!EqualNoCase(bound[i].first, bound[j].first));
    }
    Require(Fly(files, titles, ask) == bound);
    return 0;
}
