#include "bench/figures/LinuxProcess.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

namespace bench {

namespace {

constexpr char kProcesses[] = "Z:\\proc\\";

std::vector<std::string> NumberedIn(const std::string& folder) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((folder + '*').c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if (found.cFileName[0] >= '1' && found.cFileName[0] <= '9') {
            names.emplace_back(found.cFileName);
        }
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return names;
}

}  // namespace

std::optional<LinuxProcess> LinuxProcess::Find(const std::string& executable) {
    for (std::string& id : NumberedIn(kProcesses)) {
        std::ifstream file(kProcesses + id + "\\cmdline", std::ios::binary);
        const std::string line(std::istreambuf_iterator<char>(file), {});
        if (line.starts_with(executable) || line.starts_with('"' + executable)) {
            return LinuxProcess(std::move(id));
        }
    }
    return std::nullopt;
}

double LinuxProcess::CpuMs() const {
    const std::string tasks = kProcesses + id_ + "\\task\\";
    double sum = 0;
    for (const std::string& task : NumberedIn(tasks)) {
        double nanoseconds = 0;
        std::ifstream(tasks + task + "\\schedstat") >> nanoseconds;
        sum += nanoseconds / 1e6;
    }
    return sum;
}

uint64_t LinuxProcess::AnonymousBytes() const {
    std::ifstream file(kProcesses + id_ + "\\status");
    for (std::string word; file >> word;) {
        uint64_t kibi = 0;
        if (word == "RssAnon:" && file >> kibi) return kibi * 1024;
    }
    return 0;
}

}  // namespace bench
