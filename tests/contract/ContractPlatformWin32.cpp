#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "contract/ContractPlatform.h"
#include "platform/win32/Win32Platform.h"

struct ContractPlatform::Machine {
    Win32Platform platform;
    std::filesystem::path folder;
};

ContractPlatform::ContractPlatform() : machine_(std::make_unique<Machine>()) {
    static std::atomic<int> serial = 0;
    const auto process = machine_->platform.Ports().process.GetCurrentProcessId();
    machine_->folder = std::filesystem::temp_directory_path() /
                       ("orvo-" + std::to_string(process) + "-" + std::to_string(++serial));
    std::filesystem::create_directories(machine_->folder);
}

ContractPlatform::~ContractPlatform() {
    std::error_code ignored;
    std::filesystem::remove_all(machine_->folder, ignored);
}

Platform ContractPlatform::Ports() { return machine_->platform.Ports(); }

std::string ContractPlatform::Path(const std::string& name) const {
    return (machine_->folder / name).string();
}

void ContractPlatform::Put(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::optional<std::string> ContractPlatform::Look(const std::string& path) const {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}
