// The alert buttons: which of them show.
#pragma once

class frmMain;

void BindAlerts(frmMain& window);

// Shows the buttons of the alerts that the store gives cause for.
void StudyTimeAlerts(frmMain& window);
