#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "config/ProfileFiles.h"

// The special mode that a profile's file names; 0 to 2, as SpecialMode. A change counts when the
// profile is applied next.
class ProfileMode {
  public:
    // `files` must outlive it.
    ProfileMode(const ProfileFiles& files, std::string profile)
        : files_(files), profile_(std::move(profile)) {}

    // Nothing while the file can't be read.
    std::optional<uint8_t> Read() const;
    // Touches no file that says so already.
    SaveResult Write(uint8_t mode) const;

  private:
    const ProfileFiles& files_;
    const std::string profile_;
};
