#pragma once

#include <optional>
#include <string>

// Whole files. Operations give false, and change nothing, when the system refuses.
class FilePort {
  public:
    virtual ~FilePort() = default;

    // False only when it is certain that there is no such file.
    virtual bool Exists(const std::string& path) = 0;
    // All that stands in the file. Nothing when there is no such file or the system doesn't give
    // it, as while another program holds it or writes to it.
    virtual std::optional<std::string> Read(const std::string& path) = 0;
    // Makes or overwrites the file. When it can't be written to its end it may be there in part.
    [[nodiscard]] virtual bool Write(const std::string& path, const std::string& content) = 0;
    // Puts `from` in the place of `to` in one step: whoever looks, at any moment and after any
    // crash, finds the old file or the new one. Not when the user has made `to` read-only.
    [[nodiscard]] virtual bool Replace(const std::string& from, const std::string& to) = 0;
    // Only when there is no file `to` yet.
    [[nodiscard]] virtual bool Rename(const std::string& from, const std::string& to) = 0;
    virtual bool Delete(const std::string& path) = 0;

    // Why the last Read, Write or Replace has failed, in the system's words. Empty when it hasn't.
    virtual std::string LastProblem() const = 0;
};
