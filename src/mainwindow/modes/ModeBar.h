// The dark bar of the modes under the menu bar.
#pragma once

class QWidget;
class frmMain;

// Makes the bar; the items of the menu bar are there by then.
QWidget* BuildModeBar(frmMain& window);
