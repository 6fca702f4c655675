#pragma once

#include "base/Event.h"
#include "toolkit/Container.h"

// A top-level window. Left, Top, Width and Height are those of the whole window on the screen;
// Visible is false from the start.
class Form : public Container {
  public:
    explicit Form(UiBackend& ui);
    ~Form() override;

    Property<std::string, Control> Caption{*this, {}};
    Property<bool, Control> Resizable{*this, false};

    Event<> QueryUnload;  // the window is going to close; all of it is still there
    Event<> Unloaded;     // it is closing for good
    // The user's session ends, and the process with it as soon as this returns: what must not be
    // left behind is to be ended here. The form is unloaded already.
    Event<> SessionEnding;

    // Makes the peers that are missing; to be called again after controls have been added.
    void Load();
    // Brings the window to the front, also when it is shown already.
    void Show();
    void Hide() { Visible = false; }

    // Closes for good: QueryUnload, Unloaded, then the window is hidden. The peers stay until the
    // form ends, so a control's own handler may call this. Only the first call does anything.
    void Unload();
    bool IsUnloaded() const { return unloaded_; }

    UiBackend& Ui() const { return ui_; }

    void Accept(ControlVisitor& visitor) override;

  private:
    UiBackend& ui_;
    bool unloaded_ = false;
};
