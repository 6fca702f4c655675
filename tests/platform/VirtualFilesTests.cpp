#include <gtest/gtest.h>

#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualIni.h"

namespace {

TEST(VirtualFilesTest, PowerCutStopsAtTheChangeAndAllLaterOnes) {
    VirtualFiles files;
    VirtualIni ini(files);
    files.CutPowerAfter(1);
    EXPECT_TRUE(ini.WritePrivateProfileStringA("A", "x", "1", "a.ini"));
    EXPECT_TRUE(ini.WritePrivateProfileStringA("A", "x", "1", "a.ini")) << "changes nothing";
    EXPECT_THROW(ini.WritePrivateProfileStringA("A", "x", "2", "a.ini"), PowerCut);
    EXPECT_FALSE(ini.WritePrivateProfileStringA("A", "x", "3", "a.ini"));
    EXPECT_FALSE(files.Replace("a.ini", "b.ini"));
    EXPECT_EQ(files.ChangeCount(), 1);

    files.RestorePower();
    EXPECT_EQ(files.Look("A.INI"), "[A]\r\nx=1\r\n");
    files.CutPowerAfter(0, LastChange::Half);
    EXPECT_THROW(files.Replace("a.ini", "b.ini"), PowerCut);
    EXPECT_EQ(files.Paths(), std::vector<std::string>{"a.ini"}) << "one step: all or nothing";
    files.CutPowerAfter(0, LastChange::Half);
    EXPECT_THROW(files.Copy("a.ini", "b.ini"), PowerCut);
    EXPECT_EQ(files.Look("b.ini"), "[A]\r\n") << "half of it came through";
}

}  // namespace
