// What builders of lists of logic ports answer, computed in the plainest way.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog/frame/logic_port_lists.h"

namespace test {

struct Builder;

// What lists these numbers; a number 0 leaves its place alone.
ListAnswer Listing(const Builder& builder, const std::vector<uint32_t>& numbers, uint32_t room);

// Of a builder that takes each entry for itself.
ListAnswer ListingOfTaken(const Builder& builder, const ListQuestion& question, uint32_t room);

// Of the builders that do not: of one slot, of all user ports with a slot, of all
// uplink and Ethernet cards.
ListAnswer ListingOfSlot(const Builder& builder, const ListQuestion& question, uint32_t room);
ListAnswer ListingOfNonzeroPorts(const Builder& builder, const ListQuestion& question,
                                 uint32_t room);
ListAnswer ListingOfUplinks(const Builder& builder, const ListQuestion& question, uint32_t room);

// The number of a plain entry; 0: it has none.
uint32_t PlainNumberOf(uint32_t index);

}  // namespace test
