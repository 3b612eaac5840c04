#include "launch/logic/command_entry.h"

#include "base/text.h"
#include "launch/logic/launch_line.h"

namespace korvane::launch {

CommandEntry ParseCommandEntry(std::wstring_view line) {
    LineFields fields = SplitLaunchLine(line);
    CommandEntry entry;
    entry.path = std::move(fields[0]);
    entry.arguments = std::move(fields[1]);
    entry.workingFolder = std::move(fields[2]);
    entry.iconFile = std::move(fields[3]);
    entry.iconIndexText = std::move(fields[4]);
    entry.name = std::move(fields[5]);
    if (!entry.iconFile.empty()) entry.iconIndex = base::LeadingInteger(entry.iconIndexText);
    return entry;
}

} // namespace korvane::launch
