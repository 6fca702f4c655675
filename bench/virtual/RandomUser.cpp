#include "bench/virtual/RandomUser.h"

#include <vector>

#include "toolkit/CheckBox.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/ListBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/Slider.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextBox.h"

namespace {

constexpr uint32_t kTypedCharacters = 12;
constexpr int32_t kTab = 9, kAlt = 18;

// The controls that the user can reach and work.
void Collect(Container& parent, std::vector<Control*>& found) {
    for (Control* child : parent.Children()) {
        if (!child->TakesActs() || dynamic_cast<PicturePart*>(child)) continue;
        auto* container = dynamic_cast<Container*>(child);
        if (!container || dynamic_cast<Picture*>(child)) found.push_back(child);
        if (container) Collect(*container, found);
    }
}

}  // namespace

RandomUser::RandomUser(HeadlessUi& ui, Choices& choices) : choices_(choices) {
    ui.User = [this](Form& form) { Use(form); };
    ui.Answer = [this](const MsgBoxRequest& request) { return Answer(request); };
}

void RandomUser::Act(Form& form) {
    if (form.TakesAllKeys) return PressKey(form);
    std::vector<Control*> reached;
    Collect(form, reached);
    if (!reached.empty()) Work(*choices_.OneOf(reached));
}

void RandomUser::Use(Form& form) {
    for (uint32_t left = choices_.Below(MostActs + 1); left > 0; --left) {
        if (form.IsUnloaded() || choices_.Ended()) break;
        Act(form);
        PassTime();
    }
    Close(form);
}

// A refused save leaves the window open.
void RandomUser::Close(Form& form) {
    const uint32_t way = choices_.Below(4);
    if (way < 2 && form.DefaultButton) form.DefaultButton->Press();
    if (way == 2 && form.CancelButton) form.CancelButton->Press();
    form.Unload();
}

MsgBoxResult RandomUser::Answer(const MsgBoxRequest& request) {
    MsgBoxResult said = choices_.OneIn(2) ? MsgBoxResult::Ok : MsgBoxResult::Cancel;
    if (request.buttons == MsgBoxButtons::Ok) said = MsgBoxResult::Ok;
    if (MaySay && !MaySay(request, said)) said = MsgBoxResult::Cancel;
    if (choices_.OneIn(4)) PassTime();
    return said;
}

void RandomUser::PressKey(Form& form) {
    static constexpr int32_t kKeys[] = {16, 17, kTab, 13, 27, 65, kAlt, 112};
    const int32_t key = choices_.OneIn(2) ? choices_.OneOf(kKeys) : choices_.Byte();
    form.KeyDown.Raise(key);
    if (choices_.OneIn(2)) form.KeyPress.Raise(choices_.Byte());
    if (!choices_.OneIn(8)) form.KeyUp.Raise(key);
}

void RandomUser::Work(Control& control) {
    if (auto* option = dynamic_cast<OptionButton*>(&control)) option->Press();
    if (auto* box = dynamic_cast<CheckBox*>(&control)) box->Press();
    if (auto* button = dynamic_cast<CommandButton*>(&control)) button->Press();
    if (auto* slider = dynamic_cast<Slider*>(&control)) {
        slider->Drag(choices_.Between(slider->Min() - 5, slider->Max() + 5));
    }
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        if (combo->IsEditable() && choices_.OneIn(2)) {
            combo->Type(Text());
        } else {
            combo->Choose(choices_.Between(0, combo->ListCount()));
        }
    }
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
        list->Choose(choices_.Between(0, list->ListCount()));
        if (choices_.OneIn(3)) list->DoubleClick();
    }
    if (auto* text = dynamic_cast<TextBox*>(&control)) {
        text->Type(Text());
        if (choices_.OneIn(2)) text->Leave();
    }
    if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
        tabs->Choose(choices_.Between(1, static_cast<int32_t>(tabs->Tabs().size()) + 1));
    }
    if (auto* picture = dynamic_cast<Picture*>(&control)) {
        picture->Press(choices_.Between(0, picture->Width), choices_.Between(0, picture->Height));
    }
}

// What one writes into such boxes, or anything.
std::string RandomUser::Text() {
    static const std::string kTexts[] = {"",     "0",    "1,5", "x",   "5000", "0.01", "1e3",
                                         "-0.5", "Jet2", "CON", "jet", "A B",  "10",   "65"};
    if (!choices_.OneIn(3)) return choices_.OneOf(kTexts);
    std::string text;
    for (uint32_t i = choices_.Below(kTypedCharacters); i > 0; --i) {
        text += static_cast<char>(choices_.Byte());
    }
    return text;
}
