#include "ui/machine/OnlyForTheUser.h"

#include "ui/machine/windows/Rights.h"

namespace {

// The system has no such setting. The files that this program makes ask for it.
unsigned depth = 0;

} // namespace

namespace Ui {

OnlyForTheUser::OnlyForTheUser() : m_before(depth++) {}

OnlyForTheUser::~OnlyForTheUser() {
    depth = m_before;
}

} // namespace Ui

// Where the user is not known, rights with which no file can be made.
std::optional<Rights::Descriptor> Rights::OfNewFiles() {
    return depth > 0 ? OfTheUserAlone().value_or(Descriptor(sizeof(SECURITY_DESCRIPTOR))) : std::optional<Descriptor>();
}
