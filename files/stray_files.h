// Temporary files: their names, and those that a killed save has left behind.
#pragma once

#include <string>

/// A name that no other save uses: ".vorbilax-", then process, its start, machine, a number.
std::string TemporaryName();

/// Removes the temporary files in `folder` whose process is gone. What another machine, another
/// system start or an older program left cannot be told from a save that is going on; it is removed
/// a day after its last change.
void RemoveStrayFiles(const std::string& folder);
