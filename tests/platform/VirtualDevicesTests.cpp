#include <gtest/gtest.h>

#include "platform/virtual/VirtualPlatform.h"

namespace {

TEST(VirtualDevicesTest, LinkDeliversWhileItReadsAndNothingAfter) {
    VirtualPlatform machine;
    VirtualDevice& device = machine.bus.Add(1, 2, "\\\\?\\b");
    machine.bus.Add(1, 2, "\\\\?\\a");
    const auto list = machine.deckhub.CreateEnumerator();
    ASSERT_EQ(list->CountPanels(1, 2), 2);
    EXPECT_EQ(list->GetPanelPath(1), "\\\\?\\a");
    EXPECT_EQ(list->GetPanelPath(3), "");

    std::vector<int> seen;
    const auto link = machine.deckhub.CreateLink();
    link->RawInput.Connect([&](uint8_t, uint8_t, uint8_t, uint8_t last) { seen.push_back(last); });
    link->DeviceAddress = list->GetPanelPath(2);
    link->ReadWait = 1500;
    link->StartReading();
    link->ReadWait = 7;
    EXPECT_EQ(machine.deckhub.Starts(), (std::vector<LinkStart>{{"\\\\?\\b", 1500, 0, -1}}));

    device.SendReport({0, 0, 0, 1});
    device.SendReport({0, 0, 0});
    device.SendReport({0, 0, 0, 2, 9});
    EXPECT_TRUE(seen.empty()) << "reports come by way of the loop";
    machine.loop.RunPending();
    EXPECT_EQ(seen, (std::vector{1, 2}));

    device.SendReport({0, 0, 0, 3});
    link->StopReading();
    device.SendReport({0, 0, 0, 4});
    machine.loop.RunPending();
    link->StartReading();
    device.Unplug();
    device.SendReport({0, 0, 0, 5});
    machine.loop.RunPending();
    EXPECT_EQ(seen, (std::vector{1, 2}));
    EXPECT_EQ(machine.deckhub.ReadingCount(), 1);
}

TEST(VirtualDevicesTest, FeatureReportsEndWithTheDevice) {
    VirtualPlatform machine;
    VirtualDevice& device = machine.bus.Add(1, 2, "path");
    device.positions = {0, 1, 2};
    const uintptr_t handle = machine.hid.Open("PATH");
    const std::vector<uint8_t> report = {0, 7, 8};
    EXPECT_TRUE(machine.hid.SetFeature(handle, report));
    std::vector<uint8_t> read(5, 0xEE);
    EXPECT_TRUE(machine.hid.GetFeature(handle, read));
    EXPECT_EQ(read, (std::vector<uint8_t>{0xEE, 1, 2, 0, 0}));

    machine.hid.Refuse(HidCall::SetFeature, 1);
    EXPECT_FALSE(machine.hid.SetFeature(handle, report));
    device.Unplug();
    EXPECT_FALSE(machine.hid.SetFeature(handle, report));
    EXPECT_FALSE(machine.hid.SetFeature(0, report));
    EXPECT_EQ(machine.hid.Open("path"), 0u);
    EXPECT_EQ(device.featureReports, (std::vector<VirtualDevice::Report>{report}));
    machine.hid.Close(handle);
    EXPECT_EQ(machine.hid.OpenCount(), 0u);
}

TEST(VirtualDevicesTest, ChannelServesTheBlockThatTheAtomNames) {
    VirtualPlatform machine;
    VirtualIpc& ipc = machine.ipc;
    const uintptr_t window = ipc.AddWindow("UIPCMAIN");
    EXPECT_EQ(ipc.FindWindowExA("uipcmain"), window);
    const uint32_t message = ipc.RegisterWindowMessageA("FSASMLIB:IPC");
    const uint16_t atom = ipc.GlobalAddAtomA("name");
    const uintptr_t mapping = ipc.CreateFileMappingA("name", 32768);
    uint8_t* view = ipc.MapViewOfFile(mapping);
    // As the client sends it: 16 bits with their sign.
    const auto wParam = static_cast<uintptr_t>(static_cast<int16_t>(atom));
    uintptr_t reply = 9;

    const auto send = [&] {
        reply = 9;
        return ipc.SendMessageTimeoutA(window, message, wParam, 0, 1, 2000, reply);
    };
    EXPECT_NE(send(), 0u);
    EXPECT_EQ(reply, 1u);
    view[0] = 77;
    EXPECT_NE(send(), 0u);
    EXPECT_EQ(reply, 0u) << "can't be walked";
    view[0] = 0;
    ipc.TimeOut(1, 0);
    EXPECT_EQ(send(), 0u);
    EXPECT_EQ(ipc.GetLastError(), 0u);
    EXPECT_EQ(machine.clock.Elapsed(), 2000u);
    ipc.AnswerWith(3, 1);
    ipc.AfterServing([](std::span<uint8_t> block) { block[5] = 55; });
    EXPECT_NE(send(), 0u);
    EXPECT_EQ(reply, 3u);
    EXPECT_EQ(view[5], 55);
    EXPECT_EQ(ipc.SentMessages().size(), 4u);

    ipc.UnmapViewOfFile(view);
    ipc.CloseHandle(mapping);
    EXPECT_NE(send(), 0u);
    EXPECT_EQ(reply, 0u) << "no block";
    ipc.GlobalDeleteAtom(atom);
    EXPECT_EQ(ipc.OpenAtoms() + ipc.OpenMappings() + ipc.OpenViews(), 0u);
}

}  // namespace
