#pragma once

#include <functional>

namespace CommonRoutines {

class Desktop;

// Reads the file sDataFileName into Districts, one record a line, checking every variation on the way. Null
// variations go to the repair dialogue, other problems to message boxes and to a report that is shown at the
// end. No line is ever lost; what cannot be understood is retained.
//
// Leaves the lines in Districts (1 to lLineCount), the totals of the load and the pairs of the whole file in
// DupePairs. The answer of the last repair is left in iRepairAction: Quit ends the reading early, without a
// report. Sets bChanged when something was repaired. Adds to CommentTypes. Expects iEditMode to be NothingOpen.
// A file that cannot be read, or that there is not enough memory for, leaves an empty table, an empty
// sDataFileName and a message; so, without the message, does one that is hardly a data file and is not wanted.
//
// What the file is taken for stands in eFileEncoding and eEncodingOnDisk. `takeEncoding` is called when that is
// known and nothing of the file is in the table yet. Where the file cannot be read, both stay as they are.
void ReadDistrictFile(
    Desktop& desktop, const std::function<void()>& takeEncoding = [] {});

// Leaves no file open and nothing of it, above all no memory. What has not been saved stays left over.
void ForgetDistrictFile(Desktop& desktop);

} // namespace CommonRoutines
