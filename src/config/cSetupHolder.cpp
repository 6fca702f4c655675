#include "config/cSetupHolder.h"

#include <algorithm>
#include <type_traits>
#include <variant>

#include "base/Number.h"
#include "config/cRegistry.h"
#include "platform/Patience.h"

namespace {

constexpr const char* kSection = "GeneralSetup";

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

bool Write(const cSetupHolder& holder, const Field& field, IniSection& keys) {
    if (field.keeping == Keeping::ReadOnly) return true;
    const int32_t value = Get(holder, field);
    if (field.keeping == Keeping::IfNotDefault && value == field.standard) {
        return keys.Delete(field.key);
    }
    return keys.Set(field.key, FormatInteger(value));
}

}  // namespace

cSetupHolder::cSetupHolder(IniService& ini, FilePort& files, Clock& clock, RegistryPort& registry,
                           std::string programFolder)
    : files_(ini, files),
      clock_(clock),
      registry_(registry),
      programFolder_(std::move(programFolder)),
      path_(programFolder_ + "\\Orvo.ini") {
    LoadDefaults();
    inFile_ = AllValues();
}

void cSetupHolder::LoadDefaults() {
    for (const Field& field : kFields) Set(*this, field, field.standard);
}

bool cSetupHolder::LoadSetup() {
    const auto text = files_.Read(path_);
    if (!text) {
        SetAll(inFile_);
        return false;
    }
    LoadDefaults();
    for (const auto& [key, value] : text->Entries(kSection)) {
        for (const Field& field : kFields) {
            if (key == field.key) Read(*this, field, value);
        }
    }
    inFile_ = AllValues();
    read_ = true;
    return true;
}

bool cSetupHolder::ReadWhatIsMissing() {
    if (read_) return true;
    const Values unread = inFile_;
    const Values now = AllValues();
    if (!LoadSetup()) {
        SetAll(now);
        return false;
    }
    Values merged = inFile_;
    for (size_t i = 0; i < merged.size(); ++i) {
        if (now[i] != unread[i]) merged[i] = now[i];
    }
    SetAll(merged);
    return true;
}

SaveResult cSetupHolder::SaveSetup(uint32_t patienceMs) {
    const bool saved = Patience(clock_, patienceMs).Try([this] { return TrySave(); });
    return files_.Result(saved, path_);
}

bool cSetupHolder::TrySave() {
    if (!ReadWhatIsMissing()) return false;
    const bool saved = files_.Save(path_, kSection, [this](IniSection& keys) {
        return std::ranges::all_of(kFields,
                                   [&](const Field& field) { return Write(*this, field, keys); });
    });
    if (!saved) return false;
    inFile_ = AllValues();
    SaveAutoStart();
    return true;
}

// By field, in the order of the table.
cSetupHolder::Values cSetupHolder::AllValues() const {
    Values values;
    for (const Field& field : kFields) values.push_back(Get(*this, field));
    return values;
}

void cSetupHolder::SetAll(const Values& values) {
    auto value = values.begin();
    for (const Field& field : kFields) Set(*this, field, *value++);
}

void cSetupHolder::SaveAutoStart() {
    cRegistry entry(registry_);
    entry.ClassKey = 0x80000001;
    entry.SectionKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    entry.ValueKey = "ORVO";
    entry.ValueType = 1;
    if (AutoStart) {
        entry.SetPath(programFolder_ + "\\Orvo.exe");
    } else if (!entry.Value().empty()) {
        entry.DeleteValue();
    }
}
