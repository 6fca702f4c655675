// Users who do anything at all in the setup windows.
#include <random>

#include "tests/panels/SetupWindowFlight.h"

namespace {

struct SetupWindowWalk : SetupWindowFlight {
    std::mt19937 random;
    int acts = 0;

    int32_t Any(int32_t low, int32_t high) {
        return std::uniform_int_distribution<int32_t>(low, high)(random);
    }

    // The controls that the user can reach and work.
    void Collect(Container& parent, std::vector<Control*>& found) {
        for (Control* child : parent.Children()) {
            auto* container = dynamic_cast<Container*>(child);
            const bool picture = dynamic_cast<Picture*>(child) != nullptr;
            const bool label = dynamic_cast<Label*>(child) != nullptr;
            if (child->TakesActs() && (!container || picture) && !label) found.push_back(child);
            if (container && !picture) Collect(*container, found);
        }
    }

    template <class Window>
    void Act(Window& window) {
        std::vector<Control*> reached;
        Collect(window, reached);
        // They would end the walk too soon.
        std::erase(reached, &window.cmdOk), std::erase(reached, &window.cmdCancel);
        Control* control =
            reached[static_cast<size_t>(Any(0, static_cast<int>(reached.size()) - 1))];
        static const char* const kTexts[] = {"", "0", "1,5", "x", "5000", "0.01", "1e3", "-0.5"};
        if (auto* option = dynamic_cast<OptionButton*>(control)) option->Press();
        if (auto* box = dynamic_cast<CheckBox*>(control)) box->Press();
        if (auto* button = dynamic_cast<CommandButton*>(control)) button->Press();
        if (auto* slider = dynamic_cast<Slider*>(control)) slider->Drag(Any(-5, 120));
        if (auto* list = dynamic_cast<ComboBox*>(control)) list->Choose(Any(0, list->ListCount()));
        if (auto* text = dynamic_cast<TextBox*>(control)) {
            text->Type(kTexts[Any(0, 7)]);
            if (Any(0, 1) == 0) text->Leave();
        }
        if (auto* tabs = dynamic_cast<TabStrip*>(control)) {
            tabs->Choose(Any(1, static_cast<int32_t>(tabs->Tabs().size())));
        }
        if (auto* picture = dynamic_cast<Picture*>(control)) {
            picture->Press(Any(0, picture->Width), Any(0, picture->Height));
        }
    }

    void Elsewhere() {
        if (Any(0, 99) == 0) devices[static_cast<size_t>(Any(0, 3))]->Unplug();
        switch (Any(0, 9)) {
            case 0:
                return FlyAircraft("Learjet");
            case 1:
                return FlyAircraft("Baron 58");
            case 2:
                return LoseSimulator();
            case 3:
                return Connect();
            default:
                return Tick();
        }
    }

    template <class Holder>
    std::string Alone(Holder& holder) {
        const std::string before = std::exchange(holder.Profile, "Alone");
        machine.files.Delete("C:\\Orvo\\Alone.ini");
        EXPECT_TRUE(holder.SaveSetup());
        holder.Profile = before;
        return FileOf("C:\\Orvo\\Alone.ini");
    }

    // One window after another, with its holder.
    template <class Window, class Holder>
    void Visit(PanelKind kind, Holder Window::*actions) {
        In<Window>(kind, [&](Window& window) {
            for (int i = Any(20, 60); i > 0; --i, ++acts) {
                Act(window);
                if (Any(0, 5) == 0) Elsewhere();
            }
            Holder& holder = window.*actions;
            const std::string file = "C:\\Orvo\\" + holder.Profile + ".ini";
            const std::string before = FileOf(file.c_str());
            if (Any(0, 3) == 0) {
                window.cmdCancel.Press();
                ASSERT_EQ(FileOf(file.c_str()), before);
                return;
            }
            window.cmdOk.Press();
            ASSERT_TRUE(window.IsUnloaded());
            const std::string flown =
                std::exchange(program->Profiles.CurrentProfile, holder.Profile);
            Holder saved(program->Profiles);
            saved.Index = 1;
            saved.LoadSetup();
            program->Profiles.CurrentProfile = flown;
            ASSERT_EQ(Alone(saved), Alone(holder));
        });
    }
};

TEST_F(SetupWindowWalk, WhateverTheUserDoesTheFileIsWhatTheWindowHolds) {
    constexpr uint32_t kSeed = 20261125;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    random.seed(kSeed);
    Begin();
    Connect();
    while (acts < 2000 && !HasFailure()) {
        switch (Any(0, 3)) {
            case 0:
                Visit(PanelKind::Multi, &frmMultiPanelSetup::MPActions);
                break;
            case 1:
                Visit(PanelKind::Radio, &frmRadioPanelSetup::RPActions);
                break;
            case 2:
                Visit(PanelKind::Switch, &frmSwitchPanelSetup::SPActions);
                break;
            default:
                Visit(PanelKind::BIP, &frmBIPPanelSetup::BPActions);
        }
    }
    EXPECT_GE(acts, 2000);
}

}  // namespace
