// Names that no table can have.
#pragma once

namespace fuzz {

// Asks every query by name for long names, for formats and for none.
void AskHostileNames();

}  // namespace fuzz
