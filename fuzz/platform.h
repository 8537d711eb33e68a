// The platform of a run: what test::FakePlatform answers.
#pragma once

#include <cstdint>
#include <string_view>

namespace fuzz {

// A number that follows from the bytes, the same on every machine.
uint32_t SeedOf(std::string_view bytes);

// Before the start. The equipment is a chassis that the file describes, if there is one.
void PreparePlatform(std::string_view bytes, uint32_t seed);

// After it: cards in the slots and an ONU, of types that the tables hold.
void FitCards(uint32_t seed);

}  // namespace fuzz
