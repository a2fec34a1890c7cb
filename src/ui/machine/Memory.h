#pragma once

// How much memory the program may take.
namespace Memory {

// Lets the program take the memory that the machine has left now, but no more. Where the system gives out
// more than it has, a program that takes too much is otherwise ended instead of being refused some.
void LimitToWhatIsLeft();

} // namespace Memory
