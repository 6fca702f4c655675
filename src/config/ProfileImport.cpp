#include "config/ProfileImport.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

ProfileImport::ProfileImport(const ProfileFiles& files, std::string source, std::string target)
    : files_(files),
      source_(std::move(source)),
      target_(std::move(target)),
      text_(files.Read(source_)) {}

std::optional<std::vector<std::string>> ProfileImport::Sections() const {
    if (!text_) return std::nullopt;
    std::vector<std::string> names;
    for (std::string& name : text_->Sections()) {
        const bool isNew = std::ranges::none_of(
            names, [&name](const std::string& each) { return EqualNoCase(each, name); });
        if (isNew) names.push_back(std::move(name));
    }
    return names;
}

SaveResult ProfileImport::Copy(const std::vector<std::string>& sections) const {
    if (!text_) return files_.Unread(source_);
    IniSections copies;
    for (const std::string& name : sections) copies.emplace_back(name, text_->Written(name));
    return files_.SaveSections(target_, copies);
}
