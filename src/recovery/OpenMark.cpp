#include "recovery/OpenMark.h"

#include "core/Desktop.h"
#include "recovery/RecoveryFile.h"

namespace CommonRoutines {

namespace {

constexpr std::string_view Ending = ".open";

} // namespace

bool OpenMark::Set(Desktop& desktop, const std::string& path) {
    Clear(desktop);
    StateFolder& folder = desktop.State();
    // Marks of a file begin alike. The own one is made before others are looked for, so that of two
    // editors that open a file at the same time at least one is told.
    const std::string beginning = IdentityOf({}, desktop.TruePath(path)).digest + '-';
    const std::string own = beginning + folder.NewName().append(Ending);
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
            isOpenElsewhere = isOpenElsewhere || name.starts_with(beginning);
            break;
        case LockResult::Impossible:
            break;
        }
    }
    return isOpenElsewhere;
}

void OpenMark::Clear(Desktop& desktop) {
    if (!m_name.empty()) {
        desktop.State().Unlock(m_name);
        m_name.clear();
    }
}

} // namespace CommonRoutines
