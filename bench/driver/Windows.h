#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace bench {

// Work with the windows of another process. A window that doesn't answer within a few seconds
// counts as one that is not there.

// First window of the process with this class (none: any) and this title. Hidden ones count.
HWND FindWindowOf(DWORD process, const char* className, const std::string& title);

// First child, at any depth, with this class and, if given, this text.
HWND FindChild(HWND parent, const char* className, const std::optional<std::string>& text);
// The same, of those that are to be seen.
HWND FindShownChild(HWND parent, const char* className, const std::optional<std::string>& text);

std::string TextOf(HWND window);

// Texts of the parts of a status bar.
std::vector<std::string> StatusTexts(HWND statusBar);

// Presses a button. Returns before what it starts is over.
void PressButton(HWND button);
// The same for the button of a message box that has this number (IDOK, IDCANCEL).
void PressBoxButton(HWND box, int button);
// The text of a message box.
std::string BoxText(HWND box);

// Clicks a tab, from 0.
bool ClickTab(HWND tabs, int index);

// Entries of a combo box, and the one that is chosen, empty when none is.
std::vector<std::string> ComboTexts(HWND combo);
std::string ComboSelection(HWND combo);
// Chooses an entry, from 0, as the user does. False when there is no such entry. Returns before
// what it starts is over.
bool ChooseInCombo(HWND combo, int index);

// Double click on the icon at the right end of the task bar.
bool DoubleClickTrayIcon();

// A number for what the screen shows in a window's place, or in the place of that icon; 0 when it
// can't be had.
uint64_t PictureOf(HWND window);
// The same for a part of the window, in pixels from its upper left corner.
uint64_t PictureOf(HWND window, const RECT& part);
uint64_t PictureOfTrayIcon();

}  // namespace bench
