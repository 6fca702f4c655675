#include "platform/virtual/VirtualFiles.h"

#include <algorithm>

#include "base/Text.h"

bool VirtualFiles::Exists(const std::string& path) {
    return faults_.Take(FileCall::Exists) || files_.contains(Key(path));
}

bool VirtualFiles::Replace(const std::string& from, const std::string& to) {
    const auto content = Look(from);
    if (!content || TakeHold(from) || !MayChange(FileCall::Replace, to, nullptr)) return false;
    files_.erase(Key(from));
    files_[Key(to)] = *content;
    return true;
}

bool VirtualFiles::Rename(const std::string& from, const std::string& to) {
    const auto content = Look(from);
    if (!content || Look(to) || TakeHold(from) || !MayChange(FileCall::Rename, to, nullptr)) {
        return false;
    }
    files_.erase(Key(from));
    files_[Key(to)] = *content;
    return true;
}

bool VirtualFiles::Delete(const std::string& path) {
    if (!files_.contains(Key(path)) || !MayChange(FileCall::Delete, path, nullptr)) return false;
    files_.erase(Key(path));
    return true;
}

std::optional<std::string> VirtualFiles::Read(const std::string& path) {
    ++reads_;
    if (faults_.Take(FileCall::Read) || TakeHold(path)) return std::nullopt;
    return Look(path);
}

bool VirtualFiles::Write(const std::string& path, const std::string& content) {
    if (faults_.Take(FileCall::Write)) {
        files_[Key(path)] = content.substr(0, content.size() / 2);
        return false;
    }
    if (!MayChange(FileCall::Write, path, &content)) return false;
    files_[Key(path)] = content;
    return true;
}

std::optional<std::string> VirtualFiles::Look(const std::string& path) const {
    const auto found = files_.find(Key(path));
    if (found == files_.end()) return std::nullopt;
    return found->second;
}

std::vector<std::string> VirtualFiles::Paths() const {
    std::vector<std::string> paths;
    for (const auto& [path, content] : files_) paths.push_back(path);
    return paths;
}

void VirtualFiles::CutPowerAfter(int changes, LastChange last) {
    powerLeft_ = changes;
    lastChange_ = last;
}

std::string VirtualFiles::Key(const std::string& path) {
    std::string key = ToLower(path);
    std::replace(key.begin(), key.end(), '/', '\\');
    return key;
}

bool VirtualFiles::TakeHold(const std::string& path) {
    return Key(path) == held_ && holdLeft_-- > 0;
}

bool VirtualFiles::MayChange(FileCall call, const std::string& path, const std::string* content) {
    if (powerLeft_ && *powerLeft_ < 0) return false;
    if (faults_.Take(call) || TakeHold(path)) return false;
    if (!protected_.empty() && Key(path).starts_with(protected_)) return false;
    if (powerLeft_ && (*powerLeft_)-- == 0) {
        if (content && lastChange_ == LastChange::Half) {
            files_[Key(path)] = content->substr(0, content->size() / 2);
        }
        throw PowerCut{};
    }
    ++changes_;
    return true;
}
