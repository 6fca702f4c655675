#include "PeerTest.h"
#include "toolkit/ComboBox.h"

namespace {

struct ComboBoxTest : PeerTest {
    ComboBoxTest() {
        for (int i = 0; i < 40; ++i) box.AddItem("Caf\xE9 " + FormatInteger(i));
        box.Click.Connect([this] { seen.push_back(box.ListIndex()); });
        box.Move(0, 0, 3000, 330);
        Show(), Focus(box);
    }
    HWND List() {
        COMBOBOXINFO parts{};
        parts.cbSize = sizeof parts;
        GetComboBoxInfo(WindowOf(box), &parts);
        return parts.hwndList;
    }
    void Drop(bool down = true) { Tell(box, CB_SHOWDROPDOWN, down); }

    ComboBox box{&form};
};

}  // namespace

TEST_F(ComboBoxTest, FollowsBothWaysAndClicksOnce) {
    box.AddItem("last");
    box.SetListIndex(40);
    EXPECT_EQ(TextOf(box), "last");
    Press(VK_UP);
    EXPECT_EQ(TextOf(box), "Caf\xE9 39");
    box.Click.Connect([this] {
        box.Clear();
        box.AddItem("new");
    });
    Press(VK_HOME);
    EXPECT_EQ(seen, (std::vector<int32_t>{40, 39, 0}));
    EXPECT_EQ(TextOf(box), "") << "refilled by the handler";
    EXPECT_EQ(Tell(box, CB_GETCOUNT), 1);
}

TEST_F(ComboBoxTest, LeavingItSelectsWhatItShowsThen) {
    box.SetListIndex(0);
    for (const WPARAM shown : {1, 0}) {
        Drop(), Press(VK_DOWN);
        Tell(box, CB_SETCURSEL, shown);
        Press(VK_ESCAPE);
    }
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 1, 2, 0}));
}

TEST_F(ComboBoxTest, ChoosingTheSameEntryClicksOnce) {
    box.SetListIndex(0);
    Drop(), Press(VK_RETURN);
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 0}));
    Drop();
    SendMessageW(List(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(List(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    Pump();
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 0, 0}));
    Drop(), Press(VK_DOWN), Press(VK_RETURN);
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 0, 0, 1})) << "a move has clicked already";
}

TEST_F(ComboBoxTest, ClosedItHasItsHeightAndOpenRoomForTwelve) {
    for (const int height : {24, 30}) {
        box.Height = height * 15;
        RECT place = PlaceOf(box);
        EXPECT_EQ(place.bottom - place.top, height);
        Drop();
        GetClientRect(List(), &place);
        Drop(false);
        EXPECT_EQ(place.bottom / Tell(box, CB_GETITEMHEIGHT), 12);
    }
}

struct EditableTest : PeerTest {
    EditableTest() {
        for (const char* item : {"one", "two"}) box.AddItem(item);
        box.Click.Connect([this] { story += "click:" + box.Text() + " "; });
        box.Change.Connect([this] { story += "change:" + box.Text() + " "; });
        box.Move(0, 0, 3000, 330);
        Show(), Focus(box);
    }

    ComboBox box{&form, ComboBox::Kind::Editable};
};

TEST_F(EditableTest, EntriesAreChosenAndAnythingIsTyped) {
    box.SetText("three");
    EXPECT_EQ(TextOf(box), "three");
    box.SetListIndex(1);
    EXPECT_EQ(TextOf(box), "two");
    Press(VK_HOME), Send(WM_CHAR, 'x'), Send(WM_CHAR, 'y');
    EXPECT_EQ(TextOf(box), "xytwo");
    EXPECT_EQ(box.ListIndex(), -1);
    Press(VK_DOWN);
    EXPECT_GE(box.ListIndex(), 0);
    EXPECT_EQ(TextOf(box), box.Text());
    EXPECT_EQ(story, "change:three click:two change:xtwo change:xytwo click:one ");
}

TEST_F(EditableTest, LeavingItsListKeepsWhatWasTyped) {
    box.SetText("free");
    Tell(box, CB_SHOWDROPDOWN, TRUE);
    Press(VK_ESCAPE);
    EXPECT_EQ(box.Text(), "free");
    EXPECT_EQ(TextOf(box), "free");
    EXPECT_EQ(PlaceOf(box).bottom - PlaceOf(box).top, 22);
}
