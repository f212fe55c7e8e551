#pragma once

#include "app/MDIContainer.h"

/// Tells a main window how every form and dialog is made, as the program does.
void AddAllForms(MDIContainer& window, LGLOBAL& shared, Prompts& prompts);
