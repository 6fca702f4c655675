#include "config/cInifile.h"

#include <array>

namespace {

constexpr size_t kListing = 8192;  // characters, two of them behind the last name

void CutAtNuls(std::string_view names, std::vector<std::string>& list) {
    for (size_t end; (end = names.find('\0')) != std::string_view::npos;) {
        if (end > 0) list.emplace_back(names.substr(0, end));
        names.remove_prefix(end + 1);
    }
}

}  // namespace

std::string cInifile::Value() const {
    std::array<char, 255> buffer;
    buffer.fill(' ');
    const uint32_t length = service_.GetPrivateProfileStringA(Section, Key, Default, buffer, Path);
    return {buffer.data(), length};
}

void cInifile::SetValue(std::string_view text) {
    std::string clean(text);
    std::erase(clean, '\0');
    lastReturnCode_ = service_.WritePrivateProfileStringA(Section, Key, clean, Path);
}

void cInifile::DeleteKey() {
    lastReturnCode_ = service_.WritePrivateProfileStringA(Section, Key, std::nullopt, Path);
}

void cInifile::DeleteSection() {
    lastReturnCode_ =
        service_.WritePrivateProfileStringA(Section, std::nullopt, std::nullopt, Path);
}

std::string cInifile::INISection() const { return Names(Section); }

std::string cInifile::Sections() const { return Names(std::nullopt); }

std::string cInifile::Names(const std::optional<std::string>& section) const {
    std::array<char, kListing> buffer;
    const uint32_t length =
        service_.GetPrivateProfileStringA(section, std::nullopt, {}, buffer, Path);
    return {buffer.data(), length};
}

void cInifile::EnumerateCurrentSection(std::vector<std::string>& sKey, int32_t& iCount) const {
    sKey.clear();
    CutAtNuls(INISection(), sKey);
    iCount = static_cast<int32_t>(sKey.size());
}

void cInifile::EnumerateAllSections(std::vector<std::string>& sSections, int32_t& iCount) const {
    sSections.clear();
    CutAtNuls(Sections(), sSections);
    iCount = static_cast<int32_t>(sSections.size());
}
