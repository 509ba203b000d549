// The tip of the day.
#pragma once

class frmMain;

// Makes TimerTip, which shows a tip once it has been started, if the window is on the screen by then.
void BindTips(frmMain& window);

// Shows a tip, unless the options say that none is wanted, and takes the options over as the student left
// them.
void ShowTipOfTheDay(frmMain& window);

// Wants tips from now on and shows one.
void ShowTips(frmMain& window);
