// The message that an alert button explains itself with.
#pragma once

#include <cstddef>

class frmMain;

// For the button at the index, in their order from 0.
void ShowAlertMessage(frmMain& window, std::size_t index);
