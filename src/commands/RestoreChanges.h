#pragma once

namespace CommonRoutines {
class Desktop;
} // namespace CommonRoutines

namespace Commands {

// What there is to say when a data file has just been read into the table, and before it is shown. Tells when
// another editor has the file open. Asks whether changes of it that were never saved are wanted back. If so,
// makes them, counts the problems of their districts anew and sets bChanged.
//
// The texts come back in the encoding of the open file. One that is ASCII takes on the UTF-8 of its changes.
//
// Recovery files of the file that do not fit it, or are damaged, are set aside with a message. None is
// ever made in part: where there is not enough memory, it throws, and the caller must forget the table. Expects the
// open file to be the one that was read.
void RestoreChanges(CommonRoutines::Desktop& desktop);

} // namespace Commands
