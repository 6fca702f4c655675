#include "contract/ContractPlatform.h"

namespace {

constexpr uint32_t kCurrentUser = 0x80000001;
constexpr uint32_t kString = 1;
constexpr uint32_t kBinary = 3;

class RegistryPortContract : public ContractTest {
  protected:
    std::optional<std::string> Read(const std::string& name) {
        return registry.ReadValue(kCurrentUser, key, name);
    }
    bool Write(const std::string& name, const std::string& data, uint32_t type = kString) {
        return registry.WriteValue(kCurrentUser, key, name, type, data);
    }

    RegistryPort& registry = ports.registry;
    const std::string key =
        "Software\\Orvo Contract\\" + std::to_string(ports.process.GetCurrentProcessId());
};

TEST_F(RegistryPortContract, WritesReadsAndDeletesValues) {
    EXPECT_EQ(Read("first"), std::nullopt);
    EXPECT_FALSE(registry.DeleteValue(kCurrentUser, key, "first"));

    const std::string texts[] = {std::string(1000, 'x'), "", "\"\xC4\\\xE4.exe\" /auto"};
    for (const std::string& text : texts) {
        EXPECT_TRUE(Write("first", text));
        EXPECT_TRUE(Write("second", "2"));
        EXPECT_EQ(Read("FIRST"), text);
        EXPECT_EQ(Read("second"), "2");
    }
    const std::string program = ports.process.ProgramFolder() + "\\Orvo.exe";
    EXPECT_TRUE(registry.WritePath(kCurrentUser, key, "first", kString, program));
    EXPECT_EQ(Read("first"), program);
    EXPECT_TRUE(Write("first", "abcd", kBinary));
    EXPECT_EQ(Read("first"), std::nullopt) << "only strings are read";
    for (const char* name : {"first", "second"}) {
        EXPECT_TRUE(registry.DeleteValue(kCurrentUser, key, name));
        EXPECT_EQ(Read(name), std::nullopt);
    }
}

}  // namespace
