#pragma once

// What each system has to be told about the program.
namespace Process {

// A call that the system forbids, or that has no disk any more, is to fail; it must not end the program or hold it up.
void LetCallsFail();

} // namespace Process
