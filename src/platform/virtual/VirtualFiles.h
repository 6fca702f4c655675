#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/FilePort.h"
#include "platform/virtual/Faults.h"

enum class FileCall : uint8_t { Exists, Replace, Rename, Delete, Read, Write };

// Thrown by the change at which the power went.
struct PowerCut {};

// What the change at which the power goes leaves: nothing of it, or, where it writes content, the
// first half of the content.
enum class LastChange : uint8_t { Undone, Half };

// Files in memory. Paths compare without regard to case, '/' stands for '\\'; folders need no
// making.
class VirtualFiles : public FilePort {
  public:
    bool Exists(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path) override;
    bool Write(const std::string& path, const std::string& content) override;
    bool Replace(const std::string& from, const std::string& to) override;
    bool Rename(const std::string& from, const std::string& to) override;
    bool Delete(const std::string& path) override;
    std::string LastProblem() const override { return "Refused."; }

    // The test's own hand: no fault touches these, and no change is counted.
    void Put(const std::string& path, const std::string& content) { files_[Key(path)] = content; }
    std::optional<std::string> Look(const std::string& path) const;
    // Sorted, in lower case.
    std::vector<std::string> Paths() const;

    // A refused Exists can't tell, and so gives true. A refused Write leaves a part, as a full disk
    // does.
    void Refuse(FileCall call, int times = Faults<FileCall>::kAlways) {
        faults_.Refuse(call, times);
    }
    // Refuses every change to files whose paths begin so; an empty text ends that.
    void Protect(const std::string& pathStart) { protected_ = Key(pathStart); }
    // Another program has this file open and shares it with nobody, for the next `times` that
    // somebody wants it; an empty path ends that.
    void Hold(const std::string& path, int times = Faults<FileCall>::kAlways) {
        held_ = Key(path);
        holdLeft_ = times;
    }

    // After `changes` more changes the power goes: the next one throws PowerCut, and later ones, as
    // of destructors on the way out, are refused until RestorePower.
    void CutPowerAfter(int changes, LastChange last = LastChange::Undone);
    void RestorePower() { powerLeft_.reset(); }
    // Changes that have taken place so far.
    int ChangeCount() const { return changes_; }
    // Readings that were asked for, given or refused.
    int ReadCount() const { return reads_; }

  private:
    static std::string Key(const std::string& path);
    bool TakeHold(const std::string& path);
    // Whether a change of `path` may go on. `content` is what it would write, if it writes any.
    bool MayChange(FileCall call, const std::string& path, const std::string* content);

    std::map<std::string, std::string> files_;
    std::string protected_;
    std::string held_;
    int holdLeft_ = 0;
    Faults<FileCall> faults_;
    std::optional<int> powerLeft_;  // below 0 once the power is gone
    LastChange lastChange_ = LastChange::Undone;
    int changes_ = 0;
    int reads_ = 0;
};
