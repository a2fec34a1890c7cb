#include "ui/machine/OnlyForTheUser.h"

namespace Ui {

// Who may read a file there depends on its folder.
OnlyForTheUser::OnlyForTheUser() : m_before(0) {}

OnlyForTheUser::~OnlyForTheUser() = default;

} // namespace Ui
