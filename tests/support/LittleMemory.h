#pragma once

#include <cstddef>
#include <functional>

// Does this in a process of its own, which may take so many bytes. The sanitizer would end a program that is refused
// memory, and not every system has such a limit.
void DoWithin(std::size_t bytes, const std::function<void()>& work);
