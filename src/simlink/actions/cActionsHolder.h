#pragma once

#include <cstdint>
#include <string>

#include "config/ProfileStore.h"
#include "simlink/actions/BindingTable.h"

// What one panel's controls do in the current profile, as far as the kinds of panel have it in
// common: each holder is one section of the profile's file.
class cActionsHolder {
  public:
    virtual ~cActionsHolder() = default;

    int16_t Index = 0;    // number of the panel, from 1; names the section
    std::string Profile;  // whose file is saved: the one that was current at the last LoadSetup

    // Of an action only FSEvent is set; the other fields keep what they have.
    void LoadDefaults() { SetDefaults(); }
    // Defaults, then what the section of the current profile says; what makes no sense there is
    // passed over. While the file can't be read, and without a profile in use, all stays as it is,
    // also when that is another profile's.
    void LoadSetup();
    // Whether the last LoadSetup could read; if it couldn't, what is to be told of it.
    SaveResult ReadResult() const;
    // Writes what differs from the defaults: all or nothing. Refused while the file can't be
    // written, when the last LoadSetup couldn't read it, and without a profile.
    SaveResult SaveSetup();

  protected:
    // `panel` is the section's name without the number.
    cActionsHolder(ProfileStore& profiles, const char* panel)
        : Profile(profiles.CurrentProfile), profiles_(profiles), panel_(panel) {}
    cActionsHolder(const cActionsHolder&) = default;

  private:
    virtual void SetDefaults() = 0;
    virtual void Take(const IniEntries& entries) = 0;
    virtual bool Write(IniSection& keys) = 0;

    std::string Section() const;

    ProfileStore& profiles_;
    const char* const panel_;
    bool whole_ = true;
};

// A holder whose keys stand in a table.
class cKeyedActionsHolder : public cActionsHolder {
  protected:
    using cActionsHolder::cActionsHolder;

  private:
    // In the order in which the keys stand in the file.
    virtual BindingTable Keys() = 0;

    void SetDefaults() final { Keys().SetDefaults(); }
    void Take(const IniEntries& entries) final { Keys().Take(entries); }
    bool Write(IniSection& keys) final { return Keys().Write(keys); }
};
