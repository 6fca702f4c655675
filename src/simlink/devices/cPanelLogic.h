#pragma once

#include <cstdint>

#include "config/ProfileStore.h"
#include "platform/Clock.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/TickValues.h"
#include "simlink/channel/cSession.h"
#include "simlink/devices/cPanelDevice.h"

// What the logics work with.
struct LogicServices {
    cSession& session;
    EventOutput& output;
    ProfileStore& profiles;
    Clock& clock;
};

// What the logics of all panels have in common: how the program drives them, and that nothing is
// worked out again which comes out as before.
class cPanelLogic {
  public:
    cPanelLogic(cSession& session, cPanelDevice& control);
    virtual ~cPanelLogic() = default;

    // Once the panel's control is connected.
    virtual void StartUp() = 0;
    // On every successful tick. Works on what the tick has read, and makes no exchange of its own.
    void RefreshData();
    // After the bindings or the special mode have changed.
    void SetupChanged();
    // Loads the bindings of the current profile anew.
    void LoadSetup();

  protected:
    // Something has changed on which Refresh rests, and that RefreshData doesn't look at by itself:
    // bindings, and what the panel's events change in the logic.
    void NoteChange() { changed_ = true; }
    // Does what starts from the values of the ticks once they are read. It may change them.
    template <class Act>
    void OnceRead(const TickValues& values, Act act) {
        session_.Acts.Do([this, &values, act]() mutable {
            if (!values.AreRead()) return false;
            act();
            NoteChange();
            return true;
        });
    }

    cSession& session_;

  private:
    // Shows what the tick has read. Done a second time it comes to the same, unless something has
    // changed or it has sent a report.
    virtual void Refresh() = 0;
    // Adds the places of the values that Refresh reads.
    virtual void AddPlaces(PlaceSet& places) const = 0;
    virtual void ApplySetup() = 0;
    virtual void ReadSetup() = 0;

    // What Refresh may rest on, whatever the logic: what all panels share, and whether the tick has
    // brought all values.
    struct Basis {
        SharedValues shared;
        bool allRead = false;

        bool operator==(const Basis&) const = default;
    };
    Basis PresentBasis() const { return {session_, session_.Fsuipc.AllRead()}; }
    bool ValuesChanged();

    bool changed_ = true;
    uint32_t shape_ = 0;  // of the offset table, when the places were looked up
    Basis basis_;         // as the last Refresh has left it
    PlaceSet places_;     // of the values that Refresh reads
    const ScopedConnection sent_;
};
