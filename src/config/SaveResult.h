#pragma once

#include <string>
#include <utility>

// Whether a save has worked and, if it hasn't, what to tell the user who asked for it.
class [[nodiscard]] SaveResult {
  public:
    SaveResult() = default;
    // `why` in the system's words; it may be empty.
    static SaveResult Refused(const std::string& path, const std::string& why) {
        return SaveResult("The file\n" + path + "\ncan't be saved." +
                          (why.empty() ? "" : "\n" + why));
    }
    static SaveResult Unread(const std::string& path) {
        return SaveResult("The file\n" + path + "\ncouldn't be read, so it can't be saved.");
    }
    static SaveResult Impossible(std::string problem) { return SaveResult(std::move(problem)); }

    explicit operator bool() const { return problem_.empty(); }
    const std::string& Problem() const { return problem_; }

  private:
    explicit SaveResult(std::string problem) : problem_(std::move(problem)) {}

    std::string problem_;
};
