#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "config/IniFiles.h"
#include "platform/Clock.h"
#include "platform/RegistryPort.h"

// The options that don't depend on a profile: section "GeneralSetup" of Orvo.ini in the program's
// folder, and the entry that starts the program at logon.
class cSetupHolder {
  public:
    cSetupHolder(IniService& ini, FilePort& files, Clock& clock, RegistryPort& registry,
                 std::string programFolder);

    bool AutoStart = false;
    bool AutoQuit = false;           // quit when the simulator goes away
    bool ManualProfile = false;      // ask for a profile when a new aircraft is reported
    bool LoadWithoutPanels = false;  // go on at start with no panels
    int32_t OrvoPriority = 0;        // priority class of the program
    int32_t DeckhubPriority = 0;     // priority class of the panels' readers
    int32_t OrvoAffinity = 0;        // processor mask, -1 for automatic
    int32_t DeckhubAffinity = 0;
    int32_t ClickThreshold = 0;  // milliseconds from which a press counts as a long click
    uint8_t EngineStarterMode = 0;
    // Window positions in twips; 0, 0 for none saved.
    int32_t SetupFormTop = 0, SetupFormLeft = 0;
    int32_t GetKeysFormTop = 0, GetKeysFormLeft = 0;
    int32_t ProfilesFormTop = 0, ProfilesFormLeft = 0;
    int32_t AircraftFormTop = 0, AircraftFormLeft = 0;
    int32_t ProfileNameFormTop = 0, ProfileNameFormLeft = 0;
    int32_t ProfileImportFormTop = 0, ProfileImportFormLeft = 0;
    int32_t GeneralSetupFormTop = 0, GeneralSetupFormLeft = 0;
    int32_t MainFormTop = 0, MainFormLeft = 0;
    bool Splash = false;  // run each panel's start-up show

    void LoadDefaults();

    // Defaults, then what the file says. A value that is no number in its field's range leaves the
    // default; unknown keys are passed over. False while the file can't be read: then all is as it
    // was when it was last read or saved, at first the defaults.
    [[nodiscard]] bool LoadSetup();

    // Reads what no LoadSetup could read yet. What has been changed since then stays as it is now.
    // False while the file can't be read.
    [[nodiscard]] bool ReadWhatIsMissing();
    // Whether a reading has succeeded yet.
    bool IsRead() const { return read_; }

    // All keys or, when the file can't be read or written, none. Waits up to
    // `patienceMs` milliseconds for a file that is held. The logon entry follows AutoStart as
    // soon as the file does.
    SaveResult SaveSetup(uint32_t patienceMs = kSavePatienceMs);

  private:
    using Values = std::vector<int32_t>;

    Values AllValues() const;
    void SetAll(const Values& values);
    bool TrySave();
    void SaveAutoStart();

    const IniFiles files_;
    Clock& clock_;
    RegistryPort& registry_;
    const std::string programFolder_;
    const std::string path_;
    bool read_ = false;
    Values inFile_;  // as far as we know
};
