#include <vector>

#include "contract/ContractPlatform.h"

namespace {

class FilePortContract : public ContractTest {
  protected:
    FilePort& files = ports.files;
    const std::string a = machine.Path("a.ini");
    const std::string b = machine.Path("b.ini");
    const std::string none = machine.Path("none.ini");
};

TEST_F(FilePortContract, ExistsAndDelete) {
    machine.Put(a, "1");
    EXPECT_TRUE(files.Exists(a));
    EXPECT_TRUE(files.Exists(machine.Path("A.INI")));
    EXPECT_FALSE(files.Exists(none));
    EXPECT_TRUE(files.Delete(a));
    EXPECT_FALSE(files.Exists(a));
    EXPECT_FALSE(files.Delete(a));
}

TEST_F(FilePortContract, WriteMakesAndOverwritesWhatReadGives) {
    const std::string content("1\r\n\0\x1A\xFF", 6);
    EXPECT_EQ(files.Read(a), std::nullopt);
    for (const char* before : {"", "something longer"}) {
        machine.Put(b, before);
        EXPECT_TRUE(files.Write(b, content));
        EXPECT_EQ(machine.Look(b), content);
        EXPECT_EQ(files.Read(b), content);
    }
    EXPECT_TRUE(files.Write(a, ""));
    EXPECT_EQ(files.Read(a), "");
}

TEST_F(FilePortContract, ReplaceMovesOverTheOldFile) {
    machine.Put(a, "new");
    machine.Put(b, "old and longer");
    EXPECT_TRUE(files.Replace(a, b));
    EXPECT_EQ(machine.Look(a), std::nullopt);
    EXPECT_EQ(machine.Look(b), "new");
    EXPECT_TRUE(files.Replace(b, a)) << "nothing needs to be there";
    EXPECT_EQ(machine.Look(a), "new");
}

TEST_F(FilePortContract, RenameMovesWhatTheIniServiceWroteAndReads) {
    EXPECT_TRUE(ports.ini.WritePrivateProfileStringA("A", "x", "1", a));
    EXPECT_TRUE(files.Rename(machine.Path("A.INI"), b)) << "names compare without case";
    EXPECT_FALSE(files.Exists(a));
    std::vector<char> text(8);
    EXPECT_EQ(ports.ini.GetPrivateProfileStringA("A", "x", "", text, a), 0u);
    EXPECT_EQ(ports.ini.GetPrivateProfileStringA("A", "x", "", text, b), 1u);
    EXPECT_STREQ(text.data(), "1");
    EXPECT_TRUE(files.Write(b, "[A]\r\nx=2\r\n"));
    EXPECT_EQ(ports.ini.GetPrivateProfileStringA("A", "x", "", text, b), 1u);
    EXPECT_STREQ(text.data(), "2") << "nor does it go on with what it had seen";
}

TEST_F(FilePortContract, WhatFailsChangesNothing) {
    machine.Put(a, "new");
    machine.Put(b, "old");
    EXPECT_FALSE(files.Replace(none, b));
    EXPECT_FALSE(files.Rename(none, machine.Path("c.ini")));
    EXPECT_FALSE(files.Exists(machine.Path("c.ini")));
    EXPECT_FALSE(files.Rename(a, b)) << "there is one already";
    EXPECT_FALSE(files.Rename(a, machine.Path("B.INI")));
    EXPECT_FALSE(files.Write(machine.UnwritablePath(), "x"));
    EXPECT_FALSE(files.Replace(b, machine.UnwritablePath()));
    EXPECT_FALSE(files.Rename(b, machine.UnwritablePath()));
    EXPECT_EQ(machine.Look(a), "new");
    EXPECT_EQ(machine.Look(b), "old");
}

}  // namespace
