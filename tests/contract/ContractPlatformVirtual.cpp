#include "contract/ContractPlatform.h"
#include "platform/virtual/VirtualPlatform.h"

struct ContractPlatform::Machine : VirtualPlatform {};

ContractPlatform::ContractPlatform() : machine_(std::make_unique<Machine>()) {
    machine_->files.Protect(UnwritablePath());
}

ContractPlatform::~ContractPlatform() = default;

Platform ContractPlatform::Ports() { return machine_->Ports(); }

std::string ContractPlatform::Path(const std::string& name) const { return "C:\\Orvo\\" + name; }

void ContractPlatform::Put(const std::string& path, const std::string& content) {
    machine_->files.Put(path, content);
}

std::optional<std::string> ContractPlatform::Look(const std::string& path) const {
    return machine_->files.Look(path);
}
