// The data of the older release, which kept it in files of fixed-length records in the same data folder.
#pragma once

// Writes the record files from the older release's, where these are and terms.xml is not: once, as the
// planner first starts on such a folder. The old files stay. It tells nothing of its own; only the boxes of
// the writers may come up. A file that cannot be read ends its own step. The store is empty behind a
// conversion.
void ConvertLegacyData();
