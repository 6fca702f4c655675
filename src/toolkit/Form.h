#pragma once

#include "base/Event.h"
#include "platform/MessageLoop.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Container.h"

// A top-level window. Left, Top, Width and Height are those of the whole window on the screen;
// Visible is false from the start.
class Form : public Container {
  public:
    explicit Form(UiBackend& ui);
    ~Form() override;

    Property<bool, Control> Resizable{*this, false};
    Property<bool, Control> CanMinimize{*this, true};
    Property<bool, Control> StaysOnTop{*this, false};  // of all windows of the screen
    // Whether all keys go to the form's own key events, Tab, Enter, Esc and the arrows included.
    Property<bool, Control> TakesAllKeys{*this, false};

    Event<> QueryUnload;  // the window is going to close; all of it is still there
    Event<> Unloaded;     // it is closing for good
    // The user's session ends, and the process with it as soon as this returns: what must not be
    // left behind is to be ended here. The form is unloaded already.
    Event<> SessionEnding;

    // With TakesAllKeys: a virtual key goes down, gives a character (Windows-1252), comes up. A key
    // that was down when the form got the keyboard only comes up for whoever had it.
    Event<int32_t> KeyDown;
    Event<uint8_t> KeyPress;
    Event<int32_t> KeyUp;

    // The buttons that Enter and Esc press; null for none. They are the form's own.
    CommandButton* DefaultButton = nullptr;
    CommandButton* CancelButton = nullptr;

    // What has the keyboard when the form is shown first; null for the first control in the order.
    Control* FirstFocus = nullptr;

    // Gives Width and Height by what is to be inside the border, in twips.
    void SetContentSize(int32_t width, int32_t height);

    // Makes the peers that are missing; to be called again after controls have been added.
    void Load();
    // Brings the window to the front, also when it is shown already. One that is unloaded stays
    // hidden.
    void Show();
    void Hide() { Visible = false; }
    // Loads and shows the form where it stands, and returns when it is unloaded, by itself or with
    // a form below; the loop goes on meanwhile. The other forms can't be reached until then, and
    // the one from which it was opened comes back to the front.
    void ShowModal(MessageLoop& loop);

    // Closes for good: what is modal over it is unloaded; then QueryUnload, Unloaded, then the
    // window is hidden. The peers stay until the form ends, so a control's own handler may call
    // this. Only the first call does anything.
    void Unload();
    bool IsUnloaded() const { return unloaded_; }
    // The user logs off: all that is modal is unloaded, and then this form.
    void EndSession();

    UiBackend& Ui() const { return ui_; }
    // The form from which a modal one was opened; null without one that can be seen.
    Form* Owner() const { return owner_; }

    bool TakesActs() const override;

  private:
    UiBackend& ui_;
    Form* owner_ = nullptr;
    bool unloaded_ = false;
};
