#pragma once

#include <windows.h>

#include <string>

// The text of an edit field that the user may be writing in.
std::string EditText(HWND edit);
// Characters between the caret and the end.
int BehindCaret(HWND edit);
// Puts the caret of a field with the keyboard that far from the end.
void SetEditText(HWND edit, const std::string& text, int behindCaret);
