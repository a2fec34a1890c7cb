#include "recovery/OpenMark.h"

#include "core/Desktop.h"
#include "recovery/Fingerprint.h"

namespace CommonRoutines {

namespace {

constexpr std::string_view Ending = ".open";

// Marks of a file begin alike.
std::string BeginningFor(std::string_view truePath) {
    return FingerprintOf(truePath).digest + '-';
}

} // namespace

bool OpenMark::Set(Desktop& desktop, const std::string& path) {
    Clear(desktop);
    StateFolder& folder = desktop.State();
    const std::string truePath = desktop.TruePath(path);
    // The own one is made before others are looked for, so that of two editors that open a file at the same time at
    // least one is told.
    const std::string own = BeginningFor(truePath) + folder.NewName().append(Ending);
    if (folder.Lock(own) == LockResult::Taken) {
        m_name = own;
    }
    bool isOpenElsewhere = false;
    for (const std::string& name : folder.Names()) {
        if (name == own || !name.ends_with(Ending)) {
            continue;
        }
        switch (folder.Lock(name)) {
        case LockResult::Taken:
            folder.Unlock(name); // whoever set it has died
            break;
        case LockResult::HeldByAnother:
            isOpenElsewhere = isOpenElsewhere || IsOf(name, truePath);
            break;
        case LockResult::Impossible:
            break;
        }
    }
    return isOpenElsewhere;
}

bool OpenMark::IsOf(std::string_view name, std::string_view truePath) {
    return name.ends_with(Ending) && name.starts_with(BeginningFor(truePath));
}

void OpenMark::Clear(Desktop& desktop) {
    if (!m_name.empty()) {
        desktop.State().Unlock(m_name);
        m_name.clear();
    }
}

} // namespace CommonRoutines
