// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstddef>

/// Memory of the model's objects. Every saving measure copies the building and frees the copy, tens of thousands of
/// small objects: a freed block goes to the list of its size and is handed out again from there, and new blocks are cut
/// side by side from large pieces, so that a tree lies in memory in the order in which it is walked. A thread has lists
/// of its own; an object may be freed by another one. What a thread leaves free at its end goes to the others. Memory
/// once taken is kept for the run.
///
/// Under the address sanitizer every object is a block of its own from the heap, so that a use of a freed one is seen.
namespace oliomuisti {

void* Varaa(std::size_t koko);
void Vapauta(void* lohko, std::size_t koko) noexcept;
/// Bytes of this thread's objects at present.
std::size_t Kaytossa() noexcept;

}  // namespace oliomuisti
