#pragma once

#include <string>
#include <string_view>

class ScriptedDesktop;

// Teaches a desktop the dialogue of a golden case, in the format of tests/golden/README.md. Returns
// what is wrong with the text, or nothing when it is a complete dialogue.
[[nodiscard]] std::string ExpectDialogue(std::string_view text, ScriptedDesktop& desktop);
