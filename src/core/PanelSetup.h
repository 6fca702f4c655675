#pragma once

#include "core/PanelUnit.h"
#include "ui/PanelSetupForm.h"

// Opens the setup window of a panel, and returns when it is closed.
void OpenPanelSetup(PanelUnit& unit, const PanelLists& panels, const SetupServices& services);
