#pragma once

#include <map>
#include <set>
#include <string>

#include "bench/virtual/VirtualCockpit.h"

// Sees that the program's files hold no less than before: no section of any file, no profile and no
// aircraft of the lists gets lost but by the user's will.
class FilesWatch {
  public:
    // Takes the files as they are now.
    explicit FilesWatch(const VirtualFiles& files);

    // What the user says to a box: he may agree to the deletion of a profile, and is told of an
    // import, which puts a section without keys in the place of another one.
    void TakeAnswer(const MsgBoxRequest& request, MsgBoxResult said);

    // What has been lost since the last call; empty when nothing has.
    std::string Lost();

    // In what the lists in the file differ from those of the running program, which has had the
    // time to save them.
    static std::string Unsaved(VirtualCockpit& cockpit);

  private:
    using Names = std::set<std::string>;  // of sections, and of the keys of the lists
    using Files = std::map<std::string, Names>;

    static Files All(const VirtualFiles& files);
    bool MayGo(const std::string& path, const std::string& name);

    const VirtualFiles& files_;
    int changes_;
    Files before_;
    int deletions_ = 0;
    bool imported_ = false;
    Names deleted_;  // profiles
};
