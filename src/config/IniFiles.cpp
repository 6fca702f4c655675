#include "config/IniFiles.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/Number.h"
#include "base/Text.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

constexpr int kMostCopies = 9;

bool IsUtf16(std::string_view bytes) { return bytes.starts_with(kUtf16Mark); }

IniText TextOf(const std::string& bytes) {
    return IsUtf16(bytes) ? IniText(FromUtf16(std::string_view(bytes).substr(kUtf16Mark.size())))
                          : IniText(bytes);
}

// Only what differs is touched: a key with characters that 8-bit text hasn't can't be written
// again. A deleted key takes its other spellings along.
bool WriteDifferences(IniSection& keys, const IniText& before, const std::string& section,
                      const IniEntries& after) {
    const IniEntries written = before.Written(section);
    const std::map<std::string, std::string> old(written.begin(), written.end());
    const std::map<std::string, std::string> now(after.begin(), after.end());
    std::set<std::string> deleted;
    for (const std::string& key : before.Keys(section)) {
        if (now.contains(key)) continue;
        if (!keys.Delete(key)) return false;
        deleted.insert(ToLower(key));
    }
    return std::ranges::all_of(after, [&](const auto& entry) {
        const auto found = old.find(entry.first);
        const bool there = found != old.end() && found->second == entry.second;
        return (there && !deleted.contains(ToLower(entry.first))) ||
               keys.Set(entry.first, entry.second);
    });
}

}  // namespace

bool IniSection::Set(const std::string& key, const std::string& text) {
    const bool there = std::ranges::find(keys_, key) != keys_.end();
    if (!there && !Delete(key)) return false;
    ini_.Key = key;
    ini_.SetValue(text);
    return ini_.Success();
}

bool IniSection::Delete(const std::string& key) {
    ini_.Key = key;
    // A key that a hand wrote twice would come to light when only its first one went.
    return std::ranges::all_of(keys_, [&](const std::string& each) {
        if (!EqualNoCase(each, key)) return true;
        ini_.DeleteKey();
        return ini_.Success();
    });
}

std::optional<IniText> IniFiles::Read(const std::string& path) const {
    const auto bytes = Bytes(path);
    if (!bytes) return std::nullopt;
    return TextOf(*bytes);
}

bool IniFiles::Save(const std::string& path, const std::string& section,
                    const std::function<bool(IniSection&)>& write) const {
    const auto bytes = Bytes(path);
    return bytes && ByCopy(path, *bytes, [&](const std::string& copy) {
               IniSection keys = SectionOf(copy, section, TextOf(*bytes));
               return write(keys);
           });
}

bool IniFiles::SaveSections(const std::string& path, const IniSections& sections) const {
    const auto bytes = Bytes(path);
    if (!bytes) return false;
    IniText text = TextOf(*bytes);
    if (IsUtf16(*bytes)) {
        return ByCopy(path, *bytes, [&](const std::string& copy) {
            return std::ranges::all_of(sections, [&](const auto& section) {
                IniSection keys = SectionOf(copy, section.first, text);
                return WriteDifferences(keys, text, section.first, section.second);
            });
        });
    }
    for (const auto& [section, entries] : sections) text.ReplaceSection(section, entries);
    return ByCopy(path, text.Text(), [](const std::string&) { return true; });
}

IniSection IniFiles::SectionOf(const std::string& copy, const std::string& section,
                               const IniText& before) const {
    cInifile ini(service_);
    ini.Path = copy;
    ini.Section = section;
    return {ini, before.Keys(section)};
}

// The mark that some editors put before 8-bit text would hide the first section from the service.
// Two of them may have put it there.
std::optional<std::string> IniFiles::Bytes(const std::string& path) const {
    if (!files_.Exists(path)) return std::string();
    auto bytes = files_.Read(path);
    while (bytes && bytes->starts_with(kUtf8Mark)) bytes->erase(0, kUtf8Mark.size());
    return bytes;
}

bool IniFiles::ByCopy(const std::string& path, const std::string& bytes,
                      const std::function<bool(const std::string&)>& write) const {
    const bool isNew = !files_.Exists(path);
    const auto copy = MakeCopy(path, bytes);
    if (!copy) return false;
    const bool written = write(*copy);
    const bool forNothing = written && isNew && files_.Read(*copy) == "";
    if (written && !forNothing && files_.Replace(*copy, path)) return true;
    files_.Delete(*copy);
    return forNothing;
}

// Something else may have the copy's name: a folder, or a file that another program holds; those
// can't be deleted. A part of a copy, as a full disk leaves it, can.
std::optional<std::string> IniFiles::MakeCopy(const std::string& path,
                                              const std::string& bytes) const {
    for (int number = 1; number <= kMostCopies; ++number) {
        std::string copy = path + ".new" + (number > 1 ? FormatInteger(number) : "");
        if (files_.Write(copy, bytes)) return copy;
        files_.Delete(copy);
    }
    return std::nullopt;
}
