// Files whose read was cut short: what they hold behind the fault is kept when the first save replaces them.
#pragma once

#include "persistence/modIO.h"

// Copies the file as it stands to a free name of the backup folder, where its last read was cut short and
// that has not been done yet. What cannot be read is not kept. False after the writing message for the copy:
// the file must then not be replaced.
bool KeepDamagedFile(const RecordFile& file);
