#include "simlink/BindingTable.h"

#include <algorithm>
#include <limits>

#include "base/Number.h"
#include "config/IniSave.h"
#include "simlink/ActionText.h"

namespace {

constexpr BindingTable::Range kByte = {0, 255};
constexpr BindingTable::Range kInteger16 = {std::numeric_limits<int16_t>::min(),
                                            std::numeric_limits<int16_t>::max()};

}  // namespace

void BindingTable::Add(std::string key, ActionRecord& record, ActionKind standard) {
    rows_.push_back({std::move(key), &record, static_cast<int32_t>(standard), {}});
}

void BindingTable::Add(std::string key, int16_t& number, int16_t standard) {
    rows_.push_back({std::move(key), &number, standard, kInteger16});
}

void BindingTable::Add(std::string key, uint8_t& number, uint8_t standard, Range range) {
    rows_.push_back({std::move(key), &number, standard, range});
}

void BindingTable::AddFlag(std::string key, uint8_t& flag) {
    rows_.push_back({std::move(key), &flag, 0, kByte, true});
}

void BindingTable::SetDefaults() const {
    for (const Row& row : rows_) {
        if (auto* const* record = std::get_if<ActionRecord*>(&row.place)) {
            (*record)->FSEvent = static_cast<ActionKind>(row.standard);
        } else if (auto* const* byte = std::get_if<uint8_t*>(&row.place)) {
            **byte = static_cast<uint8_t>(row.standard);
        } else {
            *std::get<int16_t*>(row.place) = static_cast<int16_t>(row.standard);
        }
    }
}

void BindingTable::Load(const ProfileStore& profiles, const std::string& section) const {
    SetDefaults();
    for (const auto& [key, value] : profiles.OpenProfile(section).Entries()) {
        const auto row = std::ranges::find(rows_, key, &Row::key);
        if (row != rows_.end()) Read(*row, value);
    }
}

void BindingTable::Save(ProfileStore& profiles, const std::string& section) const {
    profiles.SaveProfile([&](cInifile& ini) {
        ini.Section = section;
        std::vector<std::string> keys;
        int32_t count = 0;
        ini.EnumerateCurrentSection(keys, count);
        return std::ranges::all_of(rows_, [&](const Row& row) {
            ini.Key = row.key;
            const std::string text = Text(row);
            return text.empty() ? DeleteIfThere(ini, keys) : SetKey(ini, keys, text);
        });
    });
}

void BindingTable::Read(const Row& row, const std::string& text) {
    if (auto* const* record = std::get_if<ActionRecord*>(&row.place)) {
        ReadAction(text, **record);
        return;
    }
    const auto value = ParseInteger(text, row.range.low, row.range.high);
    if (!value) return;
    if (auto* const* byte = std::get_if<uint8_t*>(&row.place)) {
        **byte = static_cast<uint8_t>(*value);
    } else {
        *std::get<int16_t*>(row.place) = static_cast<int16_t>(*value);
    }
}

std::string BindingTable::Text(const Row& row) {
    if (auto* const* record = std::get_if<ActionRecord*>(&row.place)) {
        const bool standard = static_cast<int32_t>((*record)->FSEvent) == row.standard;
        return standard ? std::string() : ActionText(**record);
    }
    auto* const* byte = std::get_if<uint8_t*>(&row.place);
    const int32_t value = byte ? **byte : *std::get<int16_t*>(row.place);
    if (value == row.standard || (row.flag && value != 1)) return {};
    return FormatInteger(value);
}
