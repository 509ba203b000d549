// What the buttons of the study timer do.
#pragma once

class frmMain;

// Sets it to nothing run and paints it.
void ClearStudyTimer(frmMain& window);

// Each paints it and gives the grid the focus.
void StartOrPauseStudyTimer(frmMain& window);
void ResetStudyTimer(frmMain& window);
void TurnTimerSeconds(frmMain& window);
