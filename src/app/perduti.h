// Drawings that a program left behind which did not end as it should.
#pragma once

#include <vector>

#include "document/trelvobas.h"
#include "files/copie.h"

namespace trelvo {

// Those that the user does not see yet.
std::vector<disegnoperduto> perduti_da_offrire(const trelvobas& bas, const copieaperte& copie);

// Opens it, changed, under its own name unless a changed document has that. It is none of the lost ones when it has a
// new copy. Errors are those of leggifile.
void riapri_perduto(trelvobas& bas, copieaperte& copie, const disegnoperduto& perduto);

}  // namespace trelvo
