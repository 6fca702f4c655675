#include <functional>

#include "PeerTest.h"
#include "toolkit/TextBox.h"

namespace {

HWND OpenBox(const char* title) { return FindWindowW(L"#32770", ToWide(title).c_str()); }

// A form, shown, over which modal ones are opened one from the other.
struct ModalTest : PeerTest {
    ModalTest() { Show(); }

    // Opens as many as there are levels, and calls `inside` in the last; afterwards they are
    // closed. The story tells what each finds when it has the screen again.
    void Open(int level, const std::function<void()>& inside) {
        if (level > 3) return inside();
        Form modal(ui);
        open.push_back(&modal);
        modal.Caption = FormatInteger(level);
        modal.Move(1500, 1500, 3000, 2000);
        modal.Unloaded.Connect([&] { story.append("-").append(modal.Caption.Get()).append(" "); });
        loop.Post([&, this] {
            const HWND below = GetWindow(WindowOf(modal), GW_OWNER);
            EXPECT_FALSE(IsWindowEnabled(below));
            EXPECT_EQ(GetForegroundWindow(), WindowOf(modal));
            story.append(TextOf(below)).append(">").append(modal.Caption.Get()).append(" ");
            Open(level + 1, inside);
            modal.Unload();
        });
        modal.ShowModal(loop);
        open.pop_back();
    }

    void ExpectInFront(const Form& shown) {
        Pump();
        EXPECT_EQ(GetForegroundWindow(), WindowOf(shown));
        EXPECT_TRUE(IsWindowEnabled(WindowOf(shown)));
    }

    // Shows a box, and calls `inside` while it is open, with its window.
    void Box(const std::function<void(HWND)>& inside) {
        loop.Post([this, inside] {
            const HWND box = OpenBox("box");
            ASSERT_TRUE(box);
            inside(box);
            PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        ui.MsgBox({"text", "box"});
    }

    std::vector<Form*> open;
};

}  // namespace

TEST_F(ModalTest, EachOneDisablesThoseBelowAndGivesTheScreenBack) {
    form.Caption = "main";
    Open(1, [this] {
        const Form& top = *open.back();
        Box([&](HWND box) {
            EXPECT_EQ(GetWindow(box, GW_OWNER), WindowOf(top));
            EXPECT_FALSE(IsWindowEnabled(WindowOf(top)));
            open.back()->Caption = "third";
            EXPECT_FALSE(IsWindowEnabled(WindowOf(top))) << "as the box has left it";
        });
        ExpectInFront(top);
        for (const Form* below : {&form, open[0], open[1]}) {
            EXPECT_FALSE(IsWindowEnabled(WindowOf(*below)));
        }
        open.back()->Unload();
        ExpectInFront(*open[1]);
    });
    EXPECT_EQ(story, "main>1 1>2 2>3 -third -2 -1 ");
    ExpectInFront(form);
}

TEST_F(ModalTest, EndOfTheUsersSessionEndsAllInOrder) {
    form.Unloaded.Connect([this] { story += "unloaded "; });
    form.SessionEnding.Connect([this] { story += "ending "; });
    Tell(form, WM_ENDSESSION, FALSE);
    EXPECT_EQ(story, "");
    Open(1, [this] {
        story.clear();
        Tell(form, WM_ENDSESSION, TRUE);
        EXPECT_EQ(story, "-3 -2 -1 unloaded ending ");
    });
}

TEST_F(ModalTest, ACloseFromOutsideClosesWhatStandsOverTheForm) {
    Open(1, [this] {
        story.clear();
        Tell(*open[0], WM_CLOSE);
        EXPECT_EQ(story, "-3 -2 -1 ");
    });
    ExpectInFront(form);
    EXPECT_FALSE(form.IsUnloaded());
}

TEST_F(ModalTest, AFormOverABoxKeepsItUntilItIsClosed) {
    Form modal(ui);
    modal.Move(1500, 1500, 3000, 2000);
    Box([&](HWND box) {
        loop.Post([&, box] {
            EXPECT_FALSE(IsWindowEnabled(box));
            modal.Unload();
        });
        modal.ShowModal(loop);
        EXPECT_TRUE(IsWindowEnabled(box));
        EXPECT_FALSE(IsWindowEnabled(WindowOf(form)));
    });
    ExpectInFront(form);
}

TEST_F(ModalTest, TicksAndPostsGoOnWhileABoxIsOpenThatATickHasOpened) {
    // However it goes, the box is closed in the end.
    const UINT_PTR guard = SetTimer(nullptr, 0, 3000, [](HWND, UINT, UINT_PTR, DWORD) {
        PostMessageW(OpenBox("box"), WM_COMMAND, IDOK, 0);
    });
    int ticks = 0, inBox = 0;
    const auto timer = loop.StartTimer(10, [&] {
        if (++ticks == 1) {
            loop.Post([&] { inBox += ticks == 1; });
            ui.MsgBox({"text", "box"});
            story += "closed";
        } else if (story.empty() && ++inBox == 6) {
            PostMessageW(OpenBox("box"), WM_COMMAND, IDOK, 0);
        }
    });
    loop.RunUntil([&] { return ticks >= 10 && !story.empty(); });
    loop.StopTimer(timer);
    KillTimer(nullptr, guard);
    EXPECT_EQ(inBox, 6) << "the task and five ticks";
}

TEST_F(ModalTest, TimersGoOnAndWhatIsTypedArrives) {
    Form modal(ui);
    TextBox box(&modal);
    int ticks = 0;
    const auto timer = loop.StartTimer(10, [&] {
        if (++ticks == 1) PostMessageW(GetFocus(), WM_CHAR, 'x', 0);
        if (ticks == 4) modal.Unload();
    });
    modal.ShowModal(loop);
    loop.StopTimer(timer);
    EXPECT_EQ(ticks, 4);
    EXPECT_EQ(box.Text(), "x");
}
