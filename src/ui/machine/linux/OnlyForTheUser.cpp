#include "ui/machine/OnlyForTheUser.h"

#include <sys/stat.h>

namespace Ui {

OnlyForTheUser::OnlyForTheUser() : m_before(umask(S_IRWXG | S_IRWXO)) {}

OnlyForTheUser::~OnlyForTheUser() {
    umask(m_before);
}

} // namespace Ui
