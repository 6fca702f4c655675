#include "PeerTest.h"
#include "toolkit/CheckBox.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Frame.h"
#include "toolkit/ListBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/TextBox.h"

namespace {

struct KeyTest : PeerTest {
    // Tells in the story what is clicked.
    void Name(CommandButton& button, const char* caption) {
        button.Caption = caption;
        button.Move(0, 0, 900, 330);
        button.Click.Connect([this, caption] { story += std::string(caption) + " "; });
    }
    std::string Told() { return std::exchange(story, {}); }
};

// A form that takes all keys, although it has what others give them to.
struct AllKeysTest : KeyTest {
    AllKeysTest() {
        Name(button, "&Save");
        form.DefaultButton = form.CancelButton = &button;
        form.TakesAllKeys = true;
        const auto tell = [this](const char* what) {
            return [this, what](int32_t key) { story += what + FormatInteger(key) + " "; };
        };
        form.KeyDown.Connect(tell("down"));
        form.KeyPress.Connect(tell("char"));
        form.KeyUp.Connect(tell("up"));
    }
    ~AllKeysTest() override { Hold(0); }

    // Makes this the only key that is down; none for 0.
    static void Hold(BYTE key) {
        BYTE keys[256]{};
        if (key != 0) keys[key] = 0x80;
        SetKeyboardState(keys);
    }

    CommandButton button{&form};
};

}  // namespace

TEST_F(AllKeysTest, EveryKeyGoesToItsEventsAndNoneToTheWindow) {
    Show(), Focus(button);
    Press('A'), Send(WM_KEYUP, 'A');
    EXPECT_EQ(Told(), "down65 char97 up65 ");
    for (const WPARAM key : {VK_TAB, VK_RETURN, VK_ESCAPE}) Press(key);
    EXPECT_EQ(Told(), "down9 char9 down13 char13 down27 char27 ");
    Press(VK_RIGHT), PressWithAlt('S'), Send(WM_SYSKEYUP, 'S', KF_ALTDOWN);
    EXPECT_EQ(Told(), "down39 down83 char115 up83 ");
    Send(WM_SYSKEYDOWN, VK_F10), Send(WM_SYSKEYUP, VK_F10);
    Send(WM_SYSKEYDOWN, VK_MENU, KF_ALTDOWN), Send(WM_SYSKEYUP, VK_MENU);
    EXPECT_EQ(Told(), "down121 up121 down18 up18 ");
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetCurrentThreadId(), &state);
    EXPECT_EQ(state.flags & GUI_INMENUMODE, 0u);
    EXPECT_EQ(GetFocus(), WindowOf(button));
}

TEST_F(AllKeysTest, CharactersAreBytesAndOthersAreDropped) {
    Show();
    for (const wchar_t character : {L'\u20AC', L'\u0416', L'\u00E9'}) Send(WM_CHAR, character);
    EXPECT_EQ(Told(), "char128 char233 ");
}

TEST_F(AllKeysTest, NothingMoreComesOfAKeyThatClosesTheForm) {
    Show();
    form.KeyDown.Connect([this](int32_t) { form.Unload(); });
    Press(VK_RETURN);
    EXPECT_EQ(Told(), "down13 ");
}

TEST_F(AllKeysTest, AKeyThatWasDownBeforeOnlyComesUpForWhoeverHadIt) {
    Hold(VK_RETURN);
    Show();
    Press(VK_RETURN, KF_REPEAT), Send(WM_KEYUP, VK_RETURN), Send(WM_KEYUP, VK_SNAPSHOT);
    EXPECT_EQ(Told(), "up44 ");
    Press(VK_RETURN), Send(WM_KEYUP, VK_RETURN);
    EXPECT_EQ(Told(), "down13 char13 up13 ");
    Hold(VK_RETURN);
    Form other(ui);
    other.Load();
    other.Show();
    form.Show();
    Send(WM_KEYUP, VK_RETURN);
    EXPECT_EQ(Told(), "") << "held while another one was active";
}

TEST_F(KeyTest, EnterAndEscapePressTheButtonThatTheyAreFor) {
    TextBox box(&form);
    CommandButton plain(&form), save(&form), cancel(&form);
    CheckBox check(&form);
    Name(plain, "plain"), Name(save, "save"), Name(cancel, "cancel");
    form.DefaultButton = &save;
    form.CancelButton = &cancel;
    Show();
    for (const Control* from : std::initializer_list<const Control*>{&box, &check, &plain}) {
        Focus(*from), Press(VK_RETURN), Press(VK_RETURN, KF_REPEAT), Press(VK_ESCAPE);
    }
    EXPECT_EQ(Told(), "save cancel save cancel plain cancel ");
    EXPECT_EQ(Tell(save, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON, DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(Tell(plain, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON, 0);
    Focus(box), Press(VK_TAB), Press(VK_TAB), Press(VK_TAB), Press(VK_TAB);
    EXPECT_EQ(GetFocus(), WindowOf(check));
    EXPECT_EQ(Tell(save, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON, DLGC_DEFPUSHBUTTON);
    save.Enabled = false;
    form.CancelButton = nullptr;
    Press(VK_RETURN), Press(VK_ESCAPE);
    EXPECT_EQ(Told(), "");
    EXPECT_FALSE(check.Value());
}

TEST_F(KeyTest, AListThatIsDroppedDownKeepsEnterAndEscape) {
    ComboBox list(&form), editable(&form, ComboBox::Kind::Editable);
    CommandButton button(&form);
    Name(button, "button");
    form.DefaultButton = form.CancelButton = &button;
    for (ComboBox* box : {&list, &editable}) {
        box->AddItem("a");
        box->Move(0, 600, 1500, 330);
    }
    Show();
    for (ComboBox* box : {&list, &editable}) {
        for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
            Focus(*box);
            Tell(*box, CB_SHOWDROPDOWN, TRUE);
            Press(key);
            EXPECT_FALSE(Tell(*box, CB_GETDROPPEDSTATE));
            EXPECT_EQ(Told(), "");
            Press(key);
            EXPECT_EQ(Told(), "button ");
        }
    }
}

TEST_F(KeyTest, LettersReachWhatTheyMark) {
    Container page(&form);
    page.Move(0, 0, 5000, 3000);
    CommandButton save(&page);
    CheckBox check(&page);
    OptionButton option(&page);
    Label plain(&page);
    CommandButton afterPlain(&page);
    Label label(&page);
    TextBox box(&page);
    Frame frame(&form);
    ListBox inside(&frame);
    Name(save, "&Save"), check.Caption = "&Check", option.Caption = "&Option";
    plain.Caption = "Nuts &Name", label.Caption = "&Name", frame.Caption = "&Group";
    label.HasMnemonic = true;
    for (Control* control : {static_cast<Control*>(&check), static_cast<Control*>(&option)}) {
        control->Move(0, 600, 900, 330);
    }
    box.SetText("text");
    Show(), Focus(save);
    PressWithAlt('S'), PressWithAlt('C'), PressWithAlt('O');
    EXPECT_EQ(Told(), "&Save ");
    EXPECT_TRUE(check.Value());
    EXPECT_TRUE(option.Value());
    Focus(save), PressWithAlt('N');
    EXPECT_EQ(GetFocus(), WindowOf(box));
    EXPECT_EQ(Tell(box, EM_GETSEL), MAKELONG(0, 4)) << "to be written over";
    PressWithAlt('G');
    EXPECT_EQ(GetFocus(), WindowOf(inside));
    EXPECT_EQ(GetWindowLongW(WindowOf(plain), GWL_STYLE) & SS_NOPREFIX, SS_NOPREFIX);
    EXPECT_EQ(GetWindowLongW(WindowOf(label), GWL_STYLE) & SS_NOPREFIX, 0);
}

TEST_F(KeyTest, KeyboardAndStackGoByTheOrderOfChildren) {
    CommandButton first(&form);
    Container page(&form);
    page.Move(0, 0, 900, 900);
    CommandButton inner(&page), skipped(&page);
    skipped.Enabled = false;
    form.Load();
    CommandButton last(&form);
    form.BringToFront(last);
    form.BringToFront(first);
    form.Load();
    EXPECT_EQ(GetWindow(WindowOf(first), GW_HWNDNEXT), WindowOf(last)) << "its place, although new";
    form.Show();
    Focus(first);
    for (const Control* next : {&last, &inner, &first, &last}) {
        Press(VK_TAB);
        EXPECT_EQ(GetFocus(), WindowOf(*next));
    }
    EXPECT_EQ(GetWindow(WindowOf(form), GW_CHILD), WindowOf(first));
    form.BringToFront(last);
    EXPECT_EQ(GetWindow(WindowOf(form), GW_CHILD), WindowOf(last));
    Focus(inner), Press(VK_TAB);
    EXPECT_EQ(GetFocus(), WindowOf(last));
}

TEST_F(KeyTest, ArrowsChooseWithinAGroupOfOptionsAndTabGoesByIt) {
    CommandButton before(&form);
    OptionButton a(&form), b(&form), c(&form);
    CommandButton after(&form);
    OptionButton other(&form);
    for (OptionButton* option : {&a, &b, &c, &other}) {
        Count(*option);
        option->Move(0, 0, 900, 330);
    }
    a.Enabled = false;
    Show(), Focus(before), Press(VK_TAB);
    EXPECT_EQ(GetFocus(), WindowOf(b)) << "the first that can be reached while none is chosen";
    EXPECT_EQ(clicks, 0);
    Press(VK_DOWN), Press(VK_DOWN);
    EXPECT_TRUE(b.Value()) << "round the end, past the one that is disabled";
    EXPECT_EQ(clicks, 2);
    Press(VK_LEFT), Press(VK_TAB);
    EXPECT_TRUE(c.Value());
    EXPECT_EQ(GetFocus(), WindowOf(after));
    Focus(before), Press(VK_TAB);
    EXPECT_EQ(GetFocus(), WindowOf(c));
    c.SetValue(false);
    Focus(before), Press(VK_TAB);
    EXPECT_EQ(GetFocus(), WindowOf(b));
    EXPECT_FALSE(Tell(c, BM_GETCHECK));
}
