#include "toolkit/CommandButton.h"

#include "toolkit/UiBackend.h"

void CommandButton::Press() {
    if (Enabled) Click.Raise();
}

void CommandButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
