// The dialogs' speed over the loaded main window.
#pragma once

// Registers the opening of each dialog, and the way from OK to the refreshed view.
void RegisterDialogBenchmarks();
