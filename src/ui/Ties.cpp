#include "ui/Ties.h"

#include <utility>
#include <vector>

#include "ui/ctlEventSelector.h"

std::function<void()> Ties::Add(When when, std::function<void()> load,
                                std::function<void()> store) {
    Tie& tie = ties_.emplace_back(Tie{when, std::move(load), std::move(store)});
    return [this, &tie] {
        if (loading_) return;
        tie.changed = true;
        if (tie.when == When::AtOnce) tie.store();
    };
}

void Ties::Add(CheckBox& box, const HolderPlace<bool>& place, When when) {
    box.Click.Connect(Add(
        when, [&box, place] { box.SetValue(place.get()); },
        [&box, place] { place.set(box.Value()); }));
}

void Ties::Add(std::initializer_list<OptionButton*> options, const HolderPlace<int32_t>& place,
               When when) {
    const std::vector<OptionButton*> group(options);
    const auto changed = Add(
        when,
        [group, place] {
            const int32_t value = place.get();
            for (size_t i = 0; i < group.size(); ++i) {
                group[i]->SetValue(static_cast<int32_t>(i) == value);
            }
        },
        [group, place] {
            for (size_t i = 0; i < group.size(); ++i) {
                if (group[i]->Value()) place.set(static_cast<int32_t>(i));
            }
        });
    for (OptionButton* option : group) option->Click.Connect(changed);
}

void Ties::Add(Slider& slider, const HolderPlace<int32_t>& place, When when) {
    slider.Change.Connect(Add(
        when, [&slider, place] { slider.SetValue(place.get()); },
        [&slider, place] { place.set(slider.Value()); }));
}

void Ties::Add(ComboBox& box, const HolderPlace<int32_t>& place, When when) {
    box.Click.Connect(Add(
        when,
        [&box, place] {
            const int32_t index = place.get();
            box.SetListIndex(index < box.ListCount() ? index : -1);
        },
        [&box, place] { place.set(box.ListIndex()); }));
}

void Ties::Add(ctlEventSelector& selector, const HolderPlace<ActionRecord>& place) {
    selector.Changed.Connect(Add(
        When::Stored, [&selector, place] { selector.Put(place.get()); },
        [&selector, place] {
            ActionRecord record = place.get();
            selector.Take(record);
            place.set(record);
        }));
}

void Ties::Add(TextBox& box, const TextPlace& place) {
    box.Change.Connect(Add(
        When::AtOnce, [&box, place] { box.SetText(place.get()); },
        [&box, place] {
            const std::string& text = box.Text();
            if (place.take(text) || (place.unfinished && place.unfinished(text))) return;
            box.SetText(place.otherwise());
        }));
    box.LostFocus.Connect([&box, place] {
        if (place.unfinished && place.unfinished(box.Text())) box.SetText(place.otherwise());
    });
}

void Ties::Load() {
    loading_ = true;
    for (Tie& tie : ties_) {
        tie.load();
        tie.changed = false;
    }
    loading_ = false;
}

void Ties::Store() {
    for (Tie& tie : ties_) {
        if (std::exchange(tie.changed, false)) tie.store();
    }
}

void Ties::FollowTabs(TabStrip& tabs) {
    tabs.BeforeClick.Connect([this] { Store(); });
    tabs.Click.Connect([this] { Load(); });
}
