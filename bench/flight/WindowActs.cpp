#include "bench/flight/WindowActs.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <vector>

#include "bench/driver/Until.h"

namespace bench {

namespace {

constexpr uint32_t kWindowTimeMs = 10000;

// The window on top, or the frame in it that is meant.
struct Place {
    const Cockpit& cockpit;
    std::string frame;

    HWND Window() const {
        const HWND window = cockpit.FrontWindow();
        return frame.empty() ? window : FindShownChild(window, "Button", frame);
    }
    HWND Control(const char* kind, const std::optional<std::string>& text = {}) const {
        HWND control = nullptr;
        Until(kWindowTimeMs,
              [&] { return (control = FindShownChild(Window(), kind, text)) != nullptr; });
        return control;
    }
};

int PlaceOf(const std::string& text, const std::vector<std::string>& texts) {
    const auto found = std::ranges::find(texts, text);
    return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
}

// What a button starts may go on; the mark of a box or an option is there.
bool Press(const Place& place, const std::string& caption) {
    const HWND button = place.Control("Button", caption);
    if (!button) return false;
    switch (GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK) {
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
            return Tick(button);
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return ChooseOption(button);
        default:
            PressButton(button);
            return true;
    }
}

bool Slide(const Place& place, const std::string& value) {
    const HWND slider = place.Control("msctls_trackbar32");
    return slider && MoveSlider(slider, std::atoi(value.c_str()));
}

bool OpenTab(const Place& place, const std::string& caption) {
    Tab tab;
    return Until(kWindowTimeMs,
                 [&] { return (tab = FindTab(place.Window(), caption)).strip != nullptr; }) &&
           ClickTab(tab.strip, tab.number);
}

bool Type(const Place& place, const std::string& text) {
    const HWND edit = place.Control("Edit");
    if (!edit) return false;
    TypeInto(edit, text);
    return Until(kWindowTimeMs, [&] { return TextOf(edit) == text; });
}

bool Choose(const Place& place, const std::string& argument) {
    const auto number = static_cast<size_t>(std::atoi(argument.c_str()));
    const std::string entry = argument.substr(argument.find(' ') + 1);
    return Until(kWindowTimeMs, [&] {
        const auto lists = ShownChildren(place.Window(), "ComboBox");
        if (number < 1 || number > lists.size()) return false;
        const HWND list = lists[number - 1];
        return ChooseInCombo(list, PlaceOf(entry, ComboTexts(list)));
    });
}

bool WorkEntry(const Place& place, const std::string& entry, bool (*work)(HWND, int)) {
    return Until(kWindowTimeMs, [&] {
        const HWND list = FindShownChild(place.Window(), "ListBox", std::nullopt);
        const int index = list ? PlaceOf(entry, ListTexts(list)) : -1;
        return index >= 0 && work(list, index);
    });
}

bool SelectEntry(const Place& place, const std::string& entry) {
    return WorkEntry(place, entry, ClickEntry);
}

bool DoubleClick(const Place& place, const std::string& entry) {
    return WorkEntry(place, entry, DoubleClickEntry);
}

bool PressKeys(const Place&, const std::string& names) {
    constexpr struct {
        const char* name;
        WORD key;
    } kKeys[] = {{"Enter", VK_RETURN}, {"Esc", VK_ESCAPE}, {"Tab", VK_TAB},
                 {"Space", VK_SPACE},  {"Down", VK_DOWN},  {"Up", VK_UP}};
    std::istringstream words(names);
    for (std::string word; words >> word;) {
        const auto* key =
            std::ranges::find(kKeys, word, [](const auto& each) { return each.name; });
        if (key == std::end(kKeys)) return false;
        PressKey(key->key);
    }
    return true;
}

bool Close(const Place& place, const std::string&) {
    const HWND window = place.Window();
    if (window) PressCloseBox(window);
    return window != nullptr;
}

bool ClickTile(const Place& place, const std::string& number) {
    constexpr int kColumns = 8;
    const HWND picture = place.Control("OrvoPicture");
    const int tile = std::atoi(number.c_str());
    if (!picture) return false;
    ClickAt(picture, Pixels(780 + tile % kColumns * 1335), Pixels(600 + tile / kColumns * 720));
    return true;
}

constexpr struct {
    const char* words;
    bool (*work)(const Place& place, const std::string& argument);
} kActs[] = {
    {"press", Press}, {"slider", Slide},      {"tab", OpenTab},    {"type", Type},
    {"list", Choose}, {"entry", SelectEntry}, {"keys", PressKeys}, {"double click", DoubleClick},
    {"close", Close}, {"tile", ClickTile},
};

}  // namespace

Tab FindTab(HWND window, const std::string& caption) {
    for (const HWND strip : ShownChildren(window, "SysTabControl32")) {
        const int number = PlaceOf(caption, TabTexts(strip));
        if (number >= 0) return {strip, number};
    }
    return {};
}

int Pixels(int twips) {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return MulDiv(twips, dpi, 1440);
}

bool WorkWindow(const Cockpit& cockpit, const std::string& act) {
    const size_t colon = act.find(": ");
    const bool framed = colon != std::string::npos;
    const Place place{cockpit, framed ? act.substr(0, colon) : ""};
    const std::string order = framed ? act.substr(colon + 2) : act;
    for (const auto& [words, work] : kActs) {
        const std::string start = words;
        if (order == start) return work(place, "");
        if (order.starts_with(start + ' ')) return work(place, order.substr(start.size() + 1));
    }
    return false;
}

}  // namespace bench
