#include "toolkit/Frame.h"

#include "toolkit/UiBackend.h"

void Frame::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
