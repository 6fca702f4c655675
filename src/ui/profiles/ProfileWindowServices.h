#pragma once

#include "config/ProfileStore.h"
#include "ui/WindowServices.h"

// What the windows of the profiles work with.
struct ProfileWindowServices {
    WindowServices windows;
    ProfileStore& profiles;
};
