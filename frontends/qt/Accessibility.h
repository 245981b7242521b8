// Roles that screen readers learn of widgets for which Qt has none.
#pragma once

namespace quorvel::qt {

// Makes them known; any number of times.
void OfferAccessibleRoles();

}  // namespace quorvel::qt
