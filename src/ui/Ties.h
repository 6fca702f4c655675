#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <type_traits>

#include "simlink/actions/ActionRecord.h"
#include "toolkit/CheckBox.h"
#include "toolkit/ComboBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Slider.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextBox.h"

class ctlEventSelector;

// A value of a holder, as a window gets and sets it.
template <class Value>
struct HolderPlace {
    std::function<Value()> get;
    std::function<void(const Value&)> set;
};

// One that is a field.
template <class Value, class Field>
HolderPlace<Value> FieldPlace(Field& field) {
    return {[&field] { return static_cast<Value>(field); },
            [&field](const Value& value) { field = static_cast<Field>(value); }};
}

// One of a holder that keeps it by the numbers of a panel's controls; `number` says which.
template <class Value, class Holder, class Got, class Set>
HolderPlace<Value> NumberedPlace(Holder& holder, Got (Holder::*get)(int32_t) const,
                                 void (Holder::*set)(int32_t, Set),
                                 const std::function<int32_t()>& number) {
    return {[&holder, get, number] { return static_cast<Value>((holder.*get)(number())); },
            [&holder, set, number](const Value& value) {
                using Stored = std::remove_cvref_t<Set>;
                (holder.*set)(number(), static_cast<Stored>(value));
            }};
}

// A value that is shown as text. `take` gives false for a text that it can't take; the box then
// shows what `otherwise` gives. One that is `unfinished`, as the user has to go on writing to get
// to a good one, stays until the box is left.
struct TextPlace {
    std::function<std::string()> get;
    std::function<bool(const std::string&)> take;
    std::function<std::string()> otherwise;
    std::function<bool(const std::string&)> unfinished{};
};

// The ties between the controls of a window and the places of a holder. A place changes only when
// the user changes its control: what a control can't show as it is, such as a number beyond a
// slider's end, stays.
class Ties {
  public:
    // When a change reaches its place: with Store, or at once.
    enum class When { Stored, AtOnce };

    Ties() = default;
    Ties(const Ties&) = delete;
    Ties& operator=(const Ties&) = delete;

    void Add(CheckBox& box, const HolderPlace<bool>& place, When when = When::Stored);
    // The number of the option, from 0, is the value.
    void Add(std::initializer_list<OptionButton*> options, const HolderPlace<int32_t>& place,
             When when = When::Stored);
    void Add(Slider& slider, const HolderPlace<int32_t>& place, When when = When::Stored);
    // The number of the entry, from 0, is the value; -1, or any without an entry, selects none.
    void Add(ComboBox& box, const HolderPlace<int32_t>& place, When when = When::Stored);
    void Add(ctlEventSelector& selector, const HolderPlace<ActionRecord>& place);
    // What is typed is taken at once.
    void Add(TextBox& box, const TextPlace& place);

    // All controls show their places.
    void Load();
    // What has been changed since Load reaches its place.
    void Store();

    // The places are those of the tab that is selected: they are stored when it is left, and loaded
    // when one is reached.
    void FollowTabs(TabStrip& tabs);

  private:
    struct Tie {
        When when;
        std::function<void()> load;
        std::function<void()> store;
        bool changed = false;
    };

    // Gives what is to be called when the control has changed.
    std::function<void()> Add(When when, std::function<void()> load, std::function<void()> store);

    std::deque<Tie> ties_;
    bool loading_ = false;
};
