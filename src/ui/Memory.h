#pragma once

#include <functional>

class Desktop;

// What happens when there is not enough memory: a message, not the end of the program.
namespace Memory {

// Lets the program take the memory that the machine has left now, but no more. Where the system gives out
// more than it has, a program that takes too much is otherwise ended instead of being refused some.
void LimitToWhatIsLeft();

// Runs a command; one that there is not enough memory for ends with a message. The commands of all windows
// run through here, since the toolkit must not meet with an exception.
void Run(Desktop& desktop, const std::function<void()>& command);

} // namespace Memory
