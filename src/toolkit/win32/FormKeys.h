#pragma once

#include <windows.h>

#include <bitset>

#include "toolkit/Form.h"

// Decides what a key is for that comes to a form's window or to one within it.
class FormKeys {
  public:
    explicit FormKeys(Form& form) : form_(form) {}

    // The form has become the active one.
    void OnActive();
    // False for what is to be translated and dispatched as usual.
    bool Take(HWND window, MSG& message);

  private:
    bool TakesReports() const { return form_.TakesActs() && !form_.IsUnloaded(); }
    void Report(const MSG& message);
    void ReportDown(const MSG& message);
    void ReportCharacter(WPARAM character);
    void ReportUp(const MSG& message);
    CommandButton* ButtonFor(const MSG& message) const;

    Form& form_;
    // Keys that were down when the form became the active one: they belong to what was there
    // before, until they come up.
    std::bitset<256> foreign_;
};
