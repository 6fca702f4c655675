#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/Event.h"
#include "config/ProfileStore.h"
#include "config/cSetupHolder.h"
#include "core/PanelUnit.h"
#include "simlink/channel/cSession.h"
#include "toolkit/ComboBox.h"
#include "ui/WindowState.h"

// Binds each aircraft that the simulator reports to a profile, and carries a change of profile
// through the program. The selection of cmbProfiles, be it the user's or made here, is the one way
// in which a profile comes into force.
class AircraftBinding {
  public:
    struct Parts {
        cSession& session;
        ProfileStore& profiles;
        cSetupHolder& generalSetup;
        WindowState& windows;
        ComboBox& cmbProfiles;
        PanelLists& panels;
    };

    explicit AircraftBinding(const Parts& parts);

    // Asks the user for the profile of a new aircraft, in a modal window. May add a profile. Empty
    // when the user gives none; nothing when the program has ended before the user said anything.
    std::function<std::optional<std::string>(const std::string& title)> AskForProfile;

    Event<> AircraftAdded;  // to the list; a profile may have been added with it

    // Takes the title as the aircraft in use, and puts its profile into force. A new one is bound
    // to "Default", or with ManualProfile to what AskForProfile gives. May let messages run; called
    // again meanwhile it does nothing, and gives false.
    // Files may be held by other programs at this moment. As long as the list of aircraft can't be
    // read, the profile in force stays; as long as the profile can't be, the panels keep the
    // bindings and the mode that they have.
    bool BindAircraft(std::string title);

    // Whether something is left to do that a held file was in the way of. Costs nothing.
    bool Waits() const;
    // Does what waits, as far as the files are free by now.
    void TryAgain();
    // Writes the lists if a change of them hasn't been written yet. False while that can't be; it
    // waits then.
    bool SaveLists();

    // For a window in which the user edits the lists: it is about to open. What it can't write is
    // written later.
    void ListsWillBeEdited() { editing_ = true; }
    // It has closed: the profile of the aircraft in use, or the one in force, is applied anew.
    void ListsEdited();

    // Empty until the first session brings a title. It outlives a session: coming back to the same
    // aircraft changes nothing.
    const std::string& CurrentAircraft() const { return currentAircraft_; }

    void FillProfileCombo();

    // Asks the simulator whether the aircraft's gear is retractable, unless it is known.
    void AskForGear();

  private:
    void Settle();
    bool ReadLists();
    // False when nobody has said which; the aircraft is left unbound.
    bool SettleProfile();
    std::optional<std::string> ProfileForNew(const std::string& title);
    void SelectCurrentProfile();
    void ApplyProfile();
    // False while the profile can't be read.
    bool ReadSpecialMode();

    const Parts parts_;
    std::string currentAircraft_;
    bool binding_ = false;
    bool gearKnown_ = true;   // until there is an aircraft
    bool unsettled_ = false;  // the aircraft in use came before the lists could be read
    bool editing_ = false;    // the lists, in a window
    bool unsaved_ = false;    // what the lists have may not be in the file yet
};
