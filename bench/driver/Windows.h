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

// The window of the process that the user sees on top and can work in; message boxes count.
HWND FrontWindowOf(DWORD process);

// First child, at any depth, with this class and, if given, this text.
HWND FindChild(HWND parent, const char* className, const std::optional<std::string>& text);
// The same, of those that are to be seen.
HWND FindShownChild(HWND parent, const char* className, const std::optional<std::string>& text);

// All of them.
std::vector<HWND> ShownChildren(HWND parent, const char* className);

std::string TextOf(HWND window);

// Texts of the parts of a status bar.
std::vector<std::string> StatusTexts(HWND statusBar);

// Presses a button. Returns before what it starts is over.
void PressButton(HWND button);
// The same for the button of a message box that has this number (IDOK, IDCANCEL).
void PressBoxButton(HWND box, int button);
// The text of a message box.
std::string BoxText(HWND box);

// Clicks a check box. False when its mark is the same after that.
bool Tick(HWND box);
// Clicks an option. False when it isn't the chosen one after that.
bool ChooseOption(HWND option);
bool IsTicked(HWND boxOrOption);

int SliderValue(HWND slider);
// Moves the handle by the arrow keys, step by step. False when none of the steps ends there.
bool MoveSlider(HWND slider, int value);

// Clicks into an edit field and types over what it holds. Returns before all of it is taken.
void TypeInto(HWND edit, const std::string& text);

// Captions of the tabs.
std::vector<std::string> TabTexts(HWND tabs);
// Clicks a tab, from 0. False when it isn't the selected one after that.
bool ClickTab(HWND tabs, int index);

// Entries of a combo box, and the one that is chosen, empty when none is.
std::vector<std::string> ComboTexts(HWND combo);
std::string ComboSelection(HWND combo);
// Chooses an entry, from 0, as the user does. False when there is no such entry. Returns before
// what it starts is over.
bool ChooseInCombo(HWND combo, int index);

// The same of a list box.
std::vector<std::string> ListTexts(HWND list);
std::string ListSelection(HWND list);
// Clicks an entry, from 0. False when it isn't the one that is selected after that.
bool ClickEntry(HWND list, int index);
// Clicks it twice. Returns before what that starts is over.
bool DoubleClickEntry(HWND list, int index);

// Presses a key of the keyboard, for whatever has the focus.
void PressKey(WORD key);
// Presses the close box of a window.
void PressCloseBox(HWND window);

// The mouse goes to the middle of a window and clicks whatever is there. Returns at once, also when
// the window's program is busy.
void ClickByMouse(HWND window);
// Clicks a point of a window, in pixels from its upper left corner.
void ClickAt(HWND window, int x, int y);

// The mouse takes a window by its caption and drags it about for so long, and at the end by that
// many pixels from where it stood. False when it doesn't stand there then.
bool DragWindow(HWND window, int right, int down, uint32_t milliseconds = 0);

// Double click on the icon at the right end of the task bar.
bool DoubleClickTrayIcon();

// A number for what the screen shows in a window's place, or in the place of that icon; 0 when it
// can't be had.
uint64_t PictureOf(HWND window);
// The same for a part of the window, in pixels from its upper left corner.
uint64_t PictureOf(HWND window, const RECT& part);
uint64_t PictureOfTrayIcon();

}  // namespace bench
