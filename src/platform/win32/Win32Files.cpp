#include "platform/win32/Win32Files.h"

#include "platform/win32/Win32Handle.h"

namespace {

// The system may hold ini files in a cache and doesn't notice what is done to them otherwise. It is
// dropped here, where the files change behind its back: between the writes it does no harm.
void DropIniCache(const std::string& path) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

// What stands in the file must be on the disk before the file's new name is.
void WriteThrough(const std::string& path) {
    const Win32Handle file(CreateFileA(path.c_str(), GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                       0, nullptr));
    if (file) FlushFileBuffers(file.Get());
}

}  // namespace

bool Win32Files::Exists(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES) return (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    const DWORD error = GetLastError();
    return error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND;
}

bool Win32Files::Copy(const std::string& from, const std::string& to) {
    DropIniCache(from);
    DropIniCache(to);
    if (!CopyFileA(from.c_str(), to.c_str(), FALSE)) return false;
    const DWORD attributes = GetFileAttributesA(to.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        SetFileAttributesA(to.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    return true;
}

bool Win32Files::Replace(const std::string& from, const std::string& to) {
    DropIniCache(from);
    DropIniCache(to);
    WriteThrough(from);
    return MoveFileExA(from.c_str(), to.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool Win32Files::Rename(const std::string& from, const std::string& to) {
    DropIniCache(from);
    DropIniCache(to);
    return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

bool Win32Files::Delete(const std::string& path) {
    DropIniCache(path);
    return DeleteFileA(path.c_str()) != 0;
}
