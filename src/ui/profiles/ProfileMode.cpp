#include "ui/profiles/ProfileMode.h"

#include <algorithm>

#include "base/Text.h"
#include "simlink/channel/AircraftMode.h"

namespace {

constexpr const char* kSection = "Common";
constexpr const char* kKey = "SpecialMode";

// Whoever applies a profile counts the case of the key.
bool Says(const IniText& text, const std::string& word) {
    const IniEntries entries = text.Entries(kSection);
    if (!word.empty())
        return std::ranges::find(entries, std::pair(std::string(kKey), word)) != entries.end();
    return std::ranges::none_of(entries,
                                [](const auto& entry) { return EqualNoCase(entry.first, kKey); });
}

}  // namespace

std::optional<uint8_t> ProfileMode::Read() const {
    const auto text = files_.Read(profile_);
    if (!text) return std::nullopt;
    return SpecialModeNamed(text->Value(kSection, kKey).value_or(""));
}

SaveResult ProfileMode::Write(uint8_t mode) const {
    const std::string word = kSpecialModeWords[mode];
    const auto text = files_.Read(profile_);
    if (text && Says(*text, word)) return {};
    return files_.Save(profile_, kSection, [&word](IniSection& keys) {
        return word.empty() ? keys.Delete(kKey) : keys.Set(kKey, word);
    });
}
