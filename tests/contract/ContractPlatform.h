#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"

// The machine that the contract suites run on: the virtual one natively, the real one on Windows.
class ContractPlatform {
  public:
    ContractPlatform();
    ~ContractPlatform();

    Platform Ports();

    // Path of a file in a folder of this object's own, which is empty at first.
    std::string Path(const std::string& name) const;
    // Path of a file that the system lets nobody write.
    std::string UnwritablePath() const { return Path("missing\\file.ini"); }

    // Files past the ports.
    void Put(const std::string& path, const std::string& content);
    std::optional<std::string> Look(const std::string& path) const;

  private:
    struct Machine;
    std::unique_ptr<Machine> machine_;
};

class ContractTest : public testing::Test {
  protected:
    ContractPlatform machine;
    Platform ports = machine.Ports();
};
