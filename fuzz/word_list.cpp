// Reads any bytes as the list of words that need no capital.

#include "FuzzDesktop.h"
#include "Invariant.h"

#include "core/Ansi.h"
#include "core/State.h"
#include "rules/Capitals.h"

using namespace CommonRoutines;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    ResetState();
    eFileEncoding = Encoding::Utf8; // as the list is in memory
    FuzzDesktop desktop({reinterpret_cast<const char*>(data), size}, "");
    LoadLowerCaseWords(desktop);
    const LowerCaseList& list = LowerCaseWords();
    Demand(list.count < std::ssize(list.words));
    for (std::int32_t i = 1; i <= list.count; ++i) {
        const std::string& word = list.words[static_cast<std::size_t>(i)];
        Demand(!word.empty() && word == Ansi::Trim(word) && word == Ansi::Lower(word));
        Demand(word.find(',') == std::string::npos && word.find('\n') == std::string::npos);
        Demand(list.lookup.contains(word));
        // Where the word is one word to the check, any casing of it passes.
        if (word.find_first_of("\t -.,(/'!%") == std::string::npos) {
            Demand(!HasUnusualCapitals(word) && !HasUnusualCapitals(Ansi::Upper(word)));
        }
    }
    return 0;
}
