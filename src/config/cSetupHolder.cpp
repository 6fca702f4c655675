#include "config/cSetupHolder.h"

#include <algorithm>
#include <type_traits>
#include <variant>

#include "base/Number.h"
#include "config/IniSave.h"
#include "config/cInifile.h"
#include "config/cRegistry.h"

namespace {

using Member = std::variant<bool cSetupHolder::*, uint8_t cSetupHolder::*, int32_t cSetupHolder::*>;

enum class Keeping {
    IfNotDefault,  // the key is there only when the value differs from the default
    Always,
    ReadOnly,  // the user's own key, never touched
};

struct Field {
    const char* key;
    Member member;
    int32_t standard;
    Keeping keeping = Keeping::IfNotDefault;
};

using S = cSetupHolder;

const Field kFields[] = {
    {"AutoStart", &S::AutoStart, 0},
    {"AutoQuit", &S::AutoQuit, 0},
    {"ManualProfile", &S::ManualProfile, 0},
    {"LoadWithoutPanels", &S::LoadWithoutPanels, 0},
    {"OrvoPriority", &S::OrvoPriority, 0x20, Keeping::Always},
    {"DeckhubPriority", &S::DeckhubPriority, 0x8000, Keeping::Always},
    {"OrvoAffinity", &S::OrvoAffinity, -1, Keeping::Always},
    {"DeckhubAffinity", &S::DeckhubAffinity, -1, Keeping::Always},
    {"ClickThreshold", &S::ClickThreshold, 500},
    {"EngineStarterMode", &S::EngineStarterMode, 0},
    {"SetupFormTop", &S::SetupFormTop, 0},
    {"SetupFormLeft", &S::SetupFormLeft, 0},
    {"GetKeysFormTop", &S::GetKeysFormTop, 0},
    {"GetKeysFormLeft", &S::GetKeysFormLeft, 0},
    {"ProfilesFormTop", &S::ProfilesFormTop, 0},
    {"ProfilesFormLeft", &S::ProfilesFormLeft, 0},
    {"AircraftFormTop", &S::AircraftFormTop, 0},
    {"AircraftFormLeft", &S::AircraftFormLeft, 0},
    {"ProfileNameFormTop", &S::ProfileNameFormTop, 0},
    {"ProfileNameFormLeft", &S::ProfileNameFormLeft, 0},
    {"ProfileImportFormTop", &S::ProfileImportFormTop, 0},
    {"ProfileImportFormLeft", &S::ProfileImportFormLeft, 0},
    {"GeneralSetupFormTop", &S::GeneralSetupFormTop, 0},
    {"GeneralSetupFormLeft", &S::GeneralSetupFormLeft, 0},
    {"MainFormTop", &S::MainFormTop, 0},
    {"MainFormLeft", &S::MainFormLeft, 0},
    {"Splash", &S::Splash, 1, Keeping::ReadOnly},
};

int32_t Get(const cSetupHolder& holder, const Field& field) {
    return std::visit([&](auto member) { return static_cast<int32_t>(holder.*member); },
                      field.member);
}

void Set(cSetupHolder& holder, const Field& field, int32_t value) {
    std::visit(
        [&](auto member) {
            using Type = std::remove_reference_t<decltype(holder.*member)>;
            holder.*member = static_cast<Type>(value);
        },
        field.member);
}

// A boolean changes only by the number that is not its default: 1 makes true what is false by
// default, 0 makes false what is true by default.
void Read(cSetupHolder& holder, const Field& field, const std::string& text) {
    const bool boolean = std::holds_alternative<bool cSetupHolder::*>(field.member);
    if (std::holds_alternative<uint8_t cSetupHolder::*>(field.member)) {
        if (const auto value = ParseInteger<uint8_t>(text)) Set(holder, field, *value);
    } else if (const auto value = ParseInteger<int32_t>(text)) {
        if (!boolean || *value == 1 - field.standard) Set(holder, field, *value);
    }
}

// `keys` are those that the section holds.
bool Write(const cSetupHolder& holder, const Field& field, const std::vector<std::string>& keys,
           cInifile& ini) {
    if (field.keeping == Keeping::ReadOnly) return true;
    ini.Key = field.key;
    const int32_t value = Get(holder, field);
    if (field.keeping == Keeping::IfNotDefault && value == field.standard) {
        return DeleteIfThere(ini, keys);
    }
    return SetKey(ini, keys, FormatInteger(value));
}

}  // namespace

cSetupHolder::cSetupHolder(IniService& ini, FilePort& files, RegistryPort& registry,
                           std::string programFolder)
    : ini_(ini), files_(files), registry_(registry), programFolder_(std::move(programFolder)) {
    LoadDefaults();
}

void cSetupHolder::LoadDefaults() {
    for (const Field& field : kFields) Set(*this, field, field.standard);
}

void cSetupHolder::LoadSetup() {
    LoadDefaults();
    cInifile ini(ini_);
    ini.Path = programFolder_ + "\\Orvo.ini";
    ini.Section = "GeneralSetup";
    for (const auto& [key, value] : ini.Entries()) {
        for (const Field& field : kFields) {
            if (key == field.key) Read(*this, field, value);
        }
    }
}

void cSetupHolder::SaveSetup() {
    SaveAutoStart();
    SaveIni(ini_, files_, programFolder_ + "\\Orvo.ini", [this](cInifile& ini) {
        ini.Section = "GeneralSetup";
        std::vector<std::string> keys;
        int32_t count = 0;
        ini.EnumerateCurrentSection(keys, count);
        return std::ranges::all_of(
            kFields, [&](const Field& field) { return Write(*this, field, keys, ini); });
    });
}

void cSetupHolder::SaveAutoStart() {
    cRegistry entry(registry_);
    entry.ClassKey = 0x80000001;
    entry.SectionKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    entry.ValueKey = "ORVO";
    entry.ValueType = 1;
    if (AutoStart) {
        entry.SetValue(programFolder_ + "\\Orvo.exe");
    } else if (!entry.Value().empty()) {
        entry.DeleteValue();
    }
}
