// The two steps by which a file of the data folder is replaced. Between them its new content is whole on the
// device under another name.
#pragma once

#include "core/TextFiles.h"

#include <functional>
#include <string>

// The name under which a file's new content waits.
std::string WaitingName(const std::string& fileName);

// Writes what the procedure writes under the waiting name, onto the device; raises the run-time error when
// that fails.
void WriteWaiting(const std::string& fileName, const std::function<void(OutputFile&)>& write);

// Puts what waits in the file's place. Errors are ignored: whatever happens here, the content is whole under
// one of the two names.
void PutWaitingInPlace(const std::string& fileName);
