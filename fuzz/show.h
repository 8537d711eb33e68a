// Everything that operators can have shown.
#pragma once

namespace fuzz {

// Runs every command and every printer on the platform's terminal.
void ShowEverything();

}  // namespace fuzz
