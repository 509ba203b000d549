// The study timer: a clock that the student starts, pauses and resets.
#pragma once

class frmMain;

void BindStudyTimer(frmMain& window);
