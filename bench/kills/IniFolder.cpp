#include "bench/kills/IniFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace bench {

namespace {

std::string Trimmed(const std::string& text) {
    const size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

IniFolder::Entries EntriesOf(const std::string& text) {
    IniFolder::Entries entries;
    std::istringstream lines(text);
    std::string section;
    for (std::string line; std::getline(lines, line);) {
        line = Trimmed(line);
        const size_t equals = line.find('=');
        if (line.starts_with('[')) section = line + ' ';
        if (line.empty() || line.starts_with('[')) continue;
        const bool entry = equals != std::string::npos && !line.starts_with(';');
        const std::string key = section + (entry ? Trimmed(line.substr(0, equals)) : line);
        // A key that is there twice is another entry, which nothing wanted.
        const std::string name = entries.contains(key) ? key + " again" : key;
        entries[name] = entry ? Trimmed(line.substr(equals + 1)) : "";
    }
    return entries;
}

const IniFolder::Entries* Find(const IniFolder& folder, const std::string& file) {
    const auto found = folder.files.find(file);
    return found == folder.files.end() ? nullptr : &found->second;
}

bool Same(const IniFolder::Entries* one, const IniFolder::Entries* other) {
    return one && other ? *one == *other : one == other;
}

std::string Differences(const IniFolder::Entries& before, const IniFolder::Entries& now) {
    std::string text;
    for (const auto& [key, value] : before) {
        const auto found = now.find(key);
        if (found == now.end()) {
            text += "  lost: " + key + '=' + value + '\n';
        } else if (found->second != value) {
            text += "  changed: " + key + '=' + value + " to " + found->second + '\n';
        }
    }
    for (const auto& [key, value] : now) {
        if (!before.contains(key)) text += "  new: " + key + '=' + value + '\n';
    }
    return text;
}

}  // namespace

IniFolder IniFolder::Read(const std::string& folder) {
    namespace fs = std::filesystem;
    IniFolder state;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (name.find(".ini") == std::string::npos) continue;
        const std::string text = BytesOf(entry.path());
        if (!name.ends_with(".ini")) {
            const auto time = entry.last_write_time(error).time_since_epoch().count();
            state.copies[name] = std::to_string(time) + ' ' + text;
            continue;
        }
        state.files[name] = EntriesOf(text);
        const bool torn = !text.empty() && !text.ends_with('\n');
        if (torn || text.find('\0') != std::string::npos) state.broken.push_back(name);
    }
    return state;
}

std::string Damage(const IniFolder& before, const IniFolder& wanted, const IniFolder& now) {
    std::string text;
    std::set<std::string> names;
    for (const IniFolder* each : {&before, &wanted, &now}) {
        for (const auto& [name, entries] : each->files) names.insert(name);
    }
    for (const std::string& name : names) {
        const IniFolder::Entries* entries = Find(now, name);
        if (Same(entries, Find(before, name)) || Same(entries, Find(wanted, name))) continue;
        text += name + (entries ? " is neither old nor new\n" : " is gone\n");
        if (entries && Find(before, name)) text += Differences(*Find(before, name), *entries);
    }
    for (const std::string& name : now.broken) text += name + " is torn\n";
    for (const auto& [name, bytes] : now.copies) {
        if (!name.ends_with(".ini.new")) text += "left over: " + name + '\n';
    }
    return text;
}

}  // namespace bench
