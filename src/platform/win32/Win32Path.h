#pragma once

#include <optional>
#include <string>

// Paths between the system, which has all letters, and the program, whose text is 8-bit.

// Text of the system's code page.
std::wstring ToWide(const std::string& text);

// A name of an existing folder by which the 8-bit calls reach it: its own where the code page has
// all its letters, else the short one that the system may keep for it. Else the folder becomes the
// current one of this process, and the name is ".". When that fails, too, the name has a '?' for
// each letter that is missing, and reaches nothing.
std::string ReachableFolder(const std::wstring& folder);

// The last two ways of the above. Nothing when it can't be gone.
std::optional<std::string> ByShortName(const std::wstring& folder);
std::optional<std::string> ByCurrentFolder(const std::wstring& folder);

// The whole path of a name that the above began: no short names, and not from the current folder.
std::wstring FullPath(const std::string& path);
