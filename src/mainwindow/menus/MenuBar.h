// The fixed menu bar.
#pragma once

class frmMain;

// Makes the menus and their items, unbound.
void BuildMenuBar(frmMain& window);
