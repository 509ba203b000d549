// The left panel.
#pragma once

class QWidget;
class frmMain;

// Makes the panel with all its controls; the items of the menu bar are there by then.
QWidget* BuildLeftPanel(frmMain& window);
