#pragma once

#include <string>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/kills/IniFolder.h"

namespace bench {

// Something that a user does and Orvo saves. "$" stands for a word that is another each time.
struct SavingAct {
    const char* subject;
    const char* name;
    // As the "window" of a flight's steps; behind "=" the title that is waited for.
    std::vector<const char*> way;
    // The one that saves; none for the simulator's next aircraft.
    const char* trigger;
    // What it changes.
    const char* file;
    const char* entry;  // none for an import
    std::vector<const char*> words;
};

// The acts by subject.
const std::vector<std::vector<SavingAct>>& SavingActs();

// The files that all begins with.
void WriteFirstFiles(const Cockpit& cockpit);

// One that is about to be done.
class Saving {
  public:
    // Chooses the word by what the files say now, and makes ready what the act needs. Orvo doesn't
    // run.
    Saving(Cockpit& cockpit, const SavingAct& act, int round);

    // False when there is nothing that the act could change now.
    bool HasWork() const { return wanted_.files != before_.files; }
    const SavingAct& Act() const { return act_; }
    // What the files say before, and when all of it is saved.
    const IniFolder& Before() const { return before_; }
    const IniFolder& Wanted() const { return wanted_; }

    // Starts Orvo and does all but the last. What goes wrong; empty when nothing does.
    std::string Prepare();
    // The last; returns when Orvo has been told.
    std::string Trigger();

  private:
    bool NeedsSimulator() const { return act_.trigger == nullptr; }
    bool IsDeletion() const;
    bool HasFileMissing() const;
    void ChooseWord(int round);
    // What the act is to make of the files with this word.
    IniFolder With(const std::string& word) const;
    std::string OpenMainWindow() const;
    std::string WalkTo(const std::string& step) const;
    std::string Filled(std::string text) const;

    Cockpit& cockpit_;
    const SavingAct& act_;
    std::string word_;
    IniFolder before_;
    IniFolder wanted_;
};

}  // namespace bench
