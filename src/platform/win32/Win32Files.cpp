#include "platform/win32/Win32Files.h"

#include <iterator>

#include "platform/win32/Win32Handle.h"

namespace {

constexpr UINT kTextPage = 1252;  // of the program
constexpr LONGLONG kMostBytes = 64 * 1024 * 1024;
// A file that another program is writing to isn't given: it may stand there in part.
constexpr DWORD kReaders = FILE_SHARE_READ | FILE_SHARE_DELETE;

// The system may hold ini files in a cache and doesn't notice what is done to them otherwise. It is
// dropped here, where the files change behind its back: between the writes it does no harm.
void DropIniCache(const std::string& path) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

// Not every system minds that when it renames something over the file.
bool IsReadOnly(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0) {
        return false;
    }
    SetLastError(ERROR_ACCESS_DENIED);
    return true;
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

std::optional<std::string> Win32Files::Read(const std::string& path) {
    const Win32Handle file(
        CreateFileA(path.c_str(), GENERIC_READ, kReaders, nullptr, OPEN_EXISTING, 0, nullptr));
    LARGE_INTEGER size{};
    if (!Note(file && GetFileSizeEx(file.Get(), &size)) || size.QuadPart > kMostBytes) {
        return std::nullopt;
    }
    std::string content(static_cast<size_t>(size.QuadPart), '\0');
    DWORD count = 0;
    if (!Note(ReadFile(file.Get(), content.data(), static_cast<DWORD>(content.size()), &count,
                       nullptr) != 0) ||
        count != content.size()) {
        return std::nullopt;
    }
    return content;
}

bool Win32Files::Write(const std::string& path, const std::string& content) {
    DropIniCache(path);
    const Win32Handle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD count = 0;
    return Note(file && WriteFile(file.Get(), content.data(), static_cast<DWORD>(content.size()),
                                  &count, nullptr) != 0) &&
           count == content.size();
}

bool Win32Files::Replace(const std::string& from, const std::string& to) {
    DropIniCache(from);
    DropIniCache(to);
    WriteThrough(from);
    return Note(!IsReadOnly(to) &&
                MoveFileExA(from.c_str(), to.c_str(),
                            MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
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

bool Win32Files::Note(bool well) {
    problem_ = well ? 0 : GetLastError();
    return well;
}

std::string Win32Files::LastProblem() const {
    if (problem_ == 0) return "";
    wchar_t wide[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                  nullptr, problem_, 0, wide, std::size(wide), nullptr);
    while (length > 0 && wide[length - 1] <= L' ') --length;
    std::string text(2 * length, '\0');
    const int written =
        WideCharToMultiByte(kTextPage, 0, wide, static_cast<int>(length), text.data(),
                            static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<size_t>(written));
    return text;
}
