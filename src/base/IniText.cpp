#include "base/IniText.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "base/Text.h"

namespace {

std::string_view Strip(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\v\f\r\x1A";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view UpToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

IniText::IniText(std::string_view text) {
    while (!text.empty()) {
        const size_t end = text.find('\n');
        std::string_view raw = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (raw.ends_with('\r')) raw.remove_suffix(1);
        lines_.push_back(Parse(raw));
    }
}

std::optional<std::string> IniText::Value(std::string_view section, std::string_view key) const {
    const auto found = FindKey(section, key);
    if (!found) return std::nullopt;
    return std::string(WithoutQuotes(lines_[*found].value));
}

std::vector<std::string> IniText::Keys(std::string_view section) const {
    std::vector<std::string> keys;
    const auto [begin, end] = Range(section);
    for (size_t i = begin; i < end; ++i) {
        if (lines_[i].kind == Kind::Key) keys.push_back(lines_[i].name);
    }
    return keys;
}

std::vector<std::string> IniText::Sections() const {
    std::vector<std::string> sections;
    for (const Line& line : lines_) {
        if (line.kind == Kind::Section && !line.name.empty()) sections.push_back(line.name);
    }
    return sections;
}

IniEntries IniText::Entries(std::string_view section) const {
    IniEntries entries;
    std::unordered_map<std::string, std::string_view> values;
    const auto [begin, end] = Range(section);
    for (size_t i = begin; i < end; ++i) {
        const Line& line = lines_[i];
        if (line.kind != Kind::Key) continue;
        const auto first = values.try_emplace(ToLower(line.name), WithoutQuotes(line.value)).first;
        entries.emplace_back(line.name, first->second);
    }
    return entries;
}

IniEntries IniText::Written(std::string_view section) const {
    IniEntries entries;
    std::unordered_set<std::string> names;
    const auto [begin, end] = Range(section);
    for (size_t i = begin; i < end; ++i) {
        const Line& line = lines_[i];
        if (line.kind != Kind::Key || !names.insert(ToLower(line.name)).second) continue;
        entries.emplace_back(line.name, line.value);
    }
    return entries;
}

bool IniText::Set(std::string_view section, std::string_view key, std::string_view value) {
    if (const auto found = FindKey(section, key)) {
        Line& line = lines_[*found];
        if (line.value == value) return false;
        line = Parse(line.name + '=' + std::string(value));
        return true;
    }
    auto [begin, end] = Range(section);
    if (begin == end) {
        Insert(end, '[' + std::string(Strip(section)) + ']');
        ++end;
    }
    Insert(end, std::string(Strip(key)) + '=' + std::string(value));
    return true;
}

bool IniText::DeleteKey(std::string_view section, std::string_view key) {
    const auto found = FindKey(section, key);
    if (!found) return false;
    lines_.erase(lines_.begin() + static_cast<Lines::difference_type>(*found));
    return true;
}

bool IniText::DeleteSection(std::string_view section) {
    const auto [begin, end] = Range(section);
    lines_.erase(lines_.begin() + static_cast<Lines::difference_type>(begin),
                 lines_.begin() + static_cast<Lines::difference_type>(end));
    return begin != end;
}

void IniText::ReplaceSection(std::string_view section, const IniEntries& entries) {
    while (DeleteSection(section)) {
    }
    if (!entries.empty()) lines_.push_back(Parse('[' + std::string(section) + ']'));
    std::string line;
    for (const auto& [key, value] : entries) {
        line.assign(key).append(1, '=').append(value);
        lines_.push_back(Parse(line));
    }
}

std::string IniText::Text() const {
    std::string text;
    for (const Line& line : lines_) text.append(line.raw).append("\r\n");
    return text;
}

IniText::Line IniText::Parse(std::string_view raw) {
    const std::string_view text = Strip(raw);
    Line line{Kind::Other, std::string(raw), {}, {}};
    if (text.starts_with('[')) {
        const size_t close = text.rfind(']');
        if (close != std::string_view::npos) {
            line.kind = Kind::Section;
            line.name = Strip(UpToNul(text.substr(1, close - 1)));
            return line;
        }
    }
    const size_t equals = text.find('=');
    if (text.starts_with(';') || equals == std::string_view::npos) return line;
    line.name = Strip(UpToNul(text.substr(0, equals)));
    if (line.name.empty()) return line;
    line.kind = Kind::Key;
    line.value = Strip(UpToNul(text.substr(equals + 1)));
    return line;
}

std::pair<size_t, size_t> IniText::Range(std::string_view section) const {
    const std::string_view wanted = Strip(section);
    size_t begin = 0;
    while (begin < lines_.size() &&
           !(lines_[begin].kind == Kind::Section && EqualNoCase(lines_[begin].name, wanted))) {
        ++begin;
    }
    size_t end = std::min(begin + 1, lines_.size());
    while (end < lines_.size() && lines_[end].kind != Kind::Section) ++end;
    return {begin, end};
}

std::optional<size_t> IniText::FindKey(std::string_view section, std::string_view key) const {
    const std::string_view wanted = Strip(key);
    const auto [begin, end] = Range(section);
    for (size_t i = begin; i < end; ++i) {
        if (lines_[i].kind == Kind::Key && EqualNoCase(lines_[i].name, wanted)) return i;
    }
    return std::nullopt;
}

void IniText::Insert(size_t at, std::string_view raw) {
    lines_.insert(lines_.begin() + static_cast<Lines::difference_type>(at), Parse(raw));
}
