// The tick of the reminder window at the greatest size of a planner.
#pragma once

// Registers the scan with its rows and their paint, with nothing due, with 1,000 due, and with all tasks
// standing. The saves of what has fired are not in it.
void RegisterReminderBenchmarks();
