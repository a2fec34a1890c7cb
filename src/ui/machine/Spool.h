#pragma once

#include "core/Desktop.h"

// Contents that are put together, of any size.
namespace Spool {

// Hands over all pieces as one content and returns what `use` does. A large one stands on the disk meanwhile, so that
// it takes no memory. False, without handing it over, where there is no room for it there.
[[nodiscard]] bool Use(const CommonRoutines::PieceSource& pieces, const std::function<bool(std::string_view)>& use);

} // namespace Spool
