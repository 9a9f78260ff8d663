#include "tests/soak/counted_heap.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::int64_t in_use = 0;

// In front of each block stands its size, in a room that keeps the block aligned for anything.
constexpr std::size_t room = alignof(std::max_align_t);
static_assert(room >= sizeof(std::size_t));

void* get(std::size_t size) noexcept {
  void* whole = std::malloc(size + room);
  if (whole == nullptr) return nullptr;
  *static_cast<std::size_t*>(whole) = size;
  in_use += static_cast<std::int64_t>(size);
  return static_cast<std::byte*>(whole) + room;
}

void give_back(void* block) noexcept {
  if (block == nullptr) return;
  void* whole = static_cast<std::byte*>(block) - room;
  in_use -= static_cast<std::int64_t>(*static_cast<std::size_t*>(whole));
  std::free(whole);
}

} // namespace

std::int64_t cserko::heap_in_use() { return in_use; }

// The sanitizers bring operators of their own for all forms: each form that is not aligned stands here.
void* operator new(std::size_t size) {
  if (void* block = get(size)) return block;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return get(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return get(size); }

void operator delete(void* block) noexcept { give_back(block); }
void operator delete[](void* block) noexcept { give_back(block); }
void operator delete(void* block, std::size_t) noexcept { give_back(block); }
void operator delete[](void* block, std::size_t) noexcept { give_back(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { give_back(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { give_back(block); }
